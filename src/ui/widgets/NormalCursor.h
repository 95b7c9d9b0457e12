#pragma once

#include <QCursor>
#include <QGuiApplication>

/// Shows the normal pointer for the length of a scope, also under an hourglass: a window that waits for the person is
/// no wait.
class NormalCursor
{
public:
    NormalCursor() : m_covers(QGuiApplication::overrideCursor() != nullptr)
    {
        if (m_covers)
            QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~NormalCursor()
    {
        if (m_covers)
            QGuiApplication::restoreOverrideCursor();
    }
    NormalCursor(const NormalCursor&) = delete;
    NormalCursor& operator=(const NormalCursor&) = delete;

private:
    bool m_covers;
};
