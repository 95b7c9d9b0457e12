#include "editors/SheetAccess.h"

#include "editors/SheetEditor.h"

#include <QAccessibleWidget>

using namespace Qt::StringLiterals;

namespace {

/// The sheet's own children, and behind them the controls of its rows.
class SheetAccess final : public QAccessibleWidget
{
public:
    explicit SheetAccess(SheetEditor* sheet) : QAccessibleWidget(sheet, QAccessible::Grouping), m_sheet(*sheet) {}

    int childCount() const override { return QAccessibleWidget::childCount() + m_sheet.Rows(); }

    QAccessibleInterface* child(int index) const override
    {
        const int row = index - QAccessibleWidget::childCount() + 1;
        if (row < 1 || row > m_sheet.Rows())
            return QAccessibleWidget::child(index);
        return QAccessible::queryAccessibleInterface(m_sheet.Control(row));
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        for (int row = 1; child != nullptr && row <= m_sheet.Rows(); ++row) {
            if (child->object() == m_sheet.Control(row))
                return QAccessibleWidget::childCount() + row - 1;
        }
        return QAccessibleWidget::indexOfChild(child);
    }

private:
    const SheetEditor& m_sheet;
};

QAccessibleInterface* NewSheetAccess(const QString& className, QObject* object)
{
    auto* sheet = className == "SheetEditor"_L1 ? qobject_cast<SheetEditor*>(object) : nullptr;
    return sheet != nullptr ? new SheetAccess(sheet) : nullptr;
}

} // namespace

void InstallSheetAccess()
{
    // A factory that is there already is not installed twice.
    QAccessible::installFactory(NewSheetAccess);
}
