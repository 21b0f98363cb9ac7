#include "ui/views/GridCellDelegate.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <algorithm>

#include "ui/views/ControlSync.h"
#include "ui/views/HiFiLook.h"
#include "ui/views/TextBoxView.h"
#include "ui/views/TypedText.h"

namespace sonarium {

GridCellEditor::GridCellEditor(DataGrid& grid, ErrorReporter& errors, QWidget* parent)
    : QLineEdit(parent), grid_(grid), errors_(errors) {
    setFrame(false);
    connect(this, &QLineEdit::textEdited, this,
            [this](const QString& t) { feed(errors_, [&] { grid_.setEditText(t); }); });
}

void GridCellEditor::keyPressEvent(QKeyEvent* e) {
    const int ascii = typedKeyAscii(*e);
    if (ascii < 0 || ascii == 13 || ascii == 27) {
        QLineEdit::keyPressEvent(e);
        return;
    }
    e->accept();
    if (fresh_) {
        fresh_ = false;
        deselect();
        end(false);
    }
    if (cursorPosition() != text().size() || hasSelectedText()) {
        typeInside(ascii);
        return;
    }
    // The handler may open a message box; the editor may be closed meanwhile.
    QPointer<GridCellEditor> self(this);
    feed(errors_, [&] { grid_.KeyPress(ascii); });
    if (!self) return;
    const QString now = grid_.Text();
    if (now != text()) setText(now);
    end(false);
}

void GridCellEditor::typeInside(int keyAscii) {
    QPointer<GridCellEditor> self(this);
    feed(errors_, [&] {
        if (grid_.onKeyPress) grid_.onKeyPress(keyAscii);
    });
    if (!self || keyAscii == 0) return;
    const TypedText typed = typeInto(*this, keyAscii);
    setText(typed.text);
    setCursorPosition(typed.cursor);
    feed(errors_, [&] { grid_.setEditText(typed.text); });
}

GridCellDelegate::GridCellDelegate(DataGrid& grid, ErrorReporter& errors, QObject* parent)
    : QStyledItemDelegate(parent), grid_(grid), errors_(errors) {}

QRect GridCellDelegate::buttonRect(const QRect& cell) {
    const int w = std::min(14, cell.width());
    return QRect(cell.right() - w + 1, cell.top() + 1, w, std::max(0, cell.height() - 2));
}

void GridCellDelegate::paint(QPainter* p, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    QStyledItemDelegate::paint(p, option, index);
    if (index.column() >= grid_.ColumnCount() || !grid_.Column(index.column()).button ||
        index.row() != grid_.Row())
        return;
    const QRect r = buttonRect(option.rect);
    hifi::paintButton(*p, r, QString(), false, true);
    p->save();
    p->setRenderHint(QPainter::Antialiasing, true);
    p->setPen(Qt::NoPen);
    p->setBrush(hifi::colours::legend);
    const QPointF c = QRectF(r).center();
    p->drawPolygon(QPolygonF(
        {QPointF(c.x() - 3.5, c.y() - 1.5), QPointF(c.x() + 3.5, c.y() - 1.5), QPointF(c.x(), c.y() + 2.5)}));
    p->restore();
}

QWidget* GridCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                        const QModelIndex&) const {
    return new GridCellEditor(grid_, errors_, parent);
}

void GridCellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* line = static_cast<QLineEdit*>(editor);
    const QString text = index.row() == grid_.Row() && index.column() == grid_.Col()
                             ? grid_.Text()
                             : index.data(Qt::EditRole).toString();
    if (line->text() != text) line->setText(text);
}

void GridCellDelegate::setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const {
    feed(errors_, [&] { grid_.commitEdit(); });
}

// Return and Escape are the program's keys too: its handler sees them first and may drop them,
// and the grid itself commits or cancels.
bool GridCellDelegate::eventFilter(QObject* object, QEvent* event) {
    auto* editor = qobject_cast<QWidget*>(object);
    if (editor && event->type() == QEvent::KeyPress) {
        const int ascii = typedKeyAscii(*static_cast<QKeyEvent*>(event));
        if (ascii == 13 || ascii == 27) {
            QPointer<QWidget> alive(editor);
            int left = 0;
            feed(errors_, [&] { left = grid_.KeyPress(ascii); });
            if (left != 0 && alive) emit closeEditor(editor, QAbstractItemDelegate::NoHint);
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(object, event);
}

}  // namespace sonarium
