// Tool windows and their documents.
#include "Host/model/windows/tool_windows.h"
#include "tests/support/test_host.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Log = std::vector<std::string>;

class LoggedDocument final : public fernwick::UserDocument {
public:
    LoggedDocument(Log& log, std::string name) : log_(log), name_(std::move(name)) {
        log_.push_back(name_ + " created");
    }
    void UserDocument_Show() override { log_.push_back(name_ + " shown"); }
    void UserDocument_Hide() override { log_.push_back(name_ + " hidden"); }
    void UserDocument_Resize(std::int32_t width, std::int32_t height) override {
        log_.push_back(name_ + " " + std::to_string(width) + "x" + std::to_string(height));
    }
    void UserDocument_Terminate() override { log_.push_back(name_ + " ended"); }

private:
    Log& log_;
    std::string name_;
};

class NoAddIn final : public vbide::IDTExtensibility {
    void IDTExtensibility_OnConnection(const vbide::Ref<vbide::VBE>&, vbide::vbext_ConnectMode,
                                       const vbide::Ref<vbide::AddIn>&) override {}
    void IDTExtensibility_OnDisconnection(vbide::vbext_DisconnectMode) override {}
    void IDTExtensibility_OnStartupComplete() override {}
    void IDTExtensibility_OnAddInsUpdate() override {}
};

/// Creates documents with the name of their ProgID.
class LoggedClasses final : public fernwick::Classes {
public:
    explicit LoggedClasses(Log& log) : log_(log) {}
    std::shared_ptr<void> RegisterClass(const std::string&, Factory) override { return nullptr; }
    basic::Ref<fernwick::Object> CreateObject(const std::string& progId) override {
        if (progId == "Plain") return basic::make<fernwick::Object>();
        if (progId == "None") throw basic::RuntimeError(429);
        return basic::make<LoggedDocument>(log_, progId);
    }
    bool CLSIDFromString(const std::string&, std::string&) const override { return false; }
    std::string ProgIDFromCLSID(const std::string&) const override { return {}; }
    basic::Ref<fernwick::TypeLibInfo> TypeLibInfoFromFile(const std::string&) const override { return nullptr; }

private:
    Log& log_;
};

class ToolWindows : public testing::Test {
protected:
    ToolWindows() {
        host.ide->listAddIn("A.Connect", "", [] { return basic::make<NoAddIn>(); });
    }
    std::shared_ptr<host::ToolWindow> create(const std::string& progId, const std::string& guid = "{1-a}") {
        basic::Ref<fernwick::Object> document;
        host.ide->Windows()->CreateToolWindow(host.ide->Addins()->Item("A.Connect"), progId, progId, guid, document);
        return host.ide->toolWindows().list().back();
    }
    std::vector<std::string> captions() const {
        std::vector<std::string> all;
        for (const auto& window : host.ide->Windows()->items()) all.push_back(window->Caption());
        return all;
    }

    Log log;
    LoggedClasses classes{log};
    test::TestHost host{&classes};
};

TEST_F(ToolWindows, NotifyTheirDocumentOfRealChanges) {
    const auto window = create("A");
    window->Visible(false);
    window->Visible(true);
    window->Visible(true);
    window->SetFocus();
    window->WindowState(vbide::vbext_ws_Minimize);
    window->resize(100, 50);
    window->resize(100, 50);
    window->resize(100, 60);
    window->Close();
    window->Close();
    EXPECT_THAT(log, ElementsAre("A created", "A shown", "A 100x50", "A 100x60", "A hidden"));
}

TEST_F(ToolWindows, TheFrontEndDrawsBeforeTheDocumentIsNotified) {
    const auto window = create("A");
    const auto drawn = window->changed.connect([&] { window->resize(10, 20); });
    window->Visible(true);
    EXPECT_THAT(log, ElementsAre("A created", "A 10x20", "A shown"));
}

TEST_F(ToolWindows, AWindowThatIsHiddenAgainAtOnceWasNeverShown) {
    const auto window = create("A");
    const auto drawn = window->changed.connect([&] { window->Visible(false); });
    window->Visible(true);
    EXPECT_THAT(log, ElementsAre("A created"));
}

TEST_F(ToolWindows, OtherDocumentsAreNotNotified) {
    const auto window = create("Plain");
    window->Visible(true);
    window->resize(1, 2);
    window->terminate();
    EXPECT_FALSE(window->Visible());
}

TEST_F(ToolWindows, AnEndedWindowStaysHidden) {
    const auto window = create("A");
    window->terminate();
    window->terminate();
    window->Visible(true);
    window->resize(1, 2);
    EXPECT_THAT(log, ElementsAre("A created", "A ended"));
    EXPECT_FALSE(window->Visible());
}

TEST_F(ToolWindows, AWindowAtAPositionInUseReplacesTheOldOne) {
    const auto first = create("A", "{1-a}");
    first->Visible(true);
    std::vector<std::string> removed;
    const auto watch = host.ide->toolWindows().removed.connect([&](const auto& window) {
        removed.push_back(window->Caption() + (window->Visible() ? " visible" : " hidden"));
        EXPECT_THAT(captions(), IsEmpty());
    });
    const auto second = create("B", "{1-A}");
    EXPECT_THAT(log, ElementsAre("A created", "A shown", "A hidden", "A ended", "B created"));
    EXPECT_THAT(captions(), ElementsAre("B"));
    EXPECT_THAT(removed, ElementsAre("A hidden"));
    EXPECT_FALSE(second->Visible());
}

TEST_F(ToolWindows, WindowsAtOtherPositionsStay) {
    create("A", "{1}");
    create("B", "{2}");
    create("C", "");
    create("D", "");
    EXPECT_THAT(captions(), ElementsAre("A", "B", "C", "D"));
}

// ---- designers ----

class DesignerWindows : public testing::Test {
protected:
    test::TestHost host;
    basic::Ref<vbide::VBProject> project =
        host.open(test::SampleProject("Demo").form("frmA").form("frmA1").module("Module1", ""));
    basic::Ref<vbide::VBComponent> form = project->VBComponents()->Item("frmA");
    Log activated;
    fernwick::Subscription watch = host.ide->Events()->VBComponentsEvents(project)->ItemActivated.connect(
        [this](const auto& component) { activated.push_back(component->Name()); });
};

TEST_F(DesignerWindows, AreTitledWithProjectAndForm) {
    EXPECT_EQ(form->DesignerWindow()->Caption(), "Demo - frmA (Form)");
    const auto control = project->VBComponents()->Add(vbide::vbext_ct_UserControl);
    EXPECT_EQ(control->DesignerWindow()->Caption(), "Demo - UserControl1 (UserControl)");
}

TEST_F(DesignerWindows, FollowBothNames) {
    const auto window = form->DesignerWindow();
    form->Name("frmMine");
    EXPECT_EQ(window->Caption(), "Demo - frmMine (Form)");
    project->Name("Other");
    EXPECT_EQ(window->Caption(), "Other - frmMine (Form)");
}

TEST_F(DesignerWindows, KeepANameWithoutTheirProject) {
    const auto window = form->DesignerWindow();
    project->VBComponents()->Remove(form);
    EXPECT_EQ(window->Caption(), "frmA");
    form = nullptr;
    EXPECT_TRUE(window->Caption().empty() || window->Caption() == "frmA");
}

TEST_F(DesignerWindows, ADesignerThatIsShownAgainIsActivated) {
    form->Activate();
    EXPECT_THAT(activated, ElementsAre("frmA"));
    activated.clear();
    form->DesignerWindow()->Close();
    EXPECT_THAT(activated, IsEmpty());
    form->DesignerWindow()->Visible(true);
    form->DesignerWindow()->Visible(true);
    EXPECT_THAT(activated, ElementsAre("frmA"));
}

TEST_F(DesignerWindows, OnlyTheSelectedComponentIsActivatedThatWay) {
    form->Activate();
    project->VBComponents()->Item("frmA1")->Activate();
    activated.clear();
    form->DesignerWindow()->Close();
    form->DesignerWindow()->Visible(true);
    EXPECT_THAT(activated, IsEmpty());
}

TEST_F(DesignerWindows, AnActivationIsReportedOnce) {
    form->Activate();
    form->DesignerWindow()->Close();
    activated.clear();
    form->Activate();
    EXPECT_THAT(activated, ElementsAre("frmA"));
}

TEST_F(DesignerWindows, ARemovedFormIsNotActivated) {
    form->Activate();
    const auto window = form->DesignerWindow();
    project->VBComponents()->Remove(form);
    activated.clear();
    window->Visible(false);
    window->Visible(true);
    EXPECT_THAT(activated, IsEmpty());
}

} // namespace
