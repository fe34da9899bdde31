// The zoom window in the real host: from the connection to the disconnection.
#include "Host/model/windows/tool_windows.h"
#include "whole_world.h"
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr char kCaption[] = "Fernwick Zoom";
constexpr char kPreferences[] = "SOFTWARE\\Quinloft\\AddinPrefs";

class ZoomInHost : public testing::Test, protected test::WholeWorld {
protected:
    static test::SampleProject withForms() { return hello().form("Form1").form("Form10").form("Zoom"); }
    basic::Ref<vbide::VBProject> opened() {
        const auto project = host.open(withForms());
        connect();
        return project;
    }
    basic::Ref<vbide::VBComponent> form(const std::string& name) {
        return host.ide->ActiveVBProject()->VBComponents()->Item(name);
    }
    /// Activates a form, whose designer is a window of the host. Returns its surface.
    fernwick::Hwnd activate(const std::string& name) {
        const auto component = form(name);
        auto& surface = surfaces_[name];
        if (surface == 0) {
            const auto frame = windows.add(windows.main, component->DesignerWindow()->Caption(), {0, 0, 300, 300});
            surface = windows.add(frame, "", {0, 0, 200, 150});
        }
        component->Activate();
        return surface;
    }
    std::shared_ptr<host::ToolWindow> toolWindow() {
        for (const auto& window : host.ide->toolWindows().list())
            if (window->Caption() == kCaption) return window;
        return nullptr;
    }
    /// Shows the zoom window from the menu, at a place on the screen.
    void show() {
        const auto hwnd = windows.add(windows.main, kCaption, {500, 0, 1100, 600});
        windows.of(hwnd).document = toolWindow()->document().shared().get();
        toolWindow()->resize(9000, 9000);
        click(items().gZoomItem);
    }
    int zoomWindows() const {
        const auto all = host.ide->Windows()->items();
        return int(std::count_if(all.begin(), all.end(), [](const auto& w) { return w->Caption() == kCaption; }));
    }
    std::string storedState() {
        fernwick::modRegistry2 registry{host.registry};
        const fernwick::RegistryKey key{
            registry, registry.OpenKey(fernwick::HKEY_CURRENT_USER, kPreferences, fernwick::KEY_QUERY_VALUE)};
        return registry.GetStringValue(key.handle(), "ZoomWinState").text;
    }
    fernwick::Hwnd followed() const { return windows.paintHook ? windows.paintHook->hwnd : 0; }
    std::vector<std::string> boxes() const {
        std::vector<std::string> all;
        for (const auto& effect : trace.effects)
            if (effect.starts_with("box ")) all.push_back(effect);
        return all;
    }

private:
    std::map<std::string, fernwick::Hwnd> surfaces_;
};

TEST_F(ZoomInHost, TheConnectionCreatesAHiddenWindow) {
    connect();
    ASSERT_TRUE(toolWindow());
    EXPECT_FALSE(toolWindow()->Visible());
    EXPECT_TRUE(addIn().zoom.ZoomDocument);
}

TEST_F(ZoomInHost, AnExternalConnectionHasNone) {
    connect(vbide::vbext_cm_External);
    EXPECT_FALSE(toolWindow());
}

TEST_F(ZoomInHost, AFernwickProjectShowsItIfItWasVisible) {
    store(fernwick::HKEY_CURRENT_USER, kPreferences, "ZoomWinState", "0");
    connect();
    EXPECT_FALSE(toolWindow()->Visible());
    host.open(withForms());
    EXPECT_TRUE(toolWindow()->Visible());
}

TEST_F(ZoomInHost, AProjectLeavesItHiddenOtherwise) {
    opened();
    EXPECT_FALSE(toolWindow()->Visible());
    EXPECT_EQ(storedState(), "1");
}

TEST_F(ZoomInHost, TheEndOfAProjectStoresItsState) {
    const auto first = opened();
    click(items().gZoomItem);
    host.ide->VBProjects()->Remove(first);
    EXPECT_EQ(storedState(), "0");
    const auto second = host.open(withForms());
    toolWindow()->Visible(false);
    host.ide->VBProjects()->Remove(second);
    EXPECT_EQ(storedState(), "1");
}

/// The stored state changes only when a project ends.
TEST_F(ZoomInHost, AClosedWindowReturnsWithTheNextProject) {
    store(fernwick::HKEY_CURRENT_USER, kPreferences, "ZoomWinState", "0");
    opened();
    ASSERT_TRUE(toolWindow()->Visible());
    toolWindow()->Close();
    host.open(test::SampleProject("Second").handheld("Palm-1"));
    EXPECT_TRUE(toolWindow()->Visible());
    EXPECT_EQ(zoomWindows(), 1);
}

TEST_F(ZoomInHost, TheCommandLineKeepsTheStoredState) {
    store(fernwick::HKEY_CURRENT_USER, kPreferences, "ZoomWinState", "0");
    const auto project = host.open(withForms());
    connect(vbide::vbext_cm_CommandLine);
    toolWindow()->Visible(false);
    host.ide->VBProjects()->Remove(project);
    EXPECT_EQ(storedState(), "0");
}

TEST_F(ZoomInHost, FollowsTheActivatedForm) {
    opened();
    show();
    const auto one = activate("Form1"), ten = activate("Form10"), zoom = activate("Zoom");
    EXPECT_EQ(followed(), zoom);
    activate("Form1");
    EXPECT_EQ(followed(), one);
    activate("Form10");
    EXPECT_EQ(followed(), ten);
    form("Module1")->Activate();
    EXPECT_EQ(followed(), ten);
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(ZoomInHost, FollowsASelectedFormToo) {
    const auto project = opened();
    show();
    const auto one = activate("Form1"), ten = activate("Form10");
    const auto events = host.ide->Events()->VBComponentsEvents(project);
    events->ItemSelected.raise(form("Form1"));
    EXPECT_EQ(followed(), one);
    events->ItemActivated.raise(form("Form10"));
    EXPECT_EQ(followed(), ten);
}

TEST_F(ZoomInHost, FormsOfOtherProjectsAreNotFollowed) {
    const auto project = opened();
    show();
    const auto one = activate("Form1");
    activate("Form10");
    activate("Form1");
    project->WriteProperty("Quinloft Global", "IsQuinloftProject", "False");
    form("Form10")->Activate();
    EXPECT_EQ(followed(), one);
}

TEST_F(ZoomInHost, FollowsARenamedForm) {
    opened();
    show();
    const auto one = activate("Form1");
    activate("Form10");
    form("Form1")->Name("Start");
    windows.of(windows.of(one).parent).text = form("Start")->DesignerWindow()->Caption();
    form("Start")->Activate();
    EXPECT_EQ(followed(), one);
}

TEST_F(ZoomInHost, ShowsTheSelectedFormWhenItIsOpened) {
    opened();
    const auto one = activate("Form1");
    show();
    EXPECT_EQ(followed(), one);
}

TEST_F(ZoomInHost, RefreshesTwiceASecondWhileItIsVisible) {
    opened();
    show();
    activate("Form1");
    const int before = windows.transferCount;
    ASSERT_FALSE(loop.intervals.empty());
    EXPECT_EQ(loop.intervals.back(), 500);
    loop.turn();
    EXPECT_EQ(windows.transferCount, before + 1);
    toolWindow()->Close();
    loop.turn();
    loop.turn();
    EXPECT_EQ(windows.transferCount, before + 1);
}

TEST_F(ZoomInHost, TheMenuBringsAClosedWindowBack) {
    opened();
    show();
    activate("Form1");
    toolWindow()->Close();
    loop.turn();
    EXPECT_THAT(click(items().gZoomItem), IsEmpty());
    EXPECT_TRUE(toolWindow()->Visible());
    EXPECT_EQ(zoomWindows(), 1);
    EXPECT_EQ(addIn().zoom.ZoomToolWindow, basic::Ref<vbide::Window>(toolWindow()));
    EXPECT_EQ(basic::Ref<fernwick::Object>(addIn().zoom.ZoomDocument), toolWindow()->document());
}

TEST_F(ZoomInHost, TheHostMayBringAClosedWindowBackToo) {
    opened();
    show();
    const auto one = activate("Form1");
    toolWindow()->Close();
    toolWindow()->Visible(true);
    loop.turn();
    EXPECT_EQ(followed(), one);
    EXPECT_THAT(click(items().gZoomItem), IsEmpty());
    EXPECT_TRUE(toolWindow()->Visible());
    EXPECT_EQ(zoomWindows(), 1);
}

TEST_F(ZoomInHost, ASaveThatReopensTheDesignerKeepsTheView) {
    opened();
    show();
    const auto one = activate("Form1");
    form("Form1")->Properties()->Item("Caption")->Value(std::string("New"));
    addIn().projects.GetQLProject(host.ide->ActiveVBProject())->SaveFiles();
    EXPECT_TRUE(form("Form1")->HasOpenDesigner());
    EXPECT_EQ(followed(), one);
    const int before = windows.transferCount;
    loop.turn();
    EXPECT_EQ(windows.transferCount, before + 1);
}

TEST_F(ZoomInHost, ADisconnectionLeavesAnEmptyWindow) {
    opened();
    show();
    const auto one = activate("Form1");
    const auto document = toolWindow()->document();
    host.ide->Addins()->Item(kProgId)->Connect(false);
    EXPECT_TRUE(windows.hasOwnProcedure(one));
    EXPECT_FALSE(windows.paintHook);
    const int before = windows.transferCount;
    loop.turn();
    EXPECT_EQ(windows.transferCount, before);
    EXPECT_EQ(zoomWindows(), 1);
    host.ide->Addins()->Item(kProgId)->Connect(true);
    EXPECT_EQ(zoomWindows(), 1);
    EXPECT_NE(toolWindow()->document(), document);
}

} // namespace
