// The zoom window's creation, its stored state, and the search for the designer.
#include "zoom_world.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr char kCreated[] = "window QLVBAddIn.udocZoomWindow {DE645E8C-7810-416f-9F60-78A1E6CCF764}";

class ZoomManagement : public testing::Test, protected test::ZoomWorld {
protected:
    const test::Ref<test::TracedWindow>& toolWindow() { return vbe->windows->last; }
    void stored(const std::string& state) {
        registry.set(fernwick::HKEY_CURRENT_USER, "SOFTWARE\\Quinloft\\AddinPrefs", "ZoomWinState", state);
    }
};

TEST_F(ZoomManagement, CreatesAHiddenWindowOnce) {
    zoom.createZoomWindow();
    EXPECT_THAT(trace.effects, ElementsAre(kCreated, "Fernwick Zoom hidden"));
    EXPECT_TRUE(zoom.ZoomDocument);
    EXPECT_EQ(zoom.ZoomToolWindow, test::Ref<vbide::Window>(toolWindow()));
    zoom.createZoomWindow();
    EXPECT_EQ(vbe->windows->list.size(), 1u);
}

TEST_F(ZoomManagement, ShowingCreatesTheWindowIfNeeded) {
    zoom.ShowZoomWin();
    EXPECT_THAT(trace.effects, ElementsAre(kCreated, "Fernwick Zoom hidden", "Fernwick Zoom shown"));
    trace.effects.clear();
    zoom.ShowZoomWin();
    EXPECT_THAT(trace.effects, ElementsAre("Fernwick Zoom shown"));
}

TEST_F(ZoomManagement, AWindowThatCannotBeCreatedIsReported) {
    classes.forget("QLVBAddIn.udocZoomWindow");
    zoom.createZoomWindow();
    EXPECT_FALSE(zoom.ZoomDocument);
    EXPECT_THAT(errors.seen,
                ElementsAre("modZoomManagement.createZoomWindow [429]", "modZoomManagement.createZoomWindow [91]"));
    errors.seen.clear();
    zoom.ShowZoomWin();
    EXPECT_EQ(errors.seen.back(), "modZoomManagement.ShowZoomWin [91]");
}

TEST_F(ZoomManagement, CreationCanBeTriedAgain) {
    trace.failing = trace.calls + 1;
    zoom.ShowZoomWin();
    trace.failing = 0;
    zoom.ShowZoomWin();
    EXPECT_TRUE(toolWindow()->visible);
    EXPECT_TRUE(zoom.ZoomDocument);
}

TEST_F(ZoomManagement, AWindowThatTheHostShowsAgainIsReplacedOnRequest) {
    open();
    zoom.CloseZoomWin();
    zoom.ZoomDocument = document; // as its timer does
    zoom.ShowZoomWin();
    EXPECT_THAT(errors.seen, IsEmpty());
    EXPECT_EQ(vbe->windows->list.size(), 2u);
}

TEST_F(ZoomManagement, StartsVisibleIfTheStoredStateIsZero) {
    stored("0");
    zoom.InitZoomWindow();
    EXPECT_TRUE(toolWindow()->visible);
}

TEST_F(ZoomManagement, StartsHiddenOtherwise) {
    stored("1");
    zoom.InitZoomWindow();
    EXPECT_THAT(trace.effects, IsEmpty());
    stored("2");
    zoom.InitZoomWindow();
    EXPECT_THAT(trace.effects, IsEmpty());
}

TEST_F(ZoomManagement, StoresWhetherTheWindowIsVisible) {
    zoom.SaveZoomWindowState();
    EXPECT_EQ(prefs.GetZoomWinState(), 1) << "there is no window";
    zoom.ShowZoomWin();
    zoom.SaveZoomWindowState();
    EXPECT_EQ(prefs.GetZoomWinState(), 0);
    toolWindow()->visible = false;
    zoom.SaveZoomWindowState();
    EXPECT_EQ(prefs.GetZoomWinState(), 1);
}

TEST_F(ZoomManagement, AFailedLookUpStoresNotVisible) {
    zoom.ShowZoomWin();
    stored("0");
    trace.failing = trace.calls + 1;
    zoom.SaveZoomWindowState();
    trace.failing = 0;
    EXPECT_EQ(prefs.GetZoomWinState(), 1);
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ZoomManagement, WithoutAHostNothingIsStored) {
    stored("0");
    addIn.gVBInstance = test::Ref<vbide::VBE>();
    zoom.SaveZoomWindowState();
    EXPECT_EQ(prefs.GetZoomWinState(), 0);
}

// ---- the designer ----

TEST_F(ZoomManagement, TheDesignerIsTheFirstChildOfTheFirstWindowWithItsCaption) {
    const auto later = windows.add(windows.main, "Demo - frmMain (Form)", {});
    windows.add(later, "", {});
    zoom.SetDesignerWindowHandle("Demo - frmMain (Form)");
    EXPECT_EQ(zoom.DesignerWindowHandle, surface);
}

TEST_F(ZoomManagement, TheTitleMayBeAnywhereInTheText) {
    windows.of(designer).text = "* Demo - frmMain (Form) [read only]";
    zoom.SetDesignerWindowHandle("Demo - frmMain (Form)");
    EXPECT_EQ(zoom.DesignerWindowHandle, surface);
}

TEST_F(ZoomManagement, LetterCaseCounts) {
    zoom.SetDesignerWindowHandle("demo - frmmain (form)");
    EXPECT_EQ(zoom.DesignerWindowHandle, 0);
}

TEST_F(ZoomManagement, DistinguishesFormsWithSimilarNames) {
    const auto other = windows.add(windows.main, "Demo - frmMain1 (Form)", {});
    const auto otherSurface = windows.add(other, "", {});
    zoom.SetDesignerWindowHandle("Demo - frmMain1 (Form)");
    EXPECT_EQ(zoom.DesignerWindowHandle, otherSurface);
    zoom.SetDesignerWindowHandle("Demo - frmMain (Form)");
    EXPECT_EQ(zoom.DesignerWindowHandle, surface);
}

TEST_F(ZoomManagement, WindowsAreSearchedAtAnyDepth) {
    windows.of(designer).text = "";
    const auto area = windows.add(windows.main, "area", {});
    const auto inner = windows.add(area, "Demo - frmMain (Form)", {});
    const auto found = windows.add(inner, "", {});
    zoom.SetDesignerWindowHandle("Demo - frmMain (Form)");
    EXPECT_EQ(zoom.DesignerWindowHandle, found);
}

TEST_F(ZoomManagement, TheTextOfAWindowIsCutAfter254Characters) {
    windows.of(designer).text = std::string(254 - 4, 'x') + "abcd";
    zoom.SetDesignerWindowHandle("abcd");
    EXPECT_EQ(zoom.DesignerWindowHandle, surface);
    zoom.DesignerWindowHandle = 0;
    windows.of(designer).text = std::string(255 - 4, 'x') + "abcd";
    zoom.SetDesignerWindowHandle("abcd");
    EXPECT_EQ(zoom.DesignerWindowHandle, 0);
}

TEST_F(ZoomManagement, AHandleOfZeroEndsTheSearch) {
    windows.endsWithZero = true;
    zoom.DesignerWindowHandle = 77;
    zoom.SetDesignerWindowHandle("Demo - frmMain (Form)");
    EXPECT_EQ(zoom.DesignerWindowHandle, 77);
}

TEST_F(ZoomManagement, WithoutAMatchTheViewStaysOnItsDesigner) {
    follow();
    form->window->caption = "Demo - frmGone (Form)";
    zoom.SetZoomForm(form);
    EXPECT_EQ(zoom.DesignerWindowHandle, surface);
    EXPECT_EQ(windows.transfer.from, surface);
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ZoomManagement, AWindowWithoutChildrenEndsTheSearch) {
    follow();
    const auto bare = windows.add(windows.main, "Bare", {});
    const auto later = windows.add(windows.main, "Bare too", {});
    windows.add(later, "", {});
    zoom.SetDesignerWindowHandle("Bare");
    EXPECT_EQ(zoom.DesignerWindowHandle, surface);
    EXPECT_GT(later, bare);
}

TEST_F(ZoomManagement, WithoutADocumentNothingIsSearched) {
    zoom.SetZoomForm(form);
    EXPECT_EQ(zoom.DesignerWindowHandle, 0);
}

TEST_F(ZoomManagement, AComponentWithoutADesignerWindowIsIgnored) {
    follow();
    form->window = nullptr;
    zoom.SetZoomForm(form);
    zoom.SetZoomForm(nullptr);
    EXPECT_THAT(errors.seen, IsEmpty());
    EXPECT_EQ(windows.transfer.from, surface);
}

TEST_F(ZoomManagement, AFailedSearchIsReported) {
    windows.failEnumeration = 50000;
    zoom.SetDesignerWindowHandle("x");
    EXPECT_THAT(errors.seen, ElementsAre("modZoomManagement.SetDesignerWindowHandle [50000]"));
}

} // namespace
