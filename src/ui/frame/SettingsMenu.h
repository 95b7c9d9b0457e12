#pragma once

#include <QObject>

class frmMain;

/// The entries of mnuSettings that choose background pictures and the title, and those of mnuHelp.
class SettingsMenu : public QObject
{
    Q_OBJECT

public:
    explicit SettingsMenu(frmMain& window);

private:
    void PlugPictures();
    void mnuChgImgC_Click();
    void mnuTitleOrvantine_Click();
    void mnuTitleOther_Click();
    void mnuOrvantine_Click();
    /// Puts another name in the place of the present one in the caption, and writes it.
    void ChangeTitle(const QString& name);

    frmMain& m_window;
};
