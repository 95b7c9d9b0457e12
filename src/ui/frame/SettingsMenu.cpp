#include "ui/frame/SettingsMenu.h"

#include "core/Trap.h"
#include "model/Main.h"
#include "model/Settings.h"
#include "ui/frame/frmMain.h"
#include "ui/frame/HomePage.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/CommonDialog.h"

#include <QAction>
#include <QDesktopServices>

using namespace Qt::StringLiterals;

namespace {

struct PictureEntry
{
    QLatin1StringView Suffix; ///< of the menu entry, behind "mnu" or "mnuProp"
    QLatin1StringView File;
};

constexpr PictureEntry pictureEntries[]{{"Houses"_L1, "Impressionist1.jpg"_L1}, {"Beach"_L1, "Impressionist2.jpg"_L1},
                                        {"Blue"_L1, "HazeBlue.jpg"_L1},         {"Red"_L1, "HazeRed.jpg"_L1},
                                        {"Orange"_L1, "HazeYellow.jpg"_L1},     {"Green"_L1, "HazeGreen.jpg"_L1}};

} // namespace

SettingsMenu::SettingsMenu(frmMain& window) : QObject(&window), m_window(window)
{
    PlugPictures();
    Menus& menus = m_window.MainMenus();
    menus.Plug(u"mnuChgImgC"_s, this, [this] { mnuChgImgC_Click(); });
    // The property list has the same entry, but nothing hangs on it, which is meant.
    menus.Plug(u"mnuPropChgImgC"_s, this, [] {});
    menus.Plug(u"mnuTitleOrvantine"_s, this, [this] { mnuTitleOrvantine_Click(); });
    menus.Plug(u"mnuTitleOther"_s, this, [this] { mnuTitleOther_Click(); });
    menus.Plug(u"mnuOrvantine"_s, this, [this] { mnuOrvantine_Click(); });
}

void SettingsMenu::PlugPictures()
{
    Menus& menus = m_window.MainMenus();
    for (const PictureEntry& entry : pictureEntries) {
        const QString file(entry.File);
        menus.Plug("mnu"_L1 + entry.Suffix, this, [file] { SetBackImage(PictureOf::ContactList, file); });
        menus.Plug("mnuProp"_L1 + entry.Suffix, this, [file] { SetBackImage(PictureOf::PropertyList, file); });
    }
    menus.Plug(u"mnuNoBackgroundPic"_s, this, [] {
        Trap(u"frmMain mnuNoBackgroundPic_Click Error #"_s, Icon::Critical,
             [] { ClearBackImage(PictureOf::ContactList); });
    });
    menus.Plug(u"mnuPropNoBackgroundPic"_s, this, [] {
        Trap(u"frmMain mnuPropNoBackgroundPic_Click Error #"_s, Icon::Critical,
             [] { ClearBackImage(PictureOf::PropertyList); });
    });
}

void SettingsMenu::mnuChgImgC_Click()
{
    Trap(u"frmMain mnuChgImgC_Click Error #"_s, Icon::Critical, [this] {
        CommonDialog dialog;
        dialog.ShowOpen(&m_window);
        if (!dialog.FileName.isEmpty() && dialog.FileName != gSettings.Picture)
            SetContactListPicture(dialog.FileName);
    });
}

void SettingsMenu::mnuTitleOrvantine_Click()
{
    Trap(u"frmMain mnuTitleOrvantine_Click Error #"_s, Icon::Critical, [this] {
        if (gSettings.ClientName != OwnTitle())
            ChangeTitle(OwnTitle());
    });
}

void SettingsMenu::mnuTitleOther_Click()
{
    Trap(u"frmMain mnuTitleOther_Click Error #"_s, Icon::Critical, [this] {
        constexpr int longestTitle = 50;
        QString answer = AskFor(u"Change Application Title To:"_s, longestTitle);
        if (answer.isEmpty() || answer == gSettings.ClientName)
            return;
        if (!answer.endsWith(u' '))
            answer += u' ';
        ChangeTitle(answer);
    });
}

void SettingsMenu::ChangeTitle(const QString& name)
{
    QString rest = m_window.windowTitle();
    if (rest.startsWith(gSettings.ClientName))
        rest.remove(0, gSettings.ClientName.size());
    m_window.SetCaption(rest);
    SetClientName(name);
    m_window.SetCaption(name + rest);
}

void SettingsMenu::mnuOrvantine_Click()
{
    Trap(u"frmMain mnuOrvantine_Click Error #"_s, Icon::Critical, [] {
        if (!QDesktopServices::openUrl(HomePage()))
            MsgBox(u"I could not open your web browser. The page is at\r\n"_s + HomePage().toString(), Buttons::Ok,
                   Icon::Information, u"Orvantine Home Page"_s);
    });
}
