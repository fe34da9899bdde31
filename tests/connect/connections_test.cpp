// Each connection has its own add-in, and a disconnected add-in receives no events.
#include "whole_world.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Connections : public testing::Test, protected test::WholeWorld {
protected:
    void TearDown() override { EXPECT_TRUE(host.failures.empty()); }
    void disconnect() {
        host.ide->Addins()->Item(kProgId)->Connect(false);
        trace.effects.clear();
        loop.showsTurns = true; // a handler may have no other effect
    }
    static test::SampleProject oldFormat() {
        test::SampleProject old("Old");
        return old.module("Module9").sections("\r\n[Quinloft Global]\r\nIsQuinloftProject=True\r\n");
    }
    /// Any other add-in would do.
    struct Editor : vbide::IDTExtensibility {
        void IDTExtensibility_OnConnection(const basic::Ref<vbide::VBE>&, vbide::vbext_ConnectMode,
                                           const basic::Ref<vbide::AddIn>&) override {}
        void IDTExtensibility_OnDisconnection(vbide::vbext_DisconnectMode) override {}
        void IDTExtensibility_OnStartupComplete() override {}
        void IDTExtensibility_OnAddInsUpdate() override {}
    };
    void addForm() { host.ide->ActiveVBProject()->VBComponents()->Add(vbide::vbext_ct_VBForm); }
};

TEST_F(Connections, ADisconnectedAddInHearsNothing) {
    const auto project = connected();
    addForm(); // so that a designer is watched
    disconnect();
    host.open(oldFormat());
    const auto own = test::SampleProject("Own").module("Module8").handheld("Palm-1");
    host.ide->VBProjects()->Remove(host.open(own));
    host.ide->ActiveVBProject(project);
    project->Name("Renamed");
    for (const auto type : {vbide::vbext_ct_UserControl, vbide::vbext_ct_VBForm, vbide::vbext_ct_StdModule})
        project->VBComponents()->Add(type);
    host.ide->Events()->VBBuildEvents()->EnterRunMode.raise();
    host.ide->Events()->VBBuildEvents()->EnterDesignMode.raise();
    loop.turn();
    EXPECT_THAT(trace.effects, IsEmpty());
}

TEST_F(Connections, ADisconnectionReleasesEachKindOfSink) {
    const auto project = connected();
    addForm();
    host.ide->ActiveVBProject(project);
    disconnect();
    const auto& c = addIn().connect;
    EXPECT_FALSE(c.ProjEventsHandler || c.CompsEventsHandler || c.RefEventsHandler || c.FileControlHandler ||
                 c.ControlsEventsHandler || c.BuildEventsHandler || c.GlobalFileControlHandler);
    EXPECT_FALSE(c.CompileProjectHandler || c.AboutHandler || c.DownloadVMHandler || c.MenuWeirgateHandler ||
                 c.SampleIntroHandler || c.ToolCompileProjectHandler || c.ToolWGConfigHandler);
    EXPECT_FALSE(c.MakePackageDevice[0] || c.DeployDevice[0] || c.InstallVMDevice[0]);
}

TEST_F(Connections, ADisconnectionInsideAHandlerTakesEffectAtOnce) {
    connected();
    loop.Post([this] { disconnect(); }); // runs in the DoEvents of the added component
    host.ide->ActiveVBProject()->VBComponents()->Add(vbide::vbext_ct_StdModule);
    const auto control = host.ide->ActiveVBProject()->VBComponents()->Add(vbide::vbext_ct_UserControl);
    EXPECT_EQ(control->Type(), vbide::vbext_ct_UserControl);
    EXPECT_THAT(trace.effects, IsEmpty());
}

TEST_F(Connections, ADisconnectionDiscardsRequestedRemovals) {
    const auto project = connected();
    addIn().removal.RemoveProject(project, true, "");
    addIn().removal.RemoveComponent(project, project->VBComponents()->Item(1));
    disconnect();
    loop.turn();
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
    EXPECT_EQ(project->VBComponents()->Count(), 1);
    EXPECT_FALSE(loop.hasTimers());
}

TEST_F(Connections, AMessagesWindowThatStaysHasNoActions) {
    const auto project = connected();
    const auto window = addIn().compileMsgs();
    addIn().messages.AddProjectCompileError(project, "No such name", host.folder / "Module1.bas", 1, 1042);
    disconnect();
    window->select(1);
    window->msgGrid_DblClick();
    window->msgGrid_KeyDown(fernwick::vbKeyF1, 0);
    EXPECT_EQ(window->rowCount(), 2);
    EXPECT_THAT(trace.effects, IsEmpty());
}

TEST_F(Connections, AConnectionInheritsNothing) {
    host.ide->listAddIn("ResEdit6.Connect", "Editor", [] { return basic::make<Editor>(); });
    host.ide->Addins()->Item("ResEdit6.Connect")->Connect(true);
    connected();
    addForm();
    auto& earlier = addIn();
    earlier.connect.TemplateReloadPending = earlier.connect.ComponentAddGuard = true;
    EXPECT_TRUE(earlier.connect.ResEditWasConnected);
    EXPECT_TRUE(earlier.connect.SelectedForm);
    host.ide->VBProjects()->Remove(host.ide->ActiveVBProject());
    host.ide->Addins()->Item(kProgId)->Connect(false);

    connect(vbide::vbext_cm_External);
    const auto& connection = addIn().connect;
    EXPECT_FALSE(connection.ResEditWasConnected || connection.TemplateReloadPending || connection.ComponentAddGuard);
    EXPECT_FALSE(connection.SelectedForm || addIn().projects.gCurrentProject || addIn().compileMsgs());
    EXPECT_FALSE(bool(connection.CompileProjectHandler) || bool(connection.CompsEventsHandler) ||
                 bool(connection.ControlsEventsHandler));
    EXPECT_TRUE(bool(connection.ProjEventsHandler));
}

TEST_F(Connections, TheNextConnectionWorks) {
    connected();
    disconnect();
    connect();
    EXPECT_THAT(click(items().gCompileItem), ElementsAre("form frmCompile"));
    EXPECT_TRUE(addIn().compileMsgs());
}

} // namespace
