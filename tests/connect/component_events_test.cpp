// Components are added to a project, selected and activated.
#include "Add-in/core/connect/default_names.h"
#include "events_world.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr auto kModule = vbide::vbext_ct_StdModule;
constexpr auto kClass = vbide::vbext_ct_ClassModule;
constexpr auto kForm = vbide::vbext_ct_VBForm;

class ComponentEvents : public testing::Test, protected test::EventsWorld {
protected:
    ComponentEvents() {
        targets.templates = {"", "/t/Form.frm", "/t/Module.bas", "/t/Class.cls"};
        project = added("A");
    }
    std::vector<std::string> add(const std::string& name, vbide::vbext_ComponentType type,
                                 const std::string& file = {}) {
        project->components->fileType = type;
        return raiseAdded(component(project, name, type, file));
    }
    std::vector<std::string> names() const {
        std::vector<std::string> all;
        for (const auto& each : project->components->list) all.push_back(each->name);
        return all;
    }
    test::Ref<test::TracedProject> project;
};

TEST_F(ComponentEvents, ReplacesABlankModuleByTheTemplateAfterTheEvent) {
    EXPECT_THAT(add("Module1", kModule), ElementsAre("add file /t/Module.bas"));
    EXPECT_THAT(names(), ElementsAre("Module1", "/t/Module.bas"));
    EXPECT_FALSE(connection->ComponentAddGuard);
    EXPECT_THAT(turn(), ElementsAre("remove component Module1"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ComponentEvents, ReplacesABlankClass) {
    EXPECT_THAT(add("Class1", kClass), ElementsAre("add file /t/Class.cls"));
    EXPECT_FALSE(connection->ComponentAddGuard);
}

TEST_F(ComponentEvents, DoesNotReplaceATemplateWithADefaultName) {
    project->components->added = [&, next = project->components->added](const auto& made) {
        made->name = "Module2";
        next(made);
    };
    EXPECT_THAT(add("Module1", kModule), ElementsAre("add file /t/Module.bas"));
    EXPECT_THAT(names(), ElementsAre("Module1", "Module2"));
}

TEST_F(ComponentEvents, WithoutATemplateTheClassStays) {
    targets.templates.classModule.clear();
    projects.GetQLProject(project)->designTarget(nullptr);
    EXPECT_THAT(add("Class1", kClass), IsEmpty());
    EXPECT_THAT(turn(), IsEmpty());
}

TEST_F(ComponentEvents, OnlyTheComponentOfATemplateIsExempt) {
    for (const auto& [name, type] : {std::pair("Module1", kModule), {"Class1", kClass}, {"Form1", kForm}}) {
        connection->ComponentAddGuard = true;
        EXPECT_THAT(add(name, type), IsEmpty()) << name;
        EXPECT_FALSE(connection->ComponentAddGuard) << name;
    }
    EXPECT_THAT(turn(), IsEmpty());
}

TEST_F(ComponentEvents, KeepsAComponentFromAFile) {
    EXPECT_THAT(add("Module1", kModule, "/p/Module1.bas"), IsEmpty());
    EXPECT_THAT(add("Form1", kForm, "/p/Form1.frm"), Not(Contains("add file /t/Form.frm")));
    EXPECT_THAT(turn(), IsEmpty());
}

TEST_F(ComponentEvents, KeepsAComponentWithAnotherName) {
    EXPECT_THAT(add("modMain", kModule), IsEmpty());
    EXPECT_THAT(add("Formular", kForm), Not(Contains("add file /t/Form.frm")));
}

TEST_F(ComponentEvents, TheDesignTargetIsFetchedFirst) {
    projects.GetQLProject(project)->designTarget(nullptr);
    EXPECT_THAT(add("Module1", kModule), ElementsAre("add file /t/Module.bas"));
}

TEST_F(ComponentEvents, DoesNotResizeAFormsTemplate) {
    EXPECT_THAT(add("Form1", kForm), ElementsAre("add file /t/Form.frm"));
    EXPECT_FALSE(connection->ComponentAddGuard);
    EXPECT_THAT(turn(), ElementsAre("remove component Form1"));
    EXPECT_THAT(errors.seen, IsEmpty()); // sizing it would fail: it has no properties here
}

TEST_F(ComponentEvents, WithoutATemplateResizesTheFormForTheDevice) {
    targets.templates.form.clear();
    projects.GetQLProject(project)->designTarget(nullptr);
    add("Form1", kForm);
    EXPECT_THAT(errors.seen, Contains("A clsDeviceConfig.SetupDefaultForm [438]")); // it was tried
}

TEST_F(ComponentEvents, ANewFormClearsTheMessages) {
    messages.AddProjectCompileError(project, "old", "", 0, 1);
    add("frmMine", kForm, "/p/frmMine.frm");
    EXPECT_EQ(project->stored("NumErrors"), "0");
    EXPECT_EQ(window->rowCount(), 1); // the header
}

TEST_F(ComponentEvents, LetsTheHostRunFirst) {
    loop.showsTurns = true;
    EXPECT_EQ(add("Module1", kModule).front(), "DoEvents");
}

TEST_F(ComponentEvents, DoesNotResizeAFormFromAFile) {
    add("frmMine", kForm, "/p/frmMine.frm");
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ComponentEvents, AnOpenDesignerIsWatched) {
    const auto form = component(project, "frmMine", kForm, "/p/frmMine.frm");
    raiseAdded(form);
    EXPECT_FALSE(bool(connection->ControlsEventsHandler));
    form->designerOpen = true;
    EXPECT_THAT(raiseAdded(form), Contains("sink: controls in A"));
}

TEST_F(ComponentEvents, OtherTypesAreRefusedAndRemoved) {
    for (const auto type : {vbide::vbext_ct_VBMDIForm, vbide::vbext_ct_PropPage, vbide::vbext_ct_UserControl,
                            vbide::vbext_ct_DocObject, vbide::vbext_ct_ActiveXDesigner}) {
        EXPECT_THAT(add("Other", type),
                    ElementsAre("box 48 Fernwick: This component type is not supported on Palm-1 devices",
                                "remove component Other"))
            << type;
        EXPECT_THAT(names(), IsEmpty());
    }
}

TEST_F(ComponentEvents, AForeignProjectMayHaveAnyComponent) {
    project = added("B", "none");
    for (const auto type : {kModule, kClass, kForm, vbide::vbext_ct_UserControl})
        EXPECT_THAT(add("Module1", type), IsEmpty()) << type;
}

TEST_F(ComponentEvents, WithoutAnActiveProjectNothingHappens) {
    vbe->active = nullptr;
    EXPECT_THAT(add("Module1", kModule), IsEmpty());
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ComponentEvents, ReportsAComponentRemovedInTheMeantimeOnce) {
    const auto module = component(project, "UserControl1", vbide::vbext_ct_UserControl);
    loop.Post([&] { module->removed = true; });
    EXPECT_THAT(raiseAdded(module), IsEmpty());
    EXPECT_THAT(errors.seen, ElementsAre("Connect.CompsEventsHandler_ItemAdded [40198]"));
}

TEST_F(ComponentEvents, ReportsAMissingTemplateAndRemovesTheBlankComponent) {
    project->components->added = [](const auto&) { throw basic::RuntimeError(basic::kFileNotFound); };
    add("Module1", kModule);
    EXPECT_THAT(errors.seen, ElementsAre("Connect.CompsEventsHandler_ItemAdded [53]"));
    EXPECT_FALSE(connection->ComponentAddGuard);
    EXPECT_THAT(turn(), ElementsAre("remove component Module1"));
    EXPECT_THAT(add("Module2", kModule), ElementsAre("add file /t/Module.bas")); // replaced again
}

// ---- selected and activated
// ----------------------------------------------------------------------------------------------

TEST_F(ComponentEvents, WatchesTheSelectedForm) {
    const auto form = component(project, "frmMine", kForm);
    form->designerOpen = true;
    vbe->events->components->ItemSelected.raise(form);
    vbe->events->components->ItemActivated.raise(form);
    EXPECT_THAT(trace.effects, ElementsAre("sink: controls in A", "sink: controls in A"));
    EXPECT_EQ(connection->SelectedForm, test::Ref<vbide::VBComponent>(form));
}

TEST_F(ComponentEvents, AClosedDesignerIsNotWatched) {
    const auto form = component(project, "frmMine", kForm);
    vbe->events->components->ItemSelected.raise(form);
    vbe->events->components->ItemActivated.raise(form);
    EXPECT_THAT(trace.effects, IsEmpty());
}

TEST_F(ComponentEvents, ModulesAndForeignFormsAreNotFollowed) {
    const auto module = component(project, "modMine", kModule);
    vbe->events->components->ItemSelected.raise(module);
    vbe->events->components->ItemActivated.raise(module);
    const auto form = component(added("B", "none"), "frmMine", kForm);
    vbe->events->components->ItemSelected.raise(form);
    vbe->events->components->ItemActivated.raise(form);
    EXPECT_THAT(trace.effects, IsEmpty());
}

TEST_F(ComponentEvents, ReportsErrorsOfASelectedDesignerUnlessItDoesNotExistYet) {
    const auto form = component(project, "frmMine", kForm);
    form->designerOpen = true;
    form->vbe = nullptr;
    vbe->events->components->ItemSelected.raise(form);
    EXPECT_THAT(errors.seen, ElementsAre("Connect.CompsEventsHandler_ItemSelected [91]"));
    form->vbe = vbe;
    vbe->events->refused = basic::kInvalidProcedureCall;
    vbe->events->components->ItemSelected.raise(form);
    EXPECT_EQ(errors.seen.size(), 1u);
    vbe->events->components->ItemActivated.raise(form);
    EXPECT_EQ(errors.seen.back(), "Connect.CompsEventsHandler_ItemActivated [5]");
}

TEST_F(ComponentEvents, ARenamedComponentAndAnAddedReferenceChangeNothing) {
    vbe->events->components->ItemRenamed.raise(component(project, "modMine", kModule), "Module1");
    vbe->events->references->ItemAdded.raise(nullptr);
    EXPECT_THAT(trace.effects, IsEmpty());
    EXPECT_THAT(errors.seen, IsEmpty());
}

// ---- names
// ---------------------------------------------------------------------------------------------------------------

TEST_F(ComponentEvents, DefaultNamesAreAWordAndANumber) {
    const auto named = [&](const std::string& name, vbide::vbext_ComponentType type) {
        return basic::make<test::TracedComponent>(trace, name, "", type);
    };
    using namespace fernwick;
    for (const auto* name : {"Form1", "FORM20", "form3"}) EXPECT_TRUE(IsDefaultFormName(*named(name, kForm).shared()));
    for (const auto* name : {"Form", "Formula", "Form1a", "frm1", "Form_1", "MyForm1"})
        EXPECT_FALSE(IsDefaultFormName(*named(name, kForm).shared())) << name;
    EXPECT_TRUE(IsDefaultModuleName(*named("Module1", kModule).shared()));
    EXPECT_FALSE(IsDefaultModuleName(*named("Module", kModule).shared()));
    EXPECT_TRUE(IsDefaultClassName(*named("Class12", kClass).shared()));
    EXPECT_FALSE(IsDefaultClassName(*named("Classes", kClass).shared()));
    EXPECT_FALSE(IsDefaultFormName(*named("Form1", kModule).shared()));
    EXPECT_FALSE(IsDefaultModuleName(*named("Module1", kClass).shared()));
    EXPECT_FALSE(IsDefaultClassName(*named("Class1", kForm).shared()));
}

/// Each call fails once, with at most one report.
class FailingComponentEvents : public ComponentEvents {
protected:
    template <class Raise>
    void sweep(const std::string& name, vbide::vbext_ComponentType type, Raise raise) {
        for (int failing = 1;; ++failing) {
            project->components->list.clear();
            const auto made = component(project, name, type);
            made->designerOpen = true;
            connection->ComponentAddGuard = false;
            errors.injected = 0;
            trace.calls = 0;
            trace.failing = failing;
            raise(made);
            trace.failing = 0;
            EXPECT_LE(errors.injected, 1) << name << failing;
            if (trace.calls < failing) break;
            loop.turn();
        }
    }
};

TEST_F(FailingComponentEvents, OfAddedComponentsLoseOneStep) {
    const auto raise = [&](const auto& made) { vbe->events->components->ItemAdded.raise(made); };
    sweep("Module1", kModule, raise);
    sweep("Class1", kClass, raise);
    sweep("Form1", kForm, raise);
    sweep("frmMine", kForm, raise);
    sweep("UserControl1", vbide::vbext_ct_UserControl, raise);
}

TEST_F(FailingComponentEvents, OfSelectedFormsLoseOneStep) {
    sweep("frmMine", kForm, [&](const auto& made) { vbe->events->components->ItemSelected.raise(made); });
    sweep("frmMine", kForm, [&](const auto& made) { vbe->events->components->ItemActivated.raise(made); });
}

} // namespace
