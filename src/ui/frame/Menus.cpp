#include "ui/frame/Menus.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace {

enum class Kind
{
    Top,     ///< a menu of the bar
    Popup,   ///< a menu that stands in no bar
    TopItem, ///< an entry that stands in the bar itself
    Item,
    Checked, ///< an entry with a check mark
    Sub,     ///< a menu inside the last top menu
    SubItem
};

struct Line
{
    Kind EntryKind;
    QLatin1StringView Name;
    QLatin1StringView Caption;
    bool Shown = true;
};

constexpr Line lines[]{
    {Kind::Top, "mnuSettings"_L1, "&Settings"_L1},
    {Kind::Sub, "mnuBackGroundImage"_L1, "Contact List Background Image"_L1},
    {Kind::SubItem, "mnuHouses"_L1, "Impressionist 1"_L1},
    {Kind::SubItem, "mnuBeach"_L1, "Impressionist 2"_L1},
    {Kind::SubItem, "mnuBlue"_L1, "Blue"_L1},
    {Kind::SubItem, "mnuRed"_L1, "Red"_L1},
    {Kind::SubItem, "mnuOrange"_L1, "Orange"_L1},
    {Kind::SubItem, "mnuGreen"_L1, "Green"_L1},
    {Kind::SubItem, "mnuChgImgC"_L1, "Other"_L1},
    {Kind::SubItem, "mnuNoBackgroundPic"_L1, "None"_L1},
    {Kind::Sub, "mnuPropBackGroundImage"_L1, "Property List Background Image"_L1},
    {Kind::SubItem, "mnuPropHouses"_L1, "Impressionist 1"_L1},
    {Kind::SubItem, "mnuPropBeach"_L1, "Impressionist 2"_L1},
    {Kind::SubItem, "mnuPropBlue"_L1, "Blue"_L1},
    {Kind::SubItem, "mnuPropRed"_L1, "Red"_L1},
    {Kind::SubItem, "mnuPropOrange"_L1, "Orange"_L1},
    {Kind::SubItem, "mnuPropGreen"_L1, "Green"_L1},
    {Kind::SubItem, "mnuPropChgImgC"_L1, "Other"_L1},
    {Kind::SubItem, "mnuPropNoBackgroundPic"_L1, "None"_L1},
    {Kind::Sub, "mnuClock"_L1, "Clock Settings"_L1},
    {Kind::SubItem, "mnuClockFormat"_L1, "Switch to 24 Hour Format"_L1},
    {Kind::Checked, "mnuClockSeconds"_L1, "Show Seconds"_L1},
    {Kind::SubItem, "mnuStartTimer"_L1, "Start Timer"_L1, false},
    {Kind::SubItem, "mnuResetTimer"_L1, "Reset Timer"_L1, false},
    {Kind::SubItem, "mnuPauseTimer"_L1, "Pause Timer"_L1, false},
    {Kind::SubItem, "mnuTimer"_L1, "Timer Mode"_L1},
    {Kind::Sub, "mnuTitle"_L1, "Application Title"_L1},
    {Kind::SubItem, "mnuTitleOrvantine"_L1, "Orvantine"_L1},
    {Kind::SubItem, "mnuTitleOther"_L1, "Other"_L1},

    {Kind::Top, "mnuCategory"_L1, "&Category"_L1},
    {Kind::Item, "mnuCatCreate"_L1, "New Category"_L1},
    {Kind::Item, "mnuSubCreate"_L1, "Create a New SubCategory"_L1},
    {Kind::Item, "mnuCatRename"_L1, "Rename"_L1},
    {Kind::Item, "mnuCatDelete"_L1, "Delete"_L1},
    {Kind::Item, "mnuSubMove"_L1, "Move"_L1},
    {Kind::Item, "mnuViewContacts"_L1, "View Contacts"_L1},
    {Kind::Item, "mnuNewContact"_L1, "New Contact"_L1},

    {Kind::Top, "mnuAlerts"_L1, "&Alerts"_L1},
    {Kind::Item, "mnuManageAlerts"_L1, "Manage Alerts"_L1},
    {Kind::Item, "mnuSetNewAlert"_L1, "Set a New Alert"_L1},

    {Kind::Top, "mnuSelectedRecords"_L1, "Se&lected Contacts"_L1, false},
    {Kind::Item, "mnuUnselectAll"_L1, "Unselect"_L1},
    {Kind::Item, "mnuDeleteSelectedContacts"_L1, "Delete"_L1},
    {Kind::Item, "mnuMailandLabels"_L1, "Mail Merge and Labels"_L1},
    {Kind::Item, "mnuSelectedToRolodex"_L1, "Show in Rolodex"_L1},
    {Kind::Item, "mnuCreateWord"_L1, "Create Word File "_L1},
    {Kind::Item, "mnuExportSelectedContacts"_L1, "Export "_L1},

    {Kind::Top, "mnuFoundContacts"_L1, "&Found Contacts"_L1, false},
    {Kind::Item, "mnuDeleteFoundContacts"_L1, "Delete All Found Contacts"_L1},
    {Kind::Item, "mnuSendFoundContactToWord"_L1, "Send To Word"_L1},

    {Kind::Top, "mnuFoundProperties"_L1, "Found &Properties"_L1, false},
    {Kind::Item, "mnuDeleteFoundProp"_L1, "Delete All Found Properties"_L1},
    {Kind::Item, "mnuCreatePropWordFile"_L1, "Send to Word "_L1},

    {Kind::Popup, "mnuHilitedContacts"_L1, "Highlighted Contacts"_L1},
    {Kind::Item, "mnuViewHighlitedContact"_L1, "View"_L1},
    {Kind::Item, "mnuDeleteHilitedContacts"_L1, "Delete"_L1},
    {Kind::Item, "mnuClearHilitedContacts"_L1, "Remove"_L1},
    {Kind::Item, "mnuSelectHilitedContacts"_L1, "Select"_L1},
    {Kind::Item, "mnuUnselectHilitedContacts"_L1, "Unselect"_L1},
    {Kind::Item, "mnuHilitedContactsWord"_L1, "Send to a Word File"_L1},

    {Kind::Popup, "mnuHilitedProperties"_L1, "Hilighted Properties"_L1},
    {Kind::Item, "mnuDeleteHilitedProperties"_L1, "Delete"_L1},
    {Kind::Item, "mnuClearHilitedProperties"_L1, "Remove"_L1},
    {Kind::Item, "mnuHilitedPropertiesWord"_L1, "Send to a Word File"_L1},

    {Kind::Top, "mnuMaintenance"_L1, "&Maintenance"_L1},
    {Kind::Item, "mnuMaintenanceImport"_L1, "Import Contacts"_L1},
    {Kind::Item, "mnuBackup"_L1, "Backup Database"_L1},
    {Kind::Item, "mnuRestore"_L1, "Restore Database"_L1},

    {Kind::Top, "mnuHelp"_L1, "&Help"_L1},
    {Kind::Item, "mnuContact"_L1, "Contact Pelmar Software"_L1},
    {Kind::Item, "mnuOrvantine"_L1, "Orvantine Home Page"_L1},

    {Kind::Popup, "mnuAlertGrid"_L1, "Alerts"_L1},
    {Kind::Item, "mnuShowAlert"_L1, "Show Alert"_L1},
    {Kind::Item, "mnuShowContact"_L1, "Show Contact"_L1},
    {Kind::Item, "mnuManageCurAlerts"_L1, "Manage Alerts"_L1},
    {Kind::Item, "mnuDeleteAlert"_L1, "Delete Alert"_L1},
    {Kind::Item, "mnuNewCurAlert"_L1, "New Alert"_L1},

    {Kind::TopItem, "mnuExit"_L1, "Cl&ose"_L1},
};

} // namespace

Menus::Menus(QMenuBar& bar)
{
    QMenu* top = nullptr;
    QMenu* sub = nullptr;
    for (const Line& line : lines) {
        const QString name(line.Name);
        const QString caption(line.Caption);
        QAction* entry = nullptr;
        switch (line.EntryKind) {
        case Kind::Top:
            top = bar.addMenu(caption);
            sub = top;
            top->menuAction()->setVisible(line.Shown);
            break;
        case Kind::Popup:
            top = new QMenu(caption, &bar);
            sub = top;
            break;
        case Kind::Sub:
            sub = top->addMenu(caption);
            break;
        case Kind::TopItem:
            entry = bar.addAction(caption);
            break;
        case Kind::Item:
            entry = top->addAction(caption);
            break;
        case Kind::SubItem:
        case Kind::Checked:
            entry = sub->addAction(caption);
            break;
        }
        if (entry == nullptr) {
            sub->setObjectName(name);
            m_menus.insert(name, sub);
            continue;
        }
        entry->setObjectName(name);
        entry->setCheckable(line.EntryKind == Kind::Checked);
        entry->setVisible(line.Shown);
        entry->setEnabled(false);
        m_entries.insert(name, entry);
    }
}

QAction& Menus::Entry(const QString& name) const
{
    QAction* entry = m_entries.value(name);
    Q_ASSERT_X(entry != nullptr, "Menus::Entry", qPrintable(name));
    return *entry;
}

QMenu& Menus::Menu(const QString& name) const
{
    QMenu* menu = m_menus.value(name);
    Q_ASSERT_X(menu != nullptr, "Menus::Menu", qPrintable(name));
    return *menu;
}

void Menus::Plug(const QString& name, QObject* owner, std::function<void()> work)
{
    QAction& entry = Entry(name);
    entry.setEnabled(true);
    connect(&entry, &QAction::triggered, owner, [work = std::move(work)] { work(); });
}

void Menus::PlugOpener(const QString& name, QObject* owner, const std::function<void()>& opener)
{
    if (opener)
        Plug(name, owner, opener);
}

QString MenuText(const QString& caption)
{
    return QString(caption).replace(u'&', u"&&"_s);
}
