#include "ui/main/ucResolutionPreview.h"

#include <gtest/gtest.h>

#include <QImage>

#include "support/AppFixture.h"
#include "support/FailureMatchers.h"

namespace {

const QColor kPictureColor(0xF0, 0x80, 0x10);

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

    ucResolutionPreview preview;
};

// 1280 x 1024 halves the width and takes 480/1024 of the height (56.25 rounds to 56); 37.5 rounds to even.
// The window frame runs two pixels around the picture, its title bar above the frame.
TEST_F(ucResolutionPreviewTest, PlacesPictureAndWindowFrameForEachResolution) {
    const struct {
        int16_t width;
        int16_t height;
        bool windowLook;
        QRect image;
    } cases[] = {{640, 480, false, QRect(20, 15, 160, 120)}, {0, 0, true, QRect(40, 30, 120, 90)},
                 {800, 600, false, QRect(36, 27, 128, 96)},  {1024, 768, false, QRect(50, 38, 100, 75)},
                 {1280, 1024, true, QRect(40, 30, 120, 90)}, {1280, 1024, false, QRect(60, 47, 80, 56)}};
    GivePicture();
    for (const auto& [width, height, windowLook, image] : cases) {
        SCOPED_TRACE(std::to_string(width) + "x" + std::to_string(height) + (windowLook ? " window" : ""));
        preview.SetResolution(width, height, windowLook);
        EXPECT_EQ(preview.ImageRect(), image);
        EXPECT_EQ(preview.FrameRect(), image.adjusted(-2, -2, 2, 2));
        EXPECT_EQ(preview.TitleBarRect(), QRect(image.left() - 2, image.top() - 6, image.width() + 4, 5));
        EXPECT_EQ(preview.ShapesVisible(), windowLook);
        const QImage drawn = preview.grab().toImage();
        EXPECT_EQ(drawn.pixelColor(image.center()), kPictureColor);
        EXPECT_NE(drawn.pixelColor(image.left() - 1, image.top()), kPictureColor);
    }
}

// Without a picture nothing is drawn; without window look a size that is not above 0 changes nothing.
TEST_F(ucResolutionPreviewTest, WithoutAPictureOrAPositiveSizeTheDrawingStaysAsItWas) {
    const QImage blank = preview.grab().toImage();
    preview.SetResolution(640, 480, true);
    EXPECT_EQ(preview.grab().toImage(), blank);
    GivePicture();
    preview.SetResolution(0, 0, true);
    for (const auto& [width, height] : {std::pair<int16_t, int16_t>{0, 768}, {1024, 0}, {-640, 480}})
        preview.SetResolution(width, height, false);
    EXPECT_EQ(preview.ImageRect(), QRect(40, 30, 120, 90));
    EXPECT_TRUE(preview.ShapesVisible());
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

}  // namespace
