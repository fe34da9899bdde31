#include "Apps/fernwick/run/interruption.h"
#include <csignal>

namespace cli {

namespace {
// Written by the signal handler.
volatile std::sig_atomic_t interruptNoted = 0;

void noteInterrupt(int signal) {
    if (interruptNoted) {
        std::signal(signal, SIG_DFL);
        std::raise(signal);
    }
    interruptNoted = 1;
}
} // namespace

void watchForInterrupt() {
    std::signal(SIGINT, noteInterrupt);
    sigset_t interrupt; // a parent may have blocked it
    sigemptyset(&interrupt);
    sigaddset(&interrupt, SIGINT);
    sigprocmask(SIG_UNBLOCK, &interrupt, nullptr);
}

bool wasInterrupted() { return interruptNoted != 0; }

void checkInterrupt() {
    if (wasInterrupted()) throw Interrupted();
}

} // namespace cli
