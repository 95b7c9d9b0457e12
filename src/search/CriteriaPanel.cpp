#include "search/CriteriaPanel.h"

#include "core/FieldRules.h"
#include "core/Trap.h"
#include "search/frmCurrency.h"
#include "search/frmDate.h"
#include "search/frmSetValue.h"
#include "ui/widgets/Forms.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/HoverButtonArray.h"
#include "ui/widgets/Theme.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int valueColumn = 2;

constexpr int Clear = 1;
constexpr int Search = 2;
constexpr int ClearAll = 3;

void SetBold(QWidget& control, bool bold)
{
    QFont font = control.font();
    font.setBold(bold);
    control.setFont(font);
}

} // namespace

// The panel.

CriteriaPanel::CriteriaPanel() : m_chkCase(new QCheckBox(u"Case sensitive search"_s, this)), m_grid(new Grid(this))
{
    m_chkCase->setObjectName(u"chkCase"_s);
    m_grid->setObjectName(u"GridSearch"_s);
    m_grid->setAccessibleName(u"Search Criteria"_s);
    m_grid->SetMultiSelect(false);
    m_grid->setMinimumSize(260, 120);
    m_grid->horizontalHeader()->setStretchLastSection(true);
    BuildLayout();
    m_contacts->setChecked(true);
    SetBold(*m_contacts, true);
    m_or->setChecked(true);
    for (QRadioButton* option : {m_contacts, m_properties})
        connect(option, &QRadioButton::toggled, this, [this](bool on) {
            if (on)
                Q_EMIT ModeChanged();
        });
    connect(m_grid, &Grid::DblClick, this, [this](int row) { SetCriteria(row, std::nullopt); });
    connect(m_grid, &Grid::KeyPress, this, &CriteriaPanel::GridSearch_KeyPress);
}

QRadioButton* CriteriaPanel::AddOption(QBoxLayout& line, const QString& name, const QString& caption)
{
    auto* option = new QRadioButton(caption, this);
    option->setObjectName(name);
    line.addWidget(option);
    return option;
}

void CriteriaPanel::Group(std::initializer_list<QRadioButton*> options)
{
    auto* group = new QButtonGroup(this);
    for (QRadioButton* option : options) {
        group->addButton(option);
        option->setFocusPolicy(Qt::ClickFocus);
        // Tab comes to the chosen one, and the arrow keys choose.
        connect(option, &QRadioButton::toggled, option,
                [option](bool on) { option->setFocusPolicy(on ? Qt::StrongFocus : Qt::ClickFocus); });
    }
}

void CriteriaPanel::BuildLayout()
{
    auto* modes = new QHBoxLayout;
    modes->setSpacing(2 * Theme::Spacing);
    m_contacts = AddOption(*modes, u"optSearch_0"_s, u"Contacts"_s);
    m_properties = AddOption(*modes, u"optSearch_1"_s, u"Properties"_s);
    modes->addStretch();
    // The chosen one is bold: room for that is there from the start, so that nothing moves.
    for (QRadioButton* option : {m_contacts, m_properties}) {
        option->setCursor(Qt::PointingHandCursor);
        SetBold(*option, true);
        option->setMinimumWidth(option->sizeHint().width());
        SetBold(*option, false);
    }

    auto* label = new QLabel(u"Search Criteria"_s, this);
    label->setObjectName(u"Label4"_s);
    label->setBuddy(m_grid);

    auto* joins = new QHBoxLayout;
    joins->setSpacing(2 * Theme::Spacing);
    m_and = AddOption(*joins, u"optAndOr_0"_s, u"And"_s);
    m_or = AddOption(*joins, u"optAndOr_1"_s, u"Or"_s);
    joins->addStretch();
    Group({m_contacts, m_properties});
    Group({m_and, m_or});

    auto* buttonLine = new QHBoxLayout;
    auto* buttons = new HoverButtonArray(
        *this, *buttonLine,
        {{Clear, u"Clear"_s, u"Clear"_s}, {Search, u"Search"_s, u"Search"_s}, {ClearAll, u"ClearAll"_s, u"ClearAll"_s}},
        u"cmdbutton"_s);
    buttonLine->addStretch();
    // The row that Clear empties stays the one that the person was in.
    buttons->SetTakesFocus(false);
    connect(buttons, &HoverButtonArray::Click, this, &CriteriaPanel::ButtonClick);

    auto* left = new QVBoxLayout;
    left->setSpacing(Theme::Spacing);
    left->addLayout(modes);
    left->addWidget(label);
    left->addWidget(m_grid, 1);
    auto* right = new QVBoxLayout;
    right->setSpacing(Theme::Spacing);
    right->addLayout(joins);
    right->addWidget(m_chkCase);
    right->addLayout(buttonLine);
    right->addStretch();
    auto* both = new QHBoxLayout(this);
    both->setContentsMargins(0, 0, 0, 0);
    both->setSpacing(3 * Theme::Spacing);
    both->addLayout(left, 3);
    both->addLayout(right, 2);
    QWidget* before = m_contacts;
    for (QWidget* control : std::initializer_list<QWidget*>{m_properties, m_grid, m_and, m_or, m_chkCase}) {
        setTabOrder(before, control);
        before = control;
    }
}

void CriteriaPanel::SetMode(SearchMode mode)
{
    (mode == SearchMode::Contacts ? m_contacts : m_properties)->setChecked(true);
}

SearchMode CriteriaPanel::Mode() const
{
    return m_properties->isChecked() ? SearchMode::Properties : SearchMode::Contacts;
}

SearchCriteria CriteriaPanel::Criteria() const
{
    SearchCriteria criteria;
    for (int row = 1; row <= m_grid->Rows(); ++row)
        criteria.Values << m_grid->CellText(row, valueColumn);
    criteria.And = m_and->isChecked();
    criteria.Case = m_chkCase->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    return criteria;
}

bool CriteriaPanel::HasRows() const
{
    return m_grid->Rows() > 0;
}

// The rows.

void CriteriaPanel::LoadSearchCols()
{
    const bool contacts = Mode() == SearchMode::Contacts;
    SetBold(*m_contacts, contacts);
    SetBold(*m_properties, !contacts);
    if (contacts)
        LoadContactSearchCols();
    else
        LoadPropSearchCols();
}

void CriteriaPanel::LoadContactSearchCols()
{
    Trap(u"frmMain LoadContactSearchCols Error #"_s, Icon::Critical, [this] { FillRows(u"Contact Criteria"_s); });
}

void CriteriaPanel::LoadPropSearchCols()
{
    Trap(u"frmMain LoadPropSearchCols Error #"_s, Icon::Critical, [this] { FillRows(u"Property Criteria"_s); });
}

void CriteriaPanel::FillRows(const QString& header)
{
    m_grid->Clear();
    // The columns are made once, so the header of the first one stays that of the mode that came first, which is meant.
    if (m_grid->Columns() == 0) {
        m_grid->AddColumn({.Key = u"Criteria"_s,
                           .Header = header,
                           .Alignment = Qt::AlignRight | Qt::AlignVCenter,
                           .HeaderAlignment = Qt::AlignCenter});
        m_grid->AddColumn({.Key = u"Values"_s, .Header = u"    Search Values"_s, .Width = 300});
    }
    for (const CriterionRow& row : CriteriaRows(Mode()))
        AddGridRow(*m_grid, row.Label);
}

void CriteriaPanel::ClearRow()
{
    Q_EMIT CriterionTouched();
    if (m_grid->SelectedRow() > 0)
        m_grid->SetCellText(m_grid->SelectedRow(), valueColumn, {});
}

void CriteriaPanel::ClearAllRows()
{
    Q_EMIT CriterionTouched();
    for (int row = 1; row <= m_grid->Rows(); ++row)
        m_grid->SetCellText(row, valueColumn, {});
}

// Asking for a criterion.

void CriteriaPanel::GridSearch_KeyPress(int keyAscii)
{
    // Esc and Backspace type nothing that a criterion could begin with.
    if (m_grid->SelectedRow() > 0 && keyAscii != Key::Escape && keyAscii != Key::Backspace)
        SetCriteria(m_grid->SelectedRow(), QChar(keyAscii));
}

void CriteriaPanel::SetCriteria(int row, std::optional<QChar> key)
{
    Trap(u"frmMain SetCriteria Error #"_s, Icon::Critical, [&] {
        Q_EMIT CriterionTouched();
        Ask(Mode(), row, key);
        // Cancelling, or answering with nothing, never clears a criterion.
        if (!gReturnValue.isEmpty())
            m_grid->SetCellText(m_grid->SelectedRow(), valueColumn, gReturnValue);
    });
}

void CriteriaPanel::Ask(SearchMode mode, int row, std::optional<QChar> key)
{
    const CriterionRow& asked = CriteriaRows(mode).at(static_cast<size_t>(row) - 1);
    const QString seed = key && *key != QChar(Key::Enter) ? QString(*key) : QString();
    switch (asked.Dialog) {
    case CriterionDialog::SetValue:
        frmSetValue(asked.Caption, asked.Input, seed).ShowModal(Forms::Active());
        break;
    case CriterionDialog::Currency:
        frmCurrency().ShowModal(Forms::Active());
        break;
    case CriterionDialog::Date:
        frmDate().ShowModal(Forms::Active());
        break;
    }
}
