// A run that fails at each of its points: what the user is shown, and that nothing is left behind.
#include "deploy_world.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr char kNoDevice[] = "line: ERROR - No device (20001)";
constexpr char kNotDeployed[] = "box 16 : Deployment did not finish due to an error.";
constexpr char kNotDeployedSeeMessages[] =
    "box 16 : Deployment did not finish due to an error. See the Fernwick Messages Window for details.";
constexpr char kNoPackage[] = "box 16 : Make project pacakge did not finish due to an error.";
constexpr char kNoPackageSeeMessages[] =
    "box 16 : Make project pacakge did not finish due to an error. See the Fernwick Messages Window for details.";
constexpr char kNoPipe[] =
    "box 16 Fernwick: ERROR - Could not create FakePipe.Pipe. Please contact Quinloft technical support.";
constexpr char kValidationFailed[] = "box 16 Validation Failed: Project validation failed please see the Fernwick "
                                     "messages window for more information.";
constexpr char kMessagesShown[] = "Fernwick Messages shown";
constexpr char kErrorsToFix[] = "status: FAILED - Errors (1 items) must be fixed to deploy this project.";
constexpr char kAllGood[] = "status: SUCCESS - Compile and validate completed successfully.";

class SendFailures : public testing::Test, protected test::DeployWorld {
protected:
    using Sink = qlpipe::IQLPipeEvents;

    void TearDown() override { EXPECT_TRUE(isClean()); }
    /// Returns the effects after the first one with this text.
    std::vector<std::string> after(const std::string& what) const {
        const auto at = std::find(trace.effects.begin(), trace.effects.end(), what);
        return {at == trace.effects.end() ? at : at + 1, trace.effects.end()};
    }
    /// Returns how many references to the pipe there are while each box of a failure is shown.
    std::vector<long> holdersAtBoxes(bool makePackage) {
        std::vector<long> holders;
        trace.observer = [&](const std::string& effect) {
            if (effect.starts_with("box 16")) holders.push_back(family.holders());
        };
        run(makePackage);
        trace.observer = {};
        return holders;
    }
    /// The pipe reports an error and returns.
    void pipeErrs(bool result) {
        family.work = [result](Sink& sink) { return sink.SendError(20001, "No device"), result; };
    }
};

TEST_F(SendFailures, AMissingPipe) {
    removePipe();
    deploy();
    EXPECT_THAT(after("line: Attempting to pipe create connection..."),
                ElementsAre(kNoPipe, "pointer 0",
                            "line: Error in QLVBAddIn: (429) ActiveX component can't create object", "animation hidden",
                            "failed shown", kNotDeployedSeeMessages, kMessagesShown, kAllGood));
    EXPECT_EQ(sendToDevice.LastResult(), std::nullopt);
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(SendFailures, AnObjectThatIsNotAPipe) {
    family.registerAs(family.pipeClass, "FakePipe.Pipe", [] { return basic::make<fernwick::Object>(); });
    deploy();
    EXPECT_THAT(boxes(), ElementsAre(kNoPipe, kNotDeployedSeeMessages));
    EXPECT_TRUE(did("line: Error in QLVBAddIn: (13) Type mismatch"));
}

TEST_F(SendFailures, ADeviceWithoutAPipe) {
    sendToDevice.SendProjectToDevice(qlProject, false, "Unknown");
    EXPECT_TRUE(did("box 16 Fernwick: ERROR - Could not create .Pipe. Please contact Quinloft technical support."));
    EXPECT_EQ(sendToDevice.LastResult(), std::nullopt);
}

TEST_F(SendFailures, AnErrorBeforeThePipeExists) {
    const auto watch = sendToDevice.Caption.watch([&](const std::string& caption) {
        if (!caption.empty()) loop.Post([] { throw basic::RuntimeError(57, "Disk gone", "VBIDE"); });
    });
    deploy();
    EXPECT_THAT(after("pointer 11"), ElementsAre("pointer 0", "line: Error in VBIDE: (57) Disk gone", "failed shown",
                                                 kNotDeployedSeeMessages, kMessagesShown, kAllGood));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(SendFailures, APipeThatRefusesItsSink) {
    const auto watch = sendToDevice.stsUpdate.SimpleText.watch([&](const std::string& text) {
        if (text == "Gathering Project List...") trace.failing = trace.calls + 1;
    });
    deploy();
    EXPECT_THAT(errors.seen, ElementsAre("frmSendToDevice.SendProjectToDevice [50000]"));
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_EQ(sendToDevice.LastResult(), std::nullopt);
}

TEST_F(SendFailures, MissingFiles) {
    family.work = [](Sink&) { return ADD_FAILURE() << "sent", true; };
    storeDependencies({"none.txt,TXT"});
    user.answers = {fernwick::vbNo, fernwick::vbNo};
    deploy();
    EXPECT_THAT(
        after("box 52 Fernwick: ERROR: Missing Dependency File, would you like to continue?\r\n" + path("none.txt")),
        ElementsAre("pointer 0", "line: Missing executable files, please compile project.", "animation hidden",
                    "failed shown", "box 16 Fernwick: ERROR - Missing executable files, please compile project.",
                    kAllGood));
    EXPECT_EQ(sendToDevice.LastResult(), std::nullopt);
}

TEST_F(SendFailures, AMissingFolder) {
    const auto watch = sendToDevice.stsUpdate.SimpleText.watch([&](const std::string& text) {
        if (text == "Gathering Project List...") std::filesystem::remove_all(path(""));
    });
    deploy();
    EXPECT_THAT(boxes(), ElementsAre("box 16 Fernwick: ERROR - Could not find folder for project path.",
                                     "box 16 Fernwick: ERROR - Missing executable files, please compile project."));
}

TEST_F(SendFailures, FilesThatTheValidatorRefuses) {
    family.validate = [](Sink& sink) { return sink.SendError(20100, "Too large"), false; };
    deploy();
    EXPECT_THAT(after("failed shown"), ElementsAre("NumErrors=1", "Error1=ERROR||0|Too large|20100", kMessagesShown,
                                                   kErrorsToFix, kValidationFailed, kMessagesShown));
    EXPECT_FALSE(did("pointer 0")); // the pointer and the animation disappear with the form
    EXPECT_EQ(sendToDevice.LastResult(), std::nullopt);
}

TEST_F(SendFailures, TheStatusOfRefusedFilesNamesPackageOrDeployment) {
    family.validate = [](Sink&) { return false; };
    deploy();
    EXPECT_TRUE(did("status: SUCCESS - Project successfully sent to device."));
    package();
    EXPECT_TRUE(did("status: SUCCESS - Make project package completed successfully."));
    family.validate = [](Sink& sink) { return sink.SendWarning("Large", "", 0, 100), false; };
    deploy();
    EXPECT_TRUE(did("status: SUCCESS with Warnings - This project was deployed, but may not function as expected."));
    package();
    EXPECT_TRUE(did("status: SUCCESS with Warnings - This project can be deployed, but may not function as expected."));
    EXPECT_EQ(boxes(), std::vector<std::string>{kValidationFailed});
}

TEST_F(SendFailures, WithoutAValidatorNothingIsSent) {
    family.validatorClass.reset();
    deploy();
    EXPECT_THAT(boxes(), ElementsAre(kValidationFailed));
    family.registerAs(family.validatorClass, "FakePipe.Validation", [] { return basic::make<fernwick::Object>(); });
    deploy();
    EXPECT_THAT(boxes(), ElementsAre(kValidationFailed));
    EXPECT_FALSE(did("send Foo to Palm"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(SendFailures, AFailingValidatorAcceptsNothing) {
    family.validate = [](Sink&) -> bool { throw basic::RuntimeError(57); };
    package();
    EXPECT_THAT(boxes(), ElementsAre(kValidationFailed));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(SendFailures, AValidatorWithoutASinkStillAnswers) {
    family.registerAs(family.validatorClass, "FakePipe.Validation", [this] {
        if (sendToDevice.isLoaded()) trace.failing = trace.calls + 1; // the next call
        return family.newValidator();
    });
    deploy();
    EXPECT_FALSE(did("validator's sink"));
    EXPECT_EQ(sendToDevice.LastResult(), true);
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(SendFailures, AnErrorOfTheValidatorThatAcceptsLeavesNoPipeToSendWith) {
    family.validate = [](Sink& sink) { return sink.SendError(20100, "Too large"), true; };
    deploy();
    EXPECT_THAT(errors.seen, ElementsAre("frmSendToDevice.SendProjectToDevice [91]"));
    EXPECT_FALSE(did("send Foo to Palm"));
    EXPECT_EQ(stored("Error1"), "ERROR||0|Too large|20100");
}

TEST_F(SendFailures, AnErrorEventAndAFailure) {
    pipeErrs(false);
    deploy();
    EXPECT_THAT(after("send Foo to Palm"),
                ElementsAre(kNoDevice, "animation hidden", "failed shown", "NumErrors=1",
                            "Error1=ERROR||0|No device|20001", kMessagesShown, kNotDeployedSeeMessages, kMessagesShown,
                            "delete qldefault.ico by force", "pointer 0", kMessagesShown));
    EXPECT_EQ(sendToDevice.LastResult(), false);
}

TEST_F(SendFailures, AnErrorEventAndSuccessEndSilently) {
    pipeErrs(true);
    deploy();
    EXPECT_THAT(after("failed shown"), ElementsAre("NumErrors=1", "Error1=ERROR||0|No device|20001", kMessagesShown,
                                                   "delete qldefault.ico by force", "pointer 0", kMessagesShown));
    EXPECT_EQ(sendToDevice.LastResult(), true);
}

TEST_F(SendFailures, AFailureWithoutAnEvent) {
    family.work = [](Sink&) { return false; };
    deploy();
    EXPECT_THAT(after("send Foo to Palm"),
                ElementsAre(kNotDeployed, "delete qldefault.ico by force", "pointer 0", kAllGood));
    EXPECT_EQ(sendToDevice.aniSend.Playing(), 0);
    EXPECT_TRUE(sendToDevice.aniSend.Visible()); // stopped, but still visible
    EXPECT_EQ(sendToDevice.LastResult(), false);
}

TEST_F(SendFailures, APackageThatCannotBeMade) {
    pipeErrs(false);
    package();
    EXPECT_THAT(after("package Foo for Palm"),
                ElementsAre(kNoDevice, "animation hidden", "failed shown", "NumErrors=1",
                            "Error1=ERROR||0|No device|20001", kMessagesShown, kErrorsToFix, kNoPackageSeeMessages,
                            kMessagesShown, "delete qldefault.ico by force", "pointer 0", kMessagesShown));
    family.work = [](Sink&) { return false; };
    package();
    EXPECT_THAT(after("package Foo for Palm"),
                ElementsAre("status: SUCCESS - Make project package completed successfully.", kNoPackage,
                            "delete qldefault.ico by force", "pointer 0", kAllGood));
    EXPECT_EQ(sendToDevice.LastResult(), false);
}

TEST_F(SendFailures, APackageWithOnlyWarningsHasADeploymentsStatus) {
    family.work = [](Sink& sink) { return sink.SendWarning("Large", "", 0, 100), false; };
    package();
    EXPECT_TRUE(did("status: SUCCESS with Warnings - This project was deployed, but may not function as expected."));
    EXPECT_THAT(boxes(), ElementsAre(kNoPackage));
}

TEST_F(SendFailures, AFailedDeploymentSetsNoStatus) {
    family.work = [](Sink& sink) { return sink.SendWarning("Large", "", 0, 100), false; };
    deploy();
    EXPECT_THAT(effectsOf("status: "), ElementsAre("Compiling and validating..."));
}

TEST_F(SendFailures, ThrownErrorsEndTheFormAndAreReported) {
    family.work = [](Sink& sink) -> bool {
        sink.SendProgress("Sending", 10);
        throw basic::RuntimeError(57, "Link lost", "FakePipe");
    };
    for (const bool makePackage : {false, true}) {
        errors.seen.clear();
        run(makePackage);
        EXPECT_THAT(errors.seen, ElementsAre("frmSendToDevice.SendProjectToDevice [57]"));
        EXPECT_THAT(boxes(), IsEmpty());
        EXPECT_TRUE(did("delete qldefault.ico by force"));
        EXPECT_EQ(trace.effects.back(), kAllGood);
        EXPECT_EQ(sendToDevice.LastResult(), false);
        EXPECT_TRUE(isClean());
    }
}

TEST_F(SendFailures, AProjectFileThatCannotBeReadEndsTheRunAndLeavesNoIcon) {
    family.validate = [&](Sink&) { return std::filesystem::remove(path("Foo.vbp")); };
    deploy();
    EXPECT_THAT(errors.seen, ElementsAre("frmSendToDevice.SendProjectToDevice [53]"));
    EXPECT_TRUE(did("delete qldefault.ico by force"));
    EXPECT_EQ(sendToDevice.LastResult(), std::nullopt);
}

TEST_F(SendFailures, APackageWithoutAFolder) {
    disk.nowhere = true;
    package();
    EXPECT_THAT(after("copy qldefault.ico"),
                ElementsAre("pointer 0", "line: User Canceled", "delete qldefault.ico by force", "animation hidden",
                            "failed shown", kAllGood));
    EXPECT_EQ(sendToDevice.LastResult(), std::nullopt);
}

TEST_F(SendFailures, AnIconThatCannotBeDeletedIsDeletedWithTheForm) {
    family.work = [&](Sink&) { return trace.failing = trace.calls + 1, true; };
    deploy();
    EXPECT_TRUE(did("delete qldefault.ico by force"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(SendFailures, ThePipeIsReleasedBeforeTheBoxOfTheFailure) {
    family.work = [](Sink&) { return false; };
    EXPECT_THAT(holdersAtBoxes(false), ElementsAre(0));
    EXPECT_THAT(holdersAtBoxes(true), ElementsAre(0));
    storeDependencies({"none.txt,TXT"});
    user.answers = {fernwick::vbNo, fernwick::vbNo};
    EXPECT_THAT(holdersAtBoxes(false), ElementsAre(0)); // files are missing
}

TEST_F(SendFailures, TheAnimationStopsAtTheBoxOfAFailedPackage) {
    family.work = [](Sink&) { return false; };
    int playing = 1;
    trace.observer = [&](const std::string& effect) {
        if (effect == kNoPackage) playing = sendToDevice.aniSend.Playing();
    };
    package();
    EXPECT_EQ(playing, 0);
    EXPECT_TRUE(sendToDevice.aniSend.Visible()); // stopped, but still visible
}

/// The host's active project may be another one than the project that was sent.
TEST_F(SendFailures, TheMessagesAreThoseOfTheHostsActiveProject) {
    pipeErrs(false);
    for (const bool makePackage : {false, true}) {
        trace.observer = [&](const std::string& effect) {
            if (effect == kNotDeployedSeeMessages || effect == kNoPackageSeeMessages) trace.failing = trace.calls + 1;
        };
        errors.seen.clear();
        run(makePackage); // the call after the box fails: the host is asked for its active project
        trace.observer = {};
        EXPECT_THAT(errors.seen, ElementsAre("frmSendToDevice.SendProjectToDevice [50000]"));
    }
}

TEST_F(SendFailures, MessagesThatCannotBeStoredLeaveAnEmptyStatus) {
    const auto endWith = [this](const std::function<void(Sink&)>& message) {
        project->readOnly = false;
        family.work = [this, message](Sink& sink) {
            project->readOnly = true;
            message(sink);
            return true;
        };
        deploy();
        return status();
    };
    EXPECT_EQ(endWith([](Sink& sink) { sink.SendWarning("Large", "", 0, 100); }), "");
    EXPECT_EQ(endWith([](Sink& sink) { sink.SendError(20001, "Lost"); }), "");
    EXPECT_EQ(endWith([](Sink&) {}), "SUCCESS - Compile and validate completed successfully.");
}

} // namespace
