#pragma once

namespace satwecvt {

/// Turns Ctrl-C into a request that is asked for, for as long as the object lives. A process that was started with
/// Ctrl-C switched off (in the background, under nohup) keeps it switched off.
class CInterrupt {
public:
    CInterrupt() noexcept;
    ~CInterrupt();
    CInterrupt(const CInterrupt&) = delete;
    CInterrupt& operator=(const CInterrupt&) = delete;

    /// Whether Ctrl-C was pressed since the object was made; in any thread.
    static bool Requested() noexcept;

private:
    using Handler = void (*)(int);
    Handler previous;
};

}  // namespace satwecvt
