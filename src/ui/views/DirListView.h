#pragma once
// The directory list as the platform shows it: the directory's parents from "/" down, each
// indented a step further, the directory itself open, then its subdirectories. A click on a
// subdirectory (or on the directory itself) highlights it in the model; a double click, or
// Return, on any row moves the model's Path there, so the parents are the way up. Other mouse
// events go to the model as they come.
#include <QListWidget>

#include "controls/DirListBox.h"
#include "ui/views/ControlView.h"

namespace sonarium {

class DirListView : public ControlView<QListWidget> {
public:
    DirListView(DirListBox& model, ErrorReporter& errors, QWidget* parent);

    // The model's row shown in the view's row `row` (-1 the directory, -2 its parent...).
    int modelRow(int row) const { return row - parents_; }

protected:
    void syncOwn() override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;

private:
    void highlight(int row);
    void open(int row);

    DirListBox& dirs_;
    QStringList shownRows_;
    int parents_ = 0;  // rows above the subdirectories: the directory and its parents
};

}  // namespace sonarium
