#pragma once
// The file list: the model's file names in its own order, the selected one highlighted. A pick
// (left press or navigation key) becomes the model's ListIndex, which fires the click.
#include <QListWidget>

#include "controls/FileListBox.h"
#include "ui/views/ControlView.h"

namespace sonarium {

class FileListView : public ControlView<QListWidget> {
public:
    FileListView(FileListBox& model, ErrorReporter& errors, QWidget* parent);

protected:
    void syncOwn() override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override { feedUp(e); }
    void mouseMoveEvent(QMouseEvent* e) override { feedMove(e); }
    void keyPressEvent(QKeyEvent* e) override;

private:
    void pick(int row);

    FileListBox& files_;
    QStringList shownRows_;
};

}  // namespace sonarium
