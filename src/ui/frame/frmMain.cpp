#include "ui/frame/frmMain.h"

#include "core/Convert.h"
#include "core/Dates.h"
#include "core/Format.h"
#include "core/Trap.h"
#include "model/Main.h"
#include "model/Openers.h"
#include "ui/frame/ClockPanel.h"
#include "ui/frame/Menus.h"
#include "ui/frame/SettingsMenu.h"
#include "ui/frame/StatusPanels.h"
#include "ui/widgets/Forms.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmMain::frmMain()
    : Form(u"frmMain"_s)
    , m_panels(new StatusPanels(this))
    , m_tabs(new QTabWidget(this))
    , m_contactsPage(new QSplitter(Qt::Horizontal))
{
    auto* bar = new QMenuBar(this);
    m_menus = std::make_unique<Menus>(*bar);
    m_tabs->setObjectName(u"SSTab1"_s);
    m_tabs->addTab(m_contactsPage, u"Contacts and Categories"_s);
    m_tabs->addTab(new QWidget, u"Search"_s);
    m_tabs->addTab(new QWidget, u"Letters and Labels"_s);
    m_tabs->setTabEnabled(static_cast<int>(Tab::Search), false);
    m_tabs->setTabEnabled(static_cast<int>(Tab::Letters), false);
    m_contactsPage->setChildrenCollapsible(false);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 0);
    layout->setMenuBar(bar);
    layout->addWidget(m_tabs);
    layout->addWidget(m_panels);
    resize(1100, 680);

    m_clock = new ClockPanel(*m_panels, *m_menus, this);
    new SettingsMenu(*this);
    m_menus->PlugOpener(u"mnuContact"_s, this, gOpeners.Feedback);
    m_menus->Plug(u"mnuExit"_s, this, [this] { Unload(); });
    connect(m_tabs, &QTabWidget::currentChanged, this,
            [this](int tab) { SSTab1_Click(std::exchange(m_currentTab, tab)); });
    Form_Load();
}

frmMain::~frmMain() = default;

void frmMain::Form_Load()
{
    CenterForm(*this);
    LoadSettings();
    m_clock->ShowSettings();
    // The names of the program's own title and of its windows are the same until a category is clicked.
    ShowStatus();
}

void frmMain::Form_Activate()
{
    Trap(u"frmMain Form_Activate Error #"_s, Icon::Critical, [this] {
        SetPanel(4, Format(TodayDate(), u"mm/dd/yyyy"));
        if (const auto* tree = Face<TreeFace>::Get(); tree != nullptr && tree->NodeCount() == 0)
            User::Current().ShoWait(u"Enter a new category to get started"_s);
        m_clock->ShowClock();
    });
}

void frmMain::Form_QueryUnload(bool&, UnloadMode)
{
    UnloadAllForms(QString());
}

void frmMain::Form_Unload(bool&)
{
    UnloadAllForms(QString());
}

void frmMain::AddContactsPanel(QWidget* panel, int stretch)
{
    m_contactsPage->addWidget(panel);
    // The first panel is where the person begins.
    if (m_contactsPage->count() == 1)
        panel->setFocus();
    m_contactsPage->setStretchFactor(m_contactsPage->count() - 1, stretch);
}

void frmMain::SetPage(Tab tab, QWidget* page)
{
    const int index = static_cast<int>(tab);
    const QString caption = m_tabs->tabText(index);
    const QSignalBlocker quiet(m_tabs);
    delete m_tabs->widget(index);
    m_tabs->insertTab(index, page, caption);
    m_tabs->setCurrentIndex(m_currentTab);
}

void frmMain::ShoWait(const std::optional<QString>& message)
{
    if (message)
        SetPanel(1, *message);
    ShowSelectedCount();
    SetPanel(2, gContacts.IsEmpty() ? u"No contacts"_s : u"Total contacts: "_s + CStr(qint64{gContacts.Count()}));
    // A long loop may follow that lets nothing be painted.
    m_panels->repaint();
}

void frmMain::SetCaption(const QString& caption)
{
    setWindowTitle(caption);
}

void frmMain::SetPanel(int panel, const QString& text)
{
    m_panels->SetText(panel, text);
}

void frmMain::ShowSelectedMenu(bool shown)
{
    m_menus->Menu(u"mnuSelectedRecords"_s).menuAction()->setVisible(shown);
}

void frmMain::ShowStatus()
{
    if (auto* letters = Face<LettersFace>::Get(); letters != nullptr && gSettings.LabelProduct > 0)
        letters->ShowLabelType(gSettings.LabelNumber);
    SetCaption(gSettings.ClientName + u" "_s + u" - Ready"_s);
}

void frmMain::ShowTab(int tab)
{
    m_tabs->setCurrentIndex(tab);
}

void frmMain::SSTab1_Click(int previousTab)
{
    Trap(u"frmMain SSTab1_Click Error #"_s, Icon::Critical, [&] {
        auto* search = Face<SearchFace>::Get();
        if (previousTab == static_cast<int>(Tab::Contacts) && search != nullptr && !search->HasCriteriaRows()) {
            search->optSearch_Click();
            if (auto* letters = Face<LettersFace>::Get())
                letters->LoadFormLetters();
        }
        if (m_currentTab == static_cast<int>(Tab::Contacts))
            User::Current().ShoWait(u"Ready"_s);
        else if (m_currentTab == static_cast<int>(Tab::Letters))
            User::Current().ShoWait(u"Letters and Labels"_s);
    });
}
