#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <stdexcept>

// Working the windows of the running program for their pictures.

/// The control of this name in a window; raises where there is none.
template <typename T>
[[nodiscard]] T& Find(const QWidget& window, const QString& name)
{
    T* found = window.findChild<T*>(name);
    if (found == nullptr)
        throw std::runtime_error(qPrintable(window.objectName() + QStringLiteral(" has no ") + name));
    return *found;
}

/// The open window of this name; raises where there is none.
[[nodiscard]] QWidget& Window(const QString& name);

void Key(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
void Type(QWidget& window, const QString& text);

/// Lets everything happen that the windows have queued.
void Settle();

/// Runs `open`, which opens a modal window and comes back when it is gone; `look` works the window meanwhile, which is
/// closed afterwards. Raises where no window came.
void InModal(const std::function<void()>& open, const std::function<void(QWidget& window)>& look);
