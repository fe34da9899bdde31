// A host without windows.
#include "Add-in/platform/windows/no_windows.h"
#include <gtest/gtest.h>

using namespace fernwick;

TEST(NoWindows, FindNothing) {
    NoWindows windows;
    int children = 0;
    windows.EnumChildWindows(0, [&](Hwnd) { return ++children > 0; });
    EXPECT_EQ(children, 0);
    EXPECT_EQ(windows.MainWindow(), 0);
    EXPECT_EQ(windows.ChildWindowFromPoint(1, {}), 0);
    EXPECT_EQ(windows.GetWindowInstance(1), 0);
    EXPECT_EQ(windows.GetDC(1), 0);
    EXPECT_EQ(windows.GetWindowText(1, 10), "");
}

TEST(NoWindows, AnswerNoMessage) {
    NoWindows windows;
    WindowMessage message{};
    EXPECT_EQ(windows.SendMessage(message), 0);
    EXPECT_EQ(windows.CallWindowProc({}, message), 0);
    EXPECT_EQ(windows.CallNextHookEx(1, 0, 0, message), 0);
}

// 0 would mean that the hook failed.
TEST(NoWindows, TakeHooks) { EXPECT_NE(NoWindows().SetWindowsHookEx({}), 0); }
