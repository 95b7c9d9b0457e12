#include "editors/PropertyMenu.h"

#include "core/Convert.h"
#include "editors/PropertyFile.h"
#include "model/Contact.h"
#include "model/Openers.h"
#include "model/PropDescribe.h"
#include "ui/frame/Menus.h"

#include <QAction>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

constexpr auto deleteCaption = "Delete this Property"_L1;

QString FileMenuName(const PropertyFile& file)
{
    return "mnu"_L1 + file.Menu;
}

} // namespace

PropertyMenu::PropertyMenu(QWidget& window) : QObject(&window), m_menu(new QMenu(u"Current &Property"_s, &window))
{
    m_menu->setObjectName(u"mnuProperty"_s);
    Add(*m_menu, u"mnuDefault"_s, u"Set as Default Property"_s);
    Add(*m_menu, u"mnuModify"_s, u"Modify this Property"_s);
    Add(*m_menu, u"mnuNew"_s, u"New Property"_s);
    QMenu* accessories = m_menu->addMenu(u"Accessories"_s);
    accessories->setObjectName(u"mnuAccessories"_s);
    AddFileMenu(*accessories, PhotoFile);
    AddFileMenu(*accessories, VideoFile);
    Add(*m_menu, u"mnuWord"_s, u"Send to MS Word"_s);
    Add(*m_menu, u"mnuDelete"_s, QString(deleteCaption));
    Add(*m_menu, u"mnuNotes"_s, u"Notes"_s);
    Add(*m_menu, u"mnuClose"_s, u"Close"_s);
}

void PropertyMenu::Add(QMenu& menu, const QString& name, const QString& caption)
{
    menu.addAction(caption)->setObjectName(name);
}

void PropertyMenu::AddFileMenu(QMenu& menu, const PropertyFile& file)
{
    QMenu& own = *menu.addMenu(QString(file.Menu));
    own.setObjectName(FileMenuName(file));
    Add(own, QString(file.SelectEntry), QString(file.SelectCaption));
    Add(own, QString(file.ViewEntry), QString(file.ViewCaption));
    Add(own, QString(file.ClearEntry), QString(file.ClearCaption));
}

QMenu& PropertyMenu::FileMenu(const PropertyFile& file) const
{
    return *m_menu->findChild<QMenu*>(FileMenuName(file));
}

QAction& PropertyMenu::Entry(const QString& name) const
{
    return *m_menu->findChild<QAction*>(name);
}

void PropertyMenu::Plug(const QString& entry, std::function<void()> work)
{
    connect(&Entry(entry), &QAction::triggered, this, [work = std::move(work)] { work(); });
}

void PropertyMenu::ShowFor(qsizetype count, bool some, const QString& described)
{
    const bool one = some && count < 2;
    for (const auto name : {"mnuDefault"_L1, "mnuModify"_L1, "mnuNotes"_L1})
        Entry(name).setEnabled(one);
    Entry(u"mnuNew"_s).setEnabled(count < 2);
    Entry(u"mnuDelete"_s).setEnabled(some);
    Entry(u"mnuWord"_s).setEnabled(some && gOpeners.WordFileOfProperty);
    if (count >= 2)
        Entry(u"mnuDelete"_s).setText(u"Delete the "_s + CStr(qint64{count}) + u" Highlighted Properties"_s);
    else if (one)
        Entry(u"mnuDelete"_s).setText(MenuText(u"Delete "_s + described));
    else
        Entry(u"mnuDelete"_s).setText(QString(deleteCaption));
    EnableFile(PhotoFile, some);
    EnableFile(VideoFile, some);
}

void PropertyMenu::EnableFile(const PropertyFile& file, bool some)
{
    const bool held = some && !(CurProperty().get()->*file.Path).isEmpty();
    Entry(file.SelectEntry).setEnabled(some && !held);
    Entry(file.ViewEntry).setEnabled(held);
    Entry(file.ClearEntry).setEnabled(held);
}
