// The about box: its pages behind the tabs, and links that open through the application.
#include "ui/dialogs/frmInfo.h"

#include <gtest/gtest.h>

#include "ui/controls/ucTab.h"
#include "ui/dialogs/UiFixture.h"

namespace {

class frmInfoTest : public UiFixture {};

TEST_F(frmInfoTest, TabsShowTheirPagesAndLinksOpenThroughTheApplication) {
    frmInfo dialog;
    dialog.InitDialog();
    dialog.show();
    EXPECT_EQ(dialog.windowTitle(), "About Pavonel");
    EXPECT_TRUE(Find<QWidget>(dialog, "picPage_0")->isVisible());
    QTest::mouseClick(Find<ucTab>(dialog, "ucTab1_2"), Qt::LeftButton);
    EXPECT_FALSE(Find<QWidget>(dialog, "picPage_0")->isVisible());
    EXPECT_TRUE(Find<QWidget>(dialog, "picPage_2")->isVisible());
    emit Find<QLabel>(dialog, "lblWebpageLink")->linkActivated(QString());
    emit Find<QLabel>(dialog, "lblEmailLink")->linkActivated(QString());
    ASSERT_EQ(platform.calls.size(), 2u);
    EXPECT_EQ(platform.calls[0].file, Application::WebpageAddress());
    EXPECT_EQ(platform.calls[1].file, Application::ContactAddress());
}

}  // namespace
