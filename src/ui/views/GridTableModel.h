#pragma once
// The rows of a DataGrid as a Qt table model. Nothing is copied: each cell asks the grid,
// which reads the records a block at a time, so a library of 100,000 records costs only the
// rows on screen. The model changes only in follow(), so Qt always sees a consistent table
// between two looks at the grid.
#include <QAbstractTableModel>

#include "controls/DataGrid.h"

namespace sonarium {

class GridTableModel : public QAbstractTableModel {
public:
    explicit GridTableModel(DataGrid& grid, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    // Captions across the top; down the side, a mark on the current row.
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    // Takes in what changed in the grid: every row when the view was read again, only the
    // values when they changed in place, the mark when the current row moved.
    void follow();

private:
    DataGrid& grid_;
    int rows_ = 0, columns_ = 0;
    int rowsVersion_ = -1, valuesVersion_ = -1;
    int markedRow_ = -1;
};

}  // namespace sonarium
