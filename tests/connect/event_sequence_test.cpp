// The add-in in a real host: sequences of events, with further events during each DoEvents.
#include "event_tape.h"
#include "tests/support/form_text.h"
#include "whole_world.h"

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

class EventSequence : public testing::Test, protected test::WholeWorld {
protected:
    EventSequence() {
        targets.known = {"Palm-1"};
        connect();
        tape.recordEnds();
    }
    void TearDown() override {
        EXPECT_TRUE(host.failures.empty());
        EXPECT_THAT(boxes("box 16 "), IsEmpty()); // no report of an unexpected error
    }
    std::vector<std::string> boxes(const std::string& kind = "box ") const {
        std::vector<std::string> shown;
        for (const auto& effect : trace.effects)
            if (effect.starts_with(kind)) shown.push_back(effect);
        return shown;
    }
    /// Creates a template project for the host or, in the installation's folder, for the design targets.
    std::string templateProject(const std::string& folder, const std::string& name, const std::string& device = {}) {
        test::SampleProject project("Project1");
        return host.folder.write(folder + "/" + name, project.handheld(device).text());
    }
    std::string hostsTemplate() { return templateProject("Template/Projects", "Fernwick Project.vbp"); }
    void giveTargetsTemplates() {
        targets.templates.project = templateProject("install/VB Toolkit/Template/Projects", "Palm.vbp", "Palm-1");
    }
    basic::Ref<vbide::VBProject> openNew() {
        host.ide->VBProjects()->AddFromTemplate(hostsTemplate());
        return host.ide->ActiveVBProject();
    }
    void openStub() {
        auto stub = test::SampleProject("Fernwick").handheld();
        stub.sections("StartUpProject={8A515BDE-2BCC-4ed4-8F0A-99E4522CC1BB}\r\n");
        host.ide->VBProjects()->AddFromTemplate(host.folder.write("Template/Projects/Fernwick.vbp", stub.text()));
    }
    basic::Ref<vbide::VBProject> active() { return host.ide->ActiveVBProject(); }
    static std::string stored(const basic::Ref<vbide::VBProject>& project, const std::string& key) {
        std::string value = "(none)";
        (void)basic::attempt([&] { value = project->ReadProperty("Quinloft Global", key); });
        return value;
    }
    std::vector<std::string> componentNames() {
        std::vector<std::string> names;
        for (const auto& component : active()->VBComponents()->items()) names.push_back(component->Name());
        return names;
    }
    /// Converts each project whose device is not available to this file.
    void copyTo(const std::string& path) {
        user.savedAs = {path};
        user.whenShown["frmDesignTargetConverterWarning"] = [](auto& form) { test::press(form, "cmdRunConverter"); };
        user.whenShown["frmDesignTargetConverter"] = [this](auto& form) {
            addIn().converter.lstDesignTargets.ListIndex(0);
            test::press(form, "btnOK");
        };
    }
    std::string bytesOf(const std::string& path) const {
        return host.folder.read(path.substr(host.folder.path().size() + 1));
    }
    static test::SampleProject named(const std::string& name) {
        test::SampleProject sample(name);
        return sample.module("Module9").handheld("Palm-1");
    }

    test::EventTape tape{*host.ide};
};

// ---- new projects
// --------------------------------------------------------------------------------------------------------

TEST_F(EventSequence, ANewProjectIsMadeFromTheTargetsTemplate) {
    giveTargetsTemplates();
    openNew();
    loop.turn();
    EXPECT_THAT(tape.lines, ElementsAre("load Fernwick Project.vbp", "added Project1", "removed Project1",
                                        "load Palm.vbp", "added Project1", " Form1 added", " Form1 activated"));
    const auto project = active();
    EXPECT_EQ(project->FileName(), "");
    EXPECT_EQ(stored(project, "OpenedFromQLTemplate"), "True");
    EXPECT_EQ(stored(project, "TargetDevice"), "Palm-1");
    EXPECT_EQ(project->VBComponents()->StartUpObject().component->Name(), "Form1");
    EXPECT_TRUE(items().gCompileItem->Enabled());
    EXPECT_FALSE(loop.hasTimers());
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(EventSequence, ItsFormHasTheDevicesSize) {
    openNew();
    const auto form = active()->VBComponents()->Item("Form1");
    EXPECT_EQ(fernwick::asDouble(form->Properties()->Item("ScaleWidth")->Value()), 160);
    EXPECT_EQ(form->CodeModule()->Lines(1, 1), "Option Explicit");
    EXPECT_EQ(stored(active(), "OpenedFromQLTemplate"), "(none)"); // the target has no template
}

TEST_F(EventSequence, BesideAnotherProjectOpensTheNewOneFirst) {
    giveTargetsTemplates();
    host.open(named("Other"));
    tape.lines.clear();
    openNew();
    loop.turn();
    EXPECT_THAT(tape.lines, ElementsAre("load Fernwick Project.vbp", "added Project1", "load Palm.vbp",
                                        "added Project2", " Form1 added", " Form1 activated", "activated Project1",
                                        "removed Project1", "activated Project2"));
    EXPECT_EQ(active()->Name(), "Project2");
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(EventSequence, ReplacesTheBlankFormByItsTemplate) {
    targets.templates.form = host.folder.write("Template/Forms/Palm.frm", test::formText("frmPalm", "' ours\r\n"));
    openNew();
    EXPECT_EQ(active()->VBComponents()->StartUpObject().component->Name(), "frmPalm");
    loop.turn();
    EXPECT_THAT(componentNames(), ElementsAre("frmPalm"));
    const auto form = active()->VBComponents()->Item(1);
    EXPECT_EQ(form->CodeModule()->Lines(1, 1), "' ours");
    EXPECT_EQ(fernwick::asDouble(form->Properties()->Item("Width")->Value()), 2520); // as in the template
}

TEST_F(EventSequence, AsksForTheDeviceOnce) {
    targets.known = {"Palm-1", "Pocket-1"};
    giveTargetsTemplates();
    targets.templates.project = templateProject("install/VB Toolkit/Template/Projects", "Pocket.vbp", "Pocket-1");
    user.whenShown["frmDesignTargetNormal"] = [this](fernwick::Form&) {
        addIn().chooseTarget.lstQuickDesignTargets.ListIndex(1);
        addIn().chooseTarget.btnOK.press();
    };
    openNew();
    loop.turn();
    EXPECT_EQ(stored(active(), "TargetDevice"), "Pocket-1");
    EXPECT_EQ(std::count(trace.effects.begin(), trace.effects.end(), "form frmDesignTargetNormal"), 1);
}

TEST_F(EventSequence, WithoutADeviceRemovesTheNewProjectAndAsksOnce) {
    targets.known = {"Palm-1", "Pocket-1"};
    openNew();
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
    loop.turn();
    EXPECT_EQ(host.ide->VBProjects()->Count(), 0);
    EXPECT_EQ(std::count(trace.effects.begin(), trace.effects.end(), "form frmDesignTargetNormal"), 1);
}

TEST_F(EventSequence, TheStubLeadsToTheProjectManager) {
    openStub();
    EXPECT_THAT(trace.effects, Contains("form frmProjectManager"));
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
    loop.turn();
    EXPECT_EQ(host.ide->VBProjects()->Count(), 0);
}

TEST_F(EventSequence, AProjectFromTheProjectManagerReplacesTheStub) {
    const auto path = named("A").writeTo(host.folder);
    host.ide->VBProjects()->Remove(host.openFile(path));
    user.whenShown["frmProjectManager"] = [this](fernwick::Form& form) {
        addIn().projectManager.grdRecentProjects.choose(1);
        test::press(form, "btnOpenRecent");
    };
    openStub();
    loop.turn();
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
    EXPECT_EQ(active()->FileName(), path);
    EXPECT_TRUE(items().gCompileItem->Enabled());
}

TEST_F(EventSequence, ANewProjectFromTheProjectManagerReplacesTheStub) {
    giveTargetsTemplates();
    hostsTemplate();
    user.whenShown["frmProjectManager"] = [](fernwick::Form& form) { test::press(form, "btnNewProject"); };
    openStub();
    loop.turn();
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
    EXPECT_EQ(stored(active(), "OpenedFromQLTemplate"), "True");
    EXPECT_THAT(componentNames(), ElementsAre("Form1"));
    EXPECT_FALSE(loop.hasTimers());
}

TEST_F(EventSequence, TheStubBesideAnotherProjectIsTheOnlyOneThatGoes) {
    host.open(named("A"));
    openStub();
    loop.turn();
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
    EXPECT_EQ(active()->Name(), "A");
}

TEST_F(EventSequence, TheProjectManagerWaitsForAllProjects) {
    const auto a = host.open(named("A"));
    host.open(named("B"));
    user.answers = {fernwick::vbYes};
    items().gOpenProjectItem->Execute();
    loop.turn();
    EXPECT_THAT(trace.effects, Not(Contains("form frmProjectManager")));
    host.ide->VBProjects()->Remove(a);
    loop.turn();
    EXPECT_THAT(trace.effects, Contains("form frmProjectManager"));
}

TEST_F(EventSequence, AfterTheHostHasClosedNothingWaits) {
    host.open(named("A"));
    host.open(named("B"));
    user.answers = {fernwick::vbYes};
    items().gOpenProjectItem->Execute();
    host.ide->close();
    loop.turn();
    EXPECT_THAT(trace.effects, Not(Contains("form frmProjectManager")));
    EXPECT_FALSE(loop.hasTimers());
}

// ---- existing projects
// ---------------------------------------------------------------------------------------------------

TEST_F(EventSequence, TwoProjectsOpenedBackToBack) {
    const auto a = host.open(named("A")), b = host.open(named("B"));
    EXPECT_THAT(tape.lines, ElementsAre("load A.vbp", "added A", "load B.vbp", "added B"));
    EXPECT_TRUE(addIn().projects.GetQLProject(a) && addIn().projects.GetQLProject(b));
    EXPECT_EQ(addIn().projects.gCurrentProject, b);
    host.ide->ActiveVBProject(a);
    EXPECT_EQ(addIn().projects.gCurrentProject, a);
}

TEST_F(EventSequence, AddsAllProjectsOfAGroup) {
    named("A").writeTo(host.folder);
    named("B").writeTo(host.folder);
    host.openFile(host.folder.write("Both.vbg", "VBGROUP 5.0\r\nStartupProject=A.vbp\r\nProject=B.vbp\r\n"));
    EXPECT_THAT(tape.lines, ElementsAre("load A.vbp", "added A", "load B.vbp", "added B", "activated A"));
    EXPECT_EQ(addIn().projects.gCurrentProject, active());
    for (const auto& project : host.ide->VBProjects()->items()) EXPECT_TRUE(addIn().projects.FindQLProject(project));
}

TEST_F(EventSequence, DisablesTheToolbarsButNotTheMenuWhileAProjectRuns) {
    host.open(named("A"));
    const auto build = host.ide->Events()->VBBuildEvents();
    build->EnterRunMode.raise();
    EXPECT_FALSE(items().gMainToolbar->Enabled() || items().gSupportToolbar->Enabled());
    EXPECT_TRUE(items().gCompileItem->Enabled());
    build->EnterDesignMode.raise();
    EXPECT_TRUE(items().gMainToolbar->Enabled() && items().gSupportToolbar->Enabled());
}

TEST_F(EventSequence, AProjectMayBeRemovedWhileItIsAdded) {
    loop.Post([this] { host.ide->VBProjects()->Remove(active()); });
    const auto project = host.open(named("A"));
    EXPECT_THAT(tape.lines, ElementsAre("load A.vbp", "added A", " removed A"));
    EXPECT_FALSE(addIn().projects.FindQLProject(project));
    loop.turn();
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(EventSequence, AnotherProjectMayBeOpenedWhileOneIsAdded) {
    const auto second = named("B").writeTo(host.folder);
    loop.Post([&] { host.openFile(second); });
    const auto project = host.open(named("A"));
    EXPECT_THAT(tape.lines, ElementsAre("load A.vbp", "added A", " load B.vbp", " added B", "activated A"));
    EXPECT_EQ(addIn().projects.gCurrentProject, project);
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(EventSequence, AComponentMayBeAddedWhileItsProjectIsAdded) {
    targets.templates.module =
        host.folder.write("Template/Modules/Ours.bas", test::moduleText("Module1", "' ours\r\n"));
    loop.Post([this] { active()->VBComponents()->Add(vbide::vbext_ct_StdModule); });
    host.open(named("A"));
    EXPECT_THAT(tape.lines, ElementsAre("load A.vbp", "added A", " Module1 added", " load Ours.bas", " Module1 added",
                                        " Module1 activated", " Module2 removed"));
    loop.turn();
    EXPECT_THAT(componentNames(), ElementsAre("Module9", "Module1"));
}

TEST_F(EventSequence, AFormThatIsGoneOrWhoseProjectIsLeftWhileItIsAddedIsIgnored) {
    const auto a = host.open(named("A")), b = host.open(named("B"));
    loop.Post([&] { b->VBComponents()->Remove(b->VBComponents()->Item("Form1")); });
    b->VBComponents()->Add(vbide::vbext_ct_VBForm);
    loop.Post([&] { host.ide->ActiveVBProject(a); });
    const auto form = b->VBComponents()->Add(vbide::vbext_ct_VBForm);
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_EQ(addIn().errors.reports(), 0);
    EXPECT_TRUE(form->HasOpenDesigner());
}

TEST_F(EventSequence, ARemovalRequestedWhileAProjectIsAddedWaitsForTheTimer) {
    const auto importer = items().gUtilitiesPopup->Controls()->Add(office::msoControlButton, 0);
    importer->Caption("Fernwick Project Converter");
    const auto import = host.ide->Events()->CommandBarEvents(importer)->Click.connect(
        [this](const auto&, bool&, bool&) { tape.note("import"); });
    test::SampleProject old("Old");
    const auto project =
        host.open(old.module("Module9").sections("\r\n[Quinloft Global]\r\nIsQuinloftProject=True\r\n"));
    EXPECT_FALSE(project->IsDirty());
    loop.turn();
    EXPECT_THAT(tape.lines, ElementsAre("load Old.vbp", "added Old", "removed Old", "import"));
}

TEST_F(EventSequence, AfterADisconnectionFilesAreWritten) {
    const auto project = host.open(named("A"));
    host.ide->Addins()->Item(kProgId)->Connect(false);
    project->WriteProperty("A", "key", "value");
    host.ide->saveProject(project);
    EXPECT_THAT(host.folder.read("A.vbp"), HasSubstr("key=value"));
    project->VBComponents()->Add(vbide::vbext_ct_UserControl);
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(EventSequence, DoesNotWriteAnOldProject) {
    test::SampleProject old("Old");
    const auto project =
        host.open(old.module("Module9").sections("\r\n[Quinloft Global]\r\nIsQuinloftProject=True\r\n"));
    const auto before = host.folder.read("Old.vbp");
    project->WriteProperty("A", "key", "value");
    project->VBComponents()->Item(1)->CodeModule()->InsertLines(1, "' new");
    host.ide->saveProject(project);
    EXPECT_EQ(host.folder.read("Old.vbp"), before);
    EXPECT_EQ(host.folder.read("Module9.bas"), test::moduleText("Module9"));
    EXPECT_TRUE(project->IsDirty());
    loop.turn();
    EXPECT_EQ(host.folder.read("Old.vbp"), before);
}

TEST_F(EventSequence, AProjectOfAnUnknownDeviceStaysIfTheUserOpensItAnyway) {
    user.whenShown["frmDesignTargetConverterWarning"] = [](auto& form) { test::press(form, "cmdOpenProject"); };
    host.open(hello("Gone-9"));
    EXPECT_THAT(boxes(), IsEmpty());
    loop.turn();
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
    EXPECT_FALSE(items().gCompileItem->Enabled());
}

TEST_F(EventSequence, ACopyForAnAvailableDeviceTakesThePlaceOfAProject) {
    const auto path = host.folder / "new/deep/Copy.vbp";
    copyTo(path);
    const auto original = hello("Gone-9").writeTo(host.folder);
    const auto before = bytesOf(original);
    host.ide->VBProjects()->AddFromFile(original, false);
    loop.turn();
    EXPECT_THAT(boxes(), IsEmpty());
    ASSERT_EQ(host.ide->VBProjects()->Count(), 1);
    EXPECT_EQ(active()->FileName(), path);
    EXPECT_EQ(stored(active(), "TargetDevice"), "Palm-1");
    EXPECT_TRUE(items().gCompileItem->Enabled());
    EXPECT_EQ(bytesOf(original), before);
    EXPECT_FALSE(std::filesystem::exists(path + ".converting"));
}

TEST_F(EventSequence, ACopyIsNotOpenedIfTheUserKeepsOtherUnsavedWork) {
    const auto other = host.open(named("A"));
    copyTo(host.folder / "new/Copy.vbp");
    host.mayReplaceProjects = [] { return false; };
    host.ide->VBProjects()->AddFromFile(hello("Gone-9").writeTo(host.folder), false);
    loop.turn();
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_EQ(active(), other);
    EXPECT_EQ(host.ide->VBProjects()->Count(), 1);
}

TEST_F(EventSequence, ACopyOfAProjectInAGroupIsNotNamedByTheGroup) {
    copyTo(host.folder / "new/Copy.vbp");
    hello("Gone-9").writeTo(host.folder);
    const std::string text = "VBGROUP 5.0\r\nStartupProject=Hello.vbp\r\n";
    const auto group = host.folder.write("One.vbg", text);
    host.ide->VBProjects()->AddFromFile(group, false);
    EXPECT_THAT(boxes(), ElementsAre(box(fernwick::vbInformation, "The project group still names the old project file, "
                                                                  "not the copy: " +
                                                                      group)));
    EXPECT_EQ(bytesOf(group), text);
}

TEST_F(EventSequence, AProjectIsConvertedInPlaceAndItsOldFileIsKept) {
    user.whenShown["frmDesignTargetConverterWarning"] = [](auto& form) { test::press(form, "cmdRunConverter"); };
    user.whenShown["frmDesignTargetConverter"] = [this](auto& form) {
        addIn().converter.lstDesignTargets.ListIndex(0);
        addIn().converter.chkOverwrite.Value(1);
        test::press(form, "btnOK");
    };
    const auto path = hello("Gone-9").writeTo(host.folder);
    const auto before = bytesOf(path);
    host.ide->VBProjects()->AddFromFile(path, false);
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_EQ(active()->FileName(), path);
    EXPECT_EQ(bytesOf(path + ".bak"), before);
    EXPECT_THAT(bytesOf(path), HasSubstr("TargetDevice=Palm-1\r\n"));
    EXPECT_TRUE(items().gCompileItem->Enabled());
}

TEST_F(EventSequence, FollowsARenamedProject) {
    const auto project = host.open(named("A"));
    project->Name("B");
    EXPECT_EQ(addIn().projects.GetQLProject(project)->ProjectName(), "B");
    EXPECT_EQ(stored(project, "MODID").size(), 36u);
}

// ---- closing
// -------------------------------------------------------------------------------------------------------------

TEST_F(EventSequence, TheMenuIsEnabledWhileAFernwickProjectIsOpen) {
    EXPECT_FALSE(items().gCompileItem->Enabled());
    const auto a = host.open(named("A")), b = host.open(named("B"));
    EXPECT_TRUE(items().gCompileItem->Enabled());
    host.ide->VBProjects()->Remove(b);
    EXPECT_TRUE(items().gCompileItem->Enabled());
    EXPECT_TRUE(items().gMainToolbar->Enabled());
    host.ide->VBProjects()->Remove(a);
    EXPECT_FALSE(items().gCompileItem->Enabled());
    EXPECT_FALSE(items().gMainToolbar->Enabled() || items().gSupportToolbar->Enabled());
    host.openFile(host.folder / "A.vbp");
    EXPECT_TRUE(items().gCompileItem->Enabled());
}

TEST_F(EventSequence, ThreeProjectsCloseInAnyOrder) {
    const auto a = host.open(named("A")), b = host.open(named("B")), c = host.open(named("C"));
    for (const auto& project : {c, a, b}) host.ide->VBProjects()->Remove(project);
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_FALSE(items().gCompileItem->Enabled());
}

TEST_F(EventSequence, AClosingSavesTheMessagesWindowAndWhatIsUnsaved) {
    const auto project = host.open(named("A"));
    addIn().messages.showToolWindow();
    project->WriteProperty("A", "key", "value");
    project->VBComponents()->Item(1)->CodeModule()->InsertLines(1, "' new");
    host.ide->VBProjects()->Remove(project);
    EXPECT_THAT(host.folder.read("A.vbp"), HasSubstr("Visible=TRUE"));
    EXPECT_THAT(host.folder.read("Module9.bas"), HasSubstr("' new"));
}

TEST_F(EventSequence, AClosingRemembersTheProject) {
    host.ide->VBProjects()->Remove(host.open(named("A")));
    host.ide->VBProjects()->Remove(openNew());
    EXPECT_EQ(addIn().recent.GetQuinloftRecentProject(1).path, host.folder / "A.vbp");
    EXPECT_EQ(addIn().recent.GetQuinloftRecentProject(2).name, "");
}

TEST_F(EventSequence, RestoresTheToolbarsPositions) {
    const auto project = host.open(named("A"));
    items().gMainToolbar->Position(office::msoBarLeft);
    items().gSupportToolbar->Visible(false);
    host.ide->VBProjects()->Remove(project);
    items().gMainToolbar->Position(office::msoBarTop);
    items().gSupportToolbar->Visible(true);
    host.openFile(host.folder / "A.vbp");
    EXPECT_EQ(items().gMainToolbar->Position(), office::msoBarLeft);
    EXPECT_FALSE(items().gSupportToolbar->Visible());
}

TEST_F(EventSequence, WithoutToolbarsStoresNoPositions) {
    host.ide->Addins()->Item(kProgId)->Connect(false);
    connect(vbide::vbext_cm_External);
    host.ide->VBProjects()->Remove(host.open(named("A")));
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(EventSequence, IgnoresProjectsOpenedBeforeTheAddIn) {
    host.ide->Addins()->Item(kProgId)->Connect(false);
    const auto a = host.open(named("A")), b = host.open(named("B"));
    connect(vbide::vbext_cm_AfterStartup);
    host.ide->ActiveVBProject(a);
    a->Name("Other");
    host.ide->VBProjects()->Remove(a);
    EXPECT_EQ(addIn().projects.gCurrentProject, b);
    EXPECT_THAT(boxes(), IsEmpty());
}

// ---- components
// ----------------------------------------------------------------------------------------------------------

class NewComponents : public EventSequence {
protected:
    NewComponents() {
        targets.templates.module =
            host.folder.write("Template/Modules/Ours.bas", test::moduleText("Module1", "' ours\r\n"));
        targets.templates.classModule =
            host.folder.write("Template/Classes/Ours.cls", test::classText("clsOurs", "' ours\r\n"));
        host.open(named("A"));
    }
    void add(vbide::vbext_ComponentType type) {
        active()->VBComponents()->Add(type);
        loop.turn();
    }
};

TEST_F(NewComponents, AreTheTargetsTemplates) {
    add(vbide::vbext_ct_StdModule);
    add(vbide::vbext_ct_ClassModule);
    add(vbide::vbext_ct_ClassModule);
    EXPECT_THAT(componentNames(), ElementsAre("Module9", "Module1", "clsOurs", "clsOurs1"));
    const auto module = active()->VBComponents()->Item("Module1");
    EXPECT_EQ(module->FileNames(1), "");
    EXPECT_EQ(module->CodeModule()->Lines(1, 1), "' ours");
    EXPECT_EQ(host.ide->SelectedVBComponent()->Name(), "clsOurs1");
}

TEST_F(NewComponents, FromFilesStayAsTheyAre) {
    active()->VBComponents()->AddFile(host.folder.write("lib/Module1.bas", test::moduleText("Module1", "' mine\r\n")));
    loop.turn();
    EXPECT_EQ(active()->VBComponents()->Item("Module1")->CodeModule()->Lines(1, 1), "' mine");
}

TEST_F(NewComponents, OfOtherTypesAreRefused) {
    add(vbide::vbext_ct_UserControl);
    add(vbide::vbext_ct_PropPage);
    EXPECT_THAT(componentNames(), ElementsAre("Module9"));
    EXPECT_THAT(boxes(), ElementsAre(box(48, "This component type is not supported on Palm-1 devices"),
                                     box(48, "This component type is not supported on Palm-1 devices")));
}

TEST_F(NewComponents, DoNotIncludeThoseOfALoadedProject) {
    host.open(test::SampleProject("B").module("Module1").form("Form1").handheld("Palm-1"));
    EXPECT_THAT(componentNames(), ElementsAre("Module1", "Form1"));
    EXPECT_THAT(tape.lines, Not(Contains(" Module1 added")));
}

TEST_F(NewComponents, AFormIsWatchedAtOnce) {
    add(vbide::vbext_ct_VBForm);
    const auto form = active()->VBComponents()->Item("Form1");
    EXPECT_EQ(addIn().connect.ControlsEventsHandler.source(),
              host.ide->Events()->VBControlsEvents(active(), form->Designer()));
    EXPECT_EQ(addIn().connect.SelectedForm, form);
}

TEST_F(NewComponents, OfTheActivatedProjectAreServed) {
    const auto a = active();
    const auto foreign = host.open(test::SampleProject("B").module("Module9"));
    foreign->VBComponents()->Add(vbide::vbext_ct_StdModule);
    EXPECT_THAT(componentNames(), ElementsAre("Module9", "Module1"));
    host.ide->ActiveVBProject(a);
    add(vbide::vbext_ct_StdModule);
    EXPECT_THAT(componentNames(), ElementsAre("Module9", "Module1"));
    EXPECT_EQ(active()->VBComponents()->Item("Module1")->CodeModule()->Lines(1, 1), "' ours");
}

// ---- controls
// ------------------------------------------------------------------------------------------------------------

class NewControls : public EventSequence {
protected:
    NewControls() {
        addIn().references.gQuinloftClasses.Add("Tavlets.QLButton", "TavletsCtl.QLButton");
        host.open(test::SampleProject("A").form("frmA").form("frmB").handheld("Palm-1"));
        show("frmA");
    }
    void TearDown() override { EXPECT_TRUE(host.failures.empty()); }
    void show(const std::string& form) {
        active()->VBComponents()->Item(form)->DesignerWindow()->Visible(true);
        active()->VBComponents()->Item(form)->Activate();
    }
    std::vector<std::string> controlsAfterAdding(const std::string& form, const std::string& progId) {
        const auto controls = active()->VBComponents()->Item(form)->Designer()->VBControls();
        controls->Add(progId);
        std::vector<std::string> left;
        for (const auto& control : controls->items()) left.push_back(control->ProgId());
        return left;
    }
    const std::string refusal =
        box(16, "ERROR!\r\n\r\nThis control will not work with a Fernwick project and will be removed.");
};

TEST_F(NewControls, StayWhereTheSystemKnowsThem) {
    EXPECT_THAT(controlsAfterAdding("frmA", "TavletsCtl.QLButton"), ElementsAre("TavletsCtl.QLButton"));
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(NewControls, OfOtherLibrariesAreRefused) {
    EXPECT_THAT(controlsAfterAdding("frmA", "VB.TextBox"), IsEmpty());
    EXPECT_THAT(boxes(), ElementsAre(refusal));
}

TEST_F(NewControls, AreRemovedFromTheFormOnWhichTheyWerePlaced) {
    host.ide->select(active()->VBComponents()->Item("frmB"));
    EXPECT_THAT(controlsAfterAdding("frmA", "VB.TextBox"), IsEmpty());
    EXPECT_THAT(boxes(), ElementsAre(refusal));
}

TEST_F(NewControls, DoNotIncludeThoseOfAnOpenedForm) {
    active()->VBComponents()->AddFile(
        host.folder.write("frmOld.frm", test::deviceForm("frmOld", {{"QLUnknown", "ctlOld", "Font"}})));
    show("frmOld");
    EXPECT_EQ(active()->VBComponents()->Item("frmOld")->Designer()->VBControls()->Count(), 1);
    EXPECT_THAT(boxes(), IsEmpty());
}

} // namespace
