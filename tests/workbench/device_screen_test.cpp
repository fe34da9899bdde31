// The screen of the project's device around a form.
#include "Apps/workbench/designer/device_screen.h"
#include "tests/workbench/designer_desktop.h"

namespace {

class DeviceScreens : public test::DesignerDesktop {
protected:
    /// A form with a client area of 160 x 160 pixels.
    void openSized(const std::string& width, const std::string& height) {
        const auto settings = "DefaultFormWidth=" + width + "\r\nDefaultFormHeight=" + height + "\r\n";
        bench->open(test::SampleProject("Sized")
                        .form("frmMain")
                        .handheld("PalmOS-DragonBall")
                        .sections(settings)
                        .writeTo(folder));
        design("frmMain");
    }
    QColor shownAt(const QPointF& onForm) { return canvas().grab().toImage().pixelColor(pointOn(onForm)); }
    /// Whether the edge is just outside of the right and lower edges of such a client area, beside the grips.
    bool hasEdge(double width, double height) {
        const double out = workbench::kDeviceEdge - 1.5;
        return shownAt({width + out, height / 3}) == kEdge && shownAt({width / 3, height + out}) == kEdge;
    }
    const QColor kEdge{"#5b6b7b"};
};

} // namespace

TEST_F(DeviceScreens, AreDrawnAroundTheClientArea) {
    openSized("200", "220");
    EXPECT_EQ(view().deviceScreen(), QSizeF(200, 220));
    EXPECT_TRUE(hasEdge(200, 220));
    const auto corner = pointOn({200 + workbench::kDeviceEdge, 220 + workbench::kDeviceEdge});
    EXPECT_TRUE(canvas().rect().contains(corner)) << "the designer has room for it";
}

TEST_F(DeviceScreens, LeaveTheTitleAsItIs) {
    openSized("240", "320");
    const auto picture = canvas().grab().toImage();
    const auto head = QRectF(workbench::kCanvasMargin, workbench::kCanvasMargin,
                             workbench::wholeSize(view().picture()).width(), view().picture().border().top())
                          .toRect();
    int covered = 0;
    for (int y = head.top(); y <= head.bottom(); ++y)
        for (int x = head.left(); x <= head.right(); ++x) covered += picture.pixelColor(x, y) == kEdge;
    EXPECT_GT(head.height(), 10);
    EXPECT_EQ(covered, 0);
    EXPECT_EQ(shownAt({200, -(workbench::kDeviceEdge - 1.5)}), kEdge) << "beside the form";
}

TEST_F(DeviceScreens, StayWhereTheyAreWhenTheFormGrows) {
    openSized("160", "160");
    EXPECT_TRUE(hasEdge(160, 160));
    component("frmMain")->Properties()->Item("Width")->Value(6000.0F);
    settle();
    EXPECT_TRUE(hasEdge(160, 160));
}

TEST_F(DeviceScreens, FollowTheDeviceOfTheProject) {
    openSized("160", "160");
    project()->WriteProperty("Quinloft Global", "DefaultFormWidth", "240");
    project()->WriteProperty("Quinloft Global", "DefaultFormHeight", "320");
    settle();
    EXPECT_EQ(view().deviceScreen(), QSizeF(240, 320));
    EXPECT_TRUE(hasEdge(240, 320));
}

TEST_F(DeviceScreens, DevicesWithoutAFixedSizeHaveNone) {
    for (const auto* none : {"-1", "0", "", "many"}) {
        openSized(none, "160");
        EXPECT_TRUE(view().deviceScreen().isEmpty()) << none;
        EXPECT_FALSE(hasEdge(160, 160)) << none;
        bench->host().VBProjects()->Remove(project());
        settle();
    }
}
