#include "app/Application.h"

#include <QGuiApplication>
#include <QTimer>

#include "ui/Assets.h"
#include "ui/FormWindow.h"
#include "ui/MainWindow.h"
#include "ui/MiniPlayerWindow.h"
#include "ui/mpris/MprisService.h"
#include "ui/views/ControlSync.h"

namespace sonarium {

QByteArray platformFor(const QByteArray& sessionType, const QByteArray& waylandDisplay,
                       const QByteArray& userPlatform) {
    const bool wayland = sessionType == "wayland" || !waylandDisplay.isEmpty();
    return wayland && userPlatform.isEmpty() ? QByteArrayLiteral("xcb") : QByteArray();
}

void Application::prepareProcess() {
    initAssets();  // the main window's built-in skin is read as it is built
    const QByteArray platform =
        platformFor(qgetenv("XDG_SESSION_TYPE"), qgetenv("WAYLAND_DISPLAY"), qgetenv("QT_QPA_PLATFORM"));
    if (!platform.isEmpty()) qputenv("QT_QPA_PLATFORM", platform);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::Round);
}

Application::Application(const QString& commandLine, const QString& startDir)
    : loop_(errors_),
      mp3_(loop_, createAudioSink, tone_, peakLevel_),
      mp32_(loop_, createAudioSink, tone_, peakLevel_),
      mixer_(tone_),
      peak_(peakLevel_),
      // clang-format off
      components_{loop_, dialogs_, desktop_, pictures_, volumes_, mp3_, mp32_, encoder_, cd_, mixer_, peak_,
                  data_, processes_, errors_, commandLine, startDir},
      // clang-format on
      program_(components_),
      views_(program_),
      signals_([this] { program_.form1.EndOnSignal(); }, std::chrono::seconds(3)),
      mediaControls_(program_.form1) {
    dialogs_.setParentWidget(&views_.main());
    mpris_ = MprisService::start(mediaControls_, {&views_.main(), &views_.miniPlayer()});
}

Application::~Application() = default;

void Application::start() {
    QTimer::singleShot(0, &views_.main(), [this] { feed(errors_, [this] { program_.Main(); }); });
}

}  // namespace sonarium
