#include "organise/Rolodex.h"

#include "core/FieldRules.h"
#include "core/Strings.h"
#include "core/Trap.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/ShowContact.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/Theme.h"

#include <QGuiApplication>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int letterNameWidth = 298;
constexpr int checkedWidth = 26;
constexpr int selectedNameWidth = 262;

/// What a row of the letter view says: the telephone comes first.
QString LetterText(const Contact& contact)
{
    const QString middle = contact.MI.isEmpty() ? u" "_s : u" "_s + contact.MI + u" "_s;
    return contact.HomePhone + u" "_s + contact.FirstName + middle + contact.LastName;
}

} // namespace

Rolodex::Rolodex() : m_letters(new QListWidget(this)), m_grid(new Grid(this))
{
    m_letters->setObjectName(u"lstRolodex"_s);
    m_letters->setAccessibleName(u"First letter of the last name"_s);
    m_letters->setFlow(QListView::LeftToRight);
    m_letters->setWrapping(true);
    m_letters->setResizeMode(QListView::Adjust);
    m_letters->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter)
        m_letters->addItem(QString(QChar(letter)) + u' ');
    constexpr int air = 8;
    const QFontMetrics metrics(m_letters->font());
    m_letters->setGridSize({metrics.horizontalAdvance(u"W "_s) + air, metrics.height() + air});
    m_letters->setFixedHeight(2 * m_letters->gridSize().height() + 2 * m_letters->frameWidth());

    m_grid->setObjectName(u"GridRolodex"_s);
    m_grid->setAccessibleName(u"Rolodex"_s);
    m_grid->SetHeaderVisible(false);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Theme::Spacing, Theme::Spacing, Theme::Spacing, Theme::Spacing);
    layout->setSpacing(Theme::Spacing);
    layout->addWidget(m_letters);
    layout->addWidget(m_grid);
    setMinimumWidth(200);
    BuildMenu();
    ConnectLetters();
    connect(m_grid, &Grid::MouseUp, this, &Rolodex::GridRolodex_MouseUp);
    connect(m_grid, &Grid::MenuKey, this, [this](QPoint position) { GridRolodex_MouseUp(Qt::RightButton, position); });
    connect(m_grid, &Grid::DblClick, this, [this](int row) { GridRolodex_DblClick(row); });
    connect(m_grid, &Grid::KeyDown, this, [this](int code) {
        if (code == Key::Enter)
            GridRolodex_DblClick(m_grid->SelectedRow());
    });
}

void Rolodex::BuildMenu()
{
    m_menu = new QMenu(this);
    m_menu->setObjectName(u"mnuRolodex"_s);
    m_select = m_menu->addAction(u"Select"_s, this, [this] { mnuRolodex_Click(true); });
    m_select->setObjectName(u"mnuRolodexSelect"_s);
    m_unselect = m_menu->addAction(u"Unselect"_s, this, [this] { mnuRolodex_Click(false); });
    m_unselect->setObjectName(u"mnuRolodexUnselect"_s);
}

void Rolodex::ConnectLetters()
{
    // Keys move to another letter; Enter and a click show the current one anew.
    connect(m_letters, &QListWidget::currentItemChanged, this, [this] {
        if (QGuiApplication::mouseButtons() == Qt::NoButton)
            lstRolodex_Click();
    });
    connect(m_letters, &QListWidget::itemActivated, this, [this] { lstRolodex_Click(); });
    m_letters->viewport()->installEventFilter(this);
}

bool Rolodex::eventFilter(QObject* watched, QEvent* event)
{
    // Whatever letter the press has made current, also where the button is released on another one.
    if (watched == m_letters->viewport() && event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
        lstRolodex_Click();
    return QWidget::eventFilter(watched, event);
}

void Rolodex::ShowLetterColumns()
{
    m_showsSelected = false;
    if (m_grid->Columns() == 1) {
        m_grid->Clear();
        return;
    }
    m_grid->ClearWithColumns();
    m_grid->SetHeaderVisible(false);
    m_grid->AddColumn({.Key = u"Name"_s, .Width = letterNameWidth});
}

void Rolodex::ShowSelectedColumns()
{
    m_showsSelected = true;
    m_grid->ClearWithColumns();
    m_grid->SetHeaderVisible(true);
    m_grid->AddColumn({.Key = u"Checked"_s, .HeaderIcon = u"checked"_s, .Width = checkedWidth});
    m_grid->AddColumn({.Key = u"Name"_s, .Width = selectedNameWidth});
}

void Rolodex::lstRolodex_Click()
{
    Trap(u"frmMain lstRolodex_Click Error #"_s, Icon::Critical, [this] {
        if (m_letters->currentItem() == nullptr)
            return;
        const HourGlass hourGlass;
        m_grid->SetRedraw(false);
        ShowLetterColumns();
        const QString letter = Trim(m_letters->currentItem()->text());
        gContacts.ForEach([&](Long id, const std::shared_ptr<Contact>& contact) {
            if (!contact || UCase(contact->LastName.left(1)) != letter)
                return;
            const int row = m_grid->AddRow(id);
            m_grid->SetCellText(row, 1, LetterText(*contact));
            if (contact->Selected)
                MarkCell(*m_grid, row, 1, true);
        });
    });
    m_grid->SetRedraw(true);
}

void Rolodex::mnuSelectedToRolodex_Click()
{
    Trap(u"frmMain mnuSelectedToRolodex_Click Error #"_s, Icon::Critical, [this] {
        const HourGlass hourGlass;
        m_grid->SetRedraw(false);
        ShowSelectedColumns();
        gContacts.ForEach([this](Long, const std::shared_ptr<Contact>& contact) {
            if (contact && contact->Selected)
                AddSelectedRow(*contact);
        });
    });
    m_grid->SetRedraw(true);
}

void Rolodex::AddSelectedRow(const Contact& contact)
{
    const int row = m_grid->AddRow(contact.RecID);
    m_grid->SetCellIcon(row, 1, u"checked"_s);
    m_grid->SetCellText(row, 2, FormatName(contact));
    QFont italic = m_grid->font();
    italic.setItalic(true);
    m_grid->SetCellFont(row, 2, italic);
    m_grid->SetCellColor(row, 2, Theme::Green);
}

void Rolodex::SelectInRolodex(bool selecting)
{
    Trap(u"frmMain SelectInRolodex Error #"_s, Icon::Critical, [&] {
        if (m_showsSelected && selecting) {
            AddSelectedRow(*curContact);
            return;
        }
        const int row = m_grid->FindRow(curContact->RecID);
        if (row == 0)
            return;
        if (m_showsSelected)
            m_grid->RemoveRow(row);
        else
            MarkCell(*m_grid, row, 1, selecting);
    });
}

void Rolodex::UnselectInRolodex(const std::vector<Long>& contactIDs)
{
    Trap(u"frmMain SelectInRolodex Error #"_s, Icon::Critical, [&] {
        if (m_showsSelected) {
            RemoveRowsOf(*m_grid, contactIDs);
            return;
        }
        for (const Long id : contactIDs)
            if (const int row = m_grid->FindRow(id); row > 0)
                MarkCell(*m_grid, row, 1, false);
    });
}

void Rolodex::ForgetSelected()
{
    if (m_showsSelected)
        m_grid->Clear();
}

void Rolodex::RemoveContacts(const std::vector<Long>& contactIDs)
{
    RemoveRowsOf(*m_grid, contactIDs);
}

void Rolodex::GridRolodex_MouseUp(Qt::MouseButton button, QPoint position)
{
    Trap(u"frmMain GridRolodex_MouseUp Error #"_s, Icon::Critical, [&] {
        const int row = m_grid->SelectedRow();
        if (button != Qt::RightButton || row == 0)
            return;
        const bool selected = m_showsSelected || ContactAt(m_grid->RowItemData(row))->Selected;
        m_select->setVisible(!selected);
        m_unselect->setVisible(selected);
        m_menu->popup(position);
    });
}

void Rolodex::mnuRolodex_Click(bool select)
{
    const QString entry = select ? u"mnuRolodexSelect"_s : u"mnuRolodexUnselect"_s;
    Trap(u"frmMain "_s + entry + u"_Click Error #"_s, Icon::Critical, [&] {
        curContact = ContactAt(m_grid->RowItemData(m_grid->SelectedRow()));
        if (select)
            SelectCurContact();
        else
            UnSelectCurContact();
    });
}

void Rolodex::GridRolodex_DblClick(int row)
{
    Trap(u"frmMain GridRolodex_DblClick Error #"_s, Icon::Critical, [&] {
        if (row == 0)
            return;
        curContact = ContactAt(m_grid->RowItemData(row));
        ShowContact();
    });
}
