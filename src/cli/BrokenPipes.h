#pragma once

#include <csignal>

namespace satwecvt {

/// A pipe that nobody reads any more becomes a failed write, which is told like others and leaves nothing half done
/// behind, where the system would end the program.
inline void IgnoreBrokenPipes() noexcept
{
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN);
#endif
}

}  // namespace satwecvt
