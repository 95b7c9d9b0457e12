#pragma once

#include "ui/widgets/Grid.h"

#include <QAbstractTableModel>
#include <QHash>
#include <optional>
#include <vector>

/// What a cell shows beside its text. Few cells have one.
struct CellLook
{
    QString Icon;
    QColor Color;
    QColor BackColor;
    std::optional<QFont> Font;

    [[nodiscard]] bool IsPlain() const { return Icon.isEmpty() && !Color.isValid() && !BackColor.isValid() && !Font; }
};

/// The rows of a grid. Rows and columns count from 0 here, as Qt counts them.
/// Texts lie in slots that never move; the order of the rows is a list of slot numbers. So a sort moves four bytes for
/// a row, and the sparse looks, kept by slot, follow their rows without being touched. While held, changes are told to
/// the views late and together: rows added at the end by Publish, texts by Hold(false).
class GridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    // The model as views see it.
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

    // Columns.
    void AddColumn(const GridColumn& column);
    [[nodiscard]] const std::vector<GridColumn>& ColumnList() const { return m_columns; }
    [[nodiscard]] GridColumn& ColumnAt(int column) { return m_columns[static_cast<size_t>(column)]; }

    // Rows, also those that the views do not know yet.
    [[nodiscard]] int Rows() const { return static_cast<int>(m_order.size()); }
    void InsertRow(int before, Long itemData);
    void RemoveRows(int first, int count);
    void Clear();
    void ClearWithColumns();
    [[nodiscard]] Long ItemData(int row) const { return m_itemData[static_cast<size_t>(row)]; }
    void SetItemData(int row, Long itemData)
    {
        m_itemData[static_cast<size_t>(row)] = itemData;
        ForgetRows();
    }
    /// The first row with this item data, -1 where there is none. A walk over packed numbers (100,000 rows take some 20
    /// µs) at first, a look-up when it is asked again and again.
    [[nodiscard]] int Find(Long itemData) const;
    /// Puts the rows into a new order: row n is then what was row order[n].
    void Reorder(const std::vector<int>& order);

    // Cells.
    [[nodiscard]] const QString& Text(int row, int column) const;
    void SetText(int row, int column, const QString& text);
    [[nodiscard]] bool HasLook(int row) const { return m_slots[m_order[static_cast<size_t>(row)]].HasLook; }
    [[nodiscard]] CellLook Look(int row, int column) const;
    void SetLook(int row, int column, const CellLook& look);

    // Telling the views.
    void Hold(bool on);
    void Publish();

private:
    struct Slot
    {
        std::vector<QString> Texts; ///< short where the last cells are empty
        bool HasLook = false;
    };

    [[nodiscard]] quint64 LookKey(int row, int column) const;
    void FreeSlot(quint32 slot);
    void Changed(int row, int column);
    [[nodiscard]] int Walk(Long itemData) const;
    /// The rows' item data or places have changed.
    void ForgetRows();

    std::vector<GridColumn> m_columns;
    std::vector<Slot> m_slots;
    std::vector<quint32> m_free;
    std::vector<quint32> m_order;
    std::vector<Long> m_itemData;
    mutable QHash<Long, int> m_rowOf; ///< empty until Find has been asked often
    mutable int m_finds = 0;
    QHash<quint64, CellLook> m_looks;
    int m_published = 0;
    bool m_held = false;
    bool m_changedWhileHeld = false;
};
