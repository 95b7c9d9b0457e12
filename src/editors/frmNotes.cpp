#include "editors/frmNotes.h"

#include "core/Dates.h"
#include "core/Format.h"
#include "core/Trap.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/PropDescribe.h"
#include "model/PropDetail.h"
#include "ui/widgets/HoverButton.h"
#include "ui/widgets/HoverButtonArray.h"
#include "ui/widgets/Pictures.h"
#include "ui/widgets/ResizeScaler.h"
#include "ui_frmNotes.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QtMath>

using namespace Qt::StringLiterals;

namespace {

enum Button
{
    SaveButton = 1,
    ExitButton
};

constexpr int Margin = 8;
constexpr auto Saved = "Notes Have Been Saved"_L1;

bool IsOfProperty()
{
    return gEditMode != EditMode::ModifyContact && gEditMode != EditMode::NewContact && gEditMode != EditMode::Neutral;
}

bool IsModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_AltGr ||
           key == Qt::Key_Meta;
}

} // namespace

frmNotes::frmNotes() : Form(u"frmNotes"_s), m_ui(std::make_unique<Ui::frmNotes>()), m_ofProperty(IsOfProperty())
{
    m_ui->setupUi(this);
    m_text.emplace(*m_ui->txtNotes);
    m_scaler = std::make_unique<ResizeScaler>(*this, std::vector<const QWidget*>{m_ui->txtNotes});
    // A small screen may shrink the window before its first resize is told.
    m_scaler->SaveSizes();
    LoadBitMaps();
    AddKeys();
    FitCaptions();
    Form_Load();
    m_ui->txtNotes->installEventFilter(this);
    // Whatever changes the text without a key, a paste with the mouse say, must not be lost either.
    connect(m_ui->txtNotes, &QPlainTextEdit::textChanged, this, [this] { m_dirty = true; });
    CenterForm(*this);
    m_ui->txtNotes->setFocus();
}

frmNotes::~frmNotes() = default;

void frmNotes::Form_Load()
{
    Trap(u"frmNotes Form_Load Error #"_s, Icon::Critical, [this] {
        if (m_ofProperty) {
            setWindowTitle(u"Notes for "_s + PropDescribe());
            m_text->Show(CurProperty()->Notes);
        } else {
            setWindowTitle(FormatName() + u"'s Notes"_s);
            if (!curContact)
                throw RunTimeError(ErrorNumber::ObjectNotSet);
            m_text->Show(curContact->Notes);
        }
    });
}

void frmNotes::LoadBitMaps()
{
    m_buttons = new HoverButtonArray(*this, {{SaveButton, u"Save"_s, u"Save"_s}, {ExitButton, u"Exit"_s, u"Exit"_s}});
    m_buttons->SetTakesFocus(false);
    connect(m_buttons, &HoverButtonArray::Click, this, &frmNotes::cmdButton_Click);
    QToolButton* stamp = m_ui->picStamp;
    stamp->setIcon(Pictures::Icon(u"Stamp"_s));
    connect(stamp, &QToolButton::pressed, this, [stamp] { stamp->setIcon(Pictures::Icon(u"StampBright"_s)); });
    connect(stamp, &QToolButton::released, this, [stamp] { stamp->setIcon(Pictures::Icon(u"Stamp"_s)); });
    connect(stamp, &QToolButton::clicked, this, &frmNotes::picStamp_Click);
}

void frmNotes::AddKeys()
{
    const auto on = [this](const QString& key, auto act) {
        auto* shortcut = new QShortcut(QKeySequence(key), this);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, act);
    };
    on(u"Alt+D"_s, [this] { picStamp_Click(); });
    on(u"Alt+S"_s, [this] { cmdButton_Click(SaveButton); });
    on(u"Alt+X"_s, [this] { cmdButton_Click(ExitButton); });
    m_buttons->Button(SaveButton)->setToolTip(u"Save (Alt+S)"_s);
    m_buttons->Button(ExitButton)->setToolTip(u"Exit (Alt+X)"_s);
}

void frmNotes::FitCaptions()
{
    qreal across = 1;
    qreal down = 1;
    for (const QAbstractButton* button : findChildren<QAbstractButton*>()) {
        const QSize needed = button->sizeHint();
        across = std::max(across, qreal(needed.width()) / button->width());
        down = std::max(down, qreal(needed.height()) / button->height());
    }
    resize(qCeil(width() * across), qCeil(height() * down));
    // Below this the letters, which shrink too, would be hard to read.
    constexpr qreal smallest = 0.86;
    setMinimumSize(qCeil(width() * smallest), qCeil(height() * smallest));
}

void frmNotes::picStamp_Click()
{
    Trap(u"frmNotes picStamp_Click Error #"_s, Icon::Critical, [this] {
        m_dirty = true;
        DateStamp();
    });
}

void frmNotes::DateStamp()
{
    const QString stamp = Format(TodayDate(), u"MM/DD/YYYY") + u": "_s;
    const bool empty = m_ui->txtNotes->document()->isEmpty();
    QTextCursor cursor(m_ui->txtNotes->document());
    cursor.insertText(empty ? stamp : stamp + u'\n');
    m_ui->txtNotes->setFocus();
    // The person types right behind the stamp.
    cursor.setPosition(static_cast<int>(stamp.size()));
    m_ui->txtNotes->setTextCursor(cursor);
}

// The buttons.

void frmNotes::cmdButton_Click(int index)
{
    Trap(u"frmNotes cmdButton_Click Error #"_s, Icon::Critical, [this, index] {
        if (index == SaveButton)
            Save();
        else if (MayLeave())
            Unload();
    });
}

bool frmNotes::Save()
{
    bool written = false;
    if (m_ofProperty) {
        PropDetail& property = *CurProperty();
        property.Notes = m_text->Text();
        written = property.UpdateDBNotes();
    } else {
        if (!curContact)
            throw RunTimeError(ErrorNumber::ObjectNotSet);
        curContact->Notes = m_text->Text();
        written = curContact->UpdateDB(curContact->RecID);
    }
    // A refused write has been reported: the text is still to be saved.
    if (!written)
        return false;
    ShoWait(Saved);
    m_dirty = false;
    return true;
}

bool frmNotes::MayLeave()
{
    if (!m_dirty)
        return true;
    switch (MsgBox(u"Do you want me to save the changes you have made?"_s, Buttons::YesNoCancel, Icon::Question,
                   u"You Have Made some Modifications"_s)) {
    case Answer::Yes:
        return Save();
    case Answer::No:
        ShoWait(u"Notes Not Saved"_s);
        return true;
    default:
        return false;
    }
}

void frmNotes::EscapePressed()
{
    cmdButton_Click(ExitButton);
}

void frmNotes::Form_QueryUnload(bool& cancel, UnloadMode mode)
{
    if (mode == UnloadMode::CloseBox)
        cancel = !Trap(u"frmNotes Form_QueryUnload Error #"_s, Icon::Critical, [this] { return MayLeave(); });
}

bool frmNotes::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui->txtNotes && event->type() == QEvent::KeyPress) {
        auto* press = static_cast<QKeyEvent*>(event);
        const int key = press->key();
        // Any key counts as a change, also one that is taken back, which is meant.
        if (!IsModifier(key) && key != Qt::Key_Escape && key != Qt::Key_Tab && key != Qt::Key_Backtab)
            m_dirty = true;
        // Every break is a line of its own in the store.
        if (press->matches(QKeySequence::InsertLineSeparator)) {
            m_ui->txtNotes->insertPlainText(u"\n"_s);
            return true;
        }
    }
    return Form::eventFilter(watched, event);
}

void frmNotes::resizeEvent(QResizeEvent* event)
{
    Form::resizeEvent(event);
    if (!m_scaler)
        return;
    m_scaler->FormResized();
    const int bottom = m_ui->picStamp->y() - Margin;
    m_ui->txtNotes->setGeometry(Margin, Margin, width() - 2 * Margin, bottom - Margin);
}
