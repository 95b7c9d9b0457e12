#pragma once

#include <QLockFile>
#include <memory>

/// Whether this program runs already on the same folder. Each folder has its own lock, so that a sample runs beside the
/// real one.
class SingleInstance
{
public:
    /// True where another process holds the folder; otherwise this process holds it from now on. A folder that can't be
    /// written has no lock, and nothing in it can be overwritten.
    [[nodiscard]] bool PrevInstance();

private:
    std::unique_ptr<QLockFile> m_lock;
};
