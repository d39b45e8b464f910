#include "ui/console/Interrupt.h"

#include <atomic>
#include <csignal>

namespace satwecvt {

namespace {

// Set wherever the signal arrives, asked for in every thread that converts.
std::atomic<bool> requested = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a handler may not wait for a lock");

extern "C" void OnInterrupt(int)
{
    requested = true;
    std::signal(SIGINT, OnInterrupt);  // some systems fall back to the default once the handler has run
}

}  // namespace

CInterrupt::CInterrupt() noexcept
{
    requested = false;
    previous = std::signal(SIGINT, OnInterrupt);
    if (previous == SIG_IGN) {
        std::signal(SIGINT, SIG_IGN);
    }
}

CInterrupt::~CInterrupt()
{
    if (previous != SIG_ERR) {
        std::signal(SIGINT, previous);
    }
}

bool CInterrupt::Requested() noexcept
{
    return requested.load(std::memory_order_relaxed);
}

}  // namespace satwecvt
