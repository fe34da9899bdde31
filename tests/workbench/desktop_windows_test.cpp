// The desktop's windows as an add-in finds them, and what reaches them.
#include "Apps/workbench/zoom/virtual_keys.h"
#include "tests/workbench/zoom_desktop.h"

namespace {

using namespace fernwick;
using workbench::WindowProcedures;

class DesktopWindowsTest : public test::ZoomDesktop {
protected:
    workbench::DesktopWindows& windows() { return bench->windows(); }
    std::vector<Hwnd> within(Hwnd parent) {
        std::vector<Hwnd> all;
        windows().EnumChildWindows(parent, [&](Hwnd window) { return (all.push_back(window), true); });
        return all;
    }
    Hwnd designerOf(const std::string& title) {
        for (const auto window : within(windows().MainWindow()))
            if (windows().GetWindowText(window, 255) == title) return window;
        return 0;
    }
    Hwnd surfaceOf(const std::string& title) { return within(designerOf(title)).front(); }
    WindowPoint at(const QPointF& onCanvas) { return {int(onCanvas.x()), int(onCanvas.y())}; }
};

std::vector<std::string> notes;

std::intptr_t note(void* object, const WindowMessage& message) noexcept {
    notes.push_back(std::string(static_cast<const char*>(object)) + " " + std::to_string(message.lParam));
    return 1;
}

char made[] = "made", ours[] = "ours", others[] = "others";

} // namespace

TEST_F(DesktopWindowsTest, ADesignerHasASurfaceGripsAndItsDirectControls) {
    openZoomed(kControls);
    const auto designer = designerOf("Zoomed - frmMain (Form)");
    ASSERT_NE(designer, 0);
    const auto inside = within(designer);
    ASSERT_EQ(inside.size(), 1u + 8 + 3) << "the label lies in the picture box";
    EXPECT_EQ(windows().GetWindowText(inside[0], 255), "");
    for (int grip = 1; grip <= 8; ++grip)
        EXPECT_EQ(windows().GetWindowInstance(inside[std::size_t(grip)]), kDesignerInstance);
    EXPECT_NE(windows().GetWindowInstance(inside[0]), kDesignerInstance);
    EXPECT_NE(windows().GetWindowInstance(inside[9]), kDesignerInstance);
    EXPECT_EQ(within(designer), inside) << "numbers stay";
}

TEST_F(DesktopWindowsTest, TheDesignerInFrontIsFoundFirst) {
    openZoomed(kControls);
    project()->VBComponents()->Add(vbide::vbext_ct_VBForm)->Name("frmOther");
    settle();
    design("frmOther");
    EXPECT_EQ(within(windows().MainWindow()).front(), designerOf("Zoomed - frmOther (Form)"));
    design("frmMain");
    EXPECT_EQ(within(windows().MainWindow()).front(), designerOf("Zoomed - frmMain (Form)"));
}

TEST_F(DesktopWindowsTest, TitlesAreCutToTheBuffer) {
    openZoomed(kControls);
    const auto designer = designerOf("Zoomed - frmMain (Form)");
    EXPECT_EQ(windows().GetWindowText(designer, 7), "Zoomed");
    EXPECT_EQ(windows().GetWindowText(designer, 0), "");
}

TEST_F(DesktopWindowsTest, WhatIsAtAPlace) {
    openZoomed(kControls);
    const auto surface = surfaceOf("Zoomed - frmMain (Form)");
    const auto inside = within(designerOf("Zoomed - frmMain (Form)"));
    view().select(nullptr);
    const auto rect = windows().GetWindowRect(surface);
    EXPECT_EQ(rect.right - rect.left, canvas().width());
    EXPECT_EQ(rect.bottom - rect.top, canvas().height());
    EXPECT_EQ(windows().ChildWindowFromPoint(surface, at(middleOf("cmdTwo"))), inside[10]);
    EXPECT_EQ(windows().ChildWindowFromPoint(surface, at(middleOf("lblFour"))), inside[11]) << "its container";
    EXPECT_EQ(windows().ChildWindowFromPoint(surface, at(pointOn({200, 200}))), surface);
    EXPECT_EQ(windows().ChildWindowFromPoint(surface, {canvas().width(), 5}), 0);
    EXPECT_EQ(windows().ChildWindowFromPoint(surface, {-1, 5}), 0);
    view().select(control("cmdTwo"));
    for (int grip = 0; grip < 8; ++grip)
        EXPECT_EQ(windows().ChildWindowFromPoint(surface, at(canvas().gripPlace(grip))), inside[std::size_t(grip) + 1]);
    const auto corner = windows().ClientToScreen(surface, {3, 4});
    EXPECT_EQ(QPoint(corner.x, corner.y), canvas().mapToGlobal(QPoint(3, 4)));
}

TEST_F(DesktopWindowsTest, AClosedWindowDoesNothing) {
    openZoomed(kControls);
    const auto surface = surfaceOf("Zoomed - frmMain (Form)");
    component("frmMain")->DesignerWindow()->Close();
    settle();
    EXPECT_EQ(windows().GetWindowRect(surface), WindowRect());
    EXPECT_EQ(windows().GetDC(surface), 0);
    EXPECT_EQ(windows().SendMessage({surface, WM_SETFOCUS, 0, 0}), 0);
    EXPECT_EQ(windows().GetWindowInstance(surface), 0);
    EXPECT_EQ(windows().SetWindowProc(surface, {ours, note}), WindowProc());
    design("frmMain");
    EXPECT_NE(surfaceOf("Zoomed - frmMain (Form)"), surface) << "numbers are never used twice";
}

TEST_F(DesktopWindowsTest, ATabThatTheUserClosesClosesItsWindow) {
    openZoomed(kControls);
    const auto surface = surfaceOf("Zoomed - frmMain (Form)");
    Q_EMIT window().code().tabCloseRequested(window().code().currentIndex());
    QTest::qWait(600); // the zoom refreshes its picture
    EXPECT_EQ(windows().GetWindowRect(surface), WindowRect());
    EXPECT_FALSE(zoom().canvas());
    EXPECT_FALSE(component("frmMain")->HasOpenDesigner());
}

TEST_F(DesktopWindowsTest, APressHasItsButton) {
    openZoomed(kControls);
    struct Recorder {
        workbench::WindowProcedures& procedures;
        std::intptr_t number = 0;
        std::vector<std::pair<unsigned, bool>> pressed;
    } recorder{windows().procedures(), 0, {}};
    recorder.number = recorder.procedures.addHook(
        {&recorder, [](void* self, int code, std::intptr_t wParam, WindowMessage& message) noexcept -> std::intptr_t {
             auto& own = *static_cast<Recorder*>(self);
             if (message.number >= WM_MOUSEMOVE && message.number <= WM_LBUTTONUP)
                 own.pressed.emplace_back(message.number, (message.wParam & MK_LBUTTON) != 0);
             return own.procedures.callNextHook(own.number, code, wParam, message);
         }});
    moveMouse(zoom(), zoomed(middleOf("cmdTwo")));
    clickZoomed(middleOf("cmdTwo"));
    recorder.procedures.removeHook(recorder.number);
    using Pressed = std::pair<unsigned, bool>;
    EXPECT_THAT(recorder.pressed, testing::IsSupersetOf({Pressed(WM_MOUSEMOVE, false), Pressed(WM_LBUTTONDOWN, true),
                                                         Pressed(WM_LBUTTONUP, false)}));
    EXPECT_THAT(recorder.pressed, testing::Not(testing::Contains(Pressed(WM_LBUTTONDOWN, false))));
}

TEST(WindowProcedures, AnEmptyOneRestoresTheOriginal) {
    WindowProcedures procedures({made, note});
    EXPECT_EQ(procedures.set(1, {ours, note}), (WindowProc{made, note}));
    EXPECT_EQ(procedures.set(1, {others, note}), (WindowProc{ours, note}));
    notes.clear();
    procedures.send({1, WM_MOUSEMOVE, 0, 5});
    procedures.send({2, WM_MOUSEMOVE, 0, 6});
    EXPECT_EQ(procedures.set(1, {}), (WindowProc{others, note}));
    procedures.send({1, WM_MOUSEMOVE, 0, 7});
    procedures.call({}, {1, WM_MOUSEMOVE, 0, 8});
    EXPECT_EQ(notes, (std::vector<std::string>{"others 5", "made 6", "made 7", "made 8"}));
}

TEST(WindowProcedures, TheLatestHookComesFirstAndMayChangeTheMessage) {
    WindowProcedures procedures({made, note});
    struct Hook {
        WindowProcedures& procedures;
        std::intptr_t number = 0, adds;
    };
    const auto hook = [](void* self, int code, std::intptr_t wParam, WindowMessage& message) noexcept -> std::intptr_t {
        const auto& at = *static_cast<Hook*>(self);
        message.lParam = message.lParam * 10 + at.adds;
        return at.procedures.callNextHook(at.number, code, wParam, message);
    };
    Hook first{procedures, 0, 1}, second{procedures, 0, 2};
    first.number = procedures.addHook({&first, hook});
    second.number = procedures.addHook({&second, hook});
    notes.clear();
    procedures.dispatch({1, WM_MOUSEMOVE, 0, 0});
    procedures.removeHook(second.number);
    procedures.dispatch({1, WM_MOUSEMOVE, 0, 0});
    procedures.removeHook(first.number);
    procedures.dispatch({1, WM_MOUSEMOVE, 0, 0});
    procedures.send({1, WM_MOUSEMOVE, 0, 0});
    EXPECT_EQ(notes, (std::vector<std::string>{"made 21", "made 1", "made 0", "made 0"}));
    EXPECT_EQ(procedures.hookCount(), 0u);
}

TEST(VirtualKeys, EachCodeHasItsKey) {
    for (const int key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Delete, Qt::Key_Tab,
                          Qt::Key_Escape, Qt::Key_Return, Qt::Key_A, Qt::Key_Z, Qt::Key_0, Qt::Key_9})
        EXPECT_EQ(workbench::qtKeyOf(workbench::virtualKeyOf(key)), key);
    for (const auto& [key, code] : {std::pair(Qt::Key_Backspace, 8),
                                    {Qt::Key_Tab, 9},
                                    {Qt::Key_Backtab, 9},
                                    {Qt::Key_Return, 13},
                                    {Qt::Key_Enter, 13},
                                    {Qt::Key_Shift, 16},
                                    {Qt::Key_Control, 17},
                                    {Qt::Key_Escape, 27},
                                    {Qt::Key_Space, 32},
                                    {Qt::Key_PageUp, 33},
                                    {Qt::Key_PageDown, 34},
                                    {Qt::Key_End, 35},
                                    {Qt::Key_Home, 36},
                                    {Qt::Key_Left, 37},
                                    {Qt::Key_Up, 38},
                                    {Qt::Key_Right, 39},
                                    {Qt::Key_Down, 40},
                                    {Qt::Key_Insert, 45},
                                    {Qt::Key_Delete, 46},
                                    {Qt::Key_0, 48},
                                    {Qt::Key_9, 57},
                                    {Qt::Key_A, 65},
                                    {Qt::Key_Z, 90},
                                    {Qt::Key_F5, 0}})
        EXPECT_EQ(workbench::virtualKeyOf(key), code) << key;
    EXPECT_EQ(workbench::qtKeyOf(0), 0);
}
