#include "letters/FormLetters.h"

#include "core/Trap.h"
#include "letters/Chosen.h"
#include "letters/frmLabelType.h"
#include "letters/LabelsMerge.h"
#include "letters/LetterFields.h"
#include "letters/LetterWalk.h"
#include "letters/MailMerge.h"
#include "model/Main.h"
#include "ui/widgets/HoverButtonArray.h"
#include "ui/widgets/PlainText.h"
#include "ui_FormLetters.h"

#include <QScrollBar>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int MergeButton = 7;
constexpr int LabelsButton = 8;

struct FormPicture
{
    FormLetters::Action Action;
    QLatin1StringView Caption;
};

/// Each picture bears the name of its caption.
constexpr FormPicture formPictures[]{
    {FormLetters::Action::New, "New"_L1},       {FormLetters::Action::Modify, "Modify"_L1},
    {FormLetters::Action::Save, "Save"_L1},     {FormLetters::Action::Cancel, "Cancel"_L1},
    {FormLetters::Action::Delete, "Delete"_L1}, {FormLetters::Action::Rename, "Rename"_L1},
};

QString SelectedText(const QListWidget& list)
{
    const QListWidgetItem* line = Chosen(list);
    return line != nullptr ? line->text() : QString();
}

QString SelectedColumn(const QListWidget& list)
{
    const QListWidgetItem* line = Chosen(list);
    return line != nullptr ? line->data(Qt::UserRole).toString() : QString();
}

void Fill(QListWidget& list, std::span<const LetterField> fields)
{
    for (const LetterField& field : fields) {
        auto* line = new QListWidgetItem(QString(field.Caption), &list);
        line->setData(Qt::UserRole, QString(field.Column));
    }
}

} // namespace

FormLetters::FormLetters() : m_ui(std::make_unique<Ui::FormLetters>())
{
    m_ui->setupUi(this);
    KeepLetterReadable();
    for (QLabel* label : {m_ui->lblForms, m_ui->lblContactFields, m_ui->lblPropFields}) {
        m_captions.insert(label, label->text());
        label->installEventFilter(this);
    }
    connect(m_ui->lstForms, &QListWidget::itemSelectionChanged, this, &FormLetters::lstForms_Click);
    Fill(*m_ui->lstContactFields, ContactLetterFields());
    Fill(*m_ui->lstPropFields, PropertyLetterFields());
    SetUpPictures();
    SetUpPicker(*m_ui->lstContactFields, *m_ui->picInsertContactInfo, *m_ui->lblContactFields,
                &FormLetters::InsertContactFieldToLetter);
    SetUpPicker(*m_ui->lstPropFields, *m_ui->picInsertPropInfo, *m_ui->lblPropFields,
                &FormLetters::InsertPropFieldToLetter);
    SetUpButtons();
    // The settings were loaded before there was a place to show the label.
    if (gSettings.LabelProduct > 0)
        ShowLabelType(gSettings.LabelNumber);
}

FormLetters::~FormLetters() = default;

void FormLetters::SetUpPictures()
{
    for (const FormPicture& line : formPictures) {
        const QString caption(line.Caption);
        auto* picture = findChild<PictureBox*>(u"picForms_%1"_s.arg(static_cast<int>(line.Action)));
        picture->SetPicture(caption);
        picture->SetWords(caption);
        connect(picture, &PictureBox::MouseMoveOver, this, [this, caption] { m_ui->lblForms->setText(caption); });
        connect(picture, &PictureBox::clicked, this, [this, action = line.Action] { FormStart(action); });
        DisableFormBtn(line.Action);
    }
    EnableFormBtn(Action::New);
}

void FormLetters::SetUpPicker(QListWidget& list, PictureBox& picture, QLabel& label, void (FormLetters::*insert)())
{
    picture.SetPicture(u"InsertField"_s);
    picture.SetWords(u"Insert into the letter"_s);
    connect(&picture, &PictureBox::MouseMoveOver, this,
            [&list, &label] { label.setText(u"Insert "_s + SelectedText(list)); });
    connect(&picture, &PictureBox::clicked, this, insert);
}

void FormLetters::KeepLetterReadable()
{
    // A letter that is only looked at is there to be read.
    QPalette readable;
    readable.setColor(QPalette::Disabled, QPalette::Text, palette().color(QPalette::Active, QPalette::Text));
    m_ui->Letter->setPalette(readable);
}

void FormLetters::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        KeepLetterReadable();
    QWidget::changeEvent(event);
}

// Loading and looking.

void FormLetters::LoadFormLetters()
{
    Trap(u"frmMain LoadFormLetters Error #"_s, Icon::Critical, [this] {
        {
            const QSignalBlocker quiet(m_ui->lstForms);
            m_ui->lstForms->clear();
            for (const LetterLibrary::Entry& letter : m_library.Load())
                AddForm(letter);
            m_ui->lstForms->setCurrentRow(m_ui->lstForms->count() == 0 ? -1 : 0);
        }
        if (m_ui->Letter->isEnabled())
            KeepEditing();
        else
            ShowWhatIsThere();
    });
}

void FormLetters::KeepEditing()
{
    if (m_editMode != Action::Modify)
        return;
    const QSignalBlocker quiet(m_ui->lstForms);
    for (int row = 0; row < m_ui->lstForms->count(); ++row) {
        if (m_ui->lstForms->item(row)->data(Qt::UserRole).value<Long>() == m_modifiedID) {
            m_ui->lstForms->setCurrentRow(row);
            return;
        }
    }
    m_editMode = Action::New; // the letter that it was made from is not there any more
}

void FormLetters::AddForm(const LetterLibrary::Entry& letter)
{
    auto* line = new QListWidgetItem(letter.Name, m_ui->lstForms);
    line->setData(Qt::UserRole, letter.ID);
}

void FormLetters::SelectForm(int row)
{
    const QSignalBlocker quiet(m_ui->lstForms);
    m_ui->lstForms->setCurrentRow(row);
    lstForms_Click();
}

void FormLetters::lstForms_Click()
{
    Trap(u"frmMain lstForms_Click Error #"_s, Icon::Critical, [this] {
        // The pictures work on the selected letter: Ctrl and a click, or Ctrl+Space, do not take the selection away.
        QListWidgetItem* line = m_ui->lstForms->currentItem();
        if (!HasSelection() && line != nullptr) {
            const QSignalBlocker quiet(m_ui->lstForms);
            line->setSelected(true);
        }
        if (HasSelection())
            ShowLetter(m_library.Text(SelectedID()));
    });
}

bool FormLetters::HasSelection() const
{
    return Chosen(*m_ui->lstForms) != nullptr;
}

Long FormLetters::SelectedID() const
{
    const QListWidgetItem* line = Chosen(*m_ui->lstForms);
    return line != nullptr ? line->data(Qt::UserRole).value<Long>() : 0;
}

QString FormLetters::SelectedName() const
{
    return SelectedText(*m_ui->lstForms);
}

QString FormLetters::LetterText() const
{
    return PlainText(*m_ui->Letter);
}

void FormLetters::ShowLetter(const QString& text)
{
    m_ui->Letter->setPlainText(text);
}

void FormLetters::ShowLabelType(const QString& labelNumber)
{
    // A product that was kept without a number still leaves something to press.
    m_ui->lblLabelType->setText(labelNumber.isEmpty() ? u"Choose"_s : labelNumber);
}

// The field pickers.

void FormLetters::InsertContactFieldToLetter()
{
    InsertMarker(SelectedColumn(*m_ui->lstContactFields));
}

void FormLetters::InsertPropFieldToLetter()
{
    InsertMarker(SelectedColumn(*m_ui->lstPropFields));
}

void FormLetters::InsertMarker(const QString& column)
{
    QTextCursor caret = m_ui->Letter->textCursor();
    // What is selected is not replaced.
    caret.setPosition(caret.selectionStart());
    caret.insertText(u"!<"_s + column + u">! "_s);
    m_ui->Letter->setTextCursor(caret);
    m_ui->Letter->setFocus();
}

// The pointer.

bool FormLetters::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove) {
        auto* label = static_cast<QLabel*>(watched);
        label->setText(m_captions.value(label));
    }
    return QWidget::eventFilter(watched, event);
}

void FormLetters::wheelEvent(QWheelEvent* event)
{
    QScrollBar* bar = m_ui->Letter->verticalScrollBar();
    if (m_ui->Letter->isEnabled() || !m_ui->Letter->geometry().contains(event->position().toPoint())) {
        QWidget::wheelEvent(event);
        return;
    }
    constexpr int notch = 120;
    constexpr int lines = 3;
    bar->setValue(bar->value() - event->angleDelta().y() * lines * bar->singleStep() / notch);
    event->accept();
}

// The buttons.

void FormLetters::SetUpButtons()
{
    m_buttons =
        new HoverButtonArray(*this, {{MergeButton, u"Merge"_s, u"Merge"_s}, {LabelsButton, u"Labels"_s, u"Labels"_s}});
    connect(m_buttons, &HoverButtonArray::MouseDown, this, &FormLetters::cmdbutton_MouseDown);
    connect(m_buttons, &HoverButtonArray::Click, this, &FormLetters::cmdbutton_Click);
    connect(m_ui->lblLabelType, &QPushButton::clicked, this, [this] { frmLabelType().ShowModal(window()); });
}

void FormLetters::cmdbutton_MouseDown(int index)
{
    if (index != LabelsButton || gSettings.LabelProduct != 0)
        return;
    HoverButton& button = *m_buttons->Button(index);
    // The window takes the release of the mouse for itself: what the release does is done here. The button only goes
    // down where there is something to print on.
    button.setDown(false);
    frmLabelType().ShowModal(window());
    button.setDown(gSettings.LabelProduct != 0);
    button.repaint();
    button.setDown(false);
    ProcessCmdButtons(index);
}

void FormLetters::cmdbutton_Click(int index)
{
    if (index == LabelsButton && gSettings.LabelProduct == 0)
        frmLabelType().ShowModal(window());
    ProcessCmdButtons(index);
}

void FormLetters::ProcessCmdButtons(int index)
{
    Trap(u"frmMain ProcessCmdButtons Error #"_s, Icon::Critical, [this, index] {
        if (index == MergeButton)
            Merge();
        else if (index == LabelsButton)
            Labels();
    });
}

void FormLetters::Merge()
{
    const QString letter = LetterText();
    if (letter.isEmpty()) {
        MsgBox(u"I did not find any form Letters to generate."_s, Buttons::Ok, Icon::Information,
               u"Mail Merge Cancelled"_s);
        return;
    }
    const HourGlass hourGlass;
    if (!HasMarkers(letter))
        CallWord(letter);
    else if (gSelected.IsEmpty())
        MsgBox(u"You need to have some contacts selected to do a Mail Merge."_s, Buttons::Ok, Icon::Information,
               u"Mail Merge Cancelled"_s);
    else
        MailMerge(letter);
}

void FormLetters::Labels()
{
    if (gSelected.IsEmpty()) {
        MsgBox(u"You need to have some contacts selected to create labels."_s, Buttons::Ok, Icon::Information,
               u"Label Creation Cancelled"_s);
        return;
    }
    const HourGlass hourGlass;
    LabelsMerge();
}
