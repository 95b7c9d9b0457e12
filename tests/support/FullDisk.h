#pragma once

#include <csignal>
#include <sys/resource.h>

/// A full disk: for its lifetime no file of this process grows beyond so many bytes.
class FullDisk
{
public:
    explicit FullDisk(rlim_t most)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit now{most, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &now);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before{};
};
