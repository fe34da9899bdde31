// A successful run, from its first Activate to its end.
#include "deploy_world.h"

using fernwick::vbNo;
using fernwick::vbYes;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

class SendRun : public testing::Test, protected test::DeployWorld {
protected:
    using Sink = qlpipe::IQLPipeEvents;
    const std::string kInvalid = "box 36 Fernwick: One or more of the specified dependency files are invalid\r\n"
                                 "Would you like to edit the project dependencies?";
    std::string missing(const std::string& name) {
        return "box 52 Fernwick: ERROR: Missing Dependency File, would you like to continue?\r\n" + path(name);
    }
    long count(const std::string& what) { return std::count(trace.effects.begin(), trace.effects.end(), what); }
};

TEST_F(SendRun, ADeploymentPerformsItsStepsInOrder) {
    deploy();
    EXPECT_THAT(trace.effects,
                ElementsAre("status: Compiling and validating...", "form frmValidate", "Foo saved " + path("Foo.vbp"),
                            "Foo dirty 0", "form frmSendToDevice", "pointer 11", "animation shown",
                            "line: Attempting to pipe create connection...", "line: Gathering Project List...",
                            "pipe's sink", "line: Scanning Project for Dependencies...", "validator's sink",
                            "validate for Palm", "validate files of Foo", "copy qldefault.ico", "send Foo to Palm",
                            "line: Sending", "line: Upload Complete", "animation hidden", "finished shown",
                            "delete qldefault.ico by force", "pointer 0",
                            "status: SUCCESS - Compile and validate completed successfully."));
    EXPECT_EQ(sendToDevice.LastResult(), true);
    EXPECT_TRUE(isClean());
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(SendRun, APackageIsMadeInTheProjectFolder) {
    package();
    const auto from = std::find(trace.effects.begin(), trace.effects.end(), "copy qldefault.ico");
    EXPECT_THAT(
        (std::vector<std::string>{from, trace.effects.end()}),
        ElementsAre("copy qldefault.ico", "package Foo for Palm", "line: Sending", "line: Create Complete",
                    "animation hidden", "finished shown",
                    "box 64 : The project package was successfully created and saved to the specified location.",
                    "delete qldefault.ico by force", "pointer 0",
                    "status: SUCCESS - Compile and validate completed successfully."));
    EXPECT_EQ(family.saveLocation, path(""));
    EXPECT_EQ(sendToDevice.LastResult(), true);
    EXPECT_TRUE(isClean());
}

TEST_F(SendRun, ThePipeReceivesTheApplicationsData) {
    project->name = "My_App";
    projects.RenameProjectInList(project, "Foo");
    project->properties[{"Quinloft Global", "SpacesInNameEnabled"}] = "True";
    std::string icon;
    family.work = [&](Sink&) {
        icon = folder.read("install/VB Toolkit/Bin/qldefault.ico");
        EXPECT_EQ(disk.ReadBytes(family.application.TempIconFile), icon);
        return true;
    };
    deploy();
    EXPECT_EQ(icon, "icon");
    EXPECT_EQ(family.application.ProjectPath, path(""));
    EXPECT_EQ(family.application.ProjectName, "My_App");
    EXPECT_EQ(family.application.DisplayName, "My App");
    EXPECT_EQ(family.application.Version, "1.2.3");
}

TEST_F(SendRun, AProjectWithoutAnIconIsSentWithoutOne) {
    project->properties[{"Quinloft Global", "IconFileName"}] = "none.ico";
    deploy();
    EXPECT_EQ(family.application.TempIconFile, "");
    EXPECT_EQ(sendToDevice.LastResult(), true);
    EXPECT_THAT(trace.effects, Not(Contains(testing::StartsWith("delete"))));
}

TEST_F(SendRun, TheFormShowsItsProgress) {
    family.work = [&](Sink& sink) {
        EXPECT_EQ(sendToDevice.Caption(), "Uploading Foo...");
        EXPECT_EQ(sendToDevice.aniSend.FileName(), folder / "install/VB Toolkit/Bin/QLUPLOAD.AVI");
        EXPECT_EQ(sendToDevice.aniSend.Playing(), -1);
        sink.SendProgress("Half way", 50);
        EXPECT_EQ(sendToDevice.prgbarUpdate.Value(), 50.0F);
        EXPECT_EQ(sendToDevice.stsUpdate.SimpleText(), "Half way");
        sink.SendComplete();
        EXPECT_EQ(sendToDevice.aniSend.Playing(), 0);
        EXPECT_FALSE(sendToDevice.ControlBox);
        return true;
    };
    deploy();
    EXPECT_TRUE(did("line: Half way"));
}

TEST_F(SendRun, APackageHasItsOwnCaptionAndAnimation) {
    family.work = [&](Sink&) {
        EXPECT_EQ(sendToDevice.Caption(), "Creating Foo Device Package...");
        EXPECT_EQ(sendToDevice.aniSend.FileName(), folder / "install/VB Toolkit/Bin/QLCOMPILE.AVI");
        return true;
    };
    package();
    EXPECT_TRUE(did("package Foo for Palm"));
}

TEST_F(SendRun, ProgressLetsTheHostProcessItsMessages) {
    family.work = [&](Sink& sink) {
        loop.Post([&] { trace.effects.push_back("posted"); });
        sink.SendProgress("", 1);
        EXPECT_EQ(trace.effects.back(), "posted");
        loop.Post([&] { trace.effects.push_back("posted again"); });
        sink.SendComplete();
        return true;
    };
    deploy();
    EXPECT_EQ(count("posted again"), 1);
}

TEST_F(SendRun, LaterActivationsDoNothing) {
    storeDependencies({"none.txt,TXT"}); // each box activates the form again
    user.answers = {vbNo, vbYes};
    deploy();
    EXPECT_EQ(boxes().size(), 2U);
    EXPECT_EQ(count("pipe's sink"), 1);
    EXPECT_EQ(count("send Foo to Palm"), 1);
}

TEST_F(SendRun, TheNextRunStartsFresh) {
    family.work = [](Sink& sink) { return sink.SendError(20001, "No device"), false; };
    deploy();
    EXPECT_EQ(sendToDevice.LastResult(), false);
    family.work = [&](Sink& sink) {
        EXPECT_FALSE(sendToDevice.failedImg.Visible());
        EXPECT_EQ(sendToDevice.prgbarUpdate.Value(), 0.0F);
        sink.SendComplete();
        return true;
    };
    package();
    EXPECT_EQ(sendToDevice.LastResult(), true);
    EXPECT_EQ(stored("NumErrors"), "0");
}

TEST_F(SendRun, InvalidDependenciesMayBeEdited) {
    storeDependencies({"none.txt,TXT"});
    noted.inSettings = [&] {
        folder.write("Foo/data.txt", "");
        storeDependencies({"data.txt,TXT"});
    };
    user.answers = {vbYes};
    deploy();
    EXPECT_THAT(boxes(), ElementsAre(kInvalid));
    const auto question = std::find(trace.effects.begin(), trace.effects.end(), kInvalid);
    EXPECT_THAT((std::vector<std::string>{question + 1, question + 3}),
                ElementsAre("cursor 11", "settings Dependencies"));
    EXPECT_EQ(noted.settingsOf, project);
    EXPECT_FALSE(noted.scansInSettings);
    EXPECT_THAT(family.resources, ElementsAre("Foo.0000.qlx", "data.txt"));
}

TEST_F(SendRun, AfterEditingTheyAreNotValidatedAgain) {
    storeDependencies({"none.txt,TXT"});
    user.answers = {vbYes, vbYes};
    deploy();
    EXPECT_THAT(boxes(), ElementsAre(kInvalid, missing("none.txt")));
    EXPECT_EQ(sendToDevice.LastResult(), true);
}

TEST_F(SendRun, WithoutEditingTheListIsUsedUnchanged) {
    storeDependencies({"none.txt,TXT"});
    user.answers = {vbNo, vbYes};
    deploy();
    EXPECT_THAT(boxes(), ElementsAre(kInvalid, missing("none.txt")));
    EXPECT_FALSE(did("cursor 11"));
    EXPECT_FALSE(did("settings Dependencies"));
    EXPECT_EQ(sendToDevice.LastResult(), true);
}

TEST_F(SendRun, TheFilesAreThoseOfTheCurrentProject) {
    projects.gCurrentProject = basic::make<test::TracedProject>(trace, "Bar", path("Bar.vbp"));
    folder.write("Foo/Bar.0000.qlx", "");
    deploy();
    EXPECT_THAT(family.resources, ElementsAre("Bar.0000.qlx"));
    EXPECT_EQ(family.application.ProjectName, "Foo");
}

TEST_F(SendRun, AWarningIsStoredWithAnOffsetAndShownAtOnce) {
    family.work = [&](Sink& sink) {
        sink.SendWarning("Icon is large", path("Module1.bas"), 3, 123);
        EXPECT_TRUE(messages.isToolWindowShowing());
        sink.SendComplete();
        return true;
    };
    deploy();
    EXPECT_EQ(stored("Error1"), "WARNING|" + path("Module1.bas") + "|3|Icon is large|3123");
    EXPECT_EQ(status(), "Compiling and validating..."); // messages replace a status
    EXPECT_EQ(sendToDevice.LastResult(), true);
}

/// The project's own device may be another one.
TEST_F(SendRun, TheFilesAreJudgedForTheDeviceOfTheRun) {
    targets.known = {"Palm", "Pocket"};
    project->properties[{"Quinloft Global", "TargetDevice"}] = "Palm";
    for (const bool makePackage : {false, true}) {
        trace.effects.clear();
        sendToDevice.SendProjectToDevice(qlProject, makePackage, "Pocket");
        EXPECT_THAT(effectsOf("validate "), ElementsAre("for Pocket", "files of Foo"));
    }
}

TEST_F(SendRun, AValidatorRaisesTheSameEvents) {
    family.validate = [](Sink& sink) {
        sink.SendProgress("Checking", 10);
        sink.SendWarning("Long name", "", 0, 100);
        return true;
    };
    deploy();
    EXPECT_TRUE(did("line: Checking"));
    EXPECT_EQ(stored("Error1"), "WARNING||0|Long name|3100");
}

TEST_F(SendRun, ThePipeIsReleasedInsideItsOwnCallAndLivesToItsEnd) {
    for (const bool well : {true, false}) {
        family.work = [&, well](Sink& sink) {
            EXPECT_EQ(family.holders(), 2); // the form, and the call
            well ? sink.SendComplete() : sink.SendError(20001, "Lost");
            EXPECT_EQ(family.holders(), 1);
            sink.SendProgress("still there", 99);
            return well;
        };
        deploy();
        EXPECT_EQ(family.holders(), 0);
        EXPECT_TRUE(did("line: still there"));
        EXPECT_THAT(errors.seen, IsEmpty());
    }
}

TEST_F(SendRun, APipeThatNeverReportsItsEndIsReleased) {
    family.work = [](Sink&) { return true; };
    deploy();
    EXPECT_TRUE(isClean());
    EXPECT_FALSE(sendToDevice.finishedImg.Visible());
}

TEST_F(SendRun, TheFormKeepsNothingOfTheProject) {
    const auto before = qlProject.shared().use_count();
    deploy();
    makeStale();
    prefs.SetQuinloftCompileWarning(true);
    user.whenShown["frmCompileWarning"] = [](fernwick::Form& form) { test::press(form, "btnCancel"); };
    deploy();
    EXPECT_EQ(qlProject.shared().use_count(), before);
}

} // namespace
