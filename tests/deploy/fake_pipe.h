#pragma once
// A device family's pipe that the test controls.
#include "Add-in/platform/classes.h"
#include "Add-in/platform/pipes.h"
#include "tests/support/trace.h"
#include <functional>
#include <memory>

namespace test {

/// The behaviour of the family's objects, and the arguments they received.
struct FakePipeFamily {
    using Sink = qlpipe::IQLPipeEvents;
    using Names = std::vector<std::string>;

    FakePipeFamily(Trace& t, fernwick::Classes& classes) : trace(t), classes_(classes) {
        offerPipe();
        offerValidator();
    }
    void offerPipe() {
        registerAs(pipeClass, "FakePipe.Pipe", [this] { return newPipe(); });
    }
    void offerValidator() {
        registerAs(validatorClass, "FakePipe.Validation", [this] { return newValidator(); });
    }
    /// Replaces the factory of a class.
    void registerAs(std::shared_ptr<void>& registered, const std::string& progId, fernwick::Classes::Factory factory) {
        registered.reset();
        registered = classes_.RegisterClass(progId, std::move(factory));
    }
    basic::Ref<fernwick::Object> newValidator() { return basic::make<Validator>(*this); }
    /// The number of references to the pipe created last; 0 once it has been released.
    long holders() const { return last_.use_count(); }

    Trace& trace;
    /// Called in SendProject, MakePackage and SendRuntime; the result is that of the first two.
    std::function<bool(Sink&)> work = [](Sink& sink) {
        sink.SendProgress("Sending", 50);
        sink.SendComplete();
        return true;
    };
    std::function<bool(Sink&)> validate = [](Sink&) { return true; };
    // The arguments of the last call.
    Names files, resources;
    qlpipe::ApplicationInfo application;
    std::string saveLocation;
    std::shared_ptr<void> pipeClass, validatorClass;

private:
    class Pipe : public qlpipe::IQLPipe {
    public:
        explicit Pipe(FakePipeFamily& family) : family_(family) {}
        bool SendProject(const std::string& device, const basic::Ref<vbide::VBProject>& project,
                         const qlpipe::ProjectFiles& files, const qlpipe::ApplicationInfo& application) override {
            family_.trace.effect("send " + project->Name() + " to " + device);
            family_.take(files);
            family_.application = application;
            return work();
        }
        void SetEventSink(Sink& sink) override {
            family_.trace.effect("pipe's sink");
            sink_ = &sink;
        }
        bool MakePackage(const std::string& device, const basic::Ref<vbide::VBProject>& project,
                         const qlpipe::ProjectFiles& files, const qlpipe::ApplicationInfo& application,
                         std::string& saveLocation) override {
            family_.trace.effect("package " + project->Name() + " for " + device);
            family_.take(files);
            family_.application = application;
            family_.saveLocation = saveLocation;
            return work();
        }
        void SendRuntime(const std::string& device) override {
            family_.trace.effect("runtime to " + device);
            work();
        }

    private:
        /// Accesses a member at the end, as a real pipe does, even if all references were released in the meantime.
        bool work() {
            if (sink_) done_ = family_.work(*sink_);
            return done_;
        }
        FakePipeFamily& family_;
        Sink* sink_ = nullptr;
        bool done_ = false;
    };
    class Validator : public qlpipe::IQLPipeValidation {
    public:
        explicit Validator(FakePipeFamily& family) : family_(family) {}
        bool IsDeviceSupported(const std::string&) override { return true; }
        bool ValidateFiles(const basic::Ref<vbide::VBProject>& project, const qlpipe::ProjectFiles& files) override {
            family_.trace.effect("validate files of " + project->Name());
            family_.take(files);
            return !sink_ || family_.validate(*sink_);
        }
        void SetEventSink(Sink& sink) override {
            family_.trace.effect("validator's sink");
            sink_ = &sink;
        }
        void SetDevice(const std::string& key) override { family_.trace.effect("validate for " + key); }

    private:
        FakePipeFamily& family_;
        Sink* sink_ = nullptr;
    };

    basic::Ref<fernwick::Object> newPipe() {
        const auto pipe = std::make_shared<Pipe>(*this);
        last_ = pipe;
        return pipe;
    }
    void take(const qlpipe::ProjectFiles& given) {
        files = given.ProjectFileList;
        resources = given.ProjectResourceList;
    }

    fernwick::Classes& classes_;
    std::weak_ptr<Pipe> last_;
};

} // namespace test
