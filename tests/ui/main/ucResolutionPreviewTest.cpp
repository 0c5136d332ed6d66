#include "ui/main/ucResolutionPreview.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QSet>

#include "support/AppFixture.h"
#include "support/FailureMatchers.h"

namespace {

// A 200 x 150 control with a 160 x 120 picture: every expected place below is worked out by hand.
class ucResolutionPreviewTest : public AppFixture {
protected:
    ucResolutionPreviewTest() {
        preview.resize(200, 150);
        preview.show();
    }

    void GivePicture() {
        QPixmap picture(160, 120);
        picture.fill(kPictureColor);
        preview.SetPicture(picture);
    }

    static inline const QColor kPictureColor{0xF0, 0x80, 0x10};
    ucResolutionPreview preview;
};

struct ResolutionCase {
    int16_t width;
    int16_t height;
    bool windowLook;
    QRect image;
    QRect frame;     // only shown in window look
    QRect titleBar;  // only shown in window look
};

class ucResolutionPreviewLayoutTest : public ucResolutionPreviewTest,
                                      public ::testing::WithParamInterface<ResolutionCase> {};

TEST_P(ucResolutionPreviewLayoutTest, PlacesPictureAndWindowFrame) {
    const ResolutionCase& expected = GetParam();
    GivePicture();
    preview.SetResolution(expected.width, expected.height, expected.windowLook);
    EXPECT_EQ(preview.ImageRect(), expected.image);
    EXPECT_EQ(preview.FrameRect(), expected.frame);
    EXPECT_EQ(preview.TitleBarRect(), expected.titleBar);
    EXPECT_EQ(preview.ShapesVisible(), expected.windowLook);
    const QImage drawn = preview.grab().toImage();
    EXPECT_EQ(drawn.pixelColor(expected.image.center()), kPictureColor);
    EXPECT_NE(drawn.pixelColor(expected.image.left() - 1, expected.image.top()), kPictureColor);
}

// 1280 x 1024 halves the width and takes 480/1024 of the height (56.25 rounds to 56); 37.5 rounds to even.
INSTANTIATE_TEST_SUITE_P(Resolutions, ucResolutionPreviewLayoutTest,
                         ::testing::Values(ResolutionCase{640, 480, false, QRect(20, 15, 160, 120),
                                                          QRect(18, 13, 164, 124), QRect(18, 9, 164, 5)},
                                           ResolutionCase{800, 600, false, QRect(36, 27, 128, 96),
                                                          QRect(34, 25, 132, 100), QRect(34, 21, 132, 5)},
                                           ResolutionCase{1024, 768, false, QRect(50, 38, 100, 75),
                                                          QRect(48, 36, 104, 79), QRect(48, 32, 104, 5)},
                                           ResolutionCase{1280, 1024, false, QRect(60, 47, 80, 56),
                                                          QRect(58, 45, 84, 60), QRect(58, 41, 84, 5)},
                                           ResolutionCase{0, 0, true, QRect(40, 30, 120, 90),
                                                          QRect(38, 28, 124, 94), QRect(38, 24, 124, 5)},
                                           ResolutionCase{1280, 1024, true, QRect(40, 30, 120, 90),
                                                          QRect(38, 28, 124, 94), QRect(38, 24, 124, 5)}),
                         [](const auto& info) {
                             const ResolutionCase& resolution = info.param;
                             return std::to_string(resolution.width) + "x" +
                                    std::to_string(resolution.height) +
                                    (resolution.windowLook ? "Window" : "");
                         });

TEST_F(ucResolutionPreviewTest, ANonPositiveSizeWithoutWindowLookLeavesTheDrawingAsItWas) {
    GivePicture();
    preview.SetResolution(0, 0, true);
    for (const auto& [width, height] : {std::pair<int16_t, int16_t>{0, 768}, {1024, 0}, {-640, 480}})
        preview.SetResolution(width, height, false);
    EXPECT_EQ(preview.ImageRect(), QRect(40, 30, 120, 90));
    EXPECT_TRUE(preview.ShapesVisible());
    preview.SetResolution(800, 600, false);
    EXPECT_FALSE(preview.ShapesVisible());
}

TEST_F(ucResolutionPreviewTest, WithoutAPictureNothingIsDrawnForAnyResolution) {
    const QImage blank = preview.grab().toImage();
    for (const bool windowLook : {false, true})
        preview.SetResolution(640, 480, windowLook);
    EXPECT_FALSE(preview.ShapesVisible());
    EXPECT_EQ(preview.grab().toImage(), blank);
}

// A new picture shows unscaled where the old one was until the next drawing; the host's resizing redraws.
TEST_F(ucResolutionPreviewTest, APictureWaitsForTheNextDrawingAndStaysCentredOnResize) {
    preview.SetResolution(1280, 1024, false);
    GivePicture();
    EXPECT_EQ(preview.ImageRect(), QRect(0, 0, 160, 120));
    preview.DrawImage();
    EXPECT_EQ(preview.ImageRect(), QRect(60, 47, 80, 56));
    preview.SetResolution(0, 0, true);
    preview.resize(100, 80);
    EXPECT_EQ(preview.ImageRect(), QRect(20, 16, 60, 48));
    EXPECT_EQ(preview.FrameRect(), QRect(18, 14, 64, 52));
}

TEST_F(ucResolutionPreviewTest, AnOverflowingSizeIsReportedAndChangesNothing) {
    GivePicture();
    preview.SetResolution(640, 480, false);
    preview.SetResolution(1, 1, false);
    ASSERT_EQ(ui.reports.size(), 1u);
    EXPECT_EQ(ui.reports[0].number, 6);
    EXPECT_EQ(TrailOf(Failure(0, "", ui.reports[0].source)),
              std::vector<std::string>{"ucResolutionPreview.DrawImage"});
    EXPECT_EQ(preview.ImageRect(), QRect(20, 15, 160, 120));
}

// The sample picture comes from the program's resources at twice its natural size, and it is a picture.
TEST_F(ucResolutionPreviewTest, SamplePictureIsAColourfulSceneOfNaturalSize128x96) {
    const QPixmap sample = ucResolutionPreview::SamplePicture();
    ASSERT_FALSE(sample.isNull());
    preview.SetPicture(sample);
    EXPECT_EQ(preview.NaturalSize(), QSize(128, 96));
    const QImage image = sample.toImage();
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 4) {
        for (int x = 0; x < image.width(); x += 4)
            colours.insert(image.pixel(x, y));
    }
    EXPECT_GT(colours.size(), 200);
}

}  // namespace
