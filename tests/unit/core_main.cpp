#include <gtest/gtest.h>

#include <QCoreApplication>

// Unit and integration tests need Qt Core (strings, files) but no display.
int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
