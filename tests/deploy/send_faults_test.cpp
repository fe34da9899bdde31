// The n-th call of the environment fails, for all n: one report at most, and nothing is left behind.
#include "deploy_world.h"

using testing::ContainsRegex;

namespace {

/// The events of a pipe in a successful run.
bool tellAll(qlpipe::IQLPipeEvents& sink) {
    sink.SendProgress("Sending", 50);
    sink.SendWarning("Large", "", 0, 100);
    sink.SendComplete();
    return true;
}

class SendFaults : public testing::Test, protected test::DeployWorld {
protected:
    SendFaults() {
        folder.write("Foo/data.txt", "");
        storeDependencies({"data.txt,TXT", "none.txt,TXT"});
        store("NumTavletFileDependencies", "TavletFileDependency", {"data.txt"});
        store("NumFontDependencies", "FontDependency", {"Ari_08B.CMF"});
        family.work = tellAll;
    }
    /// All of the user's answers in one run.
    void answer() { user.answers = {fernwick::vbNo, fernwick::vbYes}; }

    template <class Run, class Check>
    void sweep(Run&& runOnce, Check&& check) {
        for (int failing = 1;; ++failing) {
            errors.seen.clear();
            errors.injected = 0;
            answer();
            trace.calls = 0;
            trace.failing = failing;
            runOnce();
            const bool swept = trace.calls < failing;
            trace.failing = 0;
            if (swept) break;
            EXPECT_LE(errors.injected, 1) << failing;
            for (const auto& seen : errors.seen) EXPECT_THAT(seen, ContainsRegex("\\[(50000|91|5|9|53|76)\\]"));
            check(failing);
        }
    }
};

TEST_F(SendFaults, AFailingCallLeavesNothingBehind) {
    for (const bool makePackage : {false, true}) {
        for (int i = 0; i < 2; ++i) { // the second run finds what the first one left
            answer();
            run(makePackage);
        }
        EXPECT_EQ(sendToDevice.LastResult(), true);
        const auto baseline = trace.effects;
        sweep([&] { run(makePackage); },
              [&](int failing) {
                  EXPECT_TRUE(isClean()) << failing;
                  // a complete run lost only the failed step and those that depend on it
                  const auto most = sendToDevice.LastResult() == true ? 4U : baseline.size();
                  EXPECT_LE(test::lost(baseline, trace.effects).size(), most) << failing;
              });
        answer();
        run(makePackage);
        EXPECT_EQ(sendToDevice.LastResult(), true);
    }
}

TEST_F(SendFaults, AFailingCallOfARefusedRunLeavesNothingBehind) {
    family.work = [](qlpipe::IQLPipeEvents& sink) { return sink.SendError(20001, "No device"), false; };
    sweep([&] { deploy(); }, [&](int failing) { EXPECT_TRUE(isClean()) << failing; });
}

TEST_F(SendFaults, AFailingCallOfAFailedPipeLeavesNothingBehind) {
    family.pipeClass.reset();
    sweep([&] { package(); }, [&](int failing) { EXPECT_TRUE(isClean()) << failing; });
}

TEST_F(SendFaults, AFailingCallOfTheRuntimesRunLeavesNothingBehind) {
    auto& runtime = sendRuntime;
    sweep([&] { runtime.SendRuntimeToDevice("Palm"); },
          [&](int failing) {
              EXPECT_FALSE(runtime.isLoaded()) << failing;
              EXPECT_EQ(family.holders(), 0) << failing;
          });
    EXPECT_EQ(runtime.LastResult(), true);
}

TEST_F(SendFaults, AFailingCallOfTheImageCheckLeavesNothingBehind) {
    sweep([&] { EXPECT_NO_THROW(sendToDevice.IsCompiledImageCurrent(qlProject)); }, [](int) {});
    EXPECT_TRUE(sendToDevice.IsCompiledImageCurrent(qlProject));
}

} // namespace
