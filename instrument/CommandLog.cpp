#include "CommandLog.h"

CommandLog::CommandLog(const std::string& path)
{
    if (!path.empty())
        m_file = std::fopen(path.c_str(), "a");
}

CommandLog::~CommandLog()
{
    if (m_file)
        std::fclose(m_file);
}

void CommandLog::write(const std::string& line)
{
    if (!m_file)
        return;
    std::lock_guard<std::mutex> lock(m_mutex);
    std::fwrite(line.data(), 1, line.size(), m_file);
    std::fputc('\n', m_file);
    std::fflush(m_file);
}
