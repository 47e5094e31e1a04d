#pragma once

// Network tests run inside a private network namespace that the test makes for itself
// (unshare -rn, then lo up): only loopback exists there, a simulator may own port 111, and no
// packet can leave the machine. main() calls enterPrivateNetwork() first; tests that connect
// anywhere call requirePrivateNetwork() and skip outside one.
#include <QtTest>

#include <cstdlib>
#include <unistd.h>
#include <vector>

namespace NetNamespace {

inline void enterPrivateNetwork(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet("SYNC_TEST_NETNS"))
        return;
    const bool available = std::system("unshare -rn sh -c 'ip link set lo up' >/dev/null 2>&1") == 0;
    qputenv("SYNC_TEST_NETNS", available ? "1" : "0");
    if (!available)
        return;
    std::vector<char *> args{const_cast<char *>("unshare"), const_cast<char *>("-rn"),
                             const_cast<char *>("sh"), const_cast<char *>("-c"),
                             const_cast<char *>("ip link set lo up && exec \"$0\" \"$@\"")};
    for (int i = 0; i < argc; ++i)
        args.push_back(argv[i]);
    args.push_back(nullptr);
    ::execvp("unshare", args.data());
    qputenv("SYNC_TEST_NETNS", "0");
}

inline bool inPrivateNetwork()
{
    return qgetenv("SYNC_TEST_NETNS") == "1";
}

} // namespace NetNamespace

#define NETNS_MAIN(TestClass)                                                                     \
    int main(int argc, char **argv)                                                               \
    {                                                                                             \
        NetNamespace::enterPrivateNetwork(argc, argv);                                            \
        QCoreApplication app(argc, argv);                                                         \
        TestClass test;                                                                           \
        return QTest::qExec(&test, argc, argv);                                                   \
    }

#define REQUIRE_PRIVATE_NETWORK()                                                                 \
    do {                                                                                          \
        if (!NetNamespace::inPrivateNetwork())                                                    \
            QSKIP("needs a private network namespace (unshare -rn), which is unavailable here"); \
    } while (false)
