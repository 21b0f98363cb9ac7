#include <gtest/gtest.h>

#include <QApplication>

// The UI tests run the real widgets, so they need a QApplication. They run on Qt's offscreen
// platform unless the caller chose another one: test discovery runs this binary without the
// environment that ctest gives each test, and must not need a display either.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
