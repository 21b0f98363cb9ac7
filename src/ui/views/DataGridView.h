#pragma once
// The library grid: a table view over a DataGrid. The model is the truth for the column
// widths, the record selector's width, the header's and the rows' heights; the view applies
// them, so Left and RowTop computed by the model are where the columns and rows are drawn.
// The user's picks, scrolls and column resizes go to the model; so do typed keys, through the
// cell editor. Whenever the event loop is about to wait, the view asks the model whether the
// record set changed under it, and if so lets it follow, in an event of its own.
#include <QTableView>

#include "controls/DataGrid.h"
#include "ui/views/ControlView.h"

namespace sonarium {

class GridTableModel;

class DataGridView : public ControlView<QTableView> {
public:
    DataGridView(DataGrid& model, ErrorReporter& errors, QWidget* parent);

protected:
    void syncOwn() override;
    void resizeEvent(QResizeEvent* e) override;
    void showEvent(QShowEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void lookAtRecords();
    void reportScroll();

    DataGrid& grid_;
    GridTableModel* table_;
    bool syncing_ = false;
    bool lookPosted_ = false;
};

}  // namespace sonarium
