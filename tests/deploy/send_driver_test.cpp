// Whether a project must be compiled and validated before it is sent, and the final messages.
#include "deploy_world.h"

using fernwick::vbCancel;
using fernwick::vbNo;
using fernwick::vbYes;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr char kStillDeploy[] = "box 292 Fernwick: This project has compile errors. Would you still like to deploy?";
constexpr char kCompileFailed[] = "box 16 Fernwick: One or more errors occurred during compilation.\r\n"
                                  "Refer to the Fernwick Messages window for the list of errors.";

class SendDriver : public testing::Test, protected test::DeployWorld {
protected:
    SendDriver() {
        compiler->work = [this](test::FakeCompiler&) { folder.write("Foo/Foo.0000.qlx", "image"); };
    }
    void TearDown() override {
        EXPECT_TRUE(isClean());
        EXPECT_THAT(errors.seen, IsEmpty());
    }
    /// The user is asked whether to compile, and presses this button.
    void answerNotCurrent(const std::string& button) {
        makeStale();
        prefs.SetQuinloftCompileWarning(true);
        user.whenShown["frmCompileWarning"] = [this, button](fernwick::Form& form) {
            EXPECT_EQ(form.Caption(), "Fernwick");
            EXPECT_EQ(compileWarning.lblWarning.Caption(),
                      "The compiled file is not current. Would you like to compile?");
            test::press(form, button);
        };
    }
    /// Makes a reference of the project missing.
    void makeInvalid() {
        project->references->list.push_back(basic::make<test::TracedReference>(trace, "/lib/Gone.tlb"));
        project->references->list.back()->broken = true;
    }
    std::vector<std::string> forms() const { return effectsOf("form "); }
};

TEST_F(SendDriver, ACurrentImageIsOnlyValidated) {
    messages.AddProjectCompileError(project, "old", "", 0, 1);
    deploy();
    EXPECT_THAT(forms(), ElementsAre("frmValidate", "frmSendToDevice"));
    EXPECT_EQ(trace.effects.front(), "status: Compiling and validating...");
    EXPECT_EQ(stored("NumErrors"), "0");
    EXPECT_EQ(status(), "SUCCESS - Compile and validate completed successfully.");
    EXPECT_EQ(sendToDevice.LastResult(), true);
}

TEST_F(SendDriver, AnInvalidProjectIsNotSent) {
    makeInvalid();
    deploy();
    EXPECT_THAT(forms(), ElementsAre("frmValidate"));
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_EQ(sendToDevice.LastResult(), std::nullopt);
}

TEST_F(SendDriver, AStaleImageIsCompiledWithoutAQuestionIfTheUserWantsNone) {
    makeStale();
    deploy();
    EXPECT_THAT(forms(), ElementsAre("frmCompile", "frmValidate", "frmSendToDevice"));
    EXPECT_EQ(sendToDevice.LastResult(), true);
}

TEST_F(SendDriver, YesCompilesAndValidates) {
    answerNotCurrent("btnYes");
    package();
    EXPECT_THAT(forms(), ElementsAre("frmCompileWarning", "frmCompile", "frmValidate", "frmSendToDevice"));
    EXPECT_TRUE(did("beep 32"));
    EXPECT_FALSE(compileWarning.isLoaded());
    EXPECT_EQ(sendToDevice.LastResult(), true);
}

TEST_F(SendDriver, TheTickSuppressesTheQuestion) {
    answerNotCurrent("btnYes");
    const auto tick = compileWarning.Loaded.connect([&] { compileWarning.chkWarning.Value(1); });
    deploy();
    makeStale();
    deploy();
    EXPECT_THAT(forms(), ElementsAre("frmCompile", "frmValidate", "frmSendToDevice"));
}

TEST_F(SendDriver, AFailedCompileEndsTheRun) {
    makeStale();
    compiler->built = compiler->finished = false;
    deploy();
    EXPECT_THAT(forms(), ElementsAre("frmCompile"));
    EXPECT_THAT(boxes(), ElementsAre(kCompileFailed));
    EXPECT_EQ(sendToDevice.LastResult(), std::nullopt);
}

TEST_F(SendDriver, AFailedValidationAfterTheCompileEndsTheRun) {
    makeStale();
    makeInvalid();
    deploy();
    EXPECT_THAT(forms(), ElementsAre("frmCompile", "frmValidate"));
    EXPECT_EQ(sendToDevice.LastResult(), std::nullopt);
}

TEST_F(SendDriver, TheOldImageIsSentWithoutValidation) {
    answerNotCurrent("btnNo");
    makeInvalid();
    deploy();
    EXPECT_THAT(forms(), ElementsAre("frmCompileWarning", "frmSendToDevice"));
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_EQ(sendToDevice.LastResult(), true);
}

TEST_F(SendDriver, TheOldImageOfAProjectWithErrorsIsSentAfterASecondQuestion) {
    answerNotCurrent("btnNo");
    messages.AddProjectCompileWarning(project, "old", "", 0, 1);
    user.answers = {vbYes};
    deploy();
    EXPECT_THAT(boxes(), ElementsAre(kStillDeploy));
    EXPECT_EQ(stored("NumErrors"), "0");
    EXPECT_EQ(sendToDevice.LastResult(), true);
}

TEST_F(SendDriver, NoToTheSecondQuestionSendsNothing) {
    answerNotCurrent("btnNo");
    messages.AddProjectCompileError(project, "old", "", 0, 1);
    user.answers = {vbNo};
    deploy();
    EXPECT_THAT(boxes(), ElementsAre(kStillDeploy));
    EXPECT_THAT(forms(), ElementsAre("frmCompileWarning"));
    EXPECT_EQ(stored("NumErrors"), "1");
    EXPECT_EQ(sendToDevice.LastResult(), std::nullopt);
}

TEST_F(SendDriver, CancelEndsTheRun) {
    answerNotCurrent("btnCancel");
    messages.AddProjectCompileError(project, "old", "", 0, 1);
    deploy();
    EXPECT_THAT(forms(), ElementsAre("frmCompileWarning"));
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_EQ(stored("NumErrors"), "1");
}

TEST_F(SendDriver, MessagesReplaceTheFinalStatus) {
    family.work = [](qlpipe::IQLPipeEvents& sink) {
        sink.SendWarning("Large", "", 0, 100);
        sink.SendComplete();
        return true;
    };
    deploy();
    EXPECT_THAT(effectsOf("status: "), ElementsAre("Compiling and validating..."));
    EXPECT_EQ(trace.effects.back(), "Fernwick Messages shown");
}

TEST_F(SendDriver, AFailedQuestionDoesNotCountAsYes) {
    answerNotCurrent("btnYes");
    const auto watch = compileWarning.Caption.watch([&](const std::string& caption) {
        if (!caption.empty()) trace.failing = trace.calls + 1;
    });
    deploy();
    EXPECT_THAT(errors.seen, ElementsAre("frmSendToDevice.SendProjectToDevice [50000]"));
    EXPECT_THAT(forms(), IsEmpty());
    errors.seen.clear();
}

} // namespace
