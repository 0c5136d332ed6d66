// Waits until something has painted on the X display named by DISPLAY and has stayed unchanged for a
// moment, then saves the painted part of the screen to the PNG file given as the only argument.
// Exit status: 0 saved, 1 nothing painted within the time given, 2 wrong use or the file not written.
//
// The display's root must be black (Xvfb -br): whatever is not black has been painted by a window.
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QThread>
#include <cstdio>

namespace {

constexpr int kPatienceMs = 30000;
constexpr int kPollMs = 100;
constexpr int kSettledPolls = 5;  // unchanged for half a second counts as painted

// The smallest rectangle holding every pixel that is not black, or an empty one.
QRect PaintedPart(const QImage& screen) {
    QRect painted;
    for (int y = 0; y < screen.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(screen.constScanLine(y));
        for (int x = 0; x < screen.width(); ++x) {
            if ((line[x] & 0xFFFFFF) != 0)
                painted |= QRect(x, y, 1, 1);
        }
    }
    return painted;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "xcb");
    QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: pavonel_grab_screen <file.png>\n");
        return 2;
    }
    QElapsedTimer waited;
    waited.start();
    QImage last;
    int settled = 0;
    while (waited.elapsed() < kPatienceMs) {
        const QImage screen =
            application.primaryScreen()->grabWindow(0).toImage().convertToFormat(QImage::Format_RGB32);
        const QRect painted = PaintedPart(screen);
        settled = !painted.isEmpty() && screen == last ? settled + 1 : 0;
        if (settled == kSettledPolls) {
            if (!screen.copy(painted).save(QString::fromLocal8Bit(argv[1]), "PNG")) {
                std::fprintf(stderr, "pavonel_grab_screen: cannot write %s\n", argv[1]);
                return 2;
            }
            return 0;
        }
        last = screen;
        QThread::msleep(kPollMs);
    }
    std::fprintf(stderr, "pavonel_grab_screen: nothing painted within %d s\n", kPatienceMs / 1000);
    return 1;
}
