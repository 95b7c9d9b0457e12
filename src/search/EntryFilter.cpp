#include "search/EntryFilter.h"

#include "ui/widgets/KeyCodes.h"

#include <QKeyEvent>
#include <QLineEdit>

EntryFilter::EntryFilter(QLineEdit& entry, EntryRules rules)
    : QObject(&entry), m_entry(entry), m_rules(std::move(rules))
{
    entry.installEventFilter(this);
    connect(&entry, &QLineEdit::textEdited, this, &EntryFilter::KeepAccepted);
}

bool EntryFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && SwallowsKey(*static_cast<QKeyEvent*>(event)))
        return true;
    // A key that edited nothing must not let the next paste through.
    if (event->type() == QEvent::KeyRelease)
        m_typing = false;
    if (event->type() == QEvent::KeyRelease && m_rules.AfterKey) {
        const auto* key = static_cast<QKeyEvent*>(event);
        // What Ctrl does to the text (select all, copy) must outlive the key.
        if (!key->isAutoRepeat() && !key->modifiers().testFlag(Qt::ControlModifier) && key->key() != Qt::Key_Control)
            SetField(m_rules.AfterKey(KeyCode(*key), Field()));
    }
    return QObject::eventFilter(watched, event);
}

bool EntryFilter::SwallowsKey(const QKeyEvent& event)
{
    m_typing = false;
    const int ascii = KeyAscii(event);
    const bool command = event.modifiers().testFlag(Qt::ControlModifier) || event.modifiers().testFlag(Qt::AltModifier);
    if (ascii == 0 || ascii == Key::Enter || ascii == Key::Escape || command)
        return false;
    // A key that replaces what is marked is typed into what is left.
    const QString marked = m_entry.selectedText();
    QString textSoFar = m_entry.text();
    textSoFar.remove(m_entry.selectionStart(), marked.size());
    const bool swallowed = !m_rules.Accepts(ascii, textSoFar);
    m_typing = !swallowed;
    if (m_rules.BeforeKey && ascii != Key::Backspace && marked.isEmpty())
        SetField(m_rules.BeforeKey(Field()));
    return swallowed;
}

void EntryFilter::KeepAccepted()
{
    if (std::exchange(m_typing, false))
        return;
    const FieldText field = Field();
    FieldText kept;
    kept.SelStart = field.SelStart;
    for (qsizetype i = 0; i < field.Text.size(); ++i) {
        if (m_rules.Pasted.contains(field.Text[i]))
            kept.Text += field.Text[i];
        else if (i < field.SelStart)
            --kept.SelStart;
    }
    if (m_rules.AfterKey)
        kept = m_rules.AfterKey(Key::Shift, kept);
    if (kept != field)
        SetField(kept);
}

FieldText EntryFilter::Field() const
{
    return {m_entry.text(), m_entry.cursorPosition()};
}

void EntryFilter::SetField(const FieldText& field)
{
    if (m_entry.text() != field.Text)
        m_entry.setText(field.Text);
    if (!m_entry.hasSelectedText())
        m_entry.setCursorPosition(static_cast<int>(field.SelStart));
}
