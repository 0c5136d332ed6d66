// pavonel_screenshots [--scale FACTOR] [OUTPUT_DIR]
// Renders every window and control of the program, in English and in German, on the offscreen platform into
// OUTPUT_DIR (docs/screenshots of the source tree by default) as <name>_<language>.png. Reports captions that
// do not fit and ends with status 1 when there were any.
#include <QApplication>
#include <QDir>
#include <QTemporaryFile>
#include <cstdio>
#include <memory>
#include <optional>

#include "Scenes.h"
#include "ScreenshotSession.h"
#include "app/Application.h"
#include "app/PublicObjects.h"
#include "translate/cTranslate.h"

namespace {

constexpr const char* kUsage =
    "usage: pavonel_screenshots [--scale FACTOR] [OUTPUT_DIR]\n"
    "FACTOR is a device pixel ratio from 1 to 4 (default 1).\n";

struct Arguments {
    QByteArray scale = "1";
    QString output = QStringLiteral(PAVONEL_SOURCE_DIR "/docs/screenshots");
};

bool IsScale(const QByteArray& text) {
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok && value >= 1.0 && value <= 4.0;
}

std::optional<Arguments> Parse(int argc, char** argv) {
    Arguments arguments;
    for (int i = 1; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        if (argument == "--scale" && i + 1 < argc && IsScale(argv[i + 1]))
            arguments.scale = argv[++i];
        else if (argument.startsWith('-'))
            return std::nullopt;
        else
            arguments.output = QString::fromLocal8Bit(argument);
    }
    return arguments;
}

// The offscreen platform's default screen is small enough to squeeze message boxes; give it the room of
// a full-HD desktop at whatever scale is asked for.
bool DescribeScreen(QTemporaryFile& config, double scale) {
    const int width = static_cast<int>(1920 * scale);
    const int height = static_cast<int>(1080 * scale);
    const QByteArray json = "{\"screens\": [{\"name\": \"Screenshots\", \"x\": 0, \"y\": 0, \"width\": " +
                            QByteArray::number(width) + ", \"height\": " + QByteArray::number(height) +
                            ", \"logicalDpi\": 96, \"logicalBaseDpi\": 96}]}";
    if (!config.open() || config.write(json) != json.size() || !config.flush())
        return false;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + config.fileName().toLocal8Bit());
    return true;
}

// Notes about the headless session itself (no size hints to pass on, no runtime folder): nothing to act on.
QtMessageHandler g_defaultHandler = nullptr;

void QuietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (!message.contains(QLatin1String("propagateSizeHints")) &&
        !message.contains(QLatin1String("XDG_RUNTIME_DIR")))
        g_defaultHandler(type, context, message);
}

void RenderLanguage(ScreenshotSession& session, const char* abbrev) {
    std::string language = abbrev;
    g_cApp->Options().SetLanguage(language);
    session.SetLanguage(QString::fromLatin1(abbrev));
    Scenes::RenderDialogs(session);
    Scenes::RenderUpdate(session);
    Scenes::RenderMainWindow(session);
    Scenes::RenderControls(session);
}

}  // namespace

int main(int argc, char** argv) {
    const std::optional<Arguments> parsed = Parse(argc, argv);
    if (!parsed) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    const Arguments& arguments = *parsed;
    QTemporaryFile screenConfig;
    if (!DescribeScreen(screenConfig, arguments.scale.toDouble())) {
        std::fprintf(stderr, "Cannot describe the offscreen screen in %s\n", qPrintable(QDir::tempPath()));
        return 1;
    }
    qputenv("QT_SCALE_FACTOR", arguments.scale);
    g_defaultHandler = qInstallMessageHandler(QuietHandler);
    QApplication app(argc, argv);
    if (!QDir().mkpath(arguments.output)) {
        std::fprintf(stderr, "Cannot create %s\n", qPrintable(arguments.output));
        return 1;
    }
    // The language files beside this program provide the texts; nothing is written to its settings file.
    g_cApp = std::make_unique<Application>();
    g_cTranslate = std::make_unique<cTranslate>();
    ScreenshotSession session{QDir(arguments.output)};
    for (const char* abbrev : {"EN", "DE"})
        RenderLanguage(session, abbrev);
    g_cTranslate.reset();
    g_cApp.reset();
    for (const QString& problem : session.Problems())
        std::fprintf(stderr, "%s\n", qPrintable(problem));
    std::printf("%d pictures at scale %s in %s\n", session.Saved(), arguments.scale.constData(),
                qPrintable(QDir(arguments.output).absolutePath()));
    return session.Problems().isEmpty() ? 0 : 1;
}
