#include "editors/frmPropertyList.h"

#include "core/Convert.h"
#include "core/Dates.h"
#include "core/Format.h"
#include "core/Trap.h"
#include "editors/PhotoPreview.h"
#include "editors/PropertyColumns.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/PropDescribe.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/Theme.h"

#include <QBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// An amount as the row shows it right after a save: prices without cents, nothing for nothing.
QString SavedText(PropertyField field, const QString& typed)
{
    if (KindOf(field) != PropertyKind::Money)
        return typed;
    const bool price = field == PropertyField::AskingPrice || field == PropertyField::SoldPrice;
    return Format(typed, price ? u"$##,###,##0" : u"$###,###.00");
}

} // namespace

frmPropertyList::frmPropertyList() : Form(u"frmPropertyList"_s), m_grid(new Grid(this)), m_photo(new PhotoPreview(this))
{
    m_grid->setObjectName(u"GridPropList"_s);
    m_grid->setAccessibleName(u"Properties"_s);
    m_photo->setFixedSize(m_photo->sizeHint());
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, Theme::Spacing, 0);
    layout->setSpacing(Theme::Spacing);
    auto* bar = new QMenuBar(this);
    layout->setMenuBar(bar);
    layout->addWidget(m_grid, 1);
    auto* side = new QVBoxLayout;
    side->setContentsMargins(0, Theme::Spacing, 0, Theme::Spacing);
    side->addWidget(m_photo);
    side->addStretch();
    layout->addLayout(side);
    BuildMenu();
    bar->addMenu(m_menu);
    ConnectGrid();
    resize(1000, 420);
    setMinimumSize(480, 240);
    CenterForm(*this);
    m_grid->setFocus();
}

frmPropertyList::~frmPropertyList() = default;

frmPropertyList* frmPropertyList::Loaded()
{
    return dynamic_cast<frmPropertyList*>(Face<PropertyListFace>::Get());
}

void frmPropertyList::Form_Load()
{
    Trap(u"frmPropertyList Form_Load Error #"_s, Icon::Information, [this] {
        if (m_grid->Columns() == 0)
            LoadPropColumns(*m_grid);
        m_grid->SetBackgroundPicture(gSettings.PropPicture);
        if (!curContact)
            throw RunTimeError(ErrorNumber::ObjectNotSet);
        FillPropList();
        if (Rows() == 0)
            return;
        ShoWait(FormatName() + u" properties"_s);
        setWindowTitle(FormatName() + u" Properties"_s);
    });
}

void frmPropertyList::Form_Unload(bool&)
{
    m_face.reset();
}

void frmPropertyList::EscapePressed()
{
    Unload();
}

// The rows.

void frmPropertyList::FillPropList()
{
    Trap(u"frmPropertyList FillPropList Error #"_s, Icon::Information, [this] {
        m_grid->Clear();
        if (curContact->Properties.IsEmpty()) {
            mnuNew_Click();
        } else {
            // A copy: while a box is shown the world goes on.
            for (const std::shared_ptr<PropDetail>& property : curContact->Properties.Items()) {
                if (property)
                    AddProperty(*property);
            }
            SelectCurProperty();
        }
        ShowCaption();
    });
}

void frmPropertyList::AddProperty(const PropDetail& property)
{
    if (curContact->DefaultProperty == 0)
        AssignDefault(property);
    const int row = m_grid->AddRow(property.RecID);
    ShowIcon(row, IconColumn::Default, property.RecID == curContact->DefaultProperty);
    ShowIcon(row, IconColumn::Camera, !property.Picture.isEmpty());
    ShowIcon(row, IconColumn::Video, !property.Video.isEmpty());
    int column = 0;
    for (const PropertyColumn& shown : PropertyColumns()) {
        ++column;
        if (shown.Field)
            m_grid->SetCellText(row, column, PropertyText(property, *shown.Field));
    }
    ShowClosed(row, property.ClosingDate);
}

void frmPropertyList::AssignDefault(const PropDetail& property)
{
    curContact->DefaultProperty = property.RecID;
    MsgBox(u"This contact was not assigned a Default Property or the\r\ndefault property was deleted. A new default "
           "property will\r\nbe automatically assigned for this contact"_s,
           Buttons::Ok, Icon::Information, u"New Default Property for "_s + FormatName());
}

void frmPropertyList::SelectCurProperty()
{
    // Whoever opened the list may have come for one property; else it begins with its first row.
    const int wanted = m_grid->FindRow(curPropertyID);
    m_grid->SelectCell(wanted > 0 ? wanted : 1, m_grid->ColumnIndex(u"Address1"));
    m_grid->EnsureVisible(m_grid->SelectedRow(), IconColumn::Default);
    GridPropList_SelectionChange();
}

void frmPropertyList::ShowClosed(int row, const QString& closingDate)
{
    if (const std::optional<Date> closed = ParseDate(closingDate))
        m_grid->SetCellText(row, u"Closed", *closed < TodayDate() ? u"Yes"_s : u"No"_s);
}

void frmPropertyList::ShowIcon(int row, int column, bool shown)
{
    m_grid->SetCellIcon(row, column, shown ? m_grid->Column(column).HeaderIcon : QString());
}

bool frmPropertyList::HasProperty(int row) const
{
    return row > 0 && row != m_newRow && curContact && curContact->Properties.Exists(m_grid->RowItemData(row));
}

void frmPropertyList::ShowCaption()
{
    setWindowTitle(gSettings.ClientName + u" - "_s + CStr(Long{Rows()}) +
                   (Rows() == 1 ? u" property"_s : u" properties"_s) + u" for "_s + FormatName());
}

void frmPropertyList::ShowDefaultIcon()
{
    for (int row = 1; row <= Rows(); ++row)
        ShowIcon(row, IconColumn::Default, HasProperty(row) && m_grid->RowItemData(row) == curContact->DefaultProperty);
}

void frmPropertyList::UnSelectAll()
{
    m_grid->ClearHighlight();
}

std::vector<Long> frmPropertyList::Highlighted() const
{
    return HighlightedData(*m_grid);
}

void frmPropertyList::SetDefaultProp(bool ask)
{
    Trap(u"frmPropertyList SetDefaultProp Error #"_s, Icon::Information, [&] {
        if (!curContact)
            throw RunTimeError(ErrorNumber::ObjectNotSet);
        if (curContact->Properties.IsEmpty()) {
            curContact->DefaultProperty = 0;
            return;
        }
        const int row = m_grid->SelectedRow();
        if (!HasProperty(row))
            return;
        curPropertyID = m_grid->RowItemData(row);
        if (curPropertyID == curContact->DefaultProperty) {
            MsgBox(u"This property is already "_s + FormatName() + u"'s Default Property."_s, Buttons::Ok,
                   Icon::Information, PropDescribe() + u" is the Default Property"_s);
            return;
        }
        if (ask && !Confirmed(u"Do you want me to set "_s + PropDescribe() + u"\r\nas the new default property for "_s +
                              FormatName() + u"?"_s))
            return;
        curContact->DefaultProperty = curPropertyID;
        curContact->UpdateDB(curContact->RecID);
        ShowDefaultIcon();
    });
}

// What the editor does with its row.

int frmPropertyList::Rows() const
{
    return m_grid->Rows();
}

QString frmPropertyList::SelectedHeader() const
{
    return m_grid->SelectedCol() > 0 ? m_grid->Column(m_grid->SelectedCol()).Header : QString();
}

void frmPropertyList::AddNewRow()
{
    m_newRow = m_grid->AddRow();
    UnSelectAll();
    SelectLastRow(u"MLS#");
}

void frmPropertyList::RemoveNewRow()
{
    if (m_newRow > 0)
        m_grid->RemoveRow(std::exchange(m_newRow, 0));
}

void frmPropertyList::CancelEdit()
{
    const int row = m_grid->SelectedRow();
    if (row == 0)
        return;
    const int column = m_grid->SelectedCol() > 0 ? m_grid->SelectedCol() : m_grid->ColumnIndex(u"Address1");
    if (m_newRow > 1)
        m_grid->SetSelectedRow(m_newRow - 1);
    else
        m_grid->SetSelectedRow(row);
    RemoveNewRow();
    if (m_grid->SelectedRow() == 0)
        return;
    m_grid->SetSelectedCol(column);
    GridPropList_SelectionChange();
}

void frmPropertyList::SelectLastRow(QStringView key)
{
    m_grid->SelectCell(Rows(), m_grid->ColumnIndex(key));
}

void frmPropertyList::SetLastRowData(Long propertyID)
{
    if (Rows() > 0)
        m_grid->SetRowItemData(Rows(), propertyID);
    m_newRow = 0;
}

void frmPropertyList::WriteSelectedRow(const std::function<QString(PropertyField field)>& typed)
{
    const int row = m_grid->SelectedRow();
    int column = 0;
    for (const PropertyColumn& shown : PropertyColumns()) {
        ++column;
        if (shown.Field)
            m_grid->SetCellText(row, column, SavedText(*shown.Field, typed(*shown.Field)));
    }
    ShowClosed(row, typed(PropertyField::ClosingDate));
}
