#include "core/FieldRules.h"
#include "core/Trap.h"
#include "editors/frmPropertyList.h"
#include "editors/PropertyFile.h"
#include "editors/PropertyMenu.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/Openers.h"
#include "model/PropDescribe.h"
#include "model/SelectedSet.h"
#include "ui/widgets/Grid.h"

#include <QMenu>

using namespace Qt::StringLiterals;

// What the keys, the mouse and the menu of the property list do.

void frmPropertyList::PlugMenu()
{
    m_menu->Plug(u"mnuDefault"_s, [this] { SetDefaultProp(true); });
    m_menu->Plug(u"mnuModify"_s, [this] { mnuModify_Click(); });
    m_menu->Plug(u"mnuNew"_s, [this] { mnuNew_Click(); });
    m_menu->Plug(u"mnuWord"_s, [] {
        if (gOpeners.WordFileOfProperty)
            gOpeners.WordFileOfProperty();
    });
    m_menu->Plug(u"mnuDelete"_s, [this] { mnuDelete_Click(); });
    m_menu->Plug(u"mnuNotes"_s, [this] { mnuNotes_Click(); });
    m_menu->Plug(u"mnuClose"_s, [this] { Unload(); });
    connect(&m_menu->Menu(), &QMenu::aboutToShow, this, &frmPropertyList::mnuProperty_Click);
    for (const PropertyFile* file : {&PhotoFile, &VideoFile}) {
        m_menu->Plug(QString(file->SelectEntry), [this, file] { SelectFile(*file); });
        m_menu->Plug(QString(file->ViewEntry), [this, file] { ViewFile(*file); });
        m_menu->Plug(QString(file->ClearEntry), [this, file] { ClearFile(*file); });
        connect(&m_menu->FileMenu(*file), &QMenu::aboutToShow, this, [this, file] {
            Trap(u"frmPropertyList mnu"_s + file->Menu + u"_Click Error #"_s, Icon::Information,
                 [&] { m_menu->EnableFile(*file, HasProperty(m_grid->SelectedRow())); });
        });
    }
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
            m_menu->Menu().popup(position);
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
        m_menu->ShowFor(count, some, one ? DescribeRow(RowsToDelete().front()) : QString());
    });
}

QString frmPropertyList::DescribeRow(int row) const
{
    return HasProperty(row) ? PropDescribe(*curContact->Properties.Item(m_grid->RowItemData(row))) : QString();
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
