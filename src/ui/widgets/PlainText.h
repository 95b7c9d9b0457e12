#pragma once

#include <QString>

class QPlainTextEdit;

/// The text of a box as the store keeps it: a break is CR LF, and hard blanks stay hard.
[[nodiscard]] QString PlainText(const QPlainTextEdit& box);

/// A text of the store in a box. Texts of other hands may break their lines otherwise; unchanged they go back as they
/// came.
class StoredText
{
public:
    explicit StoredText(QPlainTextEdit& box) : m_box(box) {}

    void Show(const QString& text);
    [[nodiscard]] QString Text() const;

private:
    QPlainTextEdit& m_box;
    QString m_stored;
    QString m_asTyped;
};
