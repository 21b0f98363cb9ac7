#pragma once
// The program built on fakes, started in a fresh directory, as a user's first start sees it.
// Tests script `tc` first; the program is built on first use of program().
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <memory>

#include "TestComponents.h"
#include "shell/Program.h"

namespace sonarium {

class ProgramFixture : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        tc.startDir = dir.path();
    }
    void TearDown() override { prog.reset(); }

    Program& program() {
        if (!prog) {
            components = std::make_unique<Components>(tc.components());
            prog = std::make_unique<Program>(*components);
            tc.pictures.clearCalls();  // the built-in skin's tries, made as the window is built
        }
        return *prog;
    }
    // The program on the fakes, but with `data` as its data control (a real library).
    Program& programOn(DataControl& data) {
        Components c = tc.components();
        components = std::make_unique<Components>(
            Components{c.loop, c.dialogs, c.desktop, c.pictures, c.volumes, c.mp3, c.mp32, c.encoder, c.cd,
                       c.mixer, c.peak, data, c.processes, c.errors, c.commandLine, c.startDir});
        prog = std::make_unique<Program>(*components);
        tc.pictures.clearCalls();
        return *prog;
    }
    Form1& form1() { return program().form1; }
    FrmGeneral& general() { return program().frmGeneral; }
    Module1& M() { return program().M; }

    QString path(const QString& name) const { return dir.filePath(name); }
    QByteArray read(const QString& name) const {
        QFile f(path(name));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    void write(const QString& name, const QByteArray& bytes) const {
        QFile f(path(name));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    }

    QTemporaryDir dir;
    TestComponents tc;
    std::unique_ptr<Components> components;
    std::unique_ptr<Program> prog;
};

}  // namespace sonarium
