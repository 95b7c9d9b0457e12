#pragma once

#include <functional>
#include <QStringList>

class frmMain;
class QWidget;

// The search tab and its windows, for the sweeps.

[[nodiscard]] QStringList SearchWindowNames();
/// Opens one of them as a person does, has `look` work it, and takes it away.
void OpenSearchWindow(frmMain& main, const QString& window, const std::function<void(QWidget& window)>& look);
