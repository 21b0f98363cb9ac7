#include "ui/views/GridTableModel.h"

namespace sonarium {

GridTableModel::GridTableModel(DataGrid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {}

int GridTableModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridTableModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columns_; }

QVariant GridTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rows_ || index.column() >= columns_) return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: return grid_.CellText(index.row(), index.column());
    case Qt::TextAlignmentRole: return int(Qt::AlignLeft | Qt::AlignVCenter);
    default: return {};
    }
}

QVariant GridTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) return section == markedRow_ ? QStringLiteral("\u25B8") : QString();
    return section < columns_ ? grid_.Column(section).caption : QString();
}

Qt::ItemFlags GridTableModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
}

void GridTableModel::follow() {
    const int rows = grid_.RowCount(), columns = grid_.ColumnCount();
    if (grid_.rowsVersion() != rowsVersion_ || rows != rows_ || columns != columns_) {
        beginResetModel();
        rows_ = rows, columns_ = columns;
        rowsVersion_ = grid_.rowsVersion();
        valuesVersion_ = grid_.valuesVersion();
        markedRow_ = grid_.Row();
        endResetModel();
        return;
    }
    if (grid_.valuesVersion() != valuesVersion_) {
        valuesVersion_ = grid_.valuesVersion();
        if (rows_ > 0 && columns_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
    }
    const int marked = grid_.Row();
    if (marked != markedRow_) {
        const int before = markedRow_;
        markedRow_ = marked;
        for (int row : {before, marked})
            if (row >= 0 && row < rows_) emit headerDataChanged(Qt::Vertical, row, row);
    }
}

}  // namespace sonarium
