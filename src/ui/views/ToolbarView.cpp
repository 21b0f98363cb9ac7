#include "ui/views/ToolbarView.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>

namespace sonarium {

namespace {

constexpr int IconSize = 16;

// The picture of a button by its key; the recording lamp of the karaoke button by its image.
QIcon drawnIcon(const Toolbar::Button& b) {
    QPixmap pm(IconSize, IconSize);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor ink(225, 228, 232);
    p.setPen(QPen(ink, 1.4));
    auto letter = [&](const char* text, bool bold, bool italic, bool underline) {
        QFont f = p.font();
        f.setPixelSize(13);
        f.setBold(bold), f.setItalic(italic), f.setUnderline(underline);
        p.setFont(f);
        p.drawText(pm.rect(), Qt::AlignCenter, QString::fromLatin1(text));
    };
    auto lines = [&](Qt::Alignment align) {
        for (int i = 0; i < 4; ++i) {
            const int w = i % 2 ? 8 : 12, y = 3 + i * 3;
            const int x = align == Qt::AlignLeft ? 2 : align == Qt::AlignRight ? 14 - w : 8 - w / 2;
            p.drawLine(x, y, x + w, y);
        }
    };
    const QString& k = b.key;
    if (k == QLatin1String("clear")) {
        p.drawRect(3, 2, 10, 12);
        p.drawLine(5, 5, 11, 11), p.drawLine(11, 5, 5, 11);
    } else if (k == QLatin1String("load")) {
        p.drawPolyline(QPolygon({{1, 4}, {6, 4}, {7, 6}, {14, 6}, {14, 13}, {1, 13}, {1, 4}}));
    } else if (k == QLatin1String("save")) {
        p.drawRect(2, 2, 12, 12);
        p.drawRect(5, 2, 6, 4);
        p.drawRect(4, 9, 8, 5);
    } else if (k == QLatin1String("print")) {
        p.drawRect(4, 1, 8, 5), p.drawRect(1, 6, 14, 6), p.drawRect(4, 10, 8, 5);
    } else if (k == QLatin1String("bold")) {
        letter("B", true, false, false);
    } else if (k == QLatin1String("italic")) {
        letter("I", false, true, false);
    } else if (k == QLatin1String("underline")) {
        letter("U", false, false, true);
    } else if (k == QLatin1String("lft")) {
        lines(Qt::AlignLeft);
    } else if (k == QLatin1String("centre")) {
        lines(Qt::AlignHCenter);
    } else if (k == QLatin1String("rht")) {
        lines(Qt::AlignRight);
    } else if (k == QLatin1String("TextCol")) {
        letter("A", true, false, false);
        p.fillRect(2, 13, 12, 3, QColor(220, 40, 40));
    } else if (k == QLatin1String("BackCol")) {
        p.setBrush(QColor(174, 191, 200));
        p.drawRect(2, 2, 12, 12);
    } else {
        // A microphone, its head red while a recording is armed.
        p.setBrush(b.image == 13 ? QColor(230, 50, 50) : QColor(120, 126, 134));
        p.drawRoundedRect(5, 1, 6, 9, 3, 3);
        p.setBrush(Qt::NoBrush);
        p.drawArc(3, 4, 10, 9, 180 * 16, 180 * 16);
        p.drawLine(8, 13, 8, 15);
    }
    return QIcon(pm);
}

}  // namespace

ToolbarView::ToolbarView(Toolbar& model, ErrorReporter& errors, QWidget* parent)
    : ControlView(model, errors, parent), bar_(model) {
    clickOnRelease_ = false;
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(1);
    row->addStretch();
}

void ToolbarView::syncOwn() {
    const QList<Toolbar::Button>& model = bar_.buttons();
    auto* row = static_cast<QHBoxLayout*>(layout());
    while (buttons_.size() < std::size_t(model.size())) {
        const int index = int(buttons_.size());
        auto* b = new QToolButton(this);
        b->setAutoRaise(true);
        b->setIconSize({IconSize, IconSize});
        b->setFixedSize(24, 22);
        connect(b, &QToolButton::clicked, this, [this, index] { feed([&] { bar_.ButtonClick(index); }); });
        row->insertWidget(index, b);
        buttons_.push_back(b);
    }
    for (int i = 0; i < model.size(); ++i) {
        QToolButton* b = buttons_[std::size_t(i)];
        const Toolbar::Button& m = model[i];
        b->setObjectName(m.key);
        b->setToolTip(m.toolTip);
        b->setAccessibleName(m.toolTip);
        b->setCheckable(m.check);
        b->setChecked(m.check && m.value == 1);
        b->setIcon(drawnIcon(m));
    }
}

}  // namespace sonarium
