// The picture of the designer.
#include "zoom_world.h"

using fernwick::WindowRect;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ZoomDisplay : public testing::Test, protected test::ZoomWorld {};

TEST_F(ZoomDisplay, WithoutATargetNothingIsDrawn) {
    open();
    document->UpdateDisplay();
    EXPECT_EQ(windows.transferCount, 0);
    EXPECT_THAT(windows.log, IsEmpty());
}

TEST_F(ZoomDisplay, AHandleOfZeroChangesNothing) {
    open();
    document->SetZoomWindow(0);
    EXPECT_THAT(windows.log, IsEmpty());
    EXPECT_FALSE(loop.hasTimers());
    follow();
    document->SetZoomWindow(0);
    EXPECT_THAT(windows.log, IsEmpty());
    document->UpdateDisplay();
    EXPECT_EQ(windows.transfer.from, surface);
}

TEST_F(ZoomDisplay, FollowsADesignerInOrder) {
    open();
    document->SetZoomWindow(surface);
    EXPECT_THAT(windows.log,
                ElementsAre("paint hook off", "paint hook on " + std::to_string(surface),
                            "procedure of " + std::to_string(zoomHwnd) + " replaced", "picture 0,30-400,330"));
    EXPECT_TRUE(loop.hasTimers());
    EXPECT_THAT(loop.intervals, ElementsAre(500));
}

TEST_F(ZoomDisplay, TheWholeDesignerIsCopiedMagnified) {
    follow();
    level(3);
    EXPECT_EQ(windows.transfer.target, (WindowRect{0, kTop, 600, kTop + 450}));
    EXPECT_EQ(windows.transfer.source, (WindowRect{0, 0, 200, 150}));
    EXPECT_EQ(std::pair(windows.transfer.to, windows.transfer.from), std::pair(zoomHwnd, surface));
    EXPECT_EQ(windows.rasterOperation, 0xCC0020u);
    EXPECT_EQ(windows.openContexts, 0);
}

TEST_F(ZoomDisplay, StartsWithLevelTwo) {
    open();
    EXPECT_EQ(document->Combo1.ListCount(), 5);
    EXPECT_EQ(document->Combo1.Text(), "2");
    zoom.SetZoomForm(form);
    EXPECT_EQ(picture().right, 400);
}

TEST_F(ZoomDisplay, ALevelIsTakenInOrder) {
    follow();
    level(4);
    EXPECT_THAT(windows.log, ElementsAre("clear " + std::to_string(zoomHwnd), "picture 0,30-800,630"));
    send(fernwick::WM_MOUSEMOVE, 40, kTop + 40);
    EXPECT_THAT(places(surface, fernwick::WM_MOUSEMOVE), ElementsAre(fernwick::WindowPoint{10, 10}));
}

TEST_F(ZoomDisplay, TheNewLevelIsMappedBeforeItIsDrawn) {
    follow();
    windows.onTransfer = [&] { send(fernwick::WM_MOUSEMOVE, 40, kTop + 40); };
    level(4);
    EXPECT_THAT(places(surface, fernwick::WM_MOUSEMOVE), ElementsAre(fernwick::WindowPoint{10, 10}));
}

TEST_F(ZoomDisplay, WithoutAPaintHookTheTimerIsEnough) {
    windows.refusesPaintHooks = true;
    follow();
    EXPECT_THAT(errors.seen, ElementsAre("udocZoomWindow.UserDocument_Initialize [429]"));
    loop.turn();
    EXPECT_THAT(windows.log, ElementsAre("picture 0,30-400,330"));
    windows.close(surface);
    loop.turn();
    EXPECT_FALSE(loop.hasTimers());
    EXPECT_EQ(errors.seen.size(), 1u);
}

TEST_F(ZoomDisplay, AShrunkenPictureIsCleared) {
    follow();
    surfaceIs(200, 140);
    document->UpdateDisplay();
    EXPECT_THAT(windows.log, ElementsAre("clear " + std::to_string(zoomHwnd), "picture 0,30-400,310"));
    surfaceIs(190, 140);
    document->UpdateDisplay();
    EXPECT_EQ(windows.clears, 2 + 1); // one at the choice of the first level
}

TEST_F(ZoomDisplay, AnEnlargedPictureIsNotCleared) {
    follow();
    surfaceIs(210, 150);
    document->UpdateDisplay();
    surfaceIs(210, 160);
    document->UpdateDisplay();
    document->UpdateDisplay();
    EXPECT_THAT(windows.log, ElementsAre("picture 0,30-420,330", "picture 0,30-420,350", "picture 0,30-420,350"));
}

TEST_F(ZoomDisplay, ThePaintHookRefreshes) {
    follow();
    windows.paintHook->GotMessage.raise();
    EXPECT_THAT(windows.log, ElementsAre("picture 0,30-400,330"));
}

TEST_F(ZoomDisplay, TheTimerRefreshesAndRestoresTheDocument) {
    follow();
    zoom.ZoomDocument = nullptr;
    loop.turn();
    EXPECT_THAT(windows.log, ElementsAre("picture 0,30-400,330"));
    EXPECT_TRUE(zoom.ZoomDocument);
}

// ---- a missing drawing surface ----

TEST_F(ZoomDisplay, ADesignerWithoutContentEndsTheView) {
    follow();
    windows.of(surface).hasContent = false;
    document->UpdateDisplay();
    EXPECT_THAT(windows.log, ElementsAre("paint hook off"));
    EXPECT_EQ(windows.openContexts, 0);
    EXPECT_FALSE(loop.hasTimers());
    windows.of(surface).hasContent = true;
    document->UpdateDisplay();
    EXPECT_THAT(windows.log, ElementsAre("paint hook off"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ZoomDisplay, AClosedDesignerEndsTheViewUntilTheNextOne) {
    follow(300, 200);
    EXPECT_TRUE(document->HScroll1.Visible());
    windows.close(surface);
    loop.turn();
    EXPECT_FALSE(loop.hasTimers());
    EXPECT_FALSE(document->HScroll1.Visible());
    EXPECT_FALSE(document->VScroll1.Visible());
    const auto other = windows.add(designer, "", {0, 0, 50, 40});
    document->SetZoomWindow(other);
    EXPECT_TRUE(loop.hasTimers());
    EXPECT_EQ(windows.transfer.from, other);
}

TEST_F(ZoomDisplay, ADocumentWithoutContentEndsTheView) {
    follow();
    windows.of(zoomHwnd).hasContent = false;
    document->UpdateDisplay();
    EXPECT_FALSE(loop.hasTimers());
    EXPECT_EQ(windows.openContexts, 0);
}

TEST_F(ZoomDisplay, AnAbsurdSizeIsReported) {
    follow();
    windows.of(surface).rect = {0, 0, 2000000000, 10};
    document->UpdateDisplay();
    EXPECT_THAT(errors.seen, ElementsAre("udocZoomWindow.UpdateDisplay [6]"));
}

} // namespace
