#include "ui/views/DirListView.h"

#include <QFileInfo>
#include <QKeyEvent>
#include <QStyle>
#include <QStyledItemDelegate>

#include "ui/views/ListBoxView.h"

namespace sonarium {

namespace {

constexpr int IndentRole = Qt::UserRole + 1;
constexpr int IndentStep = 8;

// Shifts each row right by its depth in the tree.
class IndentDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* p, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem o = option;
        o.rect.setLeft(o.rect.left() + index.data(IndentRole).toInt() * IndentStep);
        QStyledItemDelegate::paint(p, o, index);
    }
};

QString shownName(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    return name.isEmpty() ? path : name;
}

}  // namespace

DirListView::DirListView(DirListBox& model, ErrorReporter& errors, QWidget* parent)
    : ControlView(model, errors, parent), dirs_(model) {
    clickOnRelease_ = false;
    setUpListWidget(*this);
    setItemDelegate(new IndentDelegate(this));
}

void DirListView::syncOwn() {
    QStringList rows;
    for (int i = -1; !dirs_.List(i).isEmpty() && i > -4096; --i) rows.prepend(dirs_.List(i));
    const int parents = int(rows.size());
    for (int i = 0; i < dirs_.ListCount(); ++i) rows << dirs_.List(i);
    if (rows != shownRows_ || parents != parents_) {
        shownRows_ = rows;
        parents_ = parents;
        clear();
        const QIcon open = style()->standardIcon(QStyle::SP_DirOpenIcon);
        const QIcon closed = style()->standardIcon(QStyle::SP_DirIcon);
        for (int r = 0; r < rows.size(); ++r) {
            auto* it = new QListWidgetItem(r < parents ? open : closed, shownName(rows[r]), this);
            it->setData(IndentRole, r < parents ? r : parents);
            it->setToolTip(rows[r]);
        }
    }
    const int row = dirs_.ListIndex() + parents_;
    if (row >= 0 && row < count() && currentRow() != row) {
        setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
        scrollToItem(item(row));
    }
}

void DirListView::highlight(int row) {
    if (row < 0 || row >= count()) return;
    if (modelRow(row) >= -1 && modelRow(row) != dirs_.ListIndex()) {
        feed([&] { dirs_.setListIndex(modelRow(row)); });
    } else if (modelRow(row) < -1) {
        // A parent: only the view marks it, the model has no row for it.
        setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
    }
}

void DirListView::open(int row) {
    if (row < 0 || row >= shownRows_.size()) return;
    const QString target = shownRows_[row];
    feed([&] { dirs_.setPath(target); });
}

void DirListView::mousePressEvent(QMouseEvent* e) {
    setFocus(Qt::MouseFocusReason);
    feedDown(e);
    if (e->button() == Qt::LeftButton) highlight(indexAt(e->position().toPoint()).row());
}

void DirListView::mouseReleaseEvent(QMouseEvent* e) { feedUp(e); }

void DirListView::mouseMoveEvent(QMouseEvent* e) { feedMove(e); }

void DirListView::mouseDoubleClickEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton) open(indexAt(e->position().toPoint()).row());
}

void DirListView::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) {
        open(currentRow());
        return;
    }
    const int page = std::max(1, viewport()->height() / std::max(1, sizeHintForRow(0)));
    const int row = rowAfterKey(e->key(), currentRow(), count(), page);
    if (row < 0) {
        QWidget::keyPressEvent(e);
        return;
    }
    highlight(row);
    scrollToItem(item(row));
}

}  // namespace sonarium
