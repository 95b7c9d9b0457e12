#pragma once

#include <functional>

class QWidget;

// Working the windows of the running program for their pictures.

/// Lets everything happen that the windows have queued.
void Settle();

/// Runs `open`, which opens a modal window and comes back when it is gone; `look` works the window meanwhile, which is
/// closed afterwards. Raises where no window came.
void InModal(const std::function<void()>& open, const std::function<void(QWidget& window)>& look);
