#include "project_world.h"

using namespace fernwick;

namespace {
struct DeviceSetup : test::ProjectTest {
    basic::Ref<test::ListedTarget> palm = addTarget("Palm");

    void support(const std::string& clsid, const std::string& progId) {
        registry.set(HKEY_CLASSES_ROOT, "CLSID\\" + clsid + "\\InprocServer32", "", "/q/Tavlets.dll");
        classes.progIds[clsid] = progId;
        classes.libraries["/q/Tavlets.dll"] = {"Tavlets", "/q/Tavlets.dll", "", 1, 0, ""};
        palm->clsids.push_back(clsid);
        palm->categories.push_back("");
    }
    clsDeviceConfig config() {
        clsDeviceConfig read{deviceServices};
        read.ReadDeviceConfig("Palm");
        return read;
    }
    const Texts& effects() const { return trace.effects; }
};

/// Refuses requests with an error of the test's choice.
struct RefusingProject : test::TracedProject {
    using TracedProject::TracedProject;
    int number = 0;
    void AddToolboxProgID(const std::string&) override { throw basic::RuntimeError(number, "not here", "VBIDE"); }
    basic::Ref<vbide::References> References() override { throw basic::RuntimeError(number, "not here", "VBIDE"); }
};
} // namespace

TEST_F(DeviceSetup, TakesEveryFieldAndTheDeviceLast) {
    palm->width = "-1";
    palm->options["DefaultFontStyle"] = "2";
    const auto project = wrap(traced());
    project->SetProjectForDeviceConfig(config());
    EXPECT_EQ(effects(), (Texts{"DefaultFormColor=16777215", "DefaultFormHeight=160", "DefaultFormWidth=-1",
                                "TavletStyleID=1", "DefaultFontName=QLPalm", "DefaultFontSize=12", "DefaultFontStyle=2",
                                "TargetDevice=Palm", "numCompileTargets=1", "CompileTarget1=Palm"}));
    EXPECT_EQ(project->designTarget()->Key(), "Palm");
}

TEST_F(DeviceSetup, ATemplateTakesTheDeviceOnly) {
    wrap(traced())->SetTemplateForDeviceConfig(config());
    EXPECT_EQ(effects(), (Texts{"TargetDevice=Palm", "numCompileTargets=1", "CompileTarget1=Palm"}));
}

TEST_F(DeviceSetup, ToolboxAndReferencesSkipEmptyEntries) {
    support("{1}", "Tavlets.QLLabel");
    support("{2}", "");
    palm->references = {"{A}", ""};
    user.expectBox("Could not get ProgID of \r\ndefined in Palm");
    const auto project = wrap(traced());
    project->SetTemplateForDeviceConfig(config());
    trace.effects.clear();
    project->SetupProjectToolbar();
    project->SetupProjectReferences();
    EXPECT_EQ(effects(), (Texts{"toolbox Tavlets.QLLabel", "reference {A} 1.0"}));
}

TEST_F(DeviceSetup, WithoutAUsableControlTheToolboxIsLeftAlone) {
    support("{1}", "Tavlets.QLLabel");
    classes.libraries.clear();
    user.expectBox("Could not load Type Library \r\ndefined in Palm");
    const auto project = wrap(traced());
    project->SetTemplateForDeviceConfig(config());
    trace.effects.clear();
    project->SetupProjectToolbar(); // the entry is in the list, but does not count
    EXPECT_EQ(effects(), Texts{});
}

TEST_F(DeviceSetup, NothingIsAddedWithoutLists) {
    const auto project = wrap(traced());
    project->SetupProjectToolbar();
    project->SetupProjectReferences();
    EXPECT_EQ(effects(), Texts{});
}

TEST_F(DeviceSetup, ARefusalOfTheHostIsShownInABox) {
    support("{1}", "Tavlets.QLLabel");
    palm->references = {"{A}"};
    const auto vbProject = basic::make<RefusingProject>(trace, "Hello", "");
    const auto project = wrap(vbProject);
    project->SetTemplateForDeviceConfig(config());
    vbProject->number = 50001;
    user.expectBox("Could not add CLSID:{1} to the project toolbar.\r\nError in settings for Palm\r\nnot here");
    user.expectBox("Could not add Reference GUID:{A}\r\nError in Device Key for Palm\r\nnot here");
    project->SetupProjectToolbar();
    project->SetupProjectReferences();
    EXPECT_TRUE(reports().empty());
}

TEST_F(DeviceSetup, Error5IsIgnoredForTheToolboxOnly) {
    support("{1}", "Tavlets.QLLabel");
    palm->references = {"{A}"};
    const auto vbProject = basic::make<RefusingProject>(trace, "Hello", "");
    const auto project = wrap(vbProject);
    project->SetTemplateForDeviceConfig(config());
    vbProject->number = 5;
    user.expectBox("Could not add Reference GUID:{A}\r\nError in Device Key for Palm\r\nnot here");
    project->SetupProjectToolbar();
    project->SetupProjectReferences();
}

TEST_F(DeviceSetup, TheStyleIsPublishedInTheEnvironment) {
    const auto project = wrap(traced());
    project->TavletStyleID(7);
    project->PublishTavletStyle();
    EXPECT_EQ(environment.values["TavletStyle-DAF573D9-3AB3-4672-A6A7-6C23862A52E9"], "7");
}

TEST_F(DeviceSetup, EachFailingCallLeavesTheOthersDone) {
    support("{1}", "Tavlets.QLLabel");
    palm->references = {"{A}"};
    const auto device = config();
    int calls = 1;
    for (int failing = 1; failing <= calls; ++failing) {
        errors.seen.clear();
        trace = {};
        trace.failing = failing;
        const auto project = wrap(traced());
        project->SetProjectForDeviceConfig(device);
        calls = trace.calls;
        EXPECT_EQ(reports().size(), 1U) << failing;
        EXPECT_EQ(effects().size(), 9U) << failing;
        EXPECT_EQ(project->designTarget()->Key(), "Palm") << failing;
    }
}
