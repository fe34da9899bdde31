// Drags through the zoom window, as sequences of mouse messages.
#include "zoom_world.h"

using fernwick::WindowPoint;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ZoomDrags : public testing::Test, protected test::ZoomWorld {
protected:
    ZoomDrags() { follow(); }
    std::vector<WindowPoint> moves(fernwick::Hwnd hwnd) const { return places(hwnd, fernwick::WM_MOUSEMOVE); }
    std::vector<WindowPoint> releases(fernwick::Hwnd hwnd) const { return places(hwnd, fernwick::WM_LBUTTONUP); }
    /// A place of the zoom window, given as a pixel of the designer at the present level.
    WindowPoint onPixel(int x, int y, int factor = 2) {
        return inZoom(x * factor - document->GetXOffset(), y * factor - document->GetYOffset());
    }
};

// ---- a control or the form ----

TEST_F(ZoomDrags, APressOnTheFormStartsTheDragOfAControl) {
    windows.press(onPixel(150, 100));
    EXPECT_FALSE(windows.hasOwnProcedure(surface));
    EXPECT_EQ(windows.hooks(), 0u);
}

TEST_F(ZoomDrags, APressOnAControlStartsTheDragOfAControl) {
    windows.press(onPixel(30, 15));
    EXPECT_FALSE(windows.hasOwnProcedure(surface));
    EXPECT_EQ(windows.hooks(), 0u);
    EXPECT_EQ(windows.captured(), surface);
}

TEST_F(ZoomDrags, AControlIsDraggedInTheDesignersPixels) {
    windows.press(onPixel(30, 15));
    windows.move(onPixel(40, 25));
    windows.move(onPixel(60, 5));
    windows.release(onPixel(61, 6));
    EXPECT_THAT(places(surface, fernwick::WM_LBUTTONDOWN), ElementsAre(WindowPoint{30, 15}));
    EXPECT_THAT(moves(surface), ElementsAre(WindowPoint{40, 25}, WindowPoint{60, 5}));
    EXPECT_THAT(releases(surface), ElementsAre(WindowPoint{61, 6}));
    EXPECT_TRUE(windows.hasOwnProcedure(surface));
}

TEST_F(ZoomDrags, EachMoveOfADragIsShown) {
    loop.timersAreDue = false;
    windows.press(onPixel(30, 15));
    windows.transferCount = 0;
    windows.move(onPixel(40, 25));
    windows.move(onPixel(41, 25));
    EXPECT_EQ(windows.transferCount, 2);
    windows.release(onPixel(41, 25));
    EXPECT_EQ(windows.transferCount, 3);
}

TEST_F(ZoomDrags, ADragKeepsItsKeysAndOtherMessages) {
    windows.press(onPixel(30, 15));
    windows.mouse(fernwick::WM_MOUSEMOVE, onPixel(31, 15), fernwick::MK_LBUTTON | fernwick::MK_CONTROL);
    EXPECT_EQ(windows.messages.back().wParam, fernwick::MK_LBUTTON | fernwick::MK_CONTROL);
    windows.dispatch({surface, fernwick::WM_KEYDOWN, 27, 5});
    EXPECT_EQ(windows.messages.back().wParam, 27);
    EXPECT_EQ(windows.messages.back().lParam, 5);
}

TEST_F(ZoomDrags, ADragMayLeaveTheWindows) {
    windows.press(onPixel(30, 15));
    windows.move({0, 0});
    EXPECT_THAT(moves(surface), ElementsAre(WindowPoint{-500, -115}));
}

TEST_F(ZoomDrags, AScrolledPictureIsDraggedAtItsPlace) {
    follow(300, 200);
    document->HScroll1.Value(600);
    document->VScroll1.Value(300);
    windows.messages.clear();
    windows.press(onPixel(50, 60));
    windows.move(onPixel(55, 66));
    windows.release(onPixel(57, 68));
    EXPECT_THAT(places(surface, fernwick::WM_LBUTTONDOWN), ElementsAre(WindowPoint{50, 60}));
    EXPECT_THAT(moves(surface), ElementsAre(WindowPoint{55, 66}));
    EXPECT_THAT(releases(surface), ElementsAre(WindowPoint{57, 68}));
}

TEST_F(ZoomDrags, TheHostProcessesEventsAfterTheRelease) {
    bool processed = false;
    windows.press(onPixel(30, 15));
    loop.Post([&] {
        processed = true;
        EXPECT_TRUE(windows.hasOwnProcedure(surface)) << "the drag has ended";
    });
    windows.move(onPixel(31, 15));
    EXPECT_FALSE(processed);
    windows.release(onPixel(31, 15));
    EXPECT_TRUE(processed);
}

TEST_F(ZoomDrags, AReleaseWithoutAPressIsHarmless) {
    windows.release(onPixel(30, 15));
    EXPECT_THAT(releases(surface), ElementsAre(WindowPoint{30, 15}));
    EXPECT_TRUE(windows.hasOwnProcedure(surface));
}

// ---- a lost release ----

/// A menu, a box or another program took the mouse.
TEST_F(ZoomDrags, APressAfterALostReleaseDragsOnce) {
    windows.press(onPixel(30, 15));
    windows.loseMouse();
    windows.press(onPixel(30, 15));
    windows.messages.clear();
    windows.move(onPixel(40, 25));
    windows.release(onPixel(40, 25));
    EXPECT_THAT(moves(surface), ElementsAre(WindowPoint{40, 25}));
    EXPECT_TRUE(windows.hasOwnProcedure(surface));
}

TEST_F(ZoomDrags, ALostReleaseIsForgottenWithTheNextDesigner) {
    windows.press(onPixel(30, 15));
    windows.loseMouse();
    document->SetZoomWindow(windows.add(designer, "", {0, 0, 90, 90}));
    EXPECT_TRUE(windows.hasOwnProcedure(surface));
    document->SetZoomWindow(surface);
    windows.press(onPixel(30, 15));
    windows.release(onPixel(30, 15));
    EXPECT_TRUE(windows.hasOwnProcedure(surface));
}

TEST_F(ZoomDrags, TheDesignerMayCloseDuringADrag) {
    windows.press(onPixel(30, 15));
    windows.close(surface);
    windows.move(onPixel(40, 25));
    windows.release(onPixel(40, 25));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ZoomDrags, TheDesignerMayCloseInItsOwnPress) {
    windows.onMessage = [&](const test::WindowMessage& message) {
        if (message.number == fernwick::WM_LBUTTONDOWN) windows.close(surface);
        return 0;
    };
    windows.press(onPixel(30, 15));
    EXPECT_EQ(windows.hooks(), 0u);
    EXPECT_THAT(errors.seen, IsEmpty());
}

/// A box in the release lets timers in, which may remove the form.
TEST_F(ZoomDrags, EverythingMayEndInTheRelease) {
    windows.press(onPixel(30, 15));
    windows.onMessage = [&](const test::WindowMessage& message) {
        if (message.number != fernwick::WM_LBUTTONUP) return 0;
        windows.close(surface);
        document->UserDocument_Terminate();
        document = nullptr;
        return 0;
    };
    windows.release(onPixel(30, 15));
    EXPECT_FALSE(zoom.ZoomDocument);
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ZoomDrags, TheAddInMayBeDisconnectedDuringADrag) {
    windows.press(onPixel(30, 15));
    windows.onMessage = [&](const test::WindowMessage&) {
        release();
        return 0;
    };
    windows.move(onPixel(40, 25));
    windows.onMessage = nullptr;
    windows.release(onPixel(40, 25));
    EXPECT_TRUE(windows.hasOwnProcedure(surface) && windows.hasOwnProcedure(zoomHwnd));
    EXPECT_THAT(errors.seen, IsEmpty());
}

/// The press activates another form's component, and the add-in follows it.
TEST_F(ZoomDrags, ThePressMayChangeTheDesigner) {
    const auto other = windows.add(designer, "", {0, 0, 90, 90});
    windows.onMessage = [&](const test::WindowMessage& message) {
        if (message.number == fernwick::WM_LBUTTONDOWN) document->SetZoomWindow(other);
        return 0;
    };
    windows.press(onPixel(30, 15));
    windows.release(onPixel(30, 15));
    windows.onMessage = nullptr;
    windows.loseMouse();
    document->SetZoomWindow(surface);
    EXPECT_TRUE(windows.hasOwnProcedure(surface) && windows.hasOwnProcedure(other));
}

// ---- a sizing handle ----

class ZoomHandleDrags : public ZoomDrags {};

TEST_F(ZoomHandleDrags, APressOnAHandleSetsAHook) {
    windows.press(onPixel(62, 22));
    EXPECT_TRUE(windows.hasOwnProcedure(surface));
    EXPECT_EQ(windows.hooks(), 1u);
    EXPECT_EQ(windows.captured(), handle);
    EXPECT_THAT(windows.log, ElementsAre("cursor to 1124,274", "hook 1", "picture 0,30-400,330"));
}

TEST_F(ZoomHandleDrags, TheHandleReceivesTheTravelAndSix) {
    windows.press(onPixel(62, 22));
    windows.move(onPixel(72, 32));
    windows.release(onPixel(72, 33));
    EXPECT_THAT(moves(handle), ElementsAre(WindowPoint{13, 13}));
    EXPECT_THAT(releases(handle), ElementsAre(WindowPoint{13, 14}));
    EXPECT_EQ(windows.hooks(), 0u);
}

TEST_F(ZoomHandleDrags, TheTravelIsDividedByTheLevel) {
    const std::pair<int, int> zeros[] = {{1, 6}, {2, 3}, {3, 2}, {4, 2}, {5, 1}};
    for (const auto& [factor, expected] : zeros) {
        level(factor);
        windows.messages.clear();
        windows.press(onPixel(62, 22, factor));
        windows.deliver();
        windows.release(onPixel(62, 22, factor));
        EXPECT_THAT(moves(handle), ElementsAre(WindowPoint{expected, expected})) << factor;
        EXPECT_THAT(releases(handle), ElementsAre(WindowPoint{expected, expected})) << factor;
    }
}

TEST_F(ZoomHandleDrags, ThePostedMoveIsTheOrigin) {
    windows.press(onPixel(62, 22));
    ASSERT_EQ(windows.posted.size(), 1u);
    windows.deliver();
    windows.move(onPixel(72, 22));
    EXPECT_THAT(moves(handle), ElementsAre(WindowPoint{3, 3}, WindowPoint{13, 3}));
}

TEST_F(ZoomHandleDrags, HoveringPostsNothing) {
    windows.move(onPixel(62, 22));
    windows.move(onPixel(63, 22));
    EXPECT_THAT(windows.posted, IsEmpty());
}

TEST_F(ZoomHandleDrags, EachMoveIsShown) {
    windows.press(onPixel(62, 22));
    windows.transferCount = 0;
    windows.move(onPixel(72, 32));
    EXPECT_EQ(windows.transferCount, 1);
}

TEST_F(ZoomHandleDrags, MessagesOfOtherWindowsAreLeftAlone) {
    windows.press(onPixel(62, 22));
    windows.transferCount = 0;
    test::WindowMessage other{control, fernwick::WM_MOUSEMOVE, 0, test::placeParam(7, 8)};
    zoomSubclassing.GetMsgProc(0, 1, other);
    EXPECT_EQ(test::placeOf(other.lParam), (WindowPoint{7, 8}));
    test::WindowMessage key{handle, fernwick::WM_KEYDOWN, 27, 9};
    zoomSubclassing.GetMsgProc(0, 1, key);
    EXPECT_EQ(key.lParam, 9);
    EXPECT_EQ(windows.transferCount, 0);
}

TEST_F(ZoomHandleDrags, TheNextHookComesFirstAndGivesTheResult) {
    windows.press(onPixel(62, 22));
    windows.nextHookResult = 5;
    const int before = windows.nextHooks;
    test::WindowMessage move{handle, fernwick::WM_MOUSEMOVE, 0, 0};
    EXPECT_EQ(zoomSubclassing.GetMsgProc(0, 1, move), 5);
    test::WindowMessage other{control, fernwick::WM_MOUSEMOVE, 0, 0};
    EXPECT_EQ(zoomSubclassing.GetMsgProc(-1, 0, other), 5);
    EXPECT_EQ(windows.nextHooks, before + 2);
}

/// The handle vanished, for example because the form was read again.
TEST_F(ZoomHandleDrags, APressAfterALostReleaseLeavesOneHook) {
    windows.press(onPixel(62, 22));
    windows.loseMouse();
    windows.press(onPixel(62, 22));
    EXPECT_EQ(windows.hooks(), 1u);
    windows.release(onPixel(62, 22));
    EXPECT_EQ(windows.hooks(), 0u);
}

TEST_F(ZoomHandleDrags, AControlCanBeDraggedAfterALostRelease) {
    windows.press(onPixel(62, 22));
    windows.loseMouse();
    windows.messages.clear();
    windows.press(onPixel(30, 15));
    windows.move(onPixel(40, 25));
    windows.release(onPixel(40, 25));
    EXPECT_THAT(moves(surface), ElementsAre(WindowPoint{40, 25}));
    EXPECT_TRUE(windows.hasOwnProcedure(surface));
}

// ---- overflow ----

TEST_F(ZoomDrags, AReleaseThatOverflowsEndsTheDragOfAControl) {
    level(1);
    windows.press(onPixel(30, 15, 1));
    windows.messages.clear();
    windows.of(zoomHwnd).rect.left -= 40000;
    EXPECT_EQ(windows.dispatch({surface, fernwick::WM_MOUSEMOVE, 1, 0}), 0);
    EXPECT_FALSE(windows.hasOwnProcedure(surface));
    windows.dispatch({surface, fernwick::WM_LBUTTONUP, 0, 0});
    EXPECT_TRUE(windows.hasOwnProcedure(surface));
    EXPECT_THAT(errors.seen, ElementsAre("modZoomWindowSubclassing.TargetWindowProc [6]",
                                         "modZoomWindowSubclassing.TargetWindowProc [6]"));
    EXPECT_THAT(windows.messages, IsEmpty());
}

TEST_F(ZoomHandleDrags, AReleaseThatOverflowsEndsTheDragOfAHandle) {
    level(1);
    windows.press(onPixel(62, 22, 1));
    windows.nextHookResult = 5;
    windows.cursor = {40000, 0};
    test::WindowMessage move{handle, fernwick::WM_MOUSEMOVE, 0, 11};
    EXPECT_EQ(zoomSubclassing.GetMsgProc(0, 1, move), 0);
    EXPECT_EQ(move.lParam, 11);
    EXPECT_EQ(windows.hooks(), 1u);
    test::WindowMessage up{handle, fernwick::WM_LBUTTONUP, 0, 11};
    zoomSubclassing.GetMsgProc(0, 1, up);
    EXPECT_EQ(windows.hooks(), 0u);
    EXPECT_THAT(errors.seen,
                ElementsAre("modZoomWindowSubclassing.GetMsgProc [6]", "modZoomWindowSubclassing.GetMsgProc [6]"));
}

} // namespace
