#include "app/SingleInstance.h"

#include "model/Main.h"

using namespace Qt::StringLiterals;

bool SingleInstance::PrevInstance()
{
    m_lock = std::make_unique<QLockFile>(AppFile(u"\\Data\\Orvantine.lock"_s));
    // A lock never grows old; only that of a process that is gone is taken over.
    m_lock->setStaleLockTime(0);
    return !m_lock->tryLock(0) && m_lock->error() == QLockFile::LockFailedError;
}
