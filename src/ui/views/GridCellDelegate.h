#pragma once
// Draws and edits the cells of a DataGrid's view. The editor is a line edit whose typed keys go
// to the grid's KeyPress first, as a text box's do, so the program's key handler can drop them;
// Return and Escape go there too, and the grid commits or cancels. Leaving the cell commits.
// A column with a cell button shows it in the current row, at the cell's right end.
#include <QLineEdit>
#include <QStyledItemDelegate>

#include "controls/DataGrid.h"
#include "controls/Errors.h"

namespace sonarium {

class GridCellEditor : public QLineEdit {
public:
    GridCellEditor(DataGrid& grid, ErrorReporter& errors, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* e) override;

private:
    void typeInside(int keyAscii);

    DataGrid& grid_;
    ErrorReporter& errors_;
    bool fresh_ = true;  // the first key types at the end, whatever Qt selected on opening
};

class GridCellDelegate : public QStyledItemDelegate {
public:
    GridCellDelegate(DataGrid& grid, ErrorReporter& errors, QObject* parent);

    // Where a cell's button lies, when its column has one.
    static QRect buttonRect(const QRect& cell);

    void paint(QPainter* p, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    DataGrid& grid_;
    ErrorReporter& errors_;
};

}  // namespace sonarium
