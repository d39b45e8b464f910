#include "ui/console/Interrupt.h"

#include <csignal>

namespace satwecvt {

namespace {

volatile std::sig_atomic_t requested = 0;

extern "C" void OnInterrupt(int)
{
    requested = 1;
    std::signal(SIGINT, OnInterrupt);  // some systems fall back to the default once the handler has run
}

}  // namespace

CInterrupt::CInterrupt() noexcept
{
    requested = 0;
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
    return requested != 0;
}

}  // namespace satwecvt
