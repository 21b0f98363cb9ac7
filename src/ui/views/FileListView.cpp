#include "ui/views/FileListView.h"

#include <QKeyEvent>

#include "ui/views/ListBoxView.h"

namespace sonarium {

FileListView::FileListView(FileListBox& model, ErrorReporter& errors, QWidget* parent)
    : ControlView(model, errors, parent), files_(model) {
    clickOnRelease_ = false;
    setUpListWidget(*this);
}

void FileListView::syncOwn() {
    QStringList rows;
    for (int i = 0; i < files_.ListCount(); ++i) rows << files_.List(i);
    if (rows != shownRows_) {
        shownRows_ = rows;
        clear();
        addItems(rows);
    }
    const int index = files_.ListIndex();
    if (currentRow() != index) {
        if (index >= 0)
            setCurrentRow(index, QItemSelectionModel::ClearAndSelect);
        else
            clearSelection();
    }
}

void FileListView::pick(int row) {
    if (row < 0 || row >= count() || row == files_.ListIndex()) return;
    feed([&] { files_.setListIndex(row); });
}

void FileListView::mousePressEvent(QMouseEvent* e) {
    setFocus(Qt::MouseFocusReason);
    feedDown(e);
    if (e->button() == Qt::LeftButton) pick(indexAt(e->position().toPoint()).row());
}

void FileListView::keyPressEvent(QKeyEvent* e) {
    const int page = std::max(1, viewport()->height() / std::max(1, sizeHintForRow(0)));
    const int row = rowAfterKey(e->key(), files_.ListIndex(), count(), page);
    if (row < 0) {
        QWidget::keyPressEvent(e);
        return;
    }
    pick(row);
    scrollToItem(item(row));
}

}  // namespace sonarium
