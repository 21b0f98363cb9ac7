#pragma once
// A desktop with fixed fonts and screen, where every document and the help page open, and
// which keeps the quit request.
#include <optional>

#include "controls/Desktop.h"

namespace sonarium {

class FakeDesktop : public Desktop {
public:
    // The exit code of the quit request, if one came.
    std::optional<int> quitCode() const { return quitCode_; }

    QStringList screenFonts() override { return {"DejaVu Sans", "DejaVu Serif"}; }
    QSize screenSizeTwips() override { return {1920 * 15, 1080 * 15}; }
    QPoint cursorPosTwips() override { return cursor; }
    bool openDocument(const QString&) override { return true; }
    bool openHelp() override { return true; }
    void quit(int exitCode) override { quitCode_ = exitCode; }

    QPoint cursor;  // where the pointer stands on the screen, in twips

private:
    std::optional<int> quitCode_;
};

}  // namespace sonarium
