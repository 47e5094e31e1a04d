#pragma once

#include <utility>

// Runs a callable at the end of the scope, also when an exception passes through.
template <typename F>
class ScopeExit
{
public:
    explicit ScopeExit(F f) : m_f(std::move(f)) {}
    ~ScopeExit() { m_f(); }

    ScopeExit(const ScopeExit&) = delete;
    ScopeExit& operator=(const ScopeExit&) = delete;

private:
    F m_f;
};
