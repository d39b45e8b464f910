// Text between single quotes, which a shell takes as it stands.
#pragma once

#include <string>
#include <string_view>

namespace satwecvt {

/// For bash and zsh, where nothing can be escaped between the quotes.
std::string ShellQuoted(std::string_view text);

/// For fish, where a quote and a backslash are escaped between them.
std::string FishQuoted(std::string_view text);

/// The text with a backslash before each of these characters.
std::string Escaped(std::string_view text, std::string_view characters);

}  // namespace satwecvt
