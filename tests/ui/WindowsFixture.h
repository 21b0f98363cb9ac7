#pragma once
// The program on fakes, in a fresh current directory, with the real windows mirroring it on
// Qt's offscreen platform. Helpers send the events a user would; the widget headers here are
// the ones the window tests share.
#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <functional>

#include "ProgramFixture.h"
#include "engine/QtPictureLoader.h"
#include "ui/Assets.h"
#include "ui/GeneralWindow.h"
#include "ui/MainWindow.h"
#include "ui/Views.h"
#include "ui/views/MenuBarBinder.h"

namespace sonarium {

class WindowsFixture : public ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        registerSkin(Form1::BuiltInSkin);
        registerSheets(Form1::BuiltInMiniSkin, {"Panel.bmp", "Buttons.bmp"});
        views = std::make_unique<Views>(program());
    }
    void TearDown() override {
        views.reset();
        ProgramFixture::TearDown();
    }

    MainWindow& main() { return views->main(); }
    // The program's entry procedure, and the windows brought up to date with what it did.
    void start() {
        program().Main();
        settle();
    }
    // The sheets of the skin in `dir` become loadable through the fake loader, decoded by the
    // real one, so the windows wear the skin the program is given.
    void registerSkin(const QString& dir) {
        registerSheets(dir, {"PanelDatabase.bmp", "Buttons.bmp", "Panels.bmp"});
    }
    void registerSheets(const QString& dir, std::initializer_list<const char*> sheets) {
        initAssets();
        QtPictureLoader real;
        for (const char* sheet : sheets) {
            const QString file = dir + u'/' + QLatin1String(sheet);
            tc.pictures.add(file, real.load(file));
        }
    }

    // Lets Qt deliver what is pending (shows, activation, repaints).
    static void settle() {
        for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
    }

    template <class W = QWidget>
    W* find(QWidget& window, const QString& name) {
        return window.findChild<W*>(name);
    }

    // A press, release or double click of the left button at `at`.
    static void mouse(QWidget& w, QEvent::Type type, QPoint at) {
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent e(type, QPointF(at), QPointF(w.mapToGlobal(at)), Qt::LeftButton, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&w, &e);
    }
    static void click(QWidget& w, QPoint at) {
        mouse(w, QEvent::MouseButtonPress, at);
        mouse(w, QEvent::MouseButtonRelease, at);
    }
    // What follows a click when it is the first of a double click.
    static void secondClick(QWidget& w, QPoint at) {
        mouse(w, QEvent::MouseButtonDblClick, at);
        mouse(w, QEvent::MouseButtonRelease, at);
    }
    static QPoint rowAt(QListWidget& list, int row) { return list.visualItemRect(list.item(row)).center(); }
    // A click near the top left corner of the main window's control `name`.
    void press(const QString& name) {
        QWidget* w = find(main(), name);
        ASSERT_NE(w, nullptr) << name.toStdString();
        click(*w, QPoint(3, 3));
        settle();
    }
    static void key(QWidget& w, int qtKey, const QString& text = {}) {
        QKeyEvent press(QEvent::KeyPress, qtKey, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&w, &press);
        QKeyEvent release(QEvent::KeyRelease, qtKey, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&w, &release);
    }

    // Runs `fn` inside FrmGeneral's modal wait, once its window is up.
    void whileShown(std::function<void(GeneralWindow&)> fn) {
        tc.loop.startTimer(
            50,
            [this, fn] {
                settle();
                program().frmGeneral.Activate();  // the window manager's focus, which offscreen lacks
                settle();
                fn(views->general());
            },
            true);
    }

    std::unique_ptr<Views> views;
};

// Saves a picture of the widget for people to look at, in the build's screenshot folder.
inline void saveScreenshot(QWidget& w, const QString& name) {
    const QString folder = QStringLiteral(SONARIUM_SCREENSHOT_DIR);
    ASSERT_TRUE(QDir().mkpath(folder));
    ASSERT_TRUE(w.grab().save(QDir(folder).filePath(name), "PNG")) << name.toStdString();
}

}  // namespace sonarium
