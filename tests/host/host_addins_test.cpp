#include "Host/model/bars/bars.h"
#include "Host/model/windows/tool_windows.h"
#include "tests/support/test_host.h"

using basic::Ref;
using test::errorOf;
using test::SampleProject;
using test::TestHost;

namespace {

using Calls = std::vector<std::string>;

class NotedAddIn final : public vbide::IDTExtensibility {
public:
    NotedAddIn(Calls& calls, bool givesUp) : calls_(calls), givesUp_(givesUp) {}
    void IDTExtensibility_OnConnection(const Ref<vbide::VBE>& host, vbide::vbext_ConnectMode mode,
                                       const Ref<vbide::AddIn>& self) override {
        calls_.push_back("connection " + std::to_string(mode) + " " + std::to_string(host->VBProjects()->Count()));
        if (givesUp_) self->Connect(false);
        calls_.push_back("connected");
    }
    void IDTExtensibility_OnDisconnection(vbide::vbext_DisconnectMode mode) override {
        calls_.push_back("disconnection " + std::to_string(mode));
    }
    void IDTExtensibility_OnStartupComplete() override { calls_.push_back("startup"); }
    void IDTExtensibility_OnAddInsUpdate() override { calls_.push_back("update"); }

private:
    Calls& calls_;
    bool givesUp_;
};

/// Connects another add-in during its own connection, and fails when the list changes.
class ConnectingAddIn final : public vbide::IDTExtensibility {
public:
    explicit ConnectingAddIn(Calls& calls) : calls_(calls) {}
    void IDTExtensibility_OnConnection(const Ref<vbide::VBE>& host, vbide::vbext_ConnectMode,
                                       const Ref<vbide::AddIn>&) override {
        host->Addins()->Item("A")->Connect(true);
        calls_.push_back("both");
    }
    void IDTExtensibility_OnDisconnection(vbide::vbext_DisconnectMode) override {}
    void IDTExtensibility_OnStartupComplete() override {}
    void IDTExtensibility_OnAddInsUpdate() override { throw basic::RuntimeError(13); }

private:
    Calls& calls_;
};

class FailingAddIn final : public vbide::IDTExtensibility {
public:
    void IDTExtensibility_OnConnection(const Ref<vbide::VBE>&, vbide::vbext_ConnectMode,
                                       const Ref<vbide::AddIn>&) override {
        throw basic::RuntimeError(13);
    }
    void IDTExtensibility_OnDisconnection(vbide::vbext_DisconnectMode) override {}
    void IDTExtensibility_OnStartupComplete() override {}
    void IDTExtensibility_OnAddInsUpdate() override {}
};

/// Creates one kind of document.
class DocumentClasses final : public fernwick::Classes {
public:
    std::shared_ptr<void> RegisterClass(const std::string&, Factory) override { return nullptr; }
    Ref<fernwick::Object> CreateObject(const std::string& progId) override {
        if (progId != "QLVBAddIn.udocCompileMsgs") throw basic::RuntimeError(429);
        return basic::make<fernwick::Object>();
    }
    bool CLSIDFromString(const std::string&, std::string&) const override { return false; }
    std::string ProgIDFromCLSID(const std::string&) const override { return {}; }
    Ref<fernwick::TypeLibInfo> TypeLibInfoFromFile(const std::string&) const override { return nullptr; }
};

} // namespace

TEST(HostAddins, ConnectAndDisconnect) {
    TestHost host;
    Calls calls;
    host.ide->listAddIn("QLVBAddIn.Connect", "Fernwick", [&] { return basic::make<NotedAddIn>(calls, false); });
    const auto addIn = host.ide->Addins()->Item("QLVBAddIn.Connect");
    EXPECT_EQ(addIn->ProgId(), "QLVBAddIn.Connect");
    EXPECT_FALSE(addIn->Connect());
    host.open(SampleProject());
    host.ide->connectAddIn("QLVBAddIn.Connect", vbide::vbext_cm_CommandLine);
    EXPECT_TRUE(addIn->Connect());
    addIn->Connect(true);
    host.ide->startupComplete();
    host.ide->close();
    EXPECT_FALSE(addIn->Connect());
    EXPECT_EQ(calls, (Calls{"connection 3 1", "connected", "update", "startup", "disconnection 0"}));
    addIn->Connect(true);
    addIn->Connect(false);
    EXPECT_EQ(calls.back(), "disconnection 1");
    EXPECT_EQ(errorOf([&] { host.ide->Addins()->Item("qlvbaddin.connect"); }), 9);
    EXPECT_EQ(errorOf([&] { host.ide->connectAddIn("None", vbide::vbext_cm_Startup); }), 9);
}

TEST(HostAddins, OneThatDisconnectsItselfIsDisconnectedAfterItsStart) {
    TestHost host;
    Calls calls;
    host.ide->listAddIn("A", "", [&] { return basic::make<NotedAddIn>(calls, true); });
    host.ide->connectAddIn("A", vbide::vbext_cm_Startup);
    EXPECT_EQ(calls, (Calls{"connection 1 0", "connected", "disconnection 1"}));
    EXPECT_FALSE(host.ide->Addins()->Item("A")->Connect());
}

TEST(HostAddins, EachConnectionAndDisconnectionIsReportedToTheConnectedOnes) {
    TestHost host;
    Calls calls;
    host.ide->listAddIn("A", "", [&] { return basic::make<NotedAddIn>(calls, false); });
    host.ide->listAddIn("B", "", [&] { return basic::make<ConnectingAddIn>(calls); });
    host.ide->connectAddIn("B", vbide::vbext_cm_Startup);
    EXPECT_EQ(calls, (Calls{"connection 0 0", "connected", "update", "both", "update"}));
    ASSERT_EQ(host.failures.size(), 1u); // not during its own connection
    EXPECT_EQ(host.failures.front().Number, 13);
    calls.clear();
    host.ide->Addins()->Item("B")->Connect(false);
    EXPECT_EQ(calls, Calls{"update"});
    host.ide->Addins()->Item("A")->Connect(false);
    EXPECT_EQ(calls, (Calls{"update", "disconnection 1"}));
}

TEST(HostAddins, AFailedStartLeavesItDisconnected) {
    TestHost host;
    host.ide->listAddIn("A", "", [] { return basic::make<FailingAddIn>(); });
    EXPECT_EQ(errorOf([&] { host.ide->connectAddIn("A", vbide::vbext_cm_Startup); }), 13);
    EXPECT_FALSE(host.ide->Addins()->Item("A")->Connect());
}

TEST(HostAddins, ClosingRemovesTheProjectsFirst) {
    TestHost host;
    Calls calls;
    host.ide->listAddIn("A", "", [&] { return basic::make<NotedAddIn>(calls, false); });
    host.ide->connectAddIn("A", vbide::vbext_cm_Startup);
    host.open(SampleProject());
    const auto removed =
        host.ide->Events()->VBProjectsEvents()->ItemRemoved.connect([&](auto) { calls.push_back("removed"); });
    host.ide->close();
    EXPECT_EQ(calls, (Calls{"connection 1 0", "connected", "update", "removed", "disconnection 0"}));
}

TEST(HostAddins, WithoutClassesNoToolWindowIsCreated) {
    TestHost host;
    host.ide->listAddIn("QLVBAddIn.Connect", "", [] { return basic::make<FailingAddIn>(); });
    const auto addIn = host.ide->Addins()->Item("QLVBAddIn.Connect");
    Ref<vbide::Object> document;
    EXPECT_EQ(errorOf([&] { host.ide->Windows()->CreateToolWindow(addIn, "Any", "", "", document); }), 429);
    EXPECT_TRUE(host.ide->Windows()->items().empty());
}

TEST(HostAddins, AToolWindowHasADocumentAndIsHidden) {
    DocumentClasses classes;
    TestHost host(&classes);
    host.ide->listAddIn("QLVBAddIn.Connect", "", [] { return basic::make<FailingAddIn>(); });
    const auto addIn = host.ide->Addins()->Item("QLVBAddIn.Connect");
    Ref<vbide::Object> document;
    int reported = 0;
    const auto added = host.ide->toolWindows().added.connect([&] { ++reported; });
    const auto window = host.ide->Windows()->CreateToolWindow(addIn, "QLVBAddIn.udocCompileMsgs", "Fernwick Messages",
                                                              "{8531D96D-DE1E-11d2-8E96-00104B78F251}", document);
    EXPECT_TRUE(document);
    EXPECT_EQ(reported, 1);
    EXPECT_EQ(host.ide->toolWindows().list().front()->document(), document);
    EXPECT_FALSE(window->Visible());
    EXPECT_EQ(window->Caption(), "Fernwick Messages");
    EXPECT_EQ(host.ide->Windows()->items().size(), 1u);
    auto& drawn = *host.ide->toolWindows().list().front();
    int changes = 0, focuses = 0;
    const auto changed = drawn.changed.connect([&] { ++changes; });
    const auto focused = drawn.focused.connect([&] { ++focuses; });
    window->SetFocus();
    EXPECT_TRUE(window->Visible());
    EXPECT_EQ(std::pair(changes, focuses), std::pair(1, 1));
    window->SetFocus();
    window->Visible(true);
    EXPECT_EQ(std::pair(changes, focuses), std::pair(1, 2)); // it was visible
    EXPECT_EQ(window->WindowState(), vbide::vbext_ws_Normal);
    window->WindowState(vbide::vbext_ws_Maximize);
    window->WindowState(vbide::vbext_ws_Maximize);
    EXPECT_EQ(window->WindowState(), vbide::vbext_ws_Maximize);
    EXPECT_EQ(changes, 2);
    window->Close();
    EXPECT_FALSE(window->Visible());
    EXPECT_EQ(std::pair(changes, focuses), std::pair(3, 2));
    const auto refused =
        basic::attempt([&] { host.ide->Windows()->CreateToolWindow(addIn, "None.Such", "", "", document); });
    EXPECT_EQ(refused.Number, 429);
    EXPECT_EQ(refused.Source, "VBIDE"); // the host creates the document
    EXPECT_EQ(errorOf([&] { host.ide->Windows()->CreateToolWindow(nullptr, "x", "", "", document); }), 5);
    EXPECT_EQ(host.ide->TemplatePath(), host.folder / "Template");
}
