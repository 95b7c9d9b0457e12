#include "organise/ListMenus.h"

#include "core/Convert.h"
#include "core/Trap.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/Openers.h"
#include "model/PropDetail.h"
#include "ui/frame/Menus.h"

#include <QAction>
#include <QMenu>

using namespace Qt::StringLiterals;

ListMenus::ListMenus(QWidget& window)
    : QObject(&window)
    , m_contacts(new QMenu(u"Current &Contact"_s, &window))
    , m_properties(new QMenu(u"Properties"_s, &window))
{
    m_contacts->setObjectName(u"mnuContacts"_s);
    m_properties->setObjectName(u"mnuProperty"_s);
    Add(*m_contacts, "mnuNew", u"New Contact"_s);
    Add(*m_contacts, "mnuModify", u"Modify"_s, mnuModify_Click);
    Add(*m_contacts, "mnuSelect", u"Select"_s);
    Add(*m_contacts, "mnuUnselect", u"Unselect"_s);
    Add(*m_contacts, "mnuDelete", u"Delete"_s);
    Add(*m_contacts, "mnuMove", u"Move"_s);
    Add(*m_contacts, "mnuManageAlerts", u"Alerts"_s, mnuManageAlerts_Click);
    Add(*m_contacts, "mnuNewAlert", u"New Alert "_s, mnuNewAlert_Click);
    Add(*m_contacts, "mnuWord", u"Send To Ms Word File"_s, mnuWord_Click);
    Add(*m_contacts, "mnuNotes", u"Notes"_s, mnuNotes_Click);
    m_contacts->addMenu(m_properties);
    Add(*m_properties, "mnuProperties", u"View Current Properties"_s, mnuProperties_Click);
    Add(*m_properties, "mnuNewProperty", u"New Property"_s, mnuNewProperty_Click);
    Add(*m_contacts, "mnuClose", u"Close"_s);
    Entry("mnuWord").setEnabled(static_cast<bool>(gOpeners.WordFileOfListed));
}

void ListMenus::Add(QMenu& menu, const char* name, const QString& caption, std::function<void()> work)
{
    menu.addAction(caption)->setObjectName(QLatin1StringView(name));
    if (work)
        Plug(name, std::move(work));
}

void ListMenus::Plug(const char* entry, std::function<void()> work)
{
    connect(&Entry(entry), &QAction::triggered, this, [work = std::move(work)] { work(); });
}

QAction& ListMenus::Entry(const char* name) const
{
    return *parent()->findChild<QAction*>(QLatin1StringView(name));
}

// Captions and entries.

void ListMenus::ShowFor(qsizetype count)
{
    for (const char* name : {"mnuModify", "mnuSelect", "mnuUnselect", "mnuDelete", "mnuMove", "mnuManageAlerts",
                             "mnuNewAlert", "mnuNotes"})
        Entry(name).setEnabled(count > 0);
    Entry("mnuNewProperty").setEnabled(count > 0 && gOpeners.PropertyEditor);
    if (count >= 2)
        ShowForMany(count);
    else if (count == 1 && curContact)
        ShowForOne();
    ShowPropertyCaption();
    EnableProperties();
}

void ListMenus::ShowForOne()
{
    const QString name = FormatName();
    const auto show = [this](const char* entry, const QString& caption, bool enabled = true) {
        Entry(entry).setText(MenuText(caption));
        Entry(entry).setEnabled(enabled);
    };
    const bool alerts = static_cast<bool>(gOpeners.Alerts);
    show("mnuModify", u"Modify "_s + name);
    show("mnuSelect", u"Select "_s + name);
    show("mnuUnselect", u"Unselect "_s + name);
    show("mnuDelete", u"Delete "_s + name);
    show("mnuMove", u"Move "_s + name);
    show("mnuManageAlerts", name + u"'s Existing Alerts"_s, alerts);
    show("mnuNewAlert", u"Set a New Alert for "_s + name, alerts);
    Entry("mnuNotes").setEnabled(true);
    Entry("mnuSelect").setVisible(!curContact->Selected);
    Entry("mnuUnselect").setVisible(curContact->Selected);
}

void ListMenus::ShowForMany(qsizetype count)
{
    const QString many = u" the "_s + CStr(qint64{count}) + u" Highlighted Contacts"_s;
    Entry("mnuSelect").setText(u"Select"_s + many);
    Entry("mnuUnselect").setText(u"Unselect"_s + many);
    Entry("mnuDelete").setText(u"Delete"_s + many);
    Entry("mnuMove").setText(u"Move"_s + many);
    Entry("mnuSelect").setVisible(true);
    Entry("mnuUnselect").setVisible(true);
    for (const char* name : {"mnuNewAlert", "mnuModify", "mnuManageAlerts", "mnuNotes"})
        Entry(name).setEnabled(false);
}

void ListMenus::ShowPropertyCaption()
{
    if (curContact)
        m_properties->setTitle(MenuText(FormatName() + u"'s Properties"_s));
}

void ListMenus::EnableProperties()
{
    const bool some = curContact && !curContact->Properties.IsEmpty();
    Entry("mnuProperties").setEnabled(some && gOpeners.PropertyList);
}

// What works on curContact alone.

void ListMenus::mnuModify_Click()
{
    Trap(u"frmList mnuModify_Click Error #"_s, Icon::Information, [] {
        gEditMode = EditMode::ModifyContact;
        if (gOpeners.ContactEditor)
            gOpeners.ContactEditor();
    });
}

void ListMenus::mnuManageAlerts_Click()
{
    Trap(u"frmList mnuManageAlerts_Click Error #"_s, Icon::Information, [] {
        gAlertMode = AlertMode::Modify;
        if (gOpeners.Alerts)
            gOpeners.Alerts();
    });
}

void ListMenus::mnuNewAlert_Click()
{
    Trap(u"frmList mnuNewAlert_Click Error #"_s, Icon::Information, [] {
        gAlertMode = AlertMode::New;
        if (gOpeners.Alerts)
            gOpeners.Alerts();
    });
}

void ListMenus::mnuWord_Click()
{
    Trap(u"frmList mnuWord_Click Error #"_s, Icon::Information, [] {
        if (gOpeners.WordFileOfListed)
            gOpeners.WordFileOfListed();
    });
}

void ListMenus::mnuNotes_Click()
{
    Trap(u"frmList mnuNotes_Click Error #"_s, Icon::Information, [] {
        gEditMode = EditMode::Neutral;
        if (gOpeners.Notes)
            gOpeners.Notes();
    });
}

void ListMenus::mnuProperties_Click()
{
    Trap(u"frmList mnuProperties_Click Error #"_s, Icon::Information, [] {
        if (!gOpeners.PropertyList)
            return;
        gEditMode = EditMode::ModifyProperty;
        gOpeners.PropertyList();
    });
}

void ListMenus::mnuNewProperty_Click()
{
    Trap(u"frmList mnuNewProperty_Click Error #"_s, Icon::Information, [] {
        if (!gOpeners.PropertyEditor)
            return;
        gEditMode = EditMode::NewProperty;
        ShoWait(u"Adding a property.."_s);
        gOpeners.PropertyEditor();
    });
}
