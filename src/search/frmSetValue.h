#pragma once

#include "search/CriteriaRows.h"
#include "ui/widgets/Form.h"

#include <QHash>

class QComboBox;
class QLineEdit;
class QStackedLayout;

/// Asks for the value of a criterion. One window holds all inputs; the row's is the one that is seen. The answer stands
/// in gReturnValue, "" where the person cancelled or chose nothing. Enter anywhere in the window is Ok; Esc and the
/// close box are Cancel.
class frmSetValue : public Form
{
    Q_OBJECT

public:
    /// `seed` is what was typed to open the window; a list takes none.
    frmSetValue(const QString& caption, ValueInput input, const QString& seed);

protected:
    bool KeyPreview(QKeyEvent* event) override;
    void EscapePressed() override;

private:
    void AddTexts();
    void AddLists();
    void AddInput(ValueInput input, QWidget* control, const QString& name);
    void ShowInput(ValueInput input, const QString& seed);
    void cmdbutton_Click(int index);

    QStackedLayout* m_inputs;
    QHash<ValueInput, QWidget*> m_controls;
};
