// sim33210a: the simulated generator as a process. Prints one ready line with its ports on
// stdout, serves until SIGTERM or SIGINT, then closes every connection and exits 0. The death
// of the process that started it counts as SIGTERM.
#include "SimOptions.h"
#include "Simulator.h"

#include <csignal>
#include <cstdio>
#include <iostream>
#include <string>

#include <sys/prctl.h>

int main(int argc, char** argv)
{
    SimOptions options;
    std::string error;
    if (!options.parse(argc, argv, error)) {
        std::cerr << error << (error == SimOptions::usage() ? "" : "\n") << SimOptions::usage();
        return 2;
    }

    // Block the stop signals in every thread, then wait for one in this thread.
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
    // A test or host that crashes must not leave a simulator serving on, holding its output
    // open (a test runner waits for that to close).
    prctl(PR_SET_PDEATHSIG, SIGTERM);

    Simulator simulator(options);
    if (!simulator.start(error)) {
        std::cerr << "sim33210a: " << error << "\n";
        return 1;
    }
    std::cout << simulator.readyLine() << std::endl;

    int received = 0;
    sigwait(&signals, &received);
    simulator.stop();
    return 0;
}
