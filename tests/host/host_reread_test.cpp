// Components whose file was changed by another program, or whose text was restored from a journal.
#include "Host/model/component.h"
#include "Host/model/components.h"
#include "Host/model/project.h"
#include "tests/support/test_host.h"

using test::errorOf;
using test::formText;
using test::moduleText;
using test::SampleProject;

namespace {

class HostReread : public testing::Test {
protected:
    std::shared_ptr<host::Component> opened(const SampleProject& sample) {
        project = host.open(sample);
        return basic::cast<host::Component>(project->VBComponents()->Item(1)).shared();
    }
    static std::string codeOf(host::Component& component) {
        const auto module = component.CodeModule();
        return module->Lines(1, module->CountOfLines());
    }

    test::TestHost host;
    basic::Ref<vbide::VBProject> project;
};

SampleProject oneModule() { return SampleProject().module("modA", "' old\r\n"); }

} // namespace

TEST_F(HostReread, ShowsTheChangesOfAnotherProgram) {
    const auto component = opened(oneModule());
    component->CodeModule()->InsertLines(1, "' mine");
    host.folder.write("modA.bas", moduleText("modA", "' theirs\r\nSub B()\r\nEnd Sub\r\n"));
    int reported = 0;
    const auto changed = host.ide->panes.codeChanged.connect([&](const auto&) { ++reported; });
    component->reread();
    EXPECT_EQ(codeOf(*component), "' theirs\r\nSub B()\r\nEnd Sub");
    EXPECT_EQ(component->CodeModule()->ProcStartLine("B", vbide::vbext_pk_Proc), 1);
    EXPECT_FALSE(component->IsDirty());
    EXPECT_EQ(reported, 1);
    component->CodeModule()->InsertLines(1, "' more");
    component->SaveAs(component->path()); // replaces the file that was read last
    EXPECT_EQ(host.folder.read("modA.bas"), moduleText("modA", "' more\r\n' theirs\r\nSub B()\r\nEnd Sub\r\n"));
}

TEST_F(HostReread, MembersAreThoseOfTheNewText) {
    const auto component = opened(SampleProject().module("modA", "Sub A()\r\nEnd Sub\r\n"));
    const auto module = component->CodeModule();
    EXPECT_EQ(module->Members().front().Name, "A");
    host.folder.write("modA.bas", moduleText("modA", "Sub B()\r\nEnd Sub\r\n"));
    component->reread();
    EXPECT_EQ(module->Members().front().Name, "B");
}

TEST_F(HostReread, ItsDesignerIsReplaced) {
    const auto component = opened(SampleProject().form("frmA"));
    const auto old = component->Designer();
    host.folder.write("frmA.frm",
                      "VERSION 5.00\r\nBegin VB.Form frmA \r\n   Begin VB.Label lblNew \r\n   End\r\nEnd\r\n"
                      "Attribute VB_Name = \"frmA\"\r\n");
    std::vector<std::string> reloaded;
    const auto own = basic::cast<host::Project>(project).shared();
    const auto events =
        own->componentsEvents->ItemReloaded.connect([&](const auto& one) { reloaded.push_back(one->Name()); });
    component->reread();
    EXPECT_EQ(component->Designer()->VBControls()->Count(), 1);
    EXPECT_EQ(errorOf([&] { (void)old->VBControls()->Count(); }), 440);
    EXPECT_EQ(reloaded, std::vector<std::string>{"frmA"});
}

TEST_F(HostReread, ItsNewNameIsAdopted) {
    const auto component = opened(SampleProject().form("frmA").startup("frmA"));
    host.folder.write("frmA.frm", formText("frmB"));
    component->reread();
    EXPECT_EQ(component->Name(), "frmB");
    EXPECT_TRUE(project->VBComponents()->Item("frmB"));
    EXPECT_EQ(project->VBComponents()->StartUpObject().component->Name(), "frmB");
}

TEST_F(HostReread, AFailureChangesNothing) {
    const auto component = opened(oneModule().module("modB"));
    component->CodeModule()->InsertLines(1, "' mine");
    host.folder.write("modA.bas", moduleText("modB", "' theirs\r\n"));
    EXPECT_EQ(errorOf([&] { component->reread(); }), 32813);
    host.folder.write("modA.bas", std::string("\x7f"
                                              "ELF\0\1\2",
                                              7));
    EXPECT_EQ(errorOf([&] { component->reread(); }), 321);
    std::filesystem::remove(host.folder / "modA.bas");
    EXPECT_EQ(errorOf([&] { component->reread(); }), 53);
    EXPECT_EQ(codeOf(*component), "' mine\r\n' old");
    EXPECT_TRUE(component->IsDirty());
}

TEST_F(HostReread, RestoredTextIsUnsaved) {
    const auto component = opened(oneModule());
    component->restore(moduleText("modA", "' kept\r\n"), component->stamp());
    EXPECT_EQ(codeOf(*component), "' kept");
    EXPECT_TRUE(component->IsDirty());
    EXPECT_EQ(host.folder.read("modA.bas"), moduleText("modA", "' old\r\n"));
    component->SaveAs(component->path());
    EXPECT_EQ(host.folder.read("modA.bas"), moduleText("modA", "' kept\r\n"));
}

TEST_F(HostReread, RestoredTextOfAnOlderFileDoesNotReplaceTheNewerOne) {
    auto component = opened(oneModule());
    const auto base = component->stamp();
    host.ide->VBProjects()->Remove(project);
    host.folder.write("modA.bas", moduleText("modA", "' newer than that\r\n"));
    project = host.openFile(host.folder / "Hello.vbp");
    component = basic::cast<host::Component>(project->VBComponents()->Item(1)).shared();
    component->restore(moduleText("modA", "' kept\r\n"), base);
    EXPECT_EQ(errorOf([&] { component->SaveAs(component->path()); }), 75);
    EXPECT_EQ(host.folder.read("modA.bas"), moduleText("modA", "' newer than that\r\n"));
}

TEST_F(HostReread, ATextWithoutAFileBecomesAComponent) {
    opened(oneModule());
    auto& components = basic::cast<host::Project>(project)->components();
    const auto added = components.addSource(vbide::vbext_ct_StdModule, "modNew", moduleText("modNew", "' kept\r\n"));
    EXPECT_EQ(codeOf(*added), "' kept");
    EXPECT_TRUE(added->IsDirty());
    EXPECT_EQ(added->FileNames(1), "");
    EXPECT_EQ(errorOf([&] { components.addSource(vbide::vbext_ct_StdModule, "modA", moduleText("modA")); }), 32813);
}

// ---- saving over changes of another program -------------------------------------------------------------------------

namespace {

class AskingHost : public testing::Test {
protected:
    AskingHost() {
        host::HostOptions options;
        options.mayReplaceChanged = [this](const std::string& path) {
            asked.push_back(path);
            return mayReplace;
        };
        ide = host::Host::create(std::move(options));
        component = ide->VBProjects()->AddFromFile(oneModule().writeTo(folder))->VBComponents()->Item(1);
        component->CodeModule()->InsertLines(1, "' mine");
    }
    void save() { component->SaveAs(component->FileNames(1)); }

    test::TempFolder folder;
    std::shared_ptr<host::Host> ide;
    basic::Ref<vbide::VBComponent> component;
    std::vector<std::string> asked;
    bool mayReplace = true;
    const std::string mine = moduleText("modA", "' mine\r\n' old\r\n"), theirs = moduleText("modA", "' theirs\r\n");
};

} // namespace

TEST_F(AskingHost, DoesNotAskForAnUnchangedFile) {
    save();
    EXPECT_EQ(folder.read("modA.bas"), mine);
    EXPECT_TRUE(asked.empty());
}

TEST_F(AskingHost, DoesNotAskForAFileThatTheProjectDidNotReadFrom) {
    const auto path = folder.write("modOther.bas", theirs);
    component->SaveAs(path);
    EXPECT_EQ(folder.read("modOther.bas"), mine);
    EXPECT_TRUE(asked.empty());
}

TEST_F(AskingHost, WithoutAQuestionRefusesToReplaceAChangedFile) {
    ide = host::Host::create({});
    component = ide->VBProjects()->AddFromFile(folder / "Hello.vbp")->VBComponents()->Item(1);
    component->CodeModule()->InsertLines(1, "' mine");
    folder.write("modA.bas", theirs);
    EXPECT_EQ(errorOf([&] { save(); }), 75);
    EXPECT_EQ(folder.read("modA.bas"), theirs);
    EXPECT_TRUE(component->IsDirty());
}

TEST_F(AskingHost, ReplacesTheFileIfTheUserAgrees) {
    const auto path = folder.write("modA.bas", theirs);
    save();
    EXPECT_EQ(asked, std::vector<std::string>{path});
    EXPECT_EQ(folder.read("modA.bas"), mine);
    EXPECT_FALSE(component->IsDirty());
    component->CodeModule()->InsertLines(1, "' more");
    save();
    EXPECT_EQ(asked.size(), 1u);
}

TEST_F(AskingHost, OtherwiseKeepsBoth) {
    folder.write("modA.bas", theirs);
    mayReplace = false;
    std::vector<int> results;
    const auto events = ide->Events()->FileControlEvents(nullptr);
    const auto after =
        events->AfterWriteFile.connect([&](auto, const auto&, int result) { results.push_back(result); });
    save();
    EXPECT_EQ(folder.read("modA.bas"), theirs);
    EXPECT_TRUE(component->IsDirty());
    EXPECT_EQ(results, std::vector<int>{1});
}

TEST_F(AskingHost, AMissingFileIsWrittenAgain) {
    std::filesystem::remove(folder / "modA.bas");
    save();
    EXPECT_EQ(folder.read("modA.bas"), mine);
    EXPECT_TRUE(asked.empty());
}
