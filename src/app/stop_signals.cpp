#include "app/stop_signals.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <csignal>

namespace tarnel {

int blockStopSignals() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGINT);
    sigaddset(&set, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    return signalfd(-1, &set, SFD_CLOEXEC);
}

const char* takeStopSignal(int descriptor) {
    signalfd_siginfo info{};
    [[maybe_unused]] auto n = ::read(descriptor, &info, sizeof info);
    return info.ssi_signo == SIGINT ? "Interrupted, stopping" : "Terminated, stopping";
}

}  // namespace tarnel
