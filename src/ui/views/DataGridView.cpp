#include "ui/views/DataGridView.h"

#include <QAbstractEventDispatcher>
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>

#include "controls/Picture.h"
#include "ui/views/GridCellDelegate.h"
#include "ui/views/GridTableModel.h"

namespace sonarium {

DataGridView::DataGridView(DataGrid& model, ErrorReporter& errors, QWidget* parent)
    : ControlView(model, errors, parent), grid_(model), table_(new GridTableModel(model, this)) {
    clickOnRelease_ = false;
    setModel(table_);
    setItemDelegate(new GridCellDelegate(grid_, errors_, this));
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::AnyKeyPressed);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setFrameShape(QFrame::NoFrame);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setFocusPolicy(Qt::StrongFocus);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    horizontalHeader()->setMinimumSectionSize(8);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int c, int, int size) {
        if (!syncing_) feed([&] { grid_.setColumnWidth(c, size * TwipsPerPixel); });
    });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { reportScroll(); });
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { reportScroll(); });
    if (QAbstractEventDispatcher* events = QAbstractEventDispatcher::instance(thread()))
        connect(events, &QAbstractEventDispatcher::aboutToBlock, this, [this] { lookAtRecords(); });
}

// Only a grid on screen follows its record set: a hidden one catches up when it shows.
void DataGridView::lookAtRecords() {
    if (lookPosted_ || !isVisible()) return;
    bool changed = false;
    feed([&] { changed = grid_.needsSync(); });
    if (!changed) return;
    lookPosted_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            lookPosted_ = false;
            feed([this] { grid_.sync(); });
        },
        Qt::QueuedConnection);
}

// Scrolls are told after the fact, once Qt has settled its scroll bars.
void DataGridView::reportScroll() {
    QMetaObject::invokeMethod(
        this,
        [this] {
            const int first = verticalScrollBar()->value();
            const int offset = horizontalScrollBar()->value() * TwipsPerPixel;
            feed([&] { grid_.Scroll(first, offset); });
        },
        Qt::QueuedConnection);
}

void DataGridView::syncOwn() {
    syncing_ = true;
    table_->follow();
    const int selector = twipsToPixels(grid_.SelectorWidth());
    const int header = twipsToPixels(grid_.HeaderHeight());
    const int row = twipsToPixels(grid_.RowHeight());
    if (verticalHeader()->minimumWidth() != selector) verticalHeader()->setFixedWidth(selector);
    if (horizontalHeader()->minimumHeight() != header) horizontalHeader()->setFixedHeight(header);
    if (verticalHeader()->defaultSectionSize() != row) verticalHeader()->setDefaultSectionSize(row);
    for (int c = 0; c < grid_.ColumnCount(); ++c) {
        const GridColumn& column = grid_.Column(c);
        const int width = twipsToPixels(column.width);
        if (columnWidth(c) != width) setColumnWidth(c, width);
        if (isColumnHidden(c) == column.visible) setColumnHidden(c, !column.visible);
    }
    const int current = grid_.Row();
    const int col = std::clamp(grid_.Col(), 0, std::max(0, table_->columnCount() - 1));
    const QModelIndex want =
        current >= 0 && current < table_->rowCount() ? table_->index(current, col) : QModelIndex();
    if (currentIndex() != want && state() != QAbstractItemView::EditingState) {
        selectionModel()->setCurrentIndex(
            want, want.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Clear);
        if (want.isValid()) scrollTo(want);
    }
    viewport()->update();
    syncing_ = false;
}

void DataGridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (syncing_ || !current.isValid()) return;
    feed([&] { grid_.setCurrentCell(current.row(), current.column()); });
    // A pick the model refused: show its own current cell again.
    if (grid_.Row() != current.row() || grid_.Col() != current.column())
        QMetaObject::invokeMethod(
            this, [this] { refresh(); }, Qt::QueuedConnection);
}

void DataGridView::mousePressEvent(QMouseEvent* e) {
    const QPoint at = e->position().toPoint();
    const QModelIndex index = indexAt(at);
    if (e->button() == Qt::LeftButton && index.isValid() && index.row() == grid_.Row() &&
        index.column() < grid_.ColumnCount() && grid_.Column(index.column()).button &&
        GridCellDelegate::buttonRect(visualRect(index)).contains(at)) {
        e->accept();
        feed([&] { grid_.ButtonClick(index.column()); });
        return;
    }
    ControlView::mousePressEvent(e);
}

void DataGridView::resizeEvent(QResizeEvent* e) {
    QTableView::resizeEvent(e);
    feed([this] { grid_.LayoutChange(); });
}

void DataGridView::showEvent(QShowEvent* e) {
    QTableView::showEvent(e);
    lookAtRecords();
}

}  // namespace sonarium
