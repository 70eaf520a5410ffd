#pragma once

#include <csignal>
#include <sys/resource.h>

/// While it lives, no file of the process can grow beyond a size, as on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t size)
        : m_signalHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = size;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signalHandler);
    }

private:
    rlimit m_before{};
    void (*m_signalHandler)(int);
};
