#include "ui/widgets/PlainText.h"

#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

QString PlainText(const QPlainTextEdit& box)
{
    // The raw text: the plain one would turn hard blanks into soft ones.
    QString text = box.document()->toRawText();
    text.replace(QChar(QChar::ParagraphSeparator), u"\r\n"_s);
    return text.replace(QChar(QChar::LineSeparator), u"\r\n"_s); // Shift+Enter
}

void StoredText::Show(const QString& text)
{
    m_box.setPlainText(text);
    m_stored = text;
    m_asTyped = PlainText(m_box);
}

QString StoredText::Text() const
{
    const QString typed = PlainText(m_box);
    return typed == m_asTyped ? m_stored : typed;
}
