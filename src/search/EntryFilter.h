#pragma once

#include "core/FieldRules.h"

#include <QObject>
#include <functional>

class QKeyEvent;
class QLineEdit;

/// What may stand in an entry, and how it is tidied while it is typed.
struct EntryRules
{
    /// Whether a key may be typed into the text so far; a key that may not is swallowed.
    std::function<bool(int keyAscii, QStringView textSoFar)> Accepts;
    /// Tidies the text before the typed character comes into it; Backspace tidies nothing.
    std::function<FieldText(const FieldText&)> BeforeKey = {};
    /// Tidies the text as a key goes up.
    std::function<FieldText(int keyCode, const FieldText&)> AfterKey = {};
    /// The characters that are kept of a text that is pasted or dropped in.
    QString Pasted;
};

/// Gives a line edit its rules, for as long as the line edit lives.
class EntryFilter : public QObject
{
    Q_OBJECT

public:
    EntryFilter(QLineEdit& entry, EntryRules rules);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool SwallowsKey(const QKeyEvent& event);
    void KeepAccepted();
    [[nodiscard]] FieldText Field() const;
    void SetField(const FieldText& field);

    QLineEdit& m_entry;
    EntryRules m_rules;
    /// The edit that comes is of a key that was accepted; otherwise it is a paste or a drop.
    bool m_typing = false;
};
