// The zoom document from its creation to its end.
#include "zoom_world.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ZoomLife : public testing::Test, protected test::ZoomWorld {
protected:
    bool isFollowing(fernwick::Hwnd hwnd) const { return windows.paintHook && windows.paintHook->hwnd == hwnd; }
};

TEST_F(ZoomLife, BeginsWithTheSelectedForm) {
    vbe->selected = form;
    zoom.createZoomWindow();
    EXPECT_EQ(zoom.DesignerWindowHandle, surface);
}

TEST_F(ZoomLife, FollowsTheSelectedFormWhenShown) {
    open();
    EXPECT_FALSE(isFollowing(surface));
    vbe->selected = form;
    document->UserDocument_Show();
    EXPECT_TRUE(isFollowing(surface));
}

TEST_F(ZoomLife, OnlyAFormWithAVisibleDesignerIsFollowed) {
    vbe->selected = form;
    form->window->visible = false;
    open();
    EXPECT_FALSE(isFollowing(surface));
    form->window->visible = true;
    form->designerOpen = false;
    document->UserDocument_Show();
    EXPECT_FALSE(isFollowing(surface));
    form->designerOpen = true;
    form->type = vbide::vbext_ct_StdModule;
    document->UserDocument_Show();
    EXPECT_FALSE(isFollowing(surface));
    vbe->selected = nullptr;
    document->UserDocument_Show();
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ZoomLife, AFailedQuestionAboutTheFormIsReported) {
    open();
    vbe->selected = form;
    trace.failing = trace.calls + 1;
    document->UserDocument_Show();
    trace.failing = 0;
    EXPECT_THAT(errors.seen, ElementsAre("udocZoomWindow.UserDocument_Show [50000]"));
}

// ---- the timer ----

TEST_F(ZoomLife, TheTimerRestsWhileTheDocumentIsHidden) {
    follow();
    EXPECT_TRUE(loop.hasTimers());
    document->UserDocument_Hide();
    EXPECT_FALSE(loop.hasTimers());
    document->UserDocument_Show();
    EXPECT_TRUE(loop.hasTimers());
}

TEST_F(ZoomLife, TheTimerRestsUntilTheDocumentIsFirstShown) {
    zoom.createZoomWindow();
    document = basic::cast<fernwick::udocZoomWindow>(zoom.ZoomDocument);
    windows.of(zoomHwnd).document = document.shared().get();
    document->SetZoomWindow(surface);
    EXPECT_TRUE(isFollowing(surface));
    EXPECT_FALSE(loop.hasTimers());
    document->UserDocument_Show();
    EXPECT_TRUE(loop.hasTimers());
}

TEST_F(ZoomLife, WithoutATargetThereIsNoTimer) {
    open();
    EXPECT_FALSE(loop.hasTimers());
}

// ---- closing ----

TEST_F(ZoomLife, HidingReleasesTheWindow) {
    follow();
    document->UserDocument_Hide();
    EXPECT_FALSE(zoom.ZoomDocument || zoom.ZoomToolWindow);
    EXPECT_TRUE(isFollowing(surface)) << "the hook stays";
    loop.turn();
    EXPECT_FALSE(zoom.ZoomDocument);
}

TEST_F(ZoomLife, TheWindowComesBackAfterItWasClosed) {
    follow();
    document->UserDocument_Hide();
    loop.turn();
    zoom.ShowZoomWin();
    EXPECT_THAT(errors.seen, IsEmpty());
    EXPECT_TRUE(vbe->windows->last->visible);
    EXPECT_EQ(vbe->windows->list.size(), 2u);
}

TEST_F(ZoomLife, AnEndedDocumentDoesNothing) {
    follow();
    document->UserDocument_Terminate();
    EXPECT_FALSE(zoom.ZoomDocument || zoom.ZoomToolWindow);
    EXPECT_FALSE(windows.paintHook);
    EXPECT_FALSE(loop.hasTimers());
    forget();
    document->UserDocument_Terminate();
    document->UserDocument_Show();
    document->UserDocument_Hide();
    document->UserDocument_Resize(100, 100);
    document->SetZoomWindow(surface);
    document->UpdateDisplay();
    level(5);
    document->HScroll1_Change();
    EXPECT_THAT(windows.log, IsEmpty());
}

TEST_F(ZoomLife, APostedRefreshMayOutliveTheDocument) {
    follow(300, 200);
    document->HScroll1.Value(300);
    resize(600, 600);
    document->UserDocument_Terminate();
    windows.of(zoomHwnd).document = nullptr;
    document = nullptr;
    loop.turn();
    EXPECT_THAT(errors.seen, IsEmpty());
}

// ---- disconnection ----

TEST_F(ZoomLife, ADisconnectionRestoresEverything) {
    follow(300, 200);
    document->HScroll1.Value(300);
    windows.press(inZoom(100, 100));
    windows.loseMouse();
    windows.press(inZoom(124 - 20, 74)); // on the handle
    ASSERT_EQ(windows.hooks(), 1u);
    ASSERT_FALSE(windows.hasOwnProcedure(surface) || windows.hasOwnProcedure(zoomHwnd));
    const int clears = windows.clears;
    release();
    EXPECT_TRUE(windows.hasOwnProcedure(surface) && windows.hasOwnProcedure(zoomHwnd));
    EXPECT_EQ(windows.hooks(), 0u);
    EXPECT_FALSE(windows.paintHook);
    EXPECT_FALSE(loop.hasTimers());
    EXPECT_EQ(windows.clears, clears + 1);
    EXPECT_FALSE(document->HScroll1.Visible());
    EXPECT_FALSE(zoom.ZoomDocument || zoom.ZoomToolWindow);
}

TEST_F(ZoomLife, TheDocumentStaysWithTheHost) {
    follow();
    release();
    forget();
    document->UserDocument_Show();
    document->UserDocument_Resize(3000, 3000);
    document->UserDocument_Hide();
    level(3);
    document->HScroll1.Value(100);
    windows.mouse(fernwick::WM_LBUTTONDOWN, inZoom(50, 50), 1);
    EXPECT_EQ(windows.transferCount, 1) << "that of the start";
    EXPECT_THAT(places(surface, fernwick::WM_LBUTTONDOWN), IsEmpty());
    document->UserDocument_Terminate();
}

TEST_F(ZoomLife, ADisconnectionWithoutAZoomWindowIsHarmless) {
    release();
    EXPECT_THAT(windows.log, IsEmpty());
}

} // namespace
