// A project is converted to another device: in place, or as a copy in another folder.
#include "lifecycle_world.h"

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr char kFilesNotCopied[] =
    "box 16 Fernwick: Some or all of your project files were not copied, please check the project files.";
constexpr char kDependenciesNotCopied[] = "box 16 Fernwick: Some or all of your file dependencies for the porject did "
                                          "not copy, please check the dependencies of the project.";

class Converter : public testing::Test, protected test::LifecycleWorld {
protected:
    Converter() {
        targets.known = {"Palm-1", "Palm-2", "Pocket-1"};
        project = open("A", "Palm-1");
        files.files["/p/A.vbp"].bytes =
            "Type=Exe\r\nTargetDevice=Before\r\n[Quinloft Global]\r\nIconFileName=A.ico\r\n"
            "TargetDevice=Palm-1\r\nCompileTarget1=Palm-1\r\nCompileTargets\r\nTavletStyleID=1\r\n"
            "Other=Palm-1\r\n[MS Transaction Server]\r\nTargetDevice=After\r\n";
        files.files["/p/A.ico"].bytes = "icon";
        file("Form1.frm");
        project->add("Form1", "/p/Form1.frm", vbide::vbext_ct_VBForm);
    }
    void file(const std::string& name) { files.files["/p/" + name].bytes = name; }
    std::string bytes(const std::string& path) const {
        const auto found = files.files.find(path);
        return found == files.files.end() ? "(none)" : found->second.bytes;
    }
    void show(std::function<void()> act) {
        trace.effects.clear();
        user.whenShown["frmDesignTargetConverter"] = [act](fernwick::Form&) { act(); };
        converter.ShowModal();
    }
    /// The user converts to Pocket-1.
    void convert(bool inPlace) {
        show([=, this] {
            converter.lstDesignTargets.ListIndex(1);
            converter.chkOverwrite.Value(inPlace ? 1 : 0);
            converter.btnOK.press();
        });
    }
    void copyTo(const std::string& path) {
        user.savedAs = {path};
        convert(false);
    }
    /// A library that the targets do not know.
    void refer(const std::string& name, const std::string& guid) {
        supportLabel();
        project->references->list.push_back(basic::make<test::TracedReference>(trace, "/lib/" + name + ".dll"));
        project->references->list.back()->name = name;
        project->references->list.back()->guid = guid;
    }
    test::Ref<test::TracedProject> project;
};

TEST_F(Converter, ListsOneRowAPlatformAndOKNeedsARow) {
    show([&] {
        ASSERT_EQ(converter.lstDesignTargets.ListCount(), 2);
        EXPECT_EQ(converter.lstDesignTargets.List(1), "Pocket-1");
        EXPECT_THAT(converter.targetKeys(), ElementsAre("Palm-1", "Pocket-1"));
        EXPECT_FALSE(converter.btnOK.Enabled());
        EXPECT_EQ(converter.chkOverwrite.Value(), 0);
        converter.lstDesignTargets.ListIndex(1);
        EXPECT_TRUE(converter.btnOK.Enabled());
    });
    show([&] { EXPECT_EQ(converter.lstDesignTargets.ListCount(), 2); });
}

TEST_F(Converter, WithoutTargetsSaysSo) {
    targets.refused = {"Palm-1", "Palm-2", "Pocket-1"};
    show([&] { EXPECT_EQ(converter.lstDesignTargets.ListCount(), 0); });
    EXPECT_THAT(trace.effects, Contains("box 48 Fernwick: There were no valid design targets found for your project.  "
                                        "THe project cannot be converted."));
}

TEST_F(Converter, InPlaceWritesTheDeviceItsStyleAndEveryCompileTarget) {
    set(project, "numCompileTargets", "3");
    convert(true);
    EXPECT_EQ(project->stored("TargetDevice"), "Pocket-1");
    EXPECT_EQ(project->stored("TavletStyleID"), "2");
    for (const auto* key : {"CompileTarget1", "CompileTarget2", "CompileTarget3"})
        EXPECT_EQ(project->stored(key), "Pocket-1");
    EXPECT_EQ(project->stored("CompileTarget0"), "(none)");
    EXPECT_EQ(project->stored("numCompileTargets"), "1");
    EXPECT_TRUE(converter.projectConverted());
    EXPECT_FALSE(converter.doReloadProject());
    EXPECT_EQ(converter.projectFile(), "");
    EXPECT_EQ(converter.newPlatform(), "Pocket-1");
    EXPECT_THAT(trace.effects, Contains("A saved /p/A.vbp"));
}

TEST_F(Converter, InPlaceACountOf0WritesTheEntry0) {
    for (const auto* count : {"(none)", "-2", "many"}) {
        if (std::string(count) != "(none)") set(project, "numCompileTargets", count);
        convert(true);
        EXPECT_EQ(project->stored("CompileTarget0"), "Pocket-1") << count;
        project->properties.erase({"Quinloft Global", "CompileTarget0"});
        project->properties.erase({"Quinloft Global", "numCompileTargets"});
    }
}

TEST_F(Converter, InPlaceTheInterfaceBecomesThatOfTheNewDevice) {
    supportLabel();
    convert(true);
    EXPECT_THAT(trace.effects, Contains("default target Pocket-1"));
    EXPECT_THAT(trace.effects, Contains("toolbox Tavlets.QLLabel"));
}

TEST_F(Converter, InPlaceKeepsTheOldFileAndEachEarlierBackup) {
    const auto before = bytes("/p/A.vbp");
    files.files["/p/A.vbp.bak"].bytes = "earlier";
    convert(true);
    EXPECT_EQ(bytes("/p/A.vbp.bak"), "earlier");
    EXPECT_EQ(bytes("/p/A.vbp.bak1"), before);
    EXPECT_EQ(converter.conversion().last().backup, "/p/A.vbp.bak1");
}

TEST_F(Converter, WithoutABackupNothingIsChanged) {
    files.files.erase("/p/A.vbp");
    convert(true);
    EXPECT_FALSE(converter.projectConverted());
    EXPECT_EQ(project->stored("TargetDevice"), "Palm-1");
    EXPECT_THAT(trace.effects, Contains(HasSubstr("could not be backed up, so nothing was changed")));
}

TEST_F(Converter, TheCopyHasTheNewDeviceInItsGlobalSectionOnly) {
    copyTo("/new/B.vbp");
    EXPECT_EQ(
        bytes("/new/B.vbp"),
        "Type=Exe\r\nTargetDevice=Before\r\n[Quinloft Global]\r\nIconFileName=A.ico\r\nTargetDevice=Pocket-1\r\n"
        "CompileTarget1=Pocket-1\r\nCompileTargets\r\nTavletStyleID=2\r\nOther=Palm-1\r\n[MS Transaction Server]\r\n"
        "TargetDevice=After\r\n");
    EXPECT_EQ(bytes("/new/B.vbp.converting"), "(none)");
    EXPECT_EQ(bytes("/new/A.ico"), "icon");
    EXPECT_EQ(bytes("/new/Form1.frm"), "Form1.frm");
    EXPECT_TRUE(converter.projectConverted());
    EXPECT_TRUE(converter.doReloadProject());
    EXPECT_EQ(converter.projectFile(), "/new/B.vbp");
    EXPECT_EQ(project->stored("TargetDevice"), "Palm-1");
}

TEST_F(Converter, AsksForThePlaceOfTheCopyInTheFolderOfTheProject) {
    copyTo("/new/B.vbp");
    EXPECT_EQ(user.saved.InitDir, "/p");
    EXPECT_EQ(user.saved.FileName, "A.vbp");
    EXPECT_EQ(user.saved.DefaultExt, ".vbp");
    EXPECT_EQ(user.saved.DialogTitle, "Select the location for your new project.");
    EXPECT_EQ(user.saved.Filter, "Quinloft 2.0 Project(*.vbp)|*.vbp|");
    EXPECT_EQ(user.saved.FilterIndex, 1);
    EXPECT_TRUE(user.saved.CancelError);
}

TEST_F(Converter, TheFolderOfTheProjectIsRefusedWithARetry) {
    user.savedAs = {"/p/B.vbp", "/new/B.vbp"};
    user.answers = {fernwick::vbOK};
    convert(false);
    EXPECT_THAT(trace.effects, Contains("box 1 Fernwick: Cannot create new project in the same folder as the original "
                                        "folder."));
    EXPECT_TRUE(converter.projectConverted());

    user.savedAs = {"/p/B.vbp"};
    user.answers = {fernwick::vbCancel};
    convert(false);
    EXPECT_FALSE(converter.projectConverted());
    EXPECT_EQ(bytes("/p/B.vbp"), "(none)");
}

TEST_F(Converter, StaysUpAfterACancelledSaveDialog) {
    user.cancelsSaving = true;
    bool stayed = false;
    show([&] {
        converter.lstDesignTargets.ListIndex(1);
        converter.btnOK.press();
        stayed = converter.Visible();
    });
    EXPECT_TRUE(stayed);
    EXPECT_FALSE(converter.projectConverted());
    EXPECT_EQ(converter.projectFile(), "");
}

TEST_F(Converter, AMissingFileIsReportedAndTheOthersAreCopied) {
    project->add("Gone", "/p/Gone.bas");
    file("Last.bas");
    project->add("Last", "/p/Last.bas");
    copyTo("/new/B.vbp");
    EXPECT_THAT(trace.effects, Contains(kFilesNotCopied));
    EXPECT_THAT(trace.effects, Not(Contains(kDependenciesNotCopied)));
    EXPECT_EQ(bytes("/new/Last.bas"), "Last.bas");
    EXPECT_TRUE(converter.projectConverted());
    EXPECT_FALSE(converter.conversion().last().isComplete);
}

TEST_F(Converter, DependenciesKeepTheirPlacesAndFontsAreLeftOut) {
    auto& stored = project->properties;
    stored[{"Quinloft Project Dependencies", "NumDependencies"}] = "4";
    stored[{"Quinloft Project Dependencies", "Dependencies0"}] = "data\\a.txt,TXT";
    stored[{"Quinloft Project Dependencies", "Dependencies1"}] = "Arial.CMF,CMF";
    stored[{"Quinloft Project Dependencies", "Dependencies2"}] = "";
    stored[{"Quinloft Project Dependencies", "Dependencies3"}] = "Small.cmf,cmf";
    stored[{"Quinloft Components And Tavlet Dependencies Section", "NumTavletFileDependencies"}] = "1";
    stored[{"Quinloft Components And Tavlet Dependencies Section", "TavletFileDependency1"}] = "tavlets\\x.prc";
    for (const auto* name : {"data/a.txt", "Arial.CMF", "Small.cmf", "tavlets/x.prc"}) file(name);
    copyTo("/new/B.vbp");
    EXPECT_EQ(bytes("/new/data/a.txt"), "data/a.txt");
    EXPECT_EQ(bytes("/new/tavlets/x.prc"), "tavlets/x.prc");
    EXPECT_EQ(bytes("/new/Small.cmf"), "Small.cmf");
    EXPECT_EQ(bytes("/new/Arial.CMF"), "(none)");
    EXPECT_TRUE(converter.conversion().last().isComplete);

    stored[{"Quinloft Project Dependencies", "Dependencies0"}] = "data\\gone.txt,TXT";
    copyTo("/third/B.vbp");
    EXPECT_THAT(trace.effects, Contains(kDependenciesNotCopied));
    EXPECT_EQ(bytes("/third/tavlets/x.prc"), "tavlets/x.prc");
}

TEST_F(Converter, ComponentsKeepTheirPlacesAndAreBesideTheProjectToo) {
    file("sub/Tools.bas");
    project->add("Tools", "/p/sub/Tools.bas");
    copyTo("/new/B.vbp");
    EXPECT_EQ(bytes("/new/sub/Tools.bas"), "sub/Tools.bas");
    EXPECT_EQ(bytes("/new/Tools.bas"), "sub/Tools.bas");
}

TEST_F(Converter, AComponentWithAnAbsolutePathIsOnlyPutBesideTheProject) {
    file("lib/Far.bas");
    project->add("Far", "/p/lib/Far.bas");
    auto& text = files.files["/p/A.vbp"].bytes;
    text = "Module=Far; /p/lib/Far.bas\r\n" + text;
    copyTo("/new/B.vbp");
    EXPECT_EQ(bytes("/new/Far.bas"), "lib/Far.bas");
    EXPECT_EQ(bytes("/new/lib/Far.bas"), "(none)");
    EXPECT_TRUE(converter.projectConverted());
}

TEST_F(Converter, FilesOfOneNameDoNotOverwriteEachOther) {
    file("sub/Form1.frm");
    project->components->list.insert(
        project->components->list.begin(),
        basic::make<test::TracedComponent>(trace, "Form2", "/p/sub/Form1.frm", vbide::vbext_ct_VBForm));
    copyTo("/new/B.vbp");
    EXPECT_EQ(bytes("/new/Form1.frm"), "Form1.frm");
    EXPECT_EQ(bytes("/new/sub/Form1.frm"), "sub/Form1.frm");
}

TEST_F(Converter, AsksBeforeFilesAreReplacedOrWrittenElsewhere) {
    files.files["/shared/Tools.bas"].bytes = "Tools";
    project->add("Tools", "/shared/Tools.bas");
    files.files["/else/new/Form1.frm"].bytes = "precious";
    user.answers = {fernwick::vbNo};
    copyTo("/else/new/B.vbp");
    EXPECT_THAT(trace.effects, Contains("box 308 Fernwick: These files will be replaced:\r\n/else/new/Form1.frm\r\n\r\n"
                                        "Do you want to continue?"));
    EXPECT_EQ(bytes("/else/new/Form1.frm"), "precious");
    EXPECT_EQ(bytes("/else/new/B.vbp"), "(none)");
    EXPECT_FALSE(converter.projectConverted());

    user.answers = {fernwick::vbYes};
    copyTo("/else/new/B.vbp");
    EXPECT_EQ(bytes("/else/new/Form1.frm"), "Form1.frm");
    EXPECT_TRUE(converter.projectConverted());
}

TEST_F(Converter, ACopyThatDoesNotNameTheDeviceIsReported) {
    files.files["/p/A.vbp"].bytes = "Type=Exe\r\n";
    copyTo("/new/B.vbp");
    EXPECT_THAT(trace.effects, Contains(HasSubstr("The new project does not name the chosen device.")));
    EXPECT_FALSE(converter.conversion().last().isComplete);
}

TEST_F(Converter, OffersToRemoveReferencesThatTheDeviceLacks) {
    refer("Good", "{G}");
    targets.knows.references = {"{G}"};
    refer("Bad", "{B}");
    refer("Inside", "{I}");
    project->references->list.back()->builtIn = true;
    refer("TavletsCtl", "{T}");
    user.answers = {fernwick::vbYes};
    convert(true);
    EXPECT_THAT(trace.effects,
                Contains("box 52 Fernwick: The following references are not valid for your new design target:\r\n\r\n"
                         "Bad\r\n\r\nYou will not be able to deploy your project until these references are removed. "
                         "Would you like these references to be removed now?"));
    EXPECT_EQ(project->references->list.size(), 3U);
}

TEST_F(Converter, KeepsTheReferencesAfterNoAndAfterACancelledCopy) {
    refer("Bad", "{B}");
    user.answers = {fernwick::vbNo};
    convert(true);
    EXPECT_EQ(project->references->list.size(), 1U);

    user.answers = {fernwick::vbYes};
    user.cancelsSaving = true;
    convert(false);
    EXPECT_THAT(trace.effects, Contains("remove reference Bad"));
    EXPECT_THAT(trace.effects, Contains("reference {B} 1.0"));
}

TEST_F(Converter, TheOpenCopyLosesTheSameReferences) {
    refer("Bad", "{B}");
    user.answers = {fernwick::vbYes};
    copyTo("/new/B.vbp");
    project = open("B", "Pocket-1");
    refer("Bad", "{B}");
    refer("Other", "{O}");
    converter.conversion().finishCopy(project);
    ASSERT_EQ(project->references->list.size(), 1U);
    EXPECT_EQ(project->references->list.front()->name, "Other");
}

TEST_F(Converter, ATargetThatVanishedStopsTheConversion) {
    show([&] {
        converter.lstDesignTargets.ListIndex(1);
        targets.known = {"Palm-1"};
        converter.btnOK.press();
        EXPECT_TRUE(converter.Visible());
    });
    EXPECT_THAT(trace.effects, Contains("box 16 Fernwick: Error getting information about chosen design target, "
                                        "conversion cancelled."));
    EXPECT_FALSE(converter.projectConverted());
}

TEST_F(Converter, CancelAsksAndNoStays) {
    show([&] {
        user.answers = {fernwick::vbNo};
        converter.btnCancel.press();
        EXPECT_TRUE(converter.Visible());
        user.answers = {fernwick::vbYes};
        converter.btnCancel.press();
        EXPECT_FALSE(converter.isLoaded());
    });
    EXPECT_THAT(trace.effects, Contains("box 36 Fernwick: If you continue without converting the project you may "
                                        "recieve errors.  Do you wish to continue?"));
    EXPECT_TRUE(converter.CloseBoxCancels);
}

class ConverterWarning : public Converter {
protected:
    void showWarning(std::function<void(fernwick::Form&)> act) {
        trace.effects.clear();
        user.whenShown["frmDesignTargetConverterWarning"] = std::move(act);
        converterWarning.ShowModal();
    }
};

TEST_F(ConverterWarning, DescribesTheDevice) {
    showWarning([&](fernwick::Form& form) {
        EXPECT_EQ(form.Caption(), "Fernwick Configuration Issue Detected");
        EXPECT_EQ(converterWarning.lblDescription.Caption(),
                  "The project you are attempting to open was created with a version of Fernwick which supported "
                  "Platform devices.  The version of Fernwick you currently have installed does not support these "
                  "devices.");
    });
    set(project, "TargetDevice", "Gone-9");
    showWarning([&](fernwick::Form&) {
        EXPECT_EQ(converterWarning.lblDescription.Caption(),
                  "The project you are attempting to open was created with a version of Fernwick which contained a "
                  "different configuration than the one present.");
    });
}

TEST_F(ConverterWarning, OpensAnywayOrNot) {
    showWarning([](auto& form) { test::press(form, "cmdOpenProject"); });
    EXPECT_TRUE(converterWarning.openAnyway());
    converterWarning.Unload();
    showWarning([](auto& form) { test::press(form, "cmdCancelOpen"); });
    EXPECT_FALSE(converterWarning.openAnyway());
}

TEST_F(ConverterWarning, AConversionInPlaceKeepsTheProjectOpen) {
    user.whenShown["frmDesignTargetConverter"] = [&](auto& form) {
        converter.lstDesignTargets.ListIndex(1);
        converter.chkOverwrite.Value(1);
        test::press(form, "btnOK");
    };
    showWarning([](auto& form) { test::press(form, "cmdRunConverter"); });
    EXPECT_TRUE(converterWarning.openAnyway());
    EXPECT_TRUE(converterWarning.converterFinished());
    EXPECT_EQ(converterWarning.newProjectFile(), "");
    EXPECT_FALSE(converter.isLoaded());
}

TEST_F(ConverterWarning, ComesBackIfNothingWasConverted) {
    int shown = 0;
    user.answers = {fernwick::vbYes};
    user.whenShown["frmDesignTargetConverter"] = [](auto& form) { test::press(form, "btnCancel"); };
    showWarning([&](auto& form) { test::press(form, ++shown == 1 ? "cmdRunConverter" : "cmdOpenProject"); });
    EXPECT_EQ(shown, 2);
    EXPECT_TRUE(converterWarning.openAnyway());
    EXPECT_FALSE(converterWarning.converterFinished());
}

} // namespace
