#pragma once
// A desktop with fixed fonts and screen, a pointer the test places, and a record of the
// documents opened and of the quit request.
#include <optional>

#include "CallLog.h"
#include "controls/Desktop.h"

namespace sonarium {

class FakeDesktop : public Desktop, public CallLog {
public:
    // --- Set-up (tests) ---
    void setFonts(const QStringList& fonts) { fonts_ = fonts; }
    void setScreenSizeTwips(QSize size) { screen_ = size; }
    void setCursorPosTwips(QPoint pos) { cursor_ = pos; }
    // What openDocument and openHelp answer (true: the viewer started).
    void setOpenSucceeds(bool ok) { openOk_ = ok; }

    // --- Looking in (tests) ---
    QStringList openedDocuments() const { return opened_; }
    // How many times the help page was opened.
    int helpOpened() const { return helpOpened_; }
    // The exit code of the quit request, if one came.
    std::optional<int> quitCode() const { return quitCode_; }

    // --- Desktop ---
    QStringList screenFonts() override { return fonts_; }
    QSize screenSizeTwips() override { return screen_; }
    QPoint cursorPosTwips() override { return cursor_; }
    bool openDocument(const QString& file) override;
    bool openHelp() override;
    void quit(int exitCode) override;

private:
    QStringList fonts_{QStringLiteral("DejaVu Sans"), QStringLiteral("DejaVu Sans Mono"),
                       QStringLiteral("DejaVu Serif"), QStringLiteral("Liberation Sans")};
    QSize screen_{1920 * 15, 1080 * 15};
    QPoint cursor_{0, 0};
    bool openOk_ = true;
    QStringList opened_;
    int helpOpened_ = 0;
    std::optional<int> quitCode_;
};

}  // namespace sonarium
