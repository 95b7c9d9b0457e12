#include "core/Strings.h"
#include "core/Trap.h"
#include "letters/Chosen.h"
#include "letters/FormLetters.h"
#include "letters/PictureBox.h"
#include "ui_FormLetters.h"

// The state machine of the page: browsing and editing.

using namespace Qt::StringLiterals;

namespace {

constexpr QColor EnabledColor(255, 192, 128);
constexpr QColor DisabledColor(255, 255, 255);

QString StartText()
{
    return u"Start a new form by pressing the New button below"_s;
}

} // namespace

void FormLetters::EnableFormBtn(Action action)
{
    auto* picture = findChild<PictureBox*>(u"picForms_%1"_s.arg(static_cast<int>(action)));
    picture->setEnabled(true);
    picture->SetBackColor(EnabledColor);
}

void FormLetters::DisableFormBtn(Action action)
{
    auto* picture = findChild<PictureBox*>(u"picForms_%1"_s.arg(static_cast<int>(action)));
    picture->setEnabled(false);
    picture->SetBackColor(DisabledColor);
}

void FormLetters::EnableInsert(bool enabled)
{
    m_ui->picInsertContactInfo->setEnabled(enabled);
    m_ui->picInsertPropInfo->setEnabled(enabled);
}

void FormLetters::FormStart(Action action)
{
    Trap(u"frmMain FormStart Error #"_s, Icon::Critical, [this, action] {
        switch (action) {
        case Action::New:
        case Action::Modify:
            BeginEditing(action);
            break;
        case Action::Save:
            if (SaveForm())
                EndEditing(false);
            else
                m_ui->Letter->setFocus();
            break;
        case Action::Cancel:
            EndEditing(true);
            break;
        case Action::Delete:
            DeleteForm();
            ShowWhatIsThere();
            EnableFormBtn(Action::New);
            DisableFormBtn(Action::Save);
            DisableFormBtn(Action::Cancel);
            break;
        case Action::Rename:
            RenameForm();
            break;
        }
    });
}

void FormLetters::ShowWhatIsThere()
{
    const bool any = HasSelection();
    if (any)
        lstForms_Click();
    else
        ShowLetter(StartText());
    if (!any && m_ui->picForms_5->hasFocus())
        m_ui->picForms_1->setFocus();
    for (const Action action : {Action::Modify, Action::Delete, Action::Rename}) {
        if (any)
            EnableFormBtn(action);
        else
            DisableFormBtn(action);
    }
}

void FormLetters::BeginEditing(Action action)
{
    m_editMode = action;
    m_modifiedID = SelectedID();
    m_ui->Letter->setEnabled(true);
    // A control that is disabled with the focus passes it on as a Tab would, and the headings would follow.
    m_ui->Letter->setFocus();
    m_ui->lstForms->setEnabled(false);
    if (action == Action::New) {
        ShowLetter(u"Type form content here"_s);
        m_ui->Letter->selectAll();
    }
    EnableInsert(true);
    for (QListWidget* list : {m_ui->lstContactFields, m_ui->lstPropFields}) {
        if (Chosen(*list) == nullptr)
            list->setCurrentRow(0);
    }
    for (const Action other : {Action::Modify, Action::New, Action::Delete, Action::Rename})
        DisableFormBtn(other);
    EnableFormBtn(Action::Save);
    EnableFormBtn(Action::Cancel);
}

void FormLetters::EndEditing(bool showStartText)
{
    m_ui->lstForms->setEnabled(true);
    m_ui->lstForms->setFocus();
    EnableInsert(false);
    m_ui->Letter->setEnabled(false);
    if (HasSelection()) {
        lstForms_Click();
        for (const Action other : {Action::Modify, Action::Delete, Action::Rename})
            EnableFormBtn(other);
    } else if (showStartText) {
        ShowLetter(StartText());
    }
    EnableFormBtn(Action::New);
    DisableFormBtn(Action::Save);
    DisableFormBtn(Action::Cancel);
}

bool FormLetters::SaveForm()
{
    return Trap(u"frmMain SaveForm Error #"_s, Icon::Critical, [this] {
        const QString text = LetterText();
        if (Trim(text).isEmpty()) {
            MsgBox(u"I did not save anything because\r\nthere is no letter to save."_s, Buttons::Ok, Icon::Information,
                   u"Nothing was Saved"_s);
            return false;
        }
        if (m_editMode == Action::Modify) {
            m_library.SetText(m_modifiedID, text);
            return true;
        }
        const QString name = AskFor(u"Save as: "_s);
        if (name.isEmpty())
            return false;
        const Long id = m_library.Add(name, text);
        AddForm({id, name});
        SelectForm(m_ui->lstForms->count() - 1);
        return true;
    });
}

void FormLetters::DeleteForm()
{
    Trap(u"frmMain DeleteForm Error #"_s, Icon::Critical, [this] {
        if (!HasSelection()) {
            MsgBox(u"I did not delete anything because\r\nthere is nothing to delete."_s, Buttons::Ok,
                   Icon::Information, u"Nothing Deleted"_s);
            return;
        }
        if (!Confirmed(u"Do you want me to delete "_s + SelectedName() + u'?'))
            return;
        const int row = m_ui->lstForms->row(Chosen(*m_ui->lstForms));
        m_library.Delete(SelectedID());
        {
            const QSignalBlocker quiet(m_ui->lstForms);
            delete m_ui->lstForms->takeItem(row);
        }
        if (m_ui->lstForms->count() == 0) {
            ShowLetter(StartText());
            m_ui->Letter->setEnabled(false);
        } else {
            SelectForm(std::max(row - 1, 0));
        }
    });
}

void FormLetters::RenameForm()
{
    Trap(u"frmMain RenameForm Error #"_s, Icon::Critical, [this] {
        if (!HasSelection())
            return;
        const QString name = AskFor(u"Rename "_s + SelectedName() + u" to: "_s);
        if (name.isEmpty())
            return;
        m_library.Rename(SelectedID(), name);
        Chosen(*m_ui->lstForms)->setText(name);
    });
}
