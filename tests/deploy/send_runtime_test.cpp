// Sending the runtime to a device.
#include "deploy_world.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SendRuntime : public testing::Test, protected test::PipesWorld {
protected:
    using Sink = qlpipe::IQLPipeEvents;

    SendRuntime() { targets.known = {"Palm"}; }
    void TearDown() override {
        EXPECT_FALSE(sendRuntime.isLoaded());
        EXPECT_EQ(family.holders(), 0);
    }
    void run(const std::string& device = "Palm") {
        trace.effects.clear();
        sendRuntime.SendRuntimeToDevice(device);
    }

    std::vector<fernwick::Subscription> watches = test::watchForm(trace, sendRuntime);
};

TEST_F(SendRuntime, PerformsItsStepsInOrder) {
    run();
    EXPECT_THAT(trace.effects,
                ElementsAre("form frmSendRuntimeToDevice", "pointer 11", "animation shown",
                            "line: Attempting to create connection...", "line: Gathering Project List...",
                            "pipe's sink", "runtime to Palm", "line: Sending", "line: Upload Complete",
                            "animation hidden", "finished shown", "pointer 0"));
    EXPECT_EQ(sendRuntime.LastResult(), true);
}

TEST_F(SendRuntime, TheFormShowsItsProgress) {
    family.work = [&](Sink& sink) {
        EXPECT_EQ(sendRuntime.Caption(), "Load Tamarik");
        EXPECT_EQ(sendRuntime.aniSend.FileName(), folder / "install/VB Toolkit/Bin/QLUPLOAD.AVI");
        EXPECT_EQ(sendRuntime.aniSend.Playing(), -1);
        loop.Post([&] { trace.effects.push_back("posted"); });
        sink.SendProgress("Half way", 50);
        EXPECT_EQ(sendRuntime.prgbarUpdate.Value(), 50.0F);
        EXPECT_EQ(trace.effects.back(), "posted");
        sink.SendComplete();
        EXPECT_EQ(sendRuntime.aniSend.Playing(), 0);
        EXPECT_FALSE(sendRuntime.ControlBox);
        return true;
    };
    run();
    EXPECT_TRUE(did("line: Half way"));
    EXPECT_TRUE(did("finished shown"));
}

TEST_F(SendRuntime, AnErrorStaysOnTheScreenUntilTheUserConfirmsIt) {
    family.work = [](Sink& sink) { return sink.SendError(20001, "No device"), true; };
    run();
    const std::vector<std::string> end(std::find(trace.effects.begin(), trace.effects.end(), "runtime to Palm") + 1,
                                       trace.effects.end());
    EXPECT_THAT(end, ElementsAre("line: ERROR - No device (20001)", "animation hidden", "failed shown",
                                 "box 16 Fernwick: ERROR - No device (20001)", "pointer 0"));
    EXPECT_EQ(sendRuntime.LastResult(), false);
}

TEST_F(SendRuntime, ALaterActivationDoesNothing) { // the box activates the form again
    family.work = [](Sink& sink) { return sink.SendError(20001, "No device"), true; };
    run();
    EXPECT_EQ(std::count(trace.effects.begin(), trace.effects.end(), "runtime to Palm"), 1);
}

TEST_F(SendRuntime, WarningsAreIgnored) {
    family.work = [](Sink& sink) { return sink.SendWarning("Old", "", 0, 100), sink.SendComplete(), true; };
    run();
    EXPECT_EQ(trace.effects[trace.effects.size() - 4], "line: Upload Complete");
    EXPECT_EQ(sendRuntime.LastResult(), true);
}

TEST_F(SendRuntime, NothingReachesTheMessagesOfTheProject) {
    const auto project = basic::make<test::TracedProject>(trace, "Foo", folder / "Foo/Foo.vbp");
    vbe->active = project;
    projects.AddToProjectsList(project);
    projects.gCurrentProject = project;
    messages.createToolWindow();
    family.work = [](Sink& sink) {
        sink.SendWarning("Old", "", 0, 100);
        sink.SendError(20001, "No device");
        return false;
    };
    run();
    EXPECT_TRUE(did("box 16 Fernwick: ERROR - No device (20001)"));
    removePipe();
    run();
    EXPECT_EQ(project->stored("NumErrors"), "(none)");
    EXPECT_EQ(window->rowCount(), 1);
    EXPECT_FALSE(messages.isToolWindowShowing());
    EXPECT_EQ(window->lblStatusText(), "");
}

TEST_F(SendRuntime, ThePipeIsReleasedInsideItsOwnCall) {
    for (const bool well : {true, false}) {
        family.work = [&, well](Sink& sink) {
            EXPECT_EQ(family.holders(), 2);
            well ? sink.SendComplete() : sink.SendError(20001, "Lost");
            EXPECT_EQ(family.holders(), 1);
            sink.SendProgress("still there", 99);
            return well;
        };
        run();
        EXPECT_EQ(sendRuntime.LastResult(), well);
    }
}

TEST_F(SendRuntime, WithoutACompletionItDidNotSucceed) {
    family.work = [](Sink&) { return true; };
    run();
    EXPECT_EQ(sendRuntime.LastResult(), false);
    family.work = [](Sink& sink) { return sink.SendError(20001, "Lost"), sink.SendComplete(), true; };
    run();
    EXPECT_EQ(sendRuntime.LastResult(), false);
}

TEST_F(SendRuntime, AMissingPipe) {
    removePipe();
    run();
    EXPECT_THAT(trace.effects,
                ElementsAre("form frmSendRuntimeToDevice", "pointer 11", "animation shown",
                            "line: Attempting to create connection...",
                            "box 16 Fernwick: ERROR - Could not create FakePipe.Pipe. Please contact Quinloft "
                            "technical support.",
                            "pointer 0", "line: Error in QLVBAddIn: (429) ActiveX component can't create object",
                            "animation hidden", "failed shown"));
    EXPECT_EQ(sendRuntime.LastResult(), std::nullopt);
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(SendRuntime, TheFormClosesItself) {
    int leftOpen = 0;
    user.whenShown["frmSendRuntimeToDevice"] = [&](fernwick::Form&) { ++leftOpen; };
    run();
    run("Unknown");
    EXPECT_EQ(leftOpen, 0);
}

TEST_F(SendRuntime, ADeviceWithoutAPipe) {
    run("Unknown");
    EXPECT_EQ(trace.effects[4],
              "box 16 Fernwick: ERROR - Could not create .Pipe. Please contact Quinloft technical support.");
}

TEST_F(SendRuntime, AnErrorBeforeThePipeExistsShowsNoBox) {
    loop.Post([] { throw basic::RuntimeError(57, "Disk gone", "VBIDE"); });
    run();
    EXPECT_THAT(trace.effects, ElementsAre("form frmSendRuntimeToDevice", "pointer 11", "pointer 0",
                                           "line: Error in VBIDE: (57) Disk gone", "failed shown"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(SendRuntime, AnErrorThatLeavesThePipeIsReported) {
    family.work = [](Sink&) -> bool { throw basic::RuntimeError(57, "Link lost", "FakePipe"); };
    run();
    EXPECT_THAT(errors.seen, ElementsAre("frmSendRuntimeToDevice.Form_Activate [57]"));
    EXPECT_EQ(trace.effects.back(), "pointer 0");
    EXPECT_EQ(sendRuntime.LastResult(), false);
}

TEST_F(SendRuntime, TheNextRunStartsFresh) {
    removePipe();
    run();
    family.offerPipe();
    family.work = [&](Sink& sink) {
        EXPECT_FALSE(sendRuntime.failedImg.Visible());
        return sink.SendComplete(), true;
    };
    run();
    EXPECT_EQ(sendRuntime.LastResult(), true);
}

} // namespace
