#pragma once
// A compiler controlled by the test.
#include "Add-in/platform/compiler.h"
#include "trace.h"
#include <functional>

namespace test {

class FakeCompiler : public qltoolkit::Compiler {
public:
    explicit FakeCompiler(Trace& trace) : trace_(trace) {}
    /// Called between the start and the end of Build.
    std::function<void(FakeCompiler&)> work;
    /// Result of Build, argument of BuildFinished.
    bool built = true, finished = true;

    void SetOutputPath(const std::string& path) override { trace_.effect("output " + path); }
    void AddBuildFile(const std::string& path, int kind) override {
        trace_.effect("file " + std::to_string(kind) + " " + path);
    }
    bool Build() override {
        trace_.effect("build");
        BuildStarted.raise();
        if (work) work(*this);
        BuildFinished.raise(finished);
        return built;
    }
    void Reset() override { trace_.effect("reset"); }
    void SetStartupObject(const std::string& name) override { trace_.effect("start-up '" + name + "'"); }
    void AddConditionalConstant(const std::string& name, std::int32_t value) override {
        trace_.effect("constant " + name + "=" + std::to_string(value));
    }
    void SetVersionInfo(const std::string& key, const std::string& value) override {
        trace_.effect("version " + key + "=" + value);
    }

private:
    Trace& trace_;
};

class FakeCompilerFactory : public qltoolkit::CompilerFactory {
public:
    explicit FakeCompilerFactory(basic::Ref<FakeCompiler> compiler) : compiler_(std::move(compiler)) {}
    basic::Ref<qltoolkit::Compiler> CreateCompiler() override { return compiler_; }

private:
    basic::Ref<FakeCompiler> compiler_;
};

} // namespace test
