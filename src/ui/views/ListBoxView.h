#pragma once
// A list box: its rows, the selected row and the top row follow the model. A user's pick (a
// left press on a row, or the arrow, page, Home and End keys) becomes the model's ListIndex,
// which fires the click; Qt's own selection logic never runs, so the widget only ever shows
// what the model holds. Double click, right button and the other mouse events go to the model
// as they come. The user's scrolling moves the model's TopIndex.
#include <QListWidget>

#include "controls/ListBox.h"
#include "ui/views/ControlView.h"

namespace sonarium {

class ListBoxView : public ControlView<QListWidget> {
public:
    ListBoxView(ListBox& model, ErrorReporter& errors, QWidget* parent);

protected:
    void syncOwn() override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;

private:
    void pick(int row);

    ListBox& list_;
    QStringList shownRows_;
    int shownTop_ = 0;
    bool syncing_ = false;
};

// Shared by the list views: no frame of Qt's own selection, one row a step when scrolling,
// and the keys that move the pick.
void setUpListWidget(QListWidget& w);
// The row a navigation key moves to from `current` among `count` rows, showing `page` rows;
// -1 when the key is not a navigation key.
int rowAfterKey(int key, int current, int count, int page);

}  // namespace sonarium
