// The one way into an output file, and into a text in memory. The formats of the lines stand in the block writers as
// the literal texts of the file; see LineFormat.h for what they may hold.
#pragma once

#include "text/LineFormat.h"
#include "text/NumberText.h"
#include "text/OutputFile.h"
#include "text/TextBuffer.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>

namespace satwecvt {

namespace lineText {

inline std::size_t MostCharacters(std::int32_t) noexcept
{
    return kMostIntegerCharacters;
}
inline std::size_t MostCharacters(double) noexcept
{
    return kMostRealCharacters;
}
inline std::size_t MostCharacters(std::string_view text) noexcept
{
    return text.size();
}

inline char* Put(char* to, std::string_view text) noexcept
{
    return to + text.copy(to, text.size());
}
inline char* Put(char* to, std::int32_t number) noexcept
{
    return WriteInteger(to, number);
}
inline char* Put(char* to, double number) noexcept
{
    return WriteReal(to, number);
}

}  // namespace lineText

/// Formats its arguments like printf in the "C" locale and gathers exactly these bytes for the target, a COutputFile or
/// a CTextBuffer; the line end is part of the format. Throws CFileError when a file cannot take them.
///
/// It goes into its caller, where the compiler knows the format and copies its texts as constants.
template <class Target, class... Arguments>
[[gnu::always_inline]] inline void WriteLine(Target& target,
                                             const CLineFormat<std::type_identity_t<Arguments>...>& format,
                                             const Arguments&... arguments)
{
    constexpr std::size_t kArguments = sizeof...(Arguments);
    std::size_t most = (format.Literal(kArguments).size() + ... + lineText::MostCharacters(arguments));
    for (std::size_t i = 0; i < kArguments; ++i) {
        most += format.Literal(i).size();
    }
    char* at = target.Reserve(most);
    std::size_t position = 0;
    ((at = lineText::Put(lineText::Put(at, format.Literal(position++)), arguments)), ...);
    target.Commit(lineText::Put(at, format.Literal(kArguments)));
}

}  // namespace satwecvt
