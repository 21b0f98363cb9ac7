#include "ui/views/ListBoxView.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

namespace sonarium {

void setUpListWidget(QListWidget& w) {
    w.setSelectionMode(QAbstractItemView::SingleSelection);
    w.setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    w.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    w.setUniformItemSizes(true);
    w.setFrameShape(QFrame::StyledPanel);
    w.setFocusPolicy(Qt::StrongFocus);
    w.viewport()->setMouseTracking(true);
}

int rowAfterKey(int key, int current, int count, int page) {
    if (count <= 0) return -1;
    const int step = std::max(1, page - 1);
    switch (key) {
    case Qt::Key_Up: return std::max(0, current - 1);
    case Qt::Key_Down: return std::min(count - 1, current + 1);
    case Qt::Key_PageUp: return std::max(0, current - step);
    case Qt::Key_PageDown: return std::min(count - 1, std::max(0, current) + step);
    case Qt::Key_Home: return 0;
    case Qt::Key_End: return count - 1;
    default: return -1;
    }
}

ListBoxView::ListBoxView(ListBox& model, ErrorReporter& errors, QWidget* parent)
    : ControlView(model, errors, parent), list_(model) {
    clickOnRelease_ = false;
    setUpListWidget(*this);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int top) {
        if (syncing_) return;
        shownTop_ = top;
        feed([&] { list_.setTopIndex(top); });
    });
}

void ListBoxView::syncOwn() {
    syncing_ = true;
    const QStringList& rows = list_.rows();
    if (shownRows_ != rows) {
        // Rows added at the end, as a queue is filled one row at a time: only they are new,
        // so filling a list of hundreds does not rebuild it once per row.
        const qsizetype shown = shownRows_.size();
        const bool appended =
            rows.size() > shown && std::equal(shownRows_.begin(), shownRows_.end(), rows.begin());
        if (appended) {
            addItems(rows.mid(shown));
        } else {
            clear();
            addItems(rows);
            shownTop_ = -1;  // place the top row again
        }
        shownRows_ = rows;
    }
    const int index = list_.ListIndex();
    if (currentRow() != index || (index >= 0 && !item(index)->isSelected())) {
        if (index >= 0)
            setCurrentRow(index, QItemSelectionModel::ClearAndSelect);
        else {
            clearSelection();
            setCurrentIndex(QModelIndex());
        }
    }
    if (list_.TopIndex() != shownTop_ && list_.TopIndex() < count()) {
        shownTop_ = list_.TopIndex();
        verticalScrollBar()->setValue(shownTop_);
    }
    syncing_ = false;
}

void ListBoxView::pick(int row) {
    if (row < 0 || row >= count() || row == list_.ListIndex()) return;
    feed([&] { list_.setListIndex(row); });
    // The handler may have moved the list; show the pick if it still stands.
    if (list_.ListIndex() >= 0 && list_.ListIndex() < count()) scrollToItem(item(list_.ListIndex()));
}

void ListBoxView::mousePressEvent(QMouseEvent* e) {
    setFocus(Qt::MouseFocusReason);
    feedDown(e);
    if (e->button() == Qt::LeftButton) pick(indexAt(e->position().toPoint()).row());
}

void ListBoxView::mouseReleaseEvent(QMouseEvent* e) { feedUp(e); }

void ListBoxView::mouseMoveEvent(QMouseEvent* e) { feedMove(e); }

void ListBoxView::keyPressEvent(QKeyEvent* e) {
    const int page = std::max(1, viewport()->height() / std::max(1, sizeHintForRow(0)));
    const int row = rowAfterKey(e->key(), list_.ListIndex(), count(), page);
    if (row < 0) {
        // Not ours: let the window see it (its key handler, Tab to the next control).
        QWidget::keyPressEvent(e);
        return;
    }
    pick(row);
}

}  // namespace sonarium
