#include "search/FoundList.h"

#include "core/Convert.h"
#include "core/Trap.h"
#include "model/Main.h"
#include "model/PropDetail.h"
#include "search/CriteriaPanel.h"
#include "ui/frame/frmMain.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/HoverButton.h"
#include "ui/widgets/HoverButtonArray.h"
#include "ui/widgets/Theme.h"

#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int clearButton = 4;

/// What the colours of the heading read on, in both schemes.
constexpr QColor headingGround(0x11, 0x16, 0x1D);

} // namespace

FoundList::FoundList(frmMain& window, const CriteriaPanel& criteria)
    : m_window(window), m_criteria(criteria), m_lblFound(new QLabel(this)), m_grid(new Grid(this)), m_rows(*m_grid)
{
    m_grid->setObjectName(u"GridFound"_s);
    m_grid->setAccessibleName(u"Search Results"_s);
    m_grid->setMinimumHeight(100);
    BuildLayout();
    ShowAtRest();
    ConnectGrid();
    PlugMenus();
}

void FoundList::BuildLayout()
{
    m_lblFound->setObjectName(u"lblFound"_s);
    m_lblFound->setAutoFillBackground(true);
    m_lblFound->setContentsMargins(Theme::Spacing, Theme::Spacing / 2, Theme::Spacing, Theme::Spacing / 2);
    QFont font = m_lblFound->font();
    font.setBold(true);
    m_lblFound->setFont(font);
    m_lblFound->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_lblFound->setBuddy(m_grid);
    auto* heading = new QHBoxLayout;
    heading->setSpacing(Theme::Spacing);
    heading->addWidget(m_lblFound, 1);
    auto* buttons = new HoverButtonArray(*this, *heading, {{clearButton, u"Clear"_s, u"Clear"_s}}, u"cmdbutton"_s);
    buttons->Button(clearButton)->SetCaptionBeside(true);
    connect(buttons, &HoverButtonArray::Click, this, [this] {
        ShoWait(ShowsProperties() ? u"Property Search"_s : u"Contact search"_s);
        Clear();
    });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::Spacing);
    layout->addLayout(heading);
    layout->addWidget(m_grid);
    setTabOrder(m_grid, buttons->Button(clearButton));
}

bool FoundList::ShowsProperties() const
{
    return m_criteria.Mode() == SearchMode::Properties;
}

// A search.

void FoundList::Begin()
{
    HideFoundMenus();
    m_lblFound->clear();
    m_rows.Begin(m_criteria.Mode());
    m_grid->SetRedraw(false);
}

void FoundList::Take(const Contact& contact)
{
    m_rows.AddContactToFoundGrid(m_grid->AddRow(), contact);
}

void FoundList::Take(const PropDetail& property)
{
    m_rows.AddPropToFoundGrid(m_grid->AddRow(property.RecID), property);
}

void FoundList::End()
{
    // The contact that was found last is the selected one.
    if (!ShowsProperties() && m_grid->Rows() > 0)
        m_grid->SetSelectedRow(m_grid->Rows());
    m_rows.End();
    m_grid->SetRedraw(true);
    if (m_grid->SelectedRow() > 0)
        m_grid->EnsureVisible(m_grid->SelectedRow(), FoundRows::NameColumn);
    ShowCountAndTakeFirst();
}

void FoundList::Clear()
{
    m_grid->Clear();
    m_grid->viewport()->setCursor(Qt::ArrowCursor);
    ShowAtRest();
    HideFoundMenus();
}

// The count.

int FoundList::Count() const
{
    return std::max(m_grid->Rows() - 1, 0);
}

int FoundList::FirstVisibleRow() const
{
    int row = 1;
    while (!m_grid->RowVisible(row))
        ++row;
    return row;
}

void FoundList::ShowHowManyFound()
{
    Trap(u"frmMain ShowHowManyFound Error #"_s, Icon::Critical, [this] {
        const int count = Count();
        const QString one = ShowsProperties() ? u"property "_s : u"contact "_s;
        const QString many = ShowsProperties() ? u"properties "_s : u"contacts "_s;
        ShowFoundMenu(count > 0);
        ShowHeading((count > 0 ? CStr(Long{count}) : u"No"_s) + u' ' + (count == 1 ? one : many) + u"found"_s,
                    count > 0 ? Theme::LightBlue : Theme::Red);
    });
}

void FoundList::ShowCountAndTakeFirst()
{
    ShowHowManyFound();
    Trap(u"frmMain ShowHowManyFound Error #"_s, Icon::Critical, [this] {
        if (ShowsProperties() && Count() > 0)
            TakeProperty(FirstVisibleRow());
    });
}

void FoundList::ShowFoundMenu(bool shown)
{
    const QString menu = ShowsProperties() ? u"mnuFoundProperties"_s : u"mnuFoundContacts"_s;
    m_window.MainMenus().Menu(menu).menuAction()->setVisible(shown);
}

void FoundList::HideFoundMenus()
{
    for (const QString& menu : {u"mnuFoundContacts"_s, u"mnuFoundProperties"_s})
        m_window.MainMenus().Menu(menu).menuAction()->setVisible(false);
}

void FoundList::ShowAtRest()
{
    ShowHeading(u"Search Results"_s, Theme::LightBlue);
}

void FoundList::ShowHeading(const QString& text, const QColor& color)
{
    QPalette palette = m_lblFound->palette();
    palette.setColor(QPalette::Window, headingGround);
    palette.setColor(QPalette::WindowText, color);
    m_lblFound->setPalette(palette);
    m_lblFound->setText(text);
}
