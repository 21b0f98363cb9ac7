#pragma once
// The program built on fakes, started in a fresh directory, as a user's first start sees it.
// Tests script `tc` first; the program is built on first use of program().
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <memory>

#include "TestComponents.h"
#include "integration/fixtures/Files.h"
#include "shell/Program.h"

namespace sonarium {

class ProgramFixture : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        tc.startDir = dir.path();
    }
    void TearDown() override { prog.reset(); }

    Program& program() { return prog ? *prog : programOn(tc.data); }
    // The program on the fakes, but with `data` as its data control (a real library).
    Program& programOn(DataControl& data) {
        components = std::make_unique<Components>(tc.components(data));
        prog = std::make_unique<Program>(*components);
        tc.pictures.clearCalls();  // the built-in skin's tries, made as the window is built
        return *prog;
    }
    Form1& form1() { return program().form1; }
    FrmGeneral& general() { return program().frmGeneral; }
    Module1& M() { return program().M; }

    QString path(const QString& name) const { return dir.filePath(name); }
    QByteArray read(const QString& name) const { return fixtures::fileBytes(path(name)); }
    void write(const QString& name, const QByteArray& bytes) const {
        ASSERT_TRUE(fixtures::writeFile(path(name), bytes));
    }

    QTemporaryDir dir;
    TestComponents tc;
    std::unique_ptr<Components> components;
    std::unique_ptr<Program> prog;
};

// The program started on the fakes, as a first start leaves it, with no dialog recorded yet.
class StartedProgramFixture : public ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        program().Main();
        tc.dialogs.clear();
    }
};

}  // namespace sonarium
