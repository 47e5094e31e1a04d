// Round-trip cost of one "FREQ?" query through our VISA library against the simulated
// generator, once with Nagle's algorithm on at the instrument (as most firmware leaves it) and
// once off, beside pyvisa-py on the same two and a plain loopback TCP echo, all in one run inside
// a private network namespace. Prints median and p99 of each and the ratios, and exits 1 when a
// budget is missed: Nagle on within 2x of Nagle off (a client that sends its read before the
// write's reply is in waits ~40 ms for its own delayed ACK there), Nagle off within 3x of two echo
// round trips (a query is a write call and a read call), and at least 1.5x faster than pyvisa-py.
// Exit 77: could not measure.
//
// Everything runs on one CPU (pass --no-pin to let it spread): in a virtual machine a wake-up
// on another, idle CPU can cost more than the work being measured, and it varies from run to
// run. Pinned, all figures pay the same same-CPU switch.
#include "Simulator.h"
#include "visa.h"

#include <algorithm>
#include <arpa/inet.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sched.h>
#include <string>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {
using Clock = std::chrono::steady_clock;
constexpr int kWarmup = 50;
constexpr int kQueries = 3000;
constexpr int kPythonQueries = 500;
// A stalled query costs tens of milliseconds: this keeps a run with stalls short.
constexpr auto kMaxRun = std::chrono::seconds(5);
constexpr double kNagleBudget = 2.0;
constexpr double kEchoBudget = 3.0;
constexpr double kPythonBudget = 1.5;
// Both simulators own port 111, where pyvisa-py looks, each on its own loopback address.
const char* const kNagleOn = "127.0.0.1";
const char* const kNagleOff = "127.0.0.2";

std::string resource(const char* address)
{
    return std::string("TCPIP0::") + address + "::inst0::INSTR";
}

struct Figures
{
    double median = 0;
    double p99 = 0;
};

Figures summarise(std::vector<double> micros)
{
    std::sort(micros.begin(), micros.end());
    Figures f;
    if (micros.empty())
        return f;
    f.median = micros[micros.size() / 2];
    f.p99 = micros[std::min(micros.size() - 1, micros.size() * 99 / 100)];
    return f;
}

double since(Clock::time_point start)
{
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}

// Keeps this process, its threads and its children on the first CPU it may use.
int pinToOneCpu()
{
    cpu_set_t allowed;
    if (sched_getaffinity(0, sizeof allowed, &allowed) != 0)
        return -1;
    for (int cpu = 0; cpu < CPU_SETSIZE; ++cpu) {
        if (!CPU_ISSET(cpu, &allowed))
            continue;
        cpu_set_t one;
        CPU_ZERO(&one);
        CPU_SET(cpu, &one);
        return sched_setaffinity(0, sizeof one, &one) == 0 ? cpu : -1;
    }
    return -1;
}

void enterPrivateNetwork(char** argv)
{
    if (std::getenv("SYNC_BENCH_NETNS"))
        return;
    setenv("SYNC_BENCH_NETNS", "1", 1);
    if (std::system("unshare -rn sh -c 'ip link set lo up' >/dev/null 2>&1") != 0) {
        std::fprintf(stderr, "bench: needs a private network namespace (unshare -rn)\n");
        std::exit(77);
    }
    execlp("unshare", "unshare", "-rn", "sh", "-c", "ip link set lo up && exec \"$0\" \"$@\"",
        argv[0], argv[1], static_cast<char*>(nullptr));
    std::perror("unshare");
    std::exit(77);
}

bool measureVisa(const char* address, std::vector<double>& micros)
{
    ViSession rm = 0;
    ViSession vi = 0;
    std::string name = resource(address);
    if (viOpenDefaultRM(&rm) != VI_SUCCESS
        || viOpen(rm, &name[0], VI_NO_LOCK, 0, &vi) != VI_SUCCESS)
        return false;
    char buffer[1024] = {};
    const auto end = Clock::now() + kMaxRun;
    for (int i = 0; i < kWarmup + kQueries && Clock::now() < end; ++i) {
        const auto start = Clock::now();
        if (viPrintf(vi, const_cast<ViString>("FREQ?\n")) < VI_SUCCESS
            || viScanf(vi, const_cast<ViString>("%1024t"), buffer) < VI_SUCCESS)
            return false;
        if (i >= kWarmup)
            micros.push_back(since(start));
    }
    viClose(vi);
    viClose(rm);
    return !micros.empty() && std::strncmp(buffer, "+1.00000000000000E+03", 21) == 0;
}

bool measureEcho(std::vector<double>& micros)
{
    const int listener = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in addr = {};
    addr.sin_family = AF_INET;
    addr.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t len = sizeof addr;
    if (::bind(listener, reinterpret_cast<sockaddr*>(&addr), sizeof addr) != 0
        || ::listen(listener, 1) != 0
        || ::getsockname(listener, reinterpret_cast<sockaddr*>(&addr), &len) != 0)
        return false;
    std::thread server([listener]() {
        const int fd = ::accept(listener, nullptr, nullptr);
        const int one = 1;
        ::setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &one, sizeof one);
        char data[256];
        for (;;) {
            const ssize_t n = ::recv(fd, data, sizeof data, 0);
            if (n <= 0 || ::send(fd, data, size_t(n), MSG_NOSIGNAL) != n)
                break;
        }
        ::close(fd);
    });
    const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    const int one = 1;
    ::setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &one, sizeof one);
    bool ok = ::connect(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr) == 0;
    // About the size of one VXI-11 device_read call.
    char message[64] = {};
    for (int i = 0; ok && i < kWarmup + kQueries; ++i) {
        const auto start = Clock::now();
        ok = ::send(fd, message, sizeof message, MSG_NOSIGNAL) == ssize_t(sizeof message);
        size_t got = 0;
        while (ok && got < sizeof message) {
            const ssize_t n = ::recv(fd, message + got, sizeof message - got, 0);
            ok = n > 0;
            got += ok ? size_t(n) : 0;
        }
        if (i >= kWarmup)
            micros.push_back(since(start));
    }
    ::close(fd);
    server.join();
    ::close(listener);
    return ok;
}

bool measurePyvisa(const char* address, std::vector<double>& micros)
{
    const std::string script = "import time, pyvisa\n"
                               "rm = pyvisa.ResourceManager('@py')\n"
                               "i = rm.open_resource('"
        + resource(address)
        + "')\n"
          "for n in range("
        + std::to_string(kWarmup + kPythonQueries)
        + "):\n"
          "    t = time.perf_counter()\n"
          "    i.query('FREQ?')\n"
          "    d = (time.perf_counter() - t) * 1e6\n"
          "    if n >= "
        + std::to_string(kWarmup)
        + ": print(d)\n"
          "i.close()\n";
    const std::string command = "/usr/bin/python3 -c \"" + script + "\" 2>/dev/null";
    FILE* pipe = ::popen(command.c_str(), "r");
    if (!pipe)
        return false;
    char line[64];
    while (std::fgets(line, sizeof line, pipe))
        micros.push_back(std::atof(line));
    return ::pclose(pipe) == 0 && micros.size() == size_t(kPythonQueries);
}

void print(const char* what, const Figures& f, bool measured = true)
{
    if (measured)
        std::printf("%-40s %10.1f %10.1f\n", what, f.median, f.p99);
    else
        std::printf("%-40s %10s %10s\n", what, "n/a", "n/a");
}

bool within(const char* what, double ratio, const char* relation, double budget)
{
    const bool ok = relation[0] == '<' ? ratio <= budget : ratio >= budget;
    std::printf(
        "%-44s %8.2f (budget %s %.1f)%s\n", what, ratio, relation, budget, ok ? "" : "  MISSED");
    return ok;
}
} // namespace

int main(int argc, char** argv)
{
    const bool pin = !(argc > 1 && std::strcmp(argv[1], "--no-pin") == 0);
    enterPrivateNetwork(argv);
    unsetenv("SYNC_VXI11_PORTMAPPER_PORT");
    const int cpu = pin ? pinToOneCpu() : -1;

    SimOptions nagleOptions;
    nagleOptions.listenAddress = kNagleOn;
    SimOptions noDelayOptions;
    noDelayOptions.listenAddress = kNagleOff;
    noDelayOptions.tcpNoDelay = true;
    Simulator nagle(nagleOptions);
    Simulator noDelay(noDelayOptions);
    std::string error;
    if (!nagle.start(error) || !noDelay.start(error)) {
        std::fprintf(stderr, "bench: simulator: %s\n", error.c_str());
        return 77;
    }

    std::vector<double> visaNagle, visaNoDelay, echo, pythonNagle, pythonNoDelay;
    if (!measureVisa(kNagleOn, visaNagle) || !measureVisa(kNagleOff, visaNoDelay)
        || !measureEcho(echo)) {
        std::fprintf(stderr, "bench: a measurement failed\n");
        return 77;
    }
    const bool havePython
        = measurePyvisa(kNagleOn, pythonNagle) && measurePyvisa(kNagleOff, pythonNoDelay);
    nagle.stop();
    noDelay.stop();

    const Figures vn = summarise(visaNagle), vd = summarise(visaNoDelay), e = summarise(echo);
    const Figures pn = summarise(pythonNagle), pd = summarise(pythonNoDelay);
    const std::string buildType = SYNC_BENCH_BUILD_TYPE;
    std::printf("build type: %s%s\n", buildType.c_str(),
        buildType == "Release" || buildType == "RelWithDebInfo"
            ? ""
            : " (unoptimised: configure with -DCMAKE_BUILD_TYPE=Release for real figures)");
    if (cpu >= 0)
        std::printf("pinned to CPU %d\n", cpu);
    else
        std::printf("not pinned\n");
    std::printf("%-40s %10s %10s\n", "round trip (microseconds)", "median", "p99");
    print("FREQ? through libvxivisa, Nagle on", vn);
    print("FREQ? through libvxivisa, Nagle off", vd);
    print("FREQ? through pyvisa-py, Nagle on", pn, havePython);
    print("FREQ? through pyvisa-py, Nagle off", pd, havePython);
    print("loopback TCP echo", e);
    if (visaNagle.size() < size_t(kQueries))
        std::printf("(Nagle on: %zu queries in %lld s)\n", visaNagle.size(),
            static_cast<long long>(kMaxRun.count()));

    std::printf("\n");
    bool ok = within("libvxivisa Nagle on / Nagle off:", vn.median / vd.median, "<=", kNagleBudget);
    ok = within("libvxivisa Nagle off / two echo round trips:", vd.median / (2 * e.median),
             "<=", kEchoBudget)
        && ok;
    if (!havePython) {
        std::printf("pyvisa-py: not measured (python3-pyvisa-py missing)\n");
        return 77;
    }
    ok = within("pyvisa-py / libvxivisa, Nagle on:", pn.median / vn.median, ">=", kPythonBudget)
        && ok;
    ok = within("pyvisa-py / libvxivisa, Nagle off:", pd.median / vd.median, ">=", kPythonBudget)
        && ok;
    std::printf("%s\n", ok ? "within budget" : "BUDGET MISSED");
    return ok ? 0 : 1;
}
