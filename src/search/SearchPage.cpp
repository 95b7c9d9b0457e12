#include "search/SearchPage.h"

#include "core/Trap.h"
#include "search/CriteriaPanel.h"
#include "search/FoundList.h"
#include "ui/widgets/Theme.h"

#include <QSplitter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

SearchPage::SearchPage(frmMain& window) : m_criteria(new CriteriaPanel), m_found(new FoundList(window, *m_criteria))
{
    auto* halves = new QSplitter(Qt::Vertical, this);
    halves->addWidget(m_criteria);
    halves->addWidget(m_found);
    halves->setChildrenCollapsible(false);
    halves->setHandleWidth(Theme::Spacing);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Theme::Spacing, Theme::Spacing, Theme::Spacing, Theme::Spacing);
    layout->addWidget(halves);
    connect(m_criteria, &CriteriaPanel::ModeChanged, this, &SearchPage::optSearch_Click);
    connect(m_criteria, &CriteriaPanel::ButtonClick, this, &SearchPage::ProcessCmdButtons);
    connect(m_criteria, &CriteriaPanel::CriterionTouched, m_found, &FoundList::ShowAtRest);
}

bool SearchPage::HasCriteriaRows() const
{
    return m_criteria->HasRows();
}

void SearchPage::ShowMode() const
{
    // The small letter is meant.
    ShoWait(m_criteria->Mode() == SearchMode::Properties ? u"Property Search"_s : u"Contact search"_s);
}

void SearchPage::optSearch_Click()
{
    Trap(u"frmMain optSearch_Click Error #"_s, Icon::Critical, [this] {
        m_found->Clear();
        m_criteria->LoadSearchCols();
        ShowMode();
    });
}

void SearchPage::SearchContactsAnew()
{
    m_criteria->SetMode(SearchMode::Contacts);
    optSearch_Click();
}

void SearchPage::ProcessCmdButtons(int index)
{
    constexpr int clear = 1;
    constexpr int search = 2;
    constexpr int clearAll = 3;
    Trap(u"frmMain ProcessCmdButtons Error #"_s, Icon::Critical, [&] {
        ShowMode();
        switch (index) {
        case clear:
            m_criteria->ClearRow();
            break;
        case search:
            if (m_criteria->Mode() == SearchMode::Contacts)
                StartSearch();
            else
                StartPropSearch();
            break;
        case clearAll:
            m_criteria->ClearAllRows();
            break;
        default:
            break;
        }
    });
}

void SearchPage::StartSearch()
{
    Trap(u"frmMain StartSearch Error #"_s, Icon::Critical, [this] {
        const HourGlass hourGlass;
        m_found->Begin();
        FindContacts(m_criteria->Criteria(), [this](const Contact& contact) { m_found->Take(contact); });
        m_found->End();
    });
}

void SearchPage::StartPropSearch()
{
    Trap(u"frmMain StartPropSearch Error #"_s, Icon::Critical, [this] {
        const HourGlass hourGlass;
        m_found->Begin();
        FindProperties(m_criteria->Criteria(), [this](const PropDetail& property) { m_found->Take(property); });
        m_found->End();
    });
}
