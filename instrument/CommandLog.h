#pragma once

#include <cstdio>
#include <mutex>
#include <string>

// Appends each command the instrument receives to a file, one per line, flushed at once so a
// test can read it while the simulator runs. Without a path it does nothing.
class CommandLog
{
public:
    explicit CommandLog(const std::string& path);
    ~CommandLog();
    CommandLog(const CommandLog&) = delete;
    CommandLog& operator=(const CommandLog&) = delete;

    bool isOpen() const { return m_file != nullptr; }
    void write(const std::string& line);

private:
    std::mutex m_mutex;
    FILE* m_file = nullptr;
};
