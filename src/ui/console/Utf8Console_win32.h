#pragma once

namespace satwecvt {

/// Lets the console show UTF-8, which the program's messages are in (file names of any language), for as long as the
/// object lives: the console of Windows reads what is written to it in an older code page, and keeps a changed one when
/// the program has ended. Without a console, nothing.
class CUtf8Console {
public:
    CUtf8Console() noexcept;
    ~CUtf8Console();
    CUtf8Console(const CUtf8Console&) = delete;
    CUtf8Console& operator=(const CUtf8Console&) = delete;

private:
    unsigned int previous;  // the console's code page; 0 when there is no console
};

}  // namespace satwecvt
