#include "ui/widgets/GridModel.h"

#include "ui/widgets/Pictures.h"

#include <algorithm>
#include <numeric>

int GridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_published;
}

int GridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return Text(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(m_columns[static_cast<size_t>(index.column())].Alignment);
    case Qt::DecorationRole:
    case Qt::ForegroundRole:
    case Qt::BackgroundRole:
    case Qt::FontRole:
        break;
    default:
        return {};
    }
    const CellLook look = Look(index.row(), index.column());
    if (role == Qt::DecorationRole && !look.Icon.isEmpty())
        return Pictures::Icon(look.Icon);
    if (role == Qt::ForegroundRole && look.Color.isValid())
        return QBrush(look.Color);
    if (role == Qt::BackgroundRole && look.BackColor.isValid())
        return QBrush(look.BackColor);
    if (role == Qt::FontRole && look.Font)
        return *look.Font;
    return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const GridColumn& column = m_columns[static_cast<size_t>(section)];
    const bool pictured = !column.HeaderIcon.isEmpty();
    switch (role) {
    case Qt::DisplayRole:
        return pictured ? QVariant() : QVariant(column.Header);
    case Qt::DecorationRole:
        return pictured ? QVariant(Pictures::Icon(column.HeaderIcon)) : QVariant();
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return column.Header.isEmpty() ? column.Key : column.Header;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(pictured ? Qt::Alignment(Qt::AlignCenter)
                                            : column.HeaderAlignment.value_or(column.Alignment));
    default:
        return {};
    }
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}

void GridModel::AddColumn(const GridColumn& column)
{
    const int position = columnCount();
    beginInsertColumns({}, position, position);
    m_columns.push_back(column);
    endInsertColumns();
}

void GridModel::InsertRow(int before, Long itemData)
{
    const bool quietly = m_held && before == Rows();
    if (!quietly) {
        Publish();
        beginInsertRows({}, before, before);
    }
    quint32 slot = 0;
    if (m_free.empty()) {
        slot = static_cast<quint32>(m_slots.size());
        m_slots.emplace_back();
    } else {
        slot = m_free.back();
        m_free.pop_back();
    }
    m_order.insert(m_order.begin() + before, slot);
    m_itemData.insert(m_itemData.begin() + before, itemData);
    ForgetRows();
    if (!quietly) {
        ++m_published;
        endInsertRows();
    }
}

void GridModel::RemoveRows(int first, int count)
{
    if (count <= 0)
        return;
    Publish();
    beginRemoveRows({}, first, first + count - 1);
    for (int row = first; row < first + count; ++row)
        FreeSlot(m_order[static_cast<size_t>(row)]);
    m_order.erase(m_order.begin() + first, m_order.begin() + first + count);
    m_itemData.erase(m_itemData.begin() + first, m_itemData.begin() + first + count);
    ForgetRows();
    m_published -= count;
    endRemoveRows();
}

void GridModel::Clear()
{
    if (m_published > 0)
        beginRemoveRows({}, 0, m_published - 1);
    const bool told = m_published > 0;
    m_order.clear();
    m_itemData.clear();
    ForgetRows();
    m_slots.clear();
    m_free.clear();
    m_looks.clear();
    m_published = 0;
    if (told)
        endRemoveRows();
}

void GridModel::ClearWithColumns()
{
    Clear();
    if (m_columns.empty())
        return;
    beginRemoveColumns({}, 0, columnCount() - 1);
    m_columns.clear();
    endRemoveColumns();
}

int GridModel::Find(Long itemData) const
{
    // A single question is a walk; who asks for one row after the other is better served by an index.
    constexpr int walks = 16;
    if (m_finds < walks) {
        ++m_finds;
        return Walk(itemData);
    }
    if (m_rowOf.isEmpty()) {
        m_rowOf.reserve(std::ssize(m_itemData));
        for (int row = Rows() - 1; row >= 0; --row)
            m_rowOf.insert(m_itemData[static_cast<size_t>(row)], row);
    }
    return m_rowOf.value(itemData, -1);
}

void GridModel::ForgetRows()
{
    m_finds = 0;
    m_rowOf.clear();
}

int GridModel::Walk(Long itemData) const
{
    const auto found = std::find(m_itemData.begin(), m_itemData.end(), itemData);
    return found == m_itemData.end() ? -1 : static_cast<int>(found - m_itemData.begin());
}

void GridModel::Reorder(const std::vector<int>& order)
{
    Publish();
    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    std::vector<quint32> slotsNow(order.size());
    std::vector<Long> itemData(order.size());
    std::vector<int> newRow(order.size());
    for (size_t row = 0; row < order.size(); ++row) {
        const auto old = static_cast<size_t>(order[row]);
        slotsNow[row] = m_order[old];
        itemData[row] = m_itemData[old];
        newRow[old] = static_cast<int>(row);
    }
    m_order.swap(slotsNow);
    m_itemData.swap(itemData);
    ForgetRows();
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex& old : before)
        after.append(index(newRow[static_cast<size_t>(old.row())], old.column()));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

const QString& GridModel::Text(int row, int column) const
{
    static const QString none;
    const Slot& slot = m_slots[m_order[static_cast<size_t>(row)]];
    return static_cast<size_t>(column) < slot.Texts.size() ? slot.Texts[static_cast<size_t>(column)] : none;
}

void GridModel::SetText(int row, int column, const QString& text)
{
    Slot& slot = m_slots[m_order[static_cast<size_t>(row)]];
    const auto position = static_cast<size_t>(column);
    if (position >= slot.Texts.size()) {
        if (text.isEmpty())
            return;
        slot.Texts.reserve(m_columns.size());
        slot.Texts.resize(position + 1);
    }
    slot.Texts[position] = text;
    Changed(row, column);
}

CellLook GridModel::Look(int row, int column) const
{
    return HasLook(row) ? m_looks.value(LookKey(row, column)) : CellLook();
}

void GridModel::SetLook(int row, int column, const CellLook& look)
{
    Slot& slot = m_slots[m_order[static_cast<size_t>(row)]];
    if (look.IsPlain()) {
        if (slot.HasLook)
            m_looks.remove(LookKey(row, column));
    } else {
        slot.HasLook = true;
        m_looks.insert(LookKey(row, column), look);
    }
    Changed(row, column);
}

void GridModel::Hold(bool on)
{
    m_held = on;
    if (on)
        return;
    Publish();
    if (std::exchange(m_changedWhileHeld, false) && m_published > 0 && columnCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(m_published - 1, columnCount() - 1));
}

void GridModel::Publish()
{
    if (m_published == Rows())
        return;
    beginInsertRows({}, m_published, Rows() - 1);
    m_published = Rows();
    endInsertRows();
}

quint64 GridModel::LookKey(int row, int column) const
{
    return (static_cast<quint64>(m_order[static_cast<size_t>(row)]) << 16) | static_cast<quint64>(column);
}

void GridModel::FreeSlot(quint32 slot)
{
    Slot& freed = m_slots[slot];
    if (freed.HasLook)
        for (int column = 0; column < columnCount(); ++column)
            m_looks.remove((static_cast<quint64>(slot) << 16) | static_cast<quint64>(column));
    freed = Slot();
    m_free.push_back(slot);
}

void GridModel::Changed(int row, int column)
{
    if (m_held) {
        m_changedWhileHeld = true;
        return;
    }
    const QModelIndex cell = index(row, column);
    Q_EMIT dataChanged(cell, cell);
}
