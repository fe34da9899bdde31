// Controls are placed on a form of a Fernwick project.
#include "Add-in/core/connect/control_defaults.h"
#include "events_world.h"
#include "tests/support/traced_form.h"
#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr std::int64_t kSecond = 1'000'000'000;
constexpr char kRefusal[] =
    "box 16 Fernwick: ERROR!\r\n\r\nThis control will not work with a Fernwick project and will "
    "be removed.";

class ControlEvents : public testing::Test, protected test::EventsWorld {
protected:
    ControlEvents() {
        references.gQuinloftClasses.Add("Tavlets.QLButton", "TavletsCtl.QLButton");
        use(added("A"));
        clock.now = 100 * kSecond;
    }
    /// Makes this project's form the watched one.
    void use(const test::Ref<test::TracedProject>& opened) {
        project = opened;
        designer = basic::make<test::TracedDesigner>(trace);
        form = component(project, "frmMain", vbide::vbext_ct_VBForm, "/p/frmMain.frm");
        form->designer = designer;
        form->designerOpen = true;
        vbe->events->components->ItemActivated.raise(form);
        vbe->selected = form;
        errors.seen.clear();
    }
    test::Ref<test::TracedFormControl> control(const std::string& className, const std::string& library) {
        const auto made = designer->add(className, "Font", 0, 9);
        made->library = library;
        return made;
    }
    std::vector<std::string> place(const test::Ref<test::TracedFormControl>& control) {
        trace.effects.clear();
        vbe->events->controls->ItemAdded.raise(control);
        return trace.effects;
    }
    std::vector<std::string> place(const std::string& className, const std::string& library = "TavletsCtl") {
        return place(control(className, library));
    }
    void neverSaved() {
        project->file.clear();
        project->dirty = true;
        fileSystem = classes.RegisterClass("Scripting.FileSystemObject",
                                           [this] { return basic::make<test::TracedFiles>(trace); });
    }
    void warnOfSaving(bool warns) { addIn.SetQuinloftSaveWarning(warns); }

    test::Ref<test::TracedProject> project;
    test::Ref<test::TracedComponent> form;
    test::Ref<test::TracedDesigner> designer;
    std::shared_ptr<void> fileSystem;
};

TEST_F(ControlEvents, AForeignControlIsRefusedAndRemoved) {
    EXPECT_THAT(place("TextBox", "VB"), ElementsAre(kRefusal, "remove control TextBox"));
    EXPECT_THAT(designer->controls, IsEmpty());
}

TEST_F(ControlEvents, AControlOfADeviceStays) {
    EXPECT_THAT(place("QLButton"), IsEmpty());
    EXPECT_EQ(designer->controls.size(), 1u);
}

TEST_F(ControlEvents, AForeignProjectMayHaveAnyControl) {
    use(added("B", "none"));
    vbe->events->controls->ItemAdded.raise(control("TextBox", "VB"));
    EXPECT_THAT(place("TextBox", "VB"), IsEmpty());
    EXPECT_EQ(designer->controls.size(), 2u);
}

TEST_F(ControlEvents, RemovesFromTheDesignerOfTheEventWhereAnotherFormIsSelected) {
    const auto other = component(project, "frmOther", vbide::vbext_ct_VBForm, "/p/frmOther.frm");
    other->designer = basic::make<test::TracedDesigner>(trace);
    vbe->selected = other;
    place("TextBox", "VB");
    EXPECT_THAT(designer->controls, IsEmpty());
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ControlEvents, AControlThatIsGoneIsIgnored) {
    const auto gone = control("TextBox", "VB");
    gone->removed = true;
    EXPECT_THAT(place(gone), IsEmpty());
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ControlEvents, TurnsTabStopOffWhereTheTargetSaysSo) {
    targets.knows.tabStopOff = {"QLButton"};
    const auto button = control("QLButton", "TavletsCtl");
    button->properties->values["TabStop"] = true;
    EXPECT_THAT(place(button), ElementsAre("TabStop=False"));
    EXPECT_THAT(place("QLButton"), IsEmpty()); // without the property
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ControlEvents, SetsTheTargetsDefaultsAndSkipsUnknownProperties) {
    targets.knows.defaults = {
        {"qlbutton.Style", "#7"}, {"QLLabel.Style", "#8"}, {"QLButton.Missing", "x"}, {"QLButton.Tag", "#a"}};
    const auto button = control("QLButton", "TavletsCtl");
    button->properties->values["Style"] = 0;
    button->properties->values["Tag"] = "";
    EXPECT_THAT(place(button), ElementsAre("Style=7", "Tag=#a"));
    EXPECT_EQ(button->properties->values["Style"], fernwick::Variant(std::int32_t{7}));
    EXPECT_EQ(button->properties->values["Tag"], fernwick::Variant(std::string("#a")));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ControlEvents, FetchesTheDesignTargetFirst) {
    targets.knows.defaults = {{"QLButton.Style", "#7"}};
    projects.GetQLProject(project)->designTarget(nullptr);
    const auto button = control("QLButton", "TavletsCtl");
    button->properties->values["Style"] = 0;
    EXPECT_THAT(place(button), ElementsAre("Style=7"));
}

TEST_F(ControlEvents, WithoutADesignTargetTheControlIsLeftAsItIs) {
    ProjectsWorld::set(project, "TargetDevice", "Gone-9");
    projects.GetQLProject(project)->designTarget(nullptr);
    EXPECT_THAT(place("QLButton"), IsEmpty());
}

// ---- a project that was never saved
// ---------------------------------------------------------------------------------

TEST_F(ControlEvents, WarnsBeforeAnUnsavedProjectIsSaved) {
    neverSaved();
    std::string shown;
    user.whenShown["frmSaveWarning"] = [&](fernwick::Form& warning) {
        shown = warning.Caption() + ": " + saveWarning.lblWarning.Caption();
        test::press(warning, "btnOK");
    };
    EXPECT_THAT(place("QLButton"),
                ElementsAre("form frmSaveWarning", "frmMain saved /p/frmMain.frm", "save dialog", "A saved A.vbp"));
    EXPECT_EQ(shown, "Fernwick: The project must be saved before Tavlets can be added to a form.");
    EXPECT_FALSE(saveWarning.isLoaded());
}

TEST_F(ControlEvents, WithTheWarningTurnedOffSavesAtOnce) {
    neverSaved();
    warnOfSaving(false);
    EXPECT_THAT(place("QLButton"), ElementsAre("frmMain saved /p/frmMain.frm", "save dialog", "A saved A.vbp"));
}

TEST_F(ControlEvents, ASavedProjectIsNotSavedAgain) {
    project->dirty = true;
    EXPECT_THAT(place("QLButton"), IsEmpty());
}

TEST_F(ControlEvents, ControlsPastedTogetherAskForOneSave) {
    neverSaved();
    user.cancelsSaving = true;
    int saves = 0, warnings = 0;
    for (int i = 0; i < 10; ++i) {
        const auto effects = place("QLButton");
        saves += int(std::count(effects.begin(), effects.end(), "save dialog"));
        warnings += int(std::count(effects.begin(), effects.end(), "form frmSaveWarning"));
        clock.now += kSecond / 20;
    }
    EXPECT_EQ(saves, 1);
    EXPECT_EQ(warnings, 10);
}

TEST_F(ControlEvents, TheNextWholeSecondAllowsAnotherSave) {
    neverSaved();
    warnOfSaving(false);
    user.cancelsSaving = true;
    clock.now = 100 * kSecond + kSecond - 1;
    EXPECT_THAT(place("QLButton"), Contains("save dialog"));
    EXPECT_THAT(place("QLButton"), IsEmpty());
    clock.now += 1;
    EXPECT_THAT(place("QLButton"), Contains("save dialog"));
}

TEST_F(ControlEvents, TheSecondIsCountedFromTheEndOfTheSave) {
    neverSaved();
    user.cancelsSaving = true;
    user.whenShown["frmSaveWarning"] = [&](fernwick::Form& warning) {
        clock.now += 5 * kSecond;
        test::press(warning, "btnOK");
    };
    place("QLButton");
    EXPECT_EQ(connection->LastControlEventTime, 105 * kSecond);
}

TEST_F(ControlEvents, WithoutASaveTheTimeIsStoredToo) {
    neverSaved();
    warnOfSaving(false);
    connection->LastControlEventTime = clock.now;
    clock.now += 5;
    EXPECT_THAT(place("QLButton"), Not(Contains("save dialog")));
    EXPECT_EQ(connection->LastControlEventTime, clock.now);
}

// ---- failures and defaults
// --------------------------------------------------------------------------------------------------------

TEST_F(ControlEvents, EachFailingCallLosesAtMostOneStep) {
    targets.knows.defaults = {{"QLButton.Style", "#7"}};
    targets.knows.tabStopOff = {"QLButton"};
    for (const auto* library : {"TavletsCtl", "VB"})
        for (int failing = 1;; ++failing) {
            neverSaved();
            errors.injected = 0;
            trace.calls = 0;
            trace.failing = failing;
            vbe->events->controls->ItemAdded.raise(control("QLButton", library));
            trace.failing = 0;
            EXPECT_LE(errors.injected, 1) << library << failing;
            if (trace.calls < failing) break;
        }
}

std::vector<std::string> defaultsOf(const std::string& name, std::vector<std::pair<std::string, std::string>> stored) {
    test::KnownModules knows;
    knows.defaults = std::move(stored);
    const test::TargetTemplates templates;
    const test::FakeTarget target{"Palm-1", knows, templates};
    test::RecordingReport errors;
    std::vector<std::string> all;
    for (const auto& [property, value] : fernwick::GetControlDefaults(name, target, errors))
        all.push_back(property + (std::holds_alternative<std::int32_t>(value) ? " number " : " text ") +
                      fernwick::asText(value));
    return all;
}

TEST(ControlDefaults, AreThoseOfTheClass) {
    EXPECT_THAT(defaultsOf("QLButton", {{"QLButtons.A", "1"}, {"QLBUTTON.B", "2"}, {"QLButton", "3"}}),
                ElementsAre("B text 2"));
    EXPECT_THAT(defaultsOf("QLButton", {{"QLButton.Font.Size", "#9"}}), ElementsAre("Font.Size number 9"));
    EXPECT_THAT(defaultsOf("QLButton", {}), IsEmpty());
}

TEST(ControlDefaults, AreNumbersAfterAHashElseTexts) {
    const auto valueOf = [](const std::string& text) { return defaultsOf("A", {{"A.P", text}}).front().substr(2); };
    EXPECT_EQ(valueOf("#12"), "number 12");
    EXPECT_EQ(valueOf("#-3"), "number -3");
    EXPECT_EQ(valueOf("12"), "text 12");
    EXPECT_EQ(valueOf("#1 pt"), "text #1 pt");
    EXPECT_EQ(valueOf("#red"), "text #red");
    EXPECT_EQ(valueOf("#"), "text #");
    EXPECT_EQ(valueOf("#99999999999"), "text #99999999999");
}

} // namespace
