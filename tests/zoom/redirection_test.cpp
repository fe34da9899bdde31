// What the zoom window does with mouse and keys while nothing is dragged.
#include "zoom_world.h"

using fernwick::WindowPoint;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ZoomRedirection : public testing::Test, protected test::ZoomWorld {
protected:
    ZoomRedirection() { follow(); }
    /// The messages in the order in which they reached their windows: window, number, wParam.
    std::vector<std::string> received() const {
        std::vector<std::string> all;
        for (const auto& message : windows.messages) {
            const auto* name = message.hwnd == surface   ? "surface "
                               : message.hwnd == handle  ? "handle "
                               : message.hwnd == control ? "control "
                                                         : "zoom ";
            char number[16];
            std::snprintf(number, sizeof number, "%x", message.number);
            all.push_back(name + std::string(number) + " " + std::to_string(message.wParam));
        }
        return all;
    }
    std::string of(fernwick::Hwnd hwnd) { return std::to_string(hwnd); }
};

TEST_F(ZoomRedirection, AMoveReachesTheDesigner) {
    send(fernwick::WM_MOUSEMOVE, 200, kTop + 100, fernwick::MK_SHIFT);
    EXPECT_THAT(received(), ElementsAre("surface 20 " + of(surface), "surface 200 4", "surface 7 0"));
    EXPECT_EQ(windows.messages[0].lParam, 0x02000001);
    EXPECT_EQ(test::placeOf(windows.messages[1].lParam), (WindowPoint{100, 50}));
    EXPECT_THAT(windows.log, ElementsAre("picture 0,30-400,330"));
}

TEST_F(ZoomRedirection, AMoveOverAHandleReachesTheHandle) {
    send(fernwick::WM_MOUSEMOVE, 124, kTop + 44);
    EXPECT_THAT(received(), ElementsAre("handle 20 " + of(handle), "handle 200 0", "surface 7 0"));
    EXPECT_EQ(test::placeOf(windows.messages[1].lParam), (WindowPoint{62, 22})) << "the designer's coordinates";
    EXPECT_THAT(windows.log, ElementsAre("cursor to 1124,274", "picture 0,30-400,330"));
}

TEST_F(ZoomRedirection, AMoveOverAControlReachesTheDesigner) {
    send(fernwick::WM_MOUSEMOVE, 50, kTop + 30);
    EXPECT_THAT(received(), ElementsAre("surface 20 " + of(control), "surface 200 0", "surface 7 0"));
}

TEST_F(ZoomRedirection, AMoveOutsideTheDesignerReachesItToo) {
    send(fernwick::WM_MOUSEMOVE, 500, kTop + 400);
    EXPECT_EQ(windows.asked, (WindowPoint{250, 200}));
    EXPECT_THAT(received(), ElementsAre("surface 20 0", "surface 200 0", "surface 7 0"));
}

TEST_F(ZoomRedirection, OnlyAChildWithTheDesignersInstanceIsAHandle) {
    EXPECT_TRUE(zoomSubclassing.WindowIsHandleWindow(handle));
    EXPECT_FALSE(zoomSubclassing.WindowIsHandleWindow(control));
    EXPECT_FALSE(zoomSubclassing.WindowIsHandleWindow(0));
    windows.of(surface).instance = fernwick::kDesignerInstance;
    EXPECT_FALSE(zoomSubclassing.WindowIsHandleWindow(surface)) << "the designer itself";
    windows.of(handle).instance = fernwick::kDesignerInstance + 1;
    EXPECT_FALSE(zoomSubclassing.WindowIsHandleWindow(handle));
}

TEST_F(ZoomRedirection, TheResultIsThatOfTheMouseMessage) {
    windows.onMessage = [](const test::WindowMessage& message) {
        return message.number == fernwick::WM_MOUSEMOVE ? 42 : 1;
    };
    EXPECT_EQ(send(fernwick::WM_MOUSEMOVE, 1, 1), 42);
}

TEST_F(ZoomRedirection, PlacesKeepTheirSign) {
    send(fernwick::WM_MOUSEMOVE, -10, -70);
    EXPECT_THAT(places(surface, fernwick::WM_MOUSEMOVE), ElementsAre(WindowPoint{-5, -50}));
    windows.messages.clear();
    level(5);
    send(fernwick::WM_MOUSEMOVE, 32765, kTop + 5);
    EXPECT_THAT(places(surface, fernwick::WM_MOUSEMOVE), ElementsAre(WindowPoint{6553, 1}));
}

// ---- other messages ----

TEST_F(ZoomRedirection, KeysReachTheDesigner) {
    windows.onMessage = [](const test::WindowMessage&) { return 9; };
    EXPECT_EQ(windows.SendMessage({zoomHwnd, fernwick::WM_KEYDOWN, 46, 123}), 9);
    EXPECT_EQ(windows.SendMessage({zoomHwnd, fernwick::WM_KEYUP, 46, 124}), 9);
    EXPECT_THAT(received(), ElementsAre("surface 100 46", "surface 101 46"));
    EXPECT_EQ(windows.messages[1].lParam, 124);
    EXPECT_THAT(windows.log, IsEmpty()) << "no refresh";
}

TEST_F(ZoomRedirection, TheFocusNeverReachesTheZoomWindow) {
    EXPECT_EQ(windows.SendMessage({zoomHwnd, fernwick::WM_SETFOCUS, 5, 6}), 1);
    EXPECT_THAT(windows.messages, IsEmpty());
    EXPECT_THAT(windows.log, IsEmpty());
}

TEST_F(ZoomRedirection, CursorAndActivationNameTheDesigner) {
    windows.SendMessage({zoomHwnd, fernwick::WM_SETCURSOR, zoomHwnd, 77});
    windows.SendMessage({zoomHwnd, fernwick::WM_MOUSEACTIVATE, zoomHwnd, 78});
    EXPECT_THAT(received(), ElementsAre("surface 20 " + of(surface), "surface 21 " + of(surface)));
    EXPECT_EQ(windows.messages[0].lParam, 77);
    EXPECT_EQ(windows.messages[1].lParam, 78);
}

TEST_F(ZoomRedirection, OtherMessagesReachTheOriginalProcedure) {
    constexpr unsigned kDoubleClick = 0x203;
    windows.onMessage = [](const test::WindowMessage&) { return 3; };
    EXPECT_EQ(windows.SendMessage({zoomHwnd, kDoubleClick, 1, test::placeParam(5, 6)}), 3);
    EXPECT_THAT(received(), ElementsAre("zoom 203 1"));
    EXPECT_EQ(test::placeOf(windows.messages[0].lParam), (WindowPoint{5, 6}));
}

// ---- from one designer to another ----

TEST_F(ZoomRedirection, AnotherDesignerRestoresTheOldWindowsFirst) {
    const auto other = windows.add(designer, "", {0, 0, 90, 90});
    document->SetZoomWindow(other);
    EXPECT_THAT(windows.log,
                ElementsAre("paint hook off", "paint hook on " + of(other),
                            "procedure of " + of(zoomHwnd) + " restored", "procedure of " + of(surface) + " restored",
                            "procedure of " + of(zoomHwnd) + " replaced", testing::_, testing::_));
    send(fernwick::WM_MOUSEMOVE, 10, kTop + 10);
    EXPECT_THAT(places(surface, fernwick::WM_MOUSEMOVE), IsEmpty());
    EXPECT_THAT(places(other, fernwick::WM_MOUSEMOVE), ElementsAre(WindowPoint{5, 5}));
}

TEST_F(ZoomRedirection, TheSameDesignerAgainDoesNotStack) {
    for (int i = 0; i < 5; ++i) document->SetZoomWindow(surface);
    windows.SendMessage({zoomHwnd, 0x203, 0, 0});
    EXPECT_THAT(received(), ElementsAre("zoom 203 0")) << "directly, without a detour through our own procedure";
}

TEST_F(ZoomRedirection, AClosedDesignerIsHarmless) {
    windows.close(surface);
    EXPECT_EQ(send(fernwick::WM_LBUTTONDOWN, 100, 100), 0);
    EXPECT_EQ(send(fernwick::WM_MOUSEMOVE, 100, 100), 0);
    EXPECT_EQ(send(fernwick::WM_LBUTTONUP, 100, 100), 0);
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ZoomRedirection, WithoutADocumentNothingIsRefreshed) {
    zoom.ZoomDocument = nullptr;
    send(fernwick::WM_MOUSEMOVE, 1, 1);
    EXPECT_EQ(received().size(), 3u);
    EXPECT_THAT(windows.log, IsEmpty());
}

// ---- overflow ----

TEST_F(ZoomRedirection, AnOverflowIsReportedAndNothingIsSent) {
    follow(300, 200);
    level(1);
    surfaceIs(600, 400);
    document->UpdateDisplay();
    document->HScroll1.Value(600);
    windows.messages.clear();
    EXPECT_EQ(send(fernwick::WM_MOUSEMOVE, 32760, 40), 0);
    EXPECT_THAT(errors.seen, ElementsAre("modZoomWindowSubclassing.NewWindowProc [6]"));
    EXPECT_THAT(received(), IsEmpty());
}

/// While the box is open, the moves under it overflow as well.
struct BoxWithMoves : fernwick::ErrorReport {
    std::function<void()> inBox;
    int boxes = 0;
    void Error_ShowAddInError(const std::string&, const basic::RuntimeError&) override {
        ++boxes;
        if (inBox) inBox();
    }
    void escaped(std::string_view) noexcept override {}
};

TEST_F(ZoomRedirection, OneOverflowIsReportedAtATime) {
    BoxWithMoves box;
    fernwick::modZoomWindowSubclassing procedures{zoom, box, platform};
    procedures.RedirectWindowMessages(zoomHwnd, surface, 1, 1000, 0);
    box.inBox = [&] { send(fernwick::WM_MOUSEMOVE, 32767, 0); };
    send(fernwick::WM_MOUSEMOVE, 32767, 0);
    EXPECT_EQ(box.boxes, 1);
    send(fernwick::WM_MOUSEMOVE, 32767, 0);
    EXPECT_EQ(box.boxes, 2);
    procedures.release();
}

TEST_F(ZoomRedirection, AReportThatFailsStaysInside) {
    BoxWithMoves box;
    fernwick::modZoomWindowSubclassing procedures{zoom, box, platform};
    procedures.RedirectWindowMessages(zoomHwnd, surface, 1, 1000, 0);
    box.inBox = [] { throw basic::RuntimeError(50000); };
    EXPECT_EQ(send(fernwick::WM_MOUSEMOVE, 32767, 0), 0);
    send(fernwick::WM_MOUSEMOVE, 32767, 0);
    EXPECT_EQ(box.boxes, 2) << "the next one is reported again";
    procedures.release();
}

} // namespace
