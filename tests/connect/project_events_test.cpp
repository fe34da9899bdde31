// The host's projects are added, removed, renamed and activated.
#include "events_world.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

using Effects = std::vector<std::string>;

constexpr char kStub[] = "{8A515BDE-2BCC-4ed4-8F0A-99E4522CC1BB}";
constexpr char kTargetsOwn[] = "/install/VB Toolkit/Template/Projects/Palm.vbp";

class ProjectEvents : public testing::Test, protected test::EventsWorld {
protected:
    /// A blank project in the host's template folder.
    test::Ref<test::TracedProject> fromTemplate(const std::string& device = "") {
        const auto project = opened("Project1", device);
        project->file = "/vb/Template/Projects/Fernwick Project.vbp";
        return project;
    }
    bool watches(const test::Ref<test::TracedProject>& project) const {
        return did("sink: components of " + project->name);
    }
};

TEST_F(ProjectEvents, AddsAProjectInOrder) {
    EXPECT_THAT(raiseAdded(opened("A")),
                ElementsAre("sink: files of A", "enable menu", "enable toolbar", "enable support toolbar",
                            "Fernwick Messages hidden", "default target Palm-1",
                            "environment TavletStyle-DAF573D9-3AB3-4672-A6A7-6C23862A52E9", "cursor 1",
                            "sink: files of A", "sink: components of A", "sink: references of A", "restore toolbars"));
    EXPECT_TRUE(projects.GetQLProject(vbe->active));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ProjectEvents, LetsTheHostRunOnceTheProjectIsWatched) {
    const auto project = opened("A");
    loop.showsTurns = true;
    const auto effects = raiseAdded(project);
    ASSERT_GE(effects.size(), 3U);
    EXPECT_THAT(std::vector(effects.end() - 3, effects.end()),
                ElementsAre("sink: references of A", "DoEvents", "restore toolbars"));
}

TEST_F(ProjectEvents, AForeignProjectIsListedAndNotWatched) {
    const auto project = opened("A", "none");
    EXPECT_THAT(raiseAdded(project), ElementsAre("sink: files of A", "disable menu", "disable toolbar",
                                                 "disable support toolbar", "Fernwick Messages hidden", "cursor 1"));
    EXPECT_TRUE(projects.FindQLProject(project));
}

TEST_F(ProjectEvents, IgnoresNothing) {
    vbe->events->projects->ItemAdded.raise(nullptr);
    EXPECT_THAT(trace.effects, ElementsAre("sink: all files"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ProjectEvents, ASecondProjectOfTheSameNameIsReported) {
    added("A");
    added("A");
    EXPECT_THAT(errors.seen, ElementsAre("modProjectHandler.AddToProjectsList [457]"));
}

// ---- reasons to remove a project
// -----------------------------------------------------------------------------------------

TEST_F(ProjectEvents, AProjectOfTheOldFormatIsRemovedAndConverted) {
    addImporter();
    const auto project = opened("A");
    set(project, "ProjectVersion", "1.0");
    project->dirty = true;
    EXPECT_THAT(raiseAdded(project), ElementsAre("sink: files of A", "A dirty 0"));
    EXPECT_THAT(openNames(), ElementsAre("A"));
    EXPECT_THAT(turn(), ElementsAre("active A", "host: remove project", "host: import"));
}

TEST_F(ProjectEvents, TheStubOpensTheProjectManagerAndIsRemoved) {
    const auto stub = opened("Stub", "");
    set(stub, "StartUpProject", kStub);
    EXPECT_THAT(raiseAdded(stub), ElementsAre("sink: files of Stub", "form frmProjectManager"));
    EXPECT_THAT(openNames(), ElementsAre("Stub"));
    EXPECT_THAT(turn(), ElementsAre("Stub dirty 0", "active Stub", "host: remove project"));
}

TEST_F(ProjectEvents, AProjectOpenedByTheProjectManagerGetsItsTemplate) {
    targets.templates.project = kTargetsOwn;
    const auto stub = opened("Stub", "");
    set(stub, "StartUpProject", kStub);
    user.whenShown["frmProjectManager"] = [&](fernwick::Form&) {
        vbe->removeActive();
        vbe->events->projects->ItemAdded.raise(fromTemplate());
    };
    raiseAdded(stub);
    EXPECT_THAT(turn(), Contains(std::string("open ") + kTargetsOwn + " alone"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ProjectEvents, RemovesAProjectWithoutADevice) {
    targets.known = {"Palm-1", "Pocket-1"};
    EXPECT_THAT(raiseAdded(opened("A", "")), Contains("form frmDesignTargetNormal")); // cancelled
    EXPECT_EQ(trace.effects.back(), "restore toolbars");
    EXPECT_THAT(turn(), ElementsAre("active A", "host: remove project"));
}

constexpr char kWarning[] = "form frmDesignTargetConverterWarning";

class UnknownDevice : public ProjectEvents {
protected:
    /// The effects from the warning on, in which the user presses a button.
    Effects decide(const std::string& button) {
        user.whenShown["frmDesignTargetConverterWarning"] = [button](fernwick::Form& form) {
            test::press(form, button);
        };
        auto effects = raiseAdded(opened("A", "Gone-9"));
        effects.erase(effects.begin(), std::find(effects.begin(), effects.end(), kWarning));
        return effects;
    }
    /// The user makes a copy, which removes a reference, and opens it.
    Effects convertToCopy() {
        user.savedAs = {"/new/B.vbp"};
        user.whenShown["frmDesignTargetConverter"] = [this](fernwick::Form& form) {
            files.files["/p/A.vbp"].bytes = "[Quinloft Global]\r\nTargetDevice=Gone-9\r\n";
            converter.lstDesignTargets.ListIndex(0);
            test::press(form, "btnOK");
        };
        return decide("cmdRunConverter");
    }
};

TEST_F(UnknownDevice, WatchesAProjectThatTheUserAccepts) {
    EXPECT_THAT(decide("cmdOpenProject"),
                ElementsAre(kWarning, "sink: components of A", "sink: references of A", "restore toolbars"));
    EXPECT_THAT(openNames(), ElementsAre("A"));
    EXPECT_FALSE(converterWarning.isLoaded());
}

TEST_F(UnknownDevice, OpensTheCopyInstead) {
    EXPECT_THAT(convertToCopy(), ElementsAre(kWarning, "form frmDesignTargetConverter", "save dialog", "A dirty 0",
                                             "host: remove project", "open /new/B.vbp alone", "restore toolbars"));
    EXPECT_THAT(openNames(), ElementsAre("/new/B.vbp"));
    EXPECT_EQ(files.files["/new/B.vbp"].bytes, "[Quinloft Global]\r\nTargetDevice=Palm-1\r\n");
    EXPECT_FALSE(converterWarning.isLoaded());
    EXPECT_FALSE(converter.isLoaded());
}

TEST_F(UnknownDevice, LetsTheHostRunAroundTheRemoval) {
    loop.showsTurns = true;
    const auto effects = convertToCopy();
    ASSERT_GE(effects.size(), 6U);
    EXPECT_THAT(std::vector(effects.end() - 6, effects.end()),
                ElementsAre("A dirty 0", "DoEvents", "host: remove project", "DoEvents", "open /new/B.vbp alone",
                            "restore toolbars"));
}

TEST_F(UnknownDevice, ClosesTheProject) {
    EXPECT_THAT(decide("cmdCancelOpen"),
                ElementsAre(kWarning, "A dirty 0", "host: remove project", "restore toolbars"));
    EXPECT_THAT(openNames(), IsEmpty());
}

TEST_F(UnknownDevice, TheCloseBoxClosesTheProject) {
    auto effects = raiseAdded(opened("A", "Gone-9"));
    EXPECT_THAT(effects, Contains("host: remove project"));
    EXPECT_THAT(openNames(), IsEmpty());
}

TEST_F(UnknownDevice, WithoutTargetsDoesNotAsk) {
    targets.known = {};
    loop.timersAreDue = false;
    EXPECT_THAT(raiseAdded(opened("A", "Gone-9")), Not(Contains(kWarning)));
    loop.timersAreDue = true;
    EXPECT_THAT(turn(), ElementsAre("active A", "host: remove project")); // requested by the set-up
}

TEST_F(UnknownDevice, TheProjectMayBeRemovedWhileTheHostRuns) {
    targets.known = {};
    EXPECT_THAT(raiseAdded(opened("A", "Gone-9")), Contains("host: remove project"));
    EXPECT_EQ(trace.effects.back(), "restore toolbars");
    EXPECT_THAT(openNames(), IsEmpty());
    EXPECT_THAT(errors.seen, IsEmpty());
}

// ---- templates
// -----------------------------------------------------------------------------------------------------------

TEST_F(ProjectEvents, ReplacesTheHostsTemplateByTheTargets) {
    targets.templates.project = kTargetsOwn;
    const auto project = fromTemplate();
    raiseAdded(project);
    EXPECT_TRUE(connection->TemplateReloadPending);
    EXPECT_EQ(trace.effects.back(), "restore toolbars");
    EXPECT_FALSE(did("add component 5"));
    EXPECT_THAT(turn(), ElementsAre("Project1 dirty 0", "active Project1", "host: remove project",
                                    std::string("open ") + kTargetsOwn + " alone"));
}

TEST_F(ProjectEvents, TheReloadedTemplateIsSetUpAndGetsItsFirstForm) {
    targets.templates.project = kTargetsOwn;
    targets.knows.required = {"{CA647498-D486-4FC0-841B-DA55C9A0F114}"};
    supportLabel();
    connection->TemplateReloadPending = true;
    const auto project = fromTemplate("Palm-1");
    files.files["/vb/Template/Projects/modBase.bas"] = {};
    component(project, "modBase", vbide::vbext_ct_StdModule, "/vb/Template/Projects/modBase.bas")->dirty = true;
    const auto effects = raiseAdded(project);
    EXPECT_FALSE(connection->TemplateReloadPending);
    const Effects order{"OpenedFromQLTemplate=True",
                        "modBase saved /vb/Template/Projects/modBase.bas",
                        "TargetDevice=Palm-1",
                        "toolbox Tavlets.QLLabel",
                        "reference {CA647498-D486-4FC0-841B-DA55C9A0F114} 1.0",
                        "default target Palm-1",
                        "add component 5",
                        "start up New2",
                        "restore toolbars"};
    auto at = std::find(effects.begin(), effects.end(), "sink: references of Project1");
    for (const auto& step : order) {
        at = std::find(at, effects.end(), step);
        EXPECT_NE(at, effects.end()) << step;
    }
    EXPECT_THAT(effects, Not(Contains("Project1 saved " + project->file)));
    EXPECT_FALSE(loop.hasTimers());
}

TEST_F(ProjectEvents, DoesNotReloadAReloadedTemplate) {
    targets.templates.project = kTargetsOwn;
    connection->TemplateReloadPending = true;
    EXPECT_THAT(raiseAdded(fromTemplate()), Contains("add component 5")); // gets the only device
    EXPECT_FALSE(loop.hasTimers());
}

TEST_F(ProjectEvents, AfterATemplateThatCannotBeOpenedTheNextProjectIsNotMistakenForIt) {
    targets.templates.project = kTargetsOwn;
    vbe->projects->opened = [](const auto&) { throw basic::RuntimeError(basic::kFileNotFound); };
    raiseAdded(fromTemplate());
    turn();
    EXPECT_THAT(errors.seen, ElementsAre("frmProjectRemoval.Timer1_Timer [53]"));
    EXPECT_FALSE(connection->TemplateReloadPending);
    EXPECT_THAT(raiseAdded(opened("Mine")), Not(Contains("add component 5")));
}

TEST_F(ProjectEvents, AProjectClosedBeforeItsReplacementIsNotAwaited) {
    targets.templates.project = kTargetsOwn;
    opened("Other");
    raiseAdded(fromTemplate());
    EXPECT_TRUE(connection->TemplateReloadPending);
    vbe->removeActive();
    turn();
    EXPECT_FALSE(connection->TemplateReloadPending);
}

TEST_F(ProjectEvents, WithoutATemplateOfTheTargetKeepsTheHosts) {
    const auto project = fromTemplate();
    EXPECT_THAT(raiseAdded(project), Contains("add component 5"));
    EXPECT_EQ(project->components->startUp.component, project->components->list.front());
    EXPECT_EQ(project->stored("OpenedFromQLTemplate"), "(none)");
    EXPECT_FALSE(loop.hasTimers());
}

TEST_F(ProjectEvents, TheProjectStartsWithAFormsTemplate) {
    targets.templates.form = "/install/Form.frm";
    const auto project = fromTemplate();
    project->components->fileType = vbide::vbext_ct_VBForm;
    project->components->added = [&, next = project->components->added](const auto& made) {
        if (made->name == "New1") made->name = "Form1";
        next(made);
    };
    EXPECT_THAT(raiseAdded(project), Contains("start up /install/Form.frm"));
    EXPECT_THAT(turn(), ElementsAre("remove component Form1"));
}

TEST_F(ProjectEvents, AProjectWithComponentsIsNotNew) {
    targets.templates.project = kTargetsOwn;
    const auto project = fromTemplate("Palm-1");
    component(project, "Form1", vbide::vbext_ct_VBForm);
    EXPECT_THAT(raiseAdded(project), Not(Contains("add component 5")));
    EXPECT_FALSE(loop.hasTimers());
}

TEST_F(ProjectEvents, AnEmptyProjectOfTheUsersStaysEmpty) {
    EXPECT_THAT(raiseAdded(opened("A")), Not(Contains("add component 5")));
}

// ---- closing, renaming, activating
// ---------------------------------------------------------------------------------------

TEST_F(ProjectEvents, ClosingSavesChanges) {
    const auto project = added("A");
    opened("B");
    project->dirty = true;
    messages.showToolWindow();
    EXPECT_THAT(raiseRemoved(project),
                ElementsAre("Visible=TRUE", "A saved /p/A.vbp", "A dirty 0", "save recent projects", "save toolbars"));
    EXPECT_FALSE(projects.FindQLProject(project));
}

TEST_F(ProjectEvents, ClosingASavedProjectSavesNothing) {
    const auto project = added("A");
    opened("B");
    messages.showToolWindow();
    EXPECT_THAT(raiseRemoved(project), ElementsAre("save recent projects", "save toolbars"));
}

TEST_F(ProjectEvents, ClosingAProjectOfAnUnknownDeviceSavesNothing) {
    user.whenShown["frmDesignTargetConverterWarning"] = [](auto& form) { test::press(form, "cmdOpenProject"); };
    const auto project = added("A", "Gone-9");
    opened("B");
    project->dirty = true;
    EXPECT_THAT(raiseRemoved(project), ElementsAre("save recent projects", "save toolbars"));
}

TEST_F(ProjectEvents, ATemplateIsNotRemembered) {
    const auto project = added("A");
    opened("B");
    project->file = "/vb/Template/Projects/Fernwick Project.vbp";
    EXPECT_THAT(raiseRemoved(project), ElementsAre("save toolbars"));
}

TEST_F(ProjectEvents, ClosingTheStubStoresNothing) {
    const auto project = added("A");
    opened("B");
    set(project, "StartUpProject", kStub);
    EXPECT_THAT(raiseRemoved(project), IsEmpty());
}

TEST_F(ProjectEvents, ClosingOldAndForeignProjectsStoresNothing) {
    const auto old = added("A"), foreign = added("B", "none");
    set(old, "ProjectVersion", "1.0");
    old->dirty = foreign->dirty = true;
    EXPECT_THAT(raiseRemoved(old), IsEmpty());
    EXPECT_THAT(raiseRemoved(foreign), IsEmpty());
    EXPECT_FALSE(projects.FindQLProject(old) || projects.FindQLProject(foreign));
}

TEST_F(ProjectEvents, ClosingTheLastProjectDisablesTheInterface) {
    const auto project = added("A", "none");
    messages.showToolWindow();
    EXPECT_THAT(raiseRemoved(project),
                ElementsAre("disable menu", "disable toolbar", "disable support toolbar", "Fernwick Messages hidden"));
}

TEST_F(ProjectEvents, TheCommandLineStoresNothingOfTheDesktop) {
    const auto project = added("A");
    opened("B");
    addIn.gConnectMode = vbide::vbext_cm_CommandLine;
    project->dirty = true;
    EXPECT_THAT(raiseRemoved(project), ElementsAre("A saved /p/A.vbp", "A dirty 0"));
}

TEST_F(ProjectEvents, ClosingAnUnknownProjectIsSilent) {
    opened("B");
    EXPECT_THAT(raiseRemoved(opened("A")), IsEmpty());
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ProjectEvents, ARenamedProjectGetsANewIdentity) {
    const auto project = added("A");
    project->name = "B";
    vbe->events->projects->ItemRenamed.raise(project, "A");
    EXPECT_TRUE(projects.GetQLProject(project));
    EXPECT_EQ(project->stored("MODID").size(), 36u);
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ProjectEvents, FirstNamesAndUnknownProjectsChangeNothing) {
    const auto project = added("A"), stranger = opened("S");
    vbe->events->projects->ItemRenamed.raise(project, "");
    vbe->events->projects->ItemRenamed.raise(stranger, "T");
    EXPECT_EQ(project->stored("MODID"), "(none)");
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ProjectEvents, AnActivatedProjectIsSetUpAndWatched) {
    const auto first = added("A"), second = added("B", "none");
    trace.effects.clear();
    vbe->events->projects->ItemActivated.raise(first);
    EXPECT_EQ(trace.effects.front(), "sink: files of A");
    EXPECT_TRUE(did("enable menu"));
    EXPECT_EQ(trace.effects.back(), "sink: references of A");
    trace.effects.clear();
    vbe->events->projects->ItemActivated.raise(second);
    EXPECT_TRUE(did("disable menu"));
    EXPECT_FALSE(watches(second));
}

TEST_F(ProjectEvents, IgnoresAnActivatedUnknownProject) {
    vbe->events->projects->ItemActivated.raise(opened("A"));
    EXPECT_THAT(trace.effects, ElementsAre("sink: files of A"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ProjectEvents, LeavingAClosedProjectIsNoError) {
    added("Other");
    const auto gone = added("A"), next = added("B");
    vbe->events->projects->ItemActivated.raise(gone);
    raiseRemoved(gone);
    std::erase(vbe->projects->list, gone);
    gone->removed = true;
    vbe->events->projects->ItemActivated.raise(next);
    EXPECT_THAT(errors.seen, IsEmpty());
}

// ---- build
// ---------------------------------------------------------------------------------------------------------------

TEST_F(ProjectEvents, DisablesTheToolbarsWhileAProjectRuns) {
    added("A");
    vbe->events->build->EnterRunMode.raise();
    vbe->events->build->EnterDesignMode.raise();
    EXPECT_THAT(trace.effects,
                ElementsAre("disable toolbar", "disable support toolbar", "enable toolbar", "enable support toolbar"));
}

TEST_F(ProjectEvents, IgnoresARunOfAForeignProject) {
    vbe->events->build->EnterRunMode.raise();
    added("A", "none");
    vbe->events->build->EnterRunMode.raise();
    vbe->events->build->EnterDesignMode.raise();
    EXPECT_THAT(trace.effects, IsEmpty());
}

// ---- failures
// ------------------------------------------------------------------------------------------------------------

/// Each failing call of an event causes at most one report and loses only a few steps.
class FailingEvents : public ProjectEvents {
protected:
    template <class Prepare, class Raise>
    void sweep(Prepare prepare, Raise raise, const std::string& last) {
        prepare();
        trace.effects.clear();
        raise();
        const auto baseline = trace.effects;
        for (int failing = 1;; ++failing) {
            prepare();
            errors.injected = 0;
            trace.effects.clear();
            trace.calls = 0;
            trace.failing = failing;
            raise();
            trace.failing = 0;
            if (trace.calls < failing) break;
            EXPECT_LE(errors.injected, 1) << failing;
            // without a report, a setting could not be read and its default made this another kind of project
            EXPECT_TRUE(did(last) || errors.injected == 0 || test::lost(baseline, trace.effects) == Effects{last})
                << failing;
        }
    }
    void startOver() {
        vbe->projects->list.clear();
        projects.ClearProjectsList();
        removal.Unload();
        removal.Load();
        connection->TemplateReloadPending = connection->ComponentAddGuard = false;
    }
};

TEST_F(FailingEvents, OfAnAddedProjectLoseOneStep) {
    test::Ref<test::TracedProject> project;
    sweep(
        [&] {
            startOver();
            project = opened("A");
        },
        [&] { vbe->events->projects->ItemAdded.raise(project); }, "restore toolbars");
}

TEST_F(FailingEvents, OfANewProjectLoseOneStep) {
    test::Ref<test::TracedProject> project;
    sweep(
        [&] {
            startOver();
            project = fromTemplate("Palm-1");
            connection->TemplateReloadPending = true;
        },
        [&] { vbe->events->projects->ItemAdded.raise(project); }, "restore toolbars");
}

TEST_F(FailingEvents, OfARefusedProjectLoseOneStep) {
    user.whenShown["frmDesignTargetConverterWarning"] = [](auto& form) { test::press(form, "cmdCancelOpen"); };
    test::Ref<test::TracedProject> project;
    sweep(
        [&] {
            startOver();
            project = opened("A", "Gone-9");
        },
        [&] { vbe->events->projects->ItemAdded.raise(project); }, "restore toolbars");
}

TEST_F(FailingEvents, OfAnActivatedProjectLoseOneStep) {
    test::Ref<test::TracedProject> project;
    sweep(
        [&] {
            startOver();
            project = added("A");
        },
        [&] { vbe->events->projects->ItemActivated.raise(project); }, "sink: references of A");
}

TEST_F(FailingEvents, OfARemovedProjectLoseOneStep) {
    test::Ref<test::TracedProject> project;
    sweep(
        [&] {
            startOver();
            project = added("A");
            project->dirty = true;
        },
        [&] { vbe->events->projects->ItemRemoved.raise(project); }, "disable support toolbar");
}

} // namespace
