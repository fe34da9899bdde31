#include "Add-in/platform/with_events.h"
#include "Host/model/project.h"
#include "tests/support/test_host.h"
#include <sys/stat.h>

using basic::Ref;
using fernwick::Subscription;
using test::errorOf;
using test::SampleProject;
using test::TestHost;

namespace {

using Calls = std::vector<std::string>;

/// Logs the events of a host.
class EventLog {
public:
    explicit EventLog(TestHost& host) : events_(host.ide->Events()) {
        const auto projects = events_->VBProjectsEvents();
        note(projects->ItemAdded, "added ");
        note(projects->ItemRemoved, "removed ");
        note(projects->ItemActivated, "activated ");
        keep(projects->ItemRenamed.connect([this](Ref<vbide::VBProject> project, const std::string& old) {
            calls.push_back("renamed " + old + " " + project->Name());
        }));
        watchFiles(nullptr);
    }
    void watchFiles(const Ref<vbide::VBProject>& project) {
        const auto files = events_->FileControlEvents(project);
        const std::string mark = project ? "own " : "";
        keep(files->BeforeLoadFile.connect([=, this](Ref<vbide::VBProject> p, const std::vector<std::string>& names) {
            calls.push_back(mark + "loading " + nameOf(names.front()) + (p->FileName().empty() ? " new" : ""));
        }));
        keep(files->RequestWriteFile.connect([=, this](Ref<vbide::VBProject>, const std::string& path, bool& cancel) {
            calls.push_back(mark + "writing " + nameOf(path));
            if (cancelWrites) cancel = true;
        }));
        keep(files->AfterWriteFile.connect([=, this](Ref<vbide::VBProject>, const std::string& path, int result) {
            calls.push_back(mark + "wrote " + nameOf(path) + " " + std::to_string(result));
        }));
    }
    void watchComponents(const Ref<vbide::VBProject>& project) {
        const auto components = events_->VBComponentsEvents(project);
        const auto log = [this](const char* what) {
            return [this, what](Ref<vbide::VBComponent> c) { calls.push_back(std::string(what) + " " + c->Name()); };
        };
        keep(components->ItemAdded.connect(log("added")));
        keep(components->ItemRemoved.connect(log("removed")));
        keep(components->ItemSelected.connect(log("selected")));
        keep(components->ItemActivated.connect(log("activated")));
        keep(components->ItemRenamed.connect([this](Ref<vbide::VBComponent> c, const std::string& old) {
            calls.push_back("renamed " + old + " " + c->Name());
        }));
    }
    void keep(Subscription subscription) { subscriptions_.push_back(std::move(subscription)); }

    Calls calls;
    bool cancelWrites = false;

private:
    static std::string nameOf(const std::string& path) { return std::filesystem::path(path).filename().string(); }
    void note(fernwick::Event<Ref<vbide::VBProject>>& event, const char* what) {
        keep(event.connect([this, what](Ref<vbide::VBProject> project) { calls.push_back(what + project->Name()); }));
    }

    Ref<vbide::Events> events_;
    std::vector<Subscription> subscriptions_;
};

} // namespace

TEST(HostEvents, OpeningRaisesLoadAndAdded) {
    TestHost host;
    EventLog log(host);
    host.open(SampleProject().form("frmA"));
    EXPECT_EQ(log.calls, (Calls{"loading Hello.vbp", "added Hello"}));
}

TEST(HostEvents, BeforeALoadTheProjectHasOnlyItsFileName) {
    TestHost host;
    std::string file;
    int components = -1;
    const auto seen = host.ide->Events()->FileControlEvents(nullptr)->BeforeLoadFile.connect(
        [&](Ref<vbide::VBProject> project, const std::vector<std::string>&) {
            file = project->FileName();
            components = project->VBComponents()->Count();
        });
    const auto project = host.open(SampleProject().form("frmA"));
    EXPECT_EQ(file, project->FileName());
    EXPECT_EQ(components, 0);
}

TEST(HostEvents, TheNewProjectIsActiveWhenItIsAdded) {
    TestHost host;
    const auto first = host.open(SampleProject("First"));
    Ref<vbide::VBProject> activeWhenAdded;
    const auto added = host.ide->Events()->VBProjectsEvents()->ItemAdded.connect(
        [&](Ref<vbide::VBProject>) { activeWhenAdded = host.ide->ActiveVBProject(); });
    const auto second = host.open(SampleProject("Second"));
    EXPECT_EQ(activeWhenAdded, second);
    EXPECT_EQ(host.ide->ActiveVBProject(), second);
    EventLog log(host);
    host.ide->ActiveVBProject(first);
    host.ide->ActiveVBProject(first);
    EXPECT_EQ(log.calls, (Calls{"activated First"}));
}

TEST(HostEvents, ARemovedProjectStillCountsInItsEvent) {
    TestHost host;
    const auto project = host.open(SampleProject());
    int counted = 0;
    std::string name;
    const auto removed = host.ide->Events()->VBProjectsEvents()->ItemRemoved.connect([&](Ref<vbide::VBProject> p) {
        counted = host.ide->VBProjects()->Count();
        name = p->Name();
        p->WriteProperty("A", "k", "v");
        p->SaveAs(p->FileName());
    });
    host.ide->VBProjects()->Remove(project);
    EXPECT_EQ(counted, 1);
    EXPECT_EQ(name, "Hello");
    EXPECT_NE(host.folder.read("Hello.vbp").find("[A]\r\nk=v\r\n"), std::string::npos);
}

TEST(HostEvents, RemovingTheActiveProjectActivatesAnother) {
    TestHost host;
    const auto first = host.open(SampleProject("First"));
    const auto second = host.open(SampleProject("Second"));
    EventLog log(host);
    host.ide->VBProjects()->Remove(second);
    EXPECT_EQ(log.calls, (Calls{"removed Second", "activated First"}));
    EXPECT_EQ(host.ide->ActiveVBProject(), first);
    EXPECT_EQ(errorOf([&] { host.ide->ActiveVBProject(second); }), 5);
}

TEST(HostEvents, RemovingTheActiveProjectActivatesTheNewest) {
    TestHost host;
    const auto first = host.open(SampleProject("First"));
    host.open(SampleProject("Second"));
    const auto third = host.open(SampleProject("Third"));
    host.ide->ActiveVBProject(first);
    host.ide->VBProjects()->Remove(first);
    EXPECT_EQ(host.ide->ActiveVBProject(), third);
}

TEST(HostEvents, AWriteIsRequestedAndReported) {
    TestHost host;
    const auto project = host.open(SampleProject().form("frmA"));
    EventLog log(host);
    log.watchFiles(project);
    project->SaveAs(project->FileName());
    const auto form = project->VBComponents()->Item(1);
    form->SaveAs(form->FileNames(1));
    EXPECT_EQ(log.calls,
              (Calls{"own writing Hello.vbp", "writing Hello.vbp", "own wrote Hello.vbp 0", "wrote Hello.vbp 0",
                     "own writing frmA.frm", "writing frmA.frm", "own wrote frmA.frm 0", "wrote frmA.frm 0"}));
}

TEST(HostEvents, ACancelledWriteWritesNothingAndIsNoError) {
    TestHost host;
    const auto sample = SampleProject().form("frmA");
    const auto project = host.open(sample);
    project->WriteProperty("A", "k", "v");
    EventLog log(host);
    log.cancelWrites = true;
    project->SaveAs(project->FileName());
    project->SaveAs(host.folder / "Other.vbp");
    EXPECT_EQ(log.calls, (Calls{"writing Hello.vbp", "wrote Hello.vbp 1", "writing Other.vbp", "wrote Other.vbp 1"}));
    EXPECT_TRUE(project->IsDirty());
    EXPECT_EQ(project->FileName(), host.folder / "Hello.vbp");
    EXPECT_EQ(host.folder.read("Hello.vbp"), sample.text());
    EXPECT_FALSE(std::filesystem::exists(host.folder / "Other.vbp"));
}

TEST(HostEvents, AFailedWriteIsReportedBeforeItsError) {
    TestHost host;
    const auto project = host.open(SampleProject());
    ::chmod(project->FileName().c_str(), 0444);
    project->WriteProperty("A", "k", "v");
    EventLog log(host);
    EXPECT_EQ(errorOf([&] { project->SaveAs(project->FileName()); }), 75);
    EXPECT_EQ(log.calls, (Calls{"writing Hello.vbp", "wrote Hello.vbp 2"}));
}

TEST(HostEvents, ANewFormIsAddedSelectedAndActivated) {
    TestHost host;
    const auto project = host.open(SampleProject());
    EventLog log(host);
    log.watchComponents(project);
    const auto form = project->VBComponents()->Add(vbide::vbext_ct_VBForm);
    form->Name("frmNew");
    project->VBComponents()->Remove(form);
    EXPECT_EQ(log.calls,
              (Calls{"added Form1", "selected Form1", "activated Form1", "renamed Form1 frmNew", "removed frmNew"}));
}

TEST(HostEvents, AComponentThatAHandlerRemovesIsNotActivated) {
    TestHost host;
    const auto project = host.open(SampleProject());
    EventLog log(host);
    log.watchComponents(project);
    log.keep(host.ide->Events()->VBComponentsEvents(project)->ItemAdded.connect(
        [&](Ref<vbide::VBComponent> component) { project->VBComponents()->Remove(component); }));
    const auto control = project->VBComponents()->Add(vbide::vbext_ct_UserControl);
    EXPECT_EQ(log.calls, (Calls{"added UserControl1", "removed UserControl1"}));
    EXPECT_EQ(project->VBComponents()->Count(), 0);
    EXPECT_EQ(errorOf([&] { control->Name(); }), 440);
}

TEST(HostEvents, ControlsRaiseEventsOfTheirForm) {
    TestHost host;
    const auto project = host.open(SampleProject().form("frmA").form("frmB"));
    const auto form = project->VBComponents()->Item(1)->Designer();
    Calls calls;
    const auto source = host.ide->Events()->VBControlsEvents(project, form);
    EXPECT_EQ(source, host.ide->Events()->VBControlsEvents(project, form));
    Ref<vbide::VBControl> gone;
    const auto added = source->ItemAdded.connect(
        [&](Ref<vbide::VBControl> control) { calls.push_back("added " + control->ClassName()); });
    const auto removed = source->ItemRemoved.connect([&](Ref<vbide::VBControl> control) { gone = control; });
    const auto control = form->VBControls()->Add("VB.TextBox");
    EXPECT_TRUE(project->VBComponents()->Item(1)->IsDirty());
    project->VBComponents()->Item(2)->Designer()->VBControls()->Add("VB.Label");
    form->VBControls()->Remove(control);
    EXPECT_EQ(calls, (Calls{"added TextBox"}));
    EXPECT_EQ(gone, control);
    EXPECT_FALSE(project->VBComponents()->Item(1)->IsDirty()); // its text is that of its file again
    EXPECT_EQ(errorOf([&] { host.ide->Events()->VBControlsEvents(project, nullptr); }), 91);
}

TEST(HostEvents, EachObjectHasOneSource) {
    TestHost host;
    const auto project = host.open(SampleProject());
    const auto events = host.ide->Events();
    EXPECT_EQ(events->VBProjectsEvents(), events->VBProjectsEvents());
    EXPECT_EQ(events->VBComponentsEvents(project), events->VBComponentsEvents(project));
    EXPECT_EQ(events->ReferencesEvents(project), events->ReferencesEvents(project));
    EXPECT_EQ(events->FileControlEvents(project), events->FileControlEvents(project));
    EXPECT_EQ(events->FileControlEvents(nullptr), events->FileControlEvents(nullptr));
    EXPECT_EQ(events->VBBuildEvents(), events->VBBuildEvents());
    EXPECT_EQ(errorOf([&] { events->VBComponentsEvents(nullptr); }), 91);
    EXPECT_EQ(errorOf([&] { events->CommandBarEvents(nullptr); }), 91);
}

TEST(HostEvents, AnErrorOfAHandlerStopsNeitherLoadNorSaveNorClose) {
    TestHost host;
    const auto events = host.ide->Events();
    const auto fail = [](auto&&...) { throw basic::RuntimeError(13); };
    std::vector<Subscription> kept;
    kept.push_back(events->VBProjectsEvents()->ItemAdded.connect(fail));
    kept.push_back(events->VBProjectsEvents()->ItemActivated.connect(fail));
    kept.push_back(events->VBProjectsEvents()->ItemRemoved.connect(fail));
    kept.push_back(events->FileControlEvents(nullptr)->BeforeLoadFile.connect(fail));
    kept.push_back(events->FileControlEvents(nullptr)->RequestWriteFile.connect(fail));
    kept.push_back(events->FileControlEvents(nullptr)->AfterWriteFile.connect(fail));
    const auto other = host.open(SampleProject("Other"));
    host.failures.clear();
    const auto project = host.open(SampleProject());
    project->WriteProperty("A", "k", "v");
    project->SaveAs(project->FileName());
    EXPECT_FALSE(project->IsDirty());
    host.ide->VBProjects()->Remove(project);
    EXPECT_EQ(host.ide->ActiveVBProject(), other);
    ASSERT_EQ(host.failures.size(), 6u);
    EXPECT_EQ(host.failures[0].Number, 13);
}

TEST(HostEvents, AProjectMayBeRemovedWhileItIsAdded) {
    TestHost host;
    const auto added = host.ide->Events()->VBProjectsEvents()->ItemAdded.connect(
        [&](Ref<vbide::VBProject> project) { host.ide->VBProjects()->Remove(project); });
    const auto project = host.open(SampleProject());
    EXPECT_EQ(host.ide->VBProjects()->Count(), 0);
    EXPECT_FALSE(host.ide->ActiveVBProject());
    EXPECT_EQ(errorOf([&] { project->Name(); }), 440);
}

TEST(HostEvents, ARemovalRequestedInItsOwnEventHappensOnce) {
    TestHost host;
    const auto project = host.open(SampleProject().form("frmA"));
    EventLog log(host);
    log.watchComponents(project);
    const auto form = project->VBComponents()->Item(1);
    log.keep(host.ide->Events()->VBComponentsEvents(project)->ItemRemoved.connect(
        [&](Ref<vbide::VBComponent> component) { project->VBComponents()->Remove(component); }));
    log.keep(host.ide->Events()->VBProjectsEvents()->ItemRemoved.connect(
        [&](Ref<vbide::VBProject> removed) { host.ide->VBProjects()->Remove(removed); }));
    project->VBComponents()->Remove(form);
    host.ide->VBProjects()->Remove(project);
    EXPECT_EQ(log.calls, (Calls{"removed frmA", "removed Hello"}));
    EXPECT_EQ(host.ide->VBProjects()->Count(), 0);
}

TEST(HostEvents, AProjectMayReplaceAnotherInItsAddedEvent) {
    TestHost host;
    const auto second = SampleProject("Second").writeTo(host.folder);
    bool first = true;
    const auto added = host.ide->Events()->VBProjectsEvents()->ItemAdded.connect([&](Ref<vbide::VBProject>) {
        if (std::exchange(first, false)) host.ide->VBProjects()->AddFromFile(second, true);
    });
    host.open(SampleProject("First"));
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
    EXPECT_EQ(host.ide->ActiveVBProject()->Name(), "Second");
}

TEST(HostEvents, ClosingAllActivatesNone) {
    TestHost host;
    host.open(SampleProject("First"));
    host.ide->ActiveVBProject(host.open(SampleProject("Second")));
    host.open(SampleProject("Third"));
    EventLog log(host);
    host.ide->close();
    EXPECT_EQ(log.calls, (Calls{"removed First", "removed Second", "removed Third"}));
}

TEST(HostEvents, AComponentActivatedByAHandlerStaysActive) {
    TestHost host;
    const auto template_ =
        host.folder.write("Template/Modules/Template.bas", test::moduleText("Module1", "' ours\r\n"));
    const auto project = host.open(SampleProject());
    bool replaced = false;
    const auto added = host.ide->Events()->VBComponentsEvents(project)->ItemAdded.connect([&](Ref<vbide::VBComponent>) {
        if (!std::exchange(replaced, true)) project->VBComponents()->AddFile(template_);
    });
    project->VBComponents()->Add(vbide::vbext_ct_StdModule);
    // it has the name of the one that it replaces
    EXPECT_EQ(host.ide->SelectedVBComponent()->Name(), "Module1");
    EXPECT_EQ(host.ide->SelectedVBComponent()->CodeModule()->Lines(1, 1), "' ours");
    EXPECT_EQ(project->VBComponents()->Item("Module2")->CodeModule()->CountOfLines(), 0);
}

TEST(HostEvents, ARenamedProjectReportsItsOldName) {
    TestHost host;
    const auto project = host.open(SampleProject());
    EventLog log(host);
    project->Name("World");
    project->Name("World");
    EXPECT_EQ(log.calls, (Calls{"renamed Hello World"}));
}
