#pragma once
// The mini player's window: frameless, shaped by its background picture (the picture's pure
// magenta pixels are see-through), and dragged by hand through the model, which follows the
// pointer's place on the screen. Whatever a skin says, the window stays between a small
// square and the screen's size, and at least a corner of it stays on the screen, so it can
// always be seen, grabbed and closed. Hints show in the player's own display, so the
// platform's tooltips are kept away; the buttons still carry them as their names.
#include <QImage>
#include <QRegion>

#include "controls/Picture.h"
#include "ui/FormWindow.h"

namespace sonarium {

class FrmMiniPlayer;

class MiniPlayerWindow : public FormWindow {
public:
    MiniPlayerWindow(FrmMiniPlayer& form, ErrorReporter& errors);

    // The see-through colour of a background picture.
    static constexpr QRgb KeyColour = 0xffff00ff;
    // The shape for a window of `size` over `picture`: everything but the key colour's pixels
    // inside the picture. A picture that would leave nothing to grab gives the whole window.
    static QRegion shapeOf(const QImage& picture, const QSize& size);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    QSize sizeFor(int width, int height) const override;
    void afterRefresh() override;

private:
    void feedMouse(QMouseEvent* e, void (Control::*fn)(int, int, double, double), int button);

    FrmMiniPlayer& mini_;
    ErrorReporter& errors_;
    Picture shown_;
    QImage background_;
    QSize shapedFor_;
};

}  // namespace sonarium
