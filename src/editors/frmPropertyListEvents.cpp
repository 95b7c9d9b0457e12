#include "core/Convert.h"
#include "core/FieldRules.h"
#include "core/Trap.h"
#include "editors/frmPropertyList.h"
#include "editors/PropertyFile.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/Openers.h"
#include "model/PropDescribe.h"
#include "model/SelectedSet.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/Grid.h"

#include <QAction>
#include <QMenu>

using namespace Qt::StringLiterals;

// What the keys, the mouse and the menu of the property list do.

namespace {

constexpr auto deleteCaption = "Delete this Property"_L1;

} // namespace

void frmPropertyList::BuildMenu()
{
    m_menu = new QMenu(u"Current &Property"_s, this);
    m_menu->setObjectName(u"mnuProperty"_s);
    AddEntry(m_menu, "mnuDefault", u"Set as Default Property"_s, [this] { SetDefaultProp(true); });
    AddEntry(m_menu, "mnuModify", u"Modify this Property"_s, [this] { mnuModify_Click(); });
    AddEntry(m_menu, "mnuNew", u"New Property"_s, [this] { mnuNew_Click(); });
    QMenu* accessories = m_menu->addMenu(u"Accessories"_s);
    accessories->setObjectName(u"mnuAccessories"_s);
    AddFileMenu(accessories, PhotoFile);
    AddFileMenu(accessories, VideoFile);
    AddEntry(m_menu, "mnuWord", u"Send to MS Word"_s, [] {
        if (gOpeners.WordFileOfProperty)
            gOpeners.WordFileOfProperty();
    });
    AddEntry(m_menu, "mnuDelete", QString(deleteCaption), [this] { mnuDelete_Click(); });
    AddEntry(m_menu, "mnuNotes", u"Notes"_s, [this] { mnuNotes_Click(); });
    AddEntry(m_menu, "mnuClose", u"Close"_s, [this] { Unload(); });
    connect(m_menu, &QMenu::aboutToShow, this, &frmPropertyList::mnuProperty_Click);
}

QAction* frmPropertyList::AddEntry(QMenu* menu, const char* name, const QString& caption, std::function<void()> click)
{
    QAction* entry = menu->addAction(caption);
    entry->setObjectName(QLatin1StringView(name));
    connect(entry, &QAction::triggered, this, [click = std::move(click)] { click(); });
    return entry;
}

void frmPropertyList::AddFileMenu(QMenu* menu, const PropertyFile& file)
{
    QMenu* own = menu->addMenu(QString(file.Menu));
    own->setObjectName("mnu"_L1 + file.Menu);
    const auto add = [&](QLatin1StringView name, QLatin1StringView caption,
                         void (frmPropertyList::*click)(const PropertyFile&)) {
        AddEntry(own, name.latin1(), QString(caption), [this, &file, click] { (this->*click)(file); });
    };
    add(file.SelectEntry, file.SelectCaption, &frmPropertyList::SelectFile);
    add(file.ViewEntry, file.ViewCaption, &frmPropertyList::ViewFile);
    add(file.ClearEntry, file.ClearCaption, &frmPropertyList::ClearFile);
    connect(own, &QMenu::aboutToShow, this, [this, &file] {
        Trap(u"frmPropertyList mnu"_s + file.Menu + u"_Click Error #"_s, Icon::Information,
             [&] { EnableFileMenu(file); });
    });
}

QAction& frmPropertyList::Entry(const QString& name) const
{
    return *findChild<QAction*>(name);
}

void frmPropertyList::ConnectGrid()
{
    connect(m_grid, &Grid::SelectionChange, this, &frmPropertyList::GridPropList_SelectionChange);
    connect(m_grid, &Grid::MouseUp, this, &frmPropertyList::GridPropList_MouseUp);
    connect(m_grid, &Grid::MenuKey, this, [this](QPoint position) { GridPropList_MouseUp(Qt::RightButton, position); });
    connect(m_grid, &Grid::DblClick, this, &frmPropertyList::GridPropList_DblClick);
    connect(m_grid, &Grid::ColumnClick, this, &frmPropertyList::GridPropList_ColumnClick);
    connect(m_grid, &Grid::KeyDown, this, [this](int code) {
        // Enter does by key what a double click does on the current cell.
        if (code == Key::Enter)
            mnuModify_Click();
    });
}

void frmPropertyList::GridPropList_ColumnClick(int column)
{
    Trap(u"frmPropertyList GridPropList_ColumnClick Error #"_s, Icon::Information, [&] {
        if (Rows() == 0)
            return;
        SortGrid(*m_grid, column);
        m_grid->EnsureVisible(m_grid->SelectedRow(), column);
        // Row 1 is the selected row now: were its property not the current one, a change of it would go to another's.
        GridPropList_SelectionChange();
    });
}

void frmPropertyList::GridPropList_SelectionChange()
{
    Trap(u"frmPropertyList GridPropList_SelectionChange Error #"_s, Icon::Information, [this] {
        const int row = m_grid->SelectedRow();
        if (HasProperty(row))
            curPropertyID = m_grid->RowItemData(row);
        ShowPhoto();
    });
}

void frmPropertyList::GridPropList_MouseUp(Qt::MouseButton button, QPoint position)
{
    Trap(u"frmPropertyList GridPropList_MouseUp Error #"_s, Icon::Information, [&] {
        gFocusField = SelectedHeader();
        if (button == Qt::RightButton)
            m_menu->popup(position);
    });
}

void frmPropertyList::GridPropList_DblClick(int row, int column)
{
    Trap(u"frmPropertyList GridPropList_DblClick Error #"_s, Icon::Information, [&] {
        if (!HasProperty(row) || column == 0)
            return;
        const QString key = m_grid->Column(column).Key;
        const auto* file = FileOfColumn(key);
        if (file != nullptr) {
            if ((CurProperty().get()->*file->Path).isEmpty())
                SelectFile(*file);
            else
                ViewFile(*file);
        } else if (key == "Default"_L1) {
            SetDefaultProp(true);
        } else if (gOpeners.PropertyEditor) {
            gEditMode = EditMode::ModifyProperty;
            gOpeners.PropertyEditor();
            // Another property may be the current one by now.
            ShowPhoto();
        }
    });
}

void frmPropertyList::mnuProperty_Click()
{
    Trap(u"frmPropertyList mnuProperty_Click Error #"_s, Icon::Information, [this] {
        const qsizetype count = HilitedProperties();
        const bool some = HasProperty(m_grid->SelectedRow());
        const bool one = some && count < 2;
        for (const auto name : {"mnuDefault"_L1, "mnuModify"_L1, "mnuNotes"_L1})
            Entry(name).setEnabled(one);
        Entry(u"mnuNew"_s).setEnabled(count < 2);
        Entry(u"mnuDelete"_s).setEnabled(some);
        Entry(u"mnuWord"_s).setEnabled(some && gOpeners.WordFileOfProperty);
        if (count >= 2)
            Entry(u"mnuDelete"_s).setText(u"Delete the "_s + CStr(qint64{count}) + u" Highlighted Properties"_s);
        else if (one)
            Entry(u"mnuDelete"_s).setText(MenuText(u"Delete "_s + DescribeRow(RowsToDelete().front())));
        else
            Entry(u"mnuDelete"_s).setText(QString(deleteCaption));
        EnableFileMenu(PhotoFile);
        EnableFileMenu(VideoFile);
    });
}

QString frmPropertyList::DescribeRow(int row) const
{
    return HasProperty(row) ? PropDescribe(*curContact->Properties.Item(m_grid->RowItemData(row))) : QString();
}

void frmPropertyList::EnableFileMenu(const PropertyFile& file)
{
    const bool some = HasProperty(m_grid->SelectedRow());
    const bool held = some && !(CurProperty().get()->*file.Path).isEmpty();
    Entry(file.SelectEntry).setEnabled(some && !held);
    Entry(file.ViewEntry).setEnabled(held);
    Entry(file.ClearEntry).setEnabled(held);
}

void frmPropertyList::mnuModify_Click()
{
    gFocusField = SelectedHeader();
    GridPropList_DblClick(m_grid->SelectedRow(), m_grid->SelectedCol());
}

void frmPropertyList::mnuNew_Click()
{
    Trap(u"frmPropertyList mnuNew_Click Error #"_s, Icon::Information, [this] {
        if (!gOpeners.PropertyEditor)
            return;
        gEditMode = EditMode::NewProperty;
        AddNewRow();
        gOpeners.PropertyEditor();
        ShowPhoto();
    });
}

void frmPropertyList::mnuNotes_Click()
{
    Trap(u"frmPropertyList mnuNotes_Click Error #"_s, Icon::Information, [] {
        gEditMode = EditMode::ModifyProperty;
        if (gOpeners.Notes)
            gOpeners.Notes();
    });
}
