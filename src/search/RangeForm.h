#pragma once

#include "ui/widgets/Form.h"

class HoverButtonArray;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;

/// What a window that asks for a condition and one or two values shows.
struct RangeWords
{
    QString Name; ///< the window's
    QStringList Conditions;
    QString RangeCondition; ///< the one of two values
    QString Between;        ///< stands between the two values
    QString EntryName;      ///< the entries are named so, with "1" and "2" behind it
    QString EntryCaption;   ///< what an entry holds, in words
};

/// Base of the windows that ask for a date or money criterion. The answer stands in gReturnValue, "" where the person
/// cancelled. Enter anywhere in the window is Ok, Esc is Cancel.
///
///   [condition v] [first value]
///          To     [second value]     with the condition of two values alone
class RangeForm : public Form
{
    Q_OBJECT

protected:
    explicit RangeForm(const RangeWords& words);

    [[nodiscard]] QString Condition() const;
    [[nodiscard]] bool IsRange() const;
    /// Chooses the condition of two values.
    void ShowRange();
    /// The criterion of any other condition: "= ", or the condition's own words, and the value.
    [[nodiscard]] QString OneValue(const QString& text) const;
    [[nodiscard]] QLineEdit& First() const { return *m_first; }
    [[nodiscard]] QLineEdit& Second() const { return *m_second; }
    [[nodiscard]] QGridLayout& Rows() const { return *m_rows; }

    virtual void cmdbutton_Click(int index) = 0;
    /// The window goes with this answer.
    void AnswerWith(const QString& answer);

    bool KeyPreview(QKeyEvent* event) override;
    void EscapePressed() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// An entry got the focus.
    virtual void EntryGotFocus(QLineEdit& entry);

    static constexpr int Cancel = 1;
    static constexpr int Ok = 2;

private:
    QLineEdit* AddEntry(const RangeWords& words, int number);
    void cboCondition_Click();

    QString m_rangeCondition;
    QGridLayout* m_rows;
    QComboBox* m_condition;
    QLineEdit* m_first;
    QLabel* m_between;
    QLineEdit* m_second;
};
