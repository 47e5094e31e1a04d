#pragma once

#include <cstdio>
#include <cstdlib>

// A broken rule is a crash for the fuzzer, with the rule named on stderr.
#define check(condition)                                                                          \
    ((condition) ? (void)0                                                                        \
                 : (std::fprintf(stderr, "%s:%d: failed: %s\n", __FILE__, __LINE__, #condition), \
                    std::abort()))
