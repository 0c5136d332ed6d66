// Text on the drawn controls reads in a dark desktop theme, whose text colours are light.
#include "ui/controls/Contrast.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QVBoxLayout>

#include "ui/controls/ucPath.h"
#include "ui/controls/ucTab.h"
#include "ui/controls/ucTabArea.h"
#include "ui/shortcuts/ucWizard_TitleArea.h"

namespace {

// The palette a dark desktop theme gives (GTK's Adwaita dark): light text on dark grey.
QPalette Dark() {
    return QPalette(QColor(0xEEEEEC), QColor(0x353535), QColor(0x4A4A4A), QColor(0x1E1E1E), QColor(0x2A2A2A),
                    QColor(0xEEEEEC), QColor(0x2D2D2D));
}

// The ratio between the colour at `background` and the pixel in `area` that stands out most from it:
// the text's own colour, where a glyph is solid.
double TextContrast(QWidget& widget, const QRect& area, QPoint background) {
    const QImage image = widget.grab().toImage();
    const QColor behind = image.pixelColor(background);
    double best = 1;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            best = std::max(best, Contrast::Ratio(image.pixelColor(x, y), behind));
    }
    return best;
}

TEST(ContrastTest, RatioIsTheGuidelinesOne) {
    EXPECT_NEAR(Contrast::Ratio(Qt::black, Qt::white), 21.0, 1e-9);
    EXPECT_NEAR(Contrast::Ratio(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

// A tab's caption, a text on the page area, a path field's text and the wizard's step title.
TEST(ContrastTest, TextOnTheDrawnControlsReadsInADarkTheme) {
    QWidget window;
    window.setPalette(Dark());
    auto* tab = new ucTab(&window);
    tab->SetCaption(QStringLiteral("Display"));
    auto* area = new ucTabArea(&window);
    area->setMinimumHeight(60);
    auto* label = new QLabel(QStringLiteral("Choose the resolution"), area);
    label->move(10, 20);
    auto* path = new ucPath(&window);
    path->SetText(QStringLiteral("/games/Tarvolin/tarvolin.exe"));
    auto* title = new ucWizard_TitleArea(&window);
    title->SetTexts("Step 1", "The program to start", "Choose it");
    auto* layout = new QVBoxLayout(&window);
    for (QWidget* each : {static_cast<QWidget*>(tab), static_cast<QWidget*>(area),
                          static_cast<QWidget*>(path), static_cast<QWidget*>(title)})
        layout->addWidget(each);
    window.resize(400, 300);
    window.show();
    const auto* caption = tab->findChild<QLabel*>(QStringLiteral("Label1"));
    EXPECT_GE(TextContrast(*tab, caption->geometry(), QPoint(3, tab->height() / 2)), 4.5);
    EXPECT_GE(TextContrast(*area, label->geometry(), QPoint(3, 10)), 4.5);
    EXPECT_GE(TextContrast(*path, path->rect().adjusted(4, 4, -4, -4), QPoint(path->width() - 4, 4)), 4.5);
    const auto* step = title->findChild<QLabel*>(QStringLiteral("lblStep"));
    EXPECT_GE(TextContrast(*title, step->geometry(), QPoint(2, 2)), 4.5);
}

}  // namespace
