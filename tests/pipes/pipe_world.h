#pragma once
// The pipes' dependencies in a temporary folder.
#include "Components/DesignTargetAccess/design_target_mgr.h"
#include "Components/Image/image.h"
#include "Components/QLPipe/pipe_family.h"
#include "Host/registry/registry_store.h"
#include "Host/system/classes.h"
#include "Host/system/clock.h"
#include "Host/system/event_loop.h"
#include "Host/system/file_system.h"
#include "tests/support/scripted_user.h"
#include "tests/support/temp_folder.h"
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <string>

namespace test {

inline const std::string kShippedInstallation = FERNWICK_SOURCE_DIR "/installation";

class FakeEnvironment : public fernwick::Environment {
public:
    std::string GetEnvironmentVariable(const std::string& name) const override {
        const auto found = values.find(name);
        return found == values.end() ? "" : found->second;
    }
    void SetEnvironmentVariable(const std::string& name, const std::string& value) override { values[name] = value; }
    std::map<std::string, std::string> values;
};

/// Records the events of a pipe.
class RecordingSink : public qlpipe::IQLPipeEvents {
public:
    void SendProgress(const std::string& status, std::int32_t percent) override {
        expectWhole(status);
        statuses.push_back(status);
        percents.push_back(percent);
        if (onProgress) onProgress();
    }
    void SendComplete() override {
        ++completed;
        if (onEnd) onEnd();
    }
    void SendError(std::int32_t number, const std::string& message) override {
        expectWhole(message);
        errors.emplace_back(number, message);
        if (onEnd) onEnd();
    }
    void SendWarning(const std::string& message, const std::string& source, std::int32_t line,
                     std::int32_t number) override {
        expectWhole(message);
        warnings.emplace_back(number, message);
        sources.push_back(source);
        lines.push_back(line);
    }

    /// No placeholder such as {device} was left in a text.
    static void expectWhole(const std::string& text) { EXPECT_EQ(text.find_first_of("{}"), text.npos) << text; }

    std::vector<int> errorNumbers() const {
        std::vector<int> numbers;
        for (const auto& error : errors) numbers.push_back(error.first);
        return numbers;
    }
    std::vector<int> warningNumbers() const {
        std::vector<int> numbers;
        for (const auto& warning : warnings) numbers.push_back(warning.first);
        return numbers;
    }

    std::vector<std::string> statuses, sources;
    std::vector<std::int32_t> percents, lines;
    std::vector<std::pair<std::int32_t, std::string>> errors, warnings;
    int completed = 0;
    std::function<void()> onProgress, onEnd;
};

/// Returns an image as the compiler writes it.
inline std::string imageOf(const std::string& project, const std::string& compilerVersion = "3.5.0 (0624)",
                           std::size_t padding = 0) {
    image::Image image;
    image.compilerVersion = compilerVersion;
    image.projectName = project;
    image.info.emplace_back("Comments", std::string(padding, 'x'));
    return image::encode(image);
}

/// The files of a project and the two lists of their names.
class ProjectFolder {
public:
    explicit ProjectFolder(const TempFolder& folder, std::string name = "Hello")
        : name_(std::move(name)), folder_(folder) {}

    /// Adds a file with the same name on the device and in the project.
    ProjectFolder& add(const std::string& name, const std::string& bytes) {
        auto resource = name;
        std::replace(resource.begin(), resource.end(), '/', '\\');
        return list(folder_.write("project/" + name, bytes), resource);
    }
    ProjectFolder& list(const std::string& path, const std::string& resource) {
        paths.push_back(path);
        resources.push_back(resource);
        return *this;
    }
    ProjectFolder& image() { return add(name_ + ".0000.qlx", imageOf(name_)); }
    void reverse() {
        std::reverse(paths.begin(), paths.end());
        std::reverse(resources.begin(), resources.end());
    }

    std::string path(const std::string& name) const { return folder_ / ("project/" + name); }
    qlpipe::ProjectFiles files() const { return {paths, resources}; }
    qlpipe::ApplicationInfo application() const { return {path(""), name_, icon, "Hello, World", "1.2.3"}; }

    std::vector<std::string> paths, resources;
    std::string icon;

private:
    std::string name_;
    const TempFolder& folder_;
};

/// A machine with pipes and the shipped design targets.
class PipeWorld {
public:
    explicit PipeWorld(const std::string& installation = kShippedInstallation)
        : services{user, loop, files, classes, registry, environment, installation} {
        environment.values["FERNWICK_DEVICES"] = folder / "devices";
        keep_.push_back(classes.RegisterClass("DesignTargetAccess.QLDesignTargetMgr", [] {
            return basic::make<designtargetaccess::DesignTargetMgr>(kShippedInstallation);
        }));
        qlpipe::registerPipes(services, [this](const std::string& progId, qlpipe::ObjectFactory make) {
            keep_.push_back(classes.RegisterClass(progId, std::move(make)));
        });
    }

    template <class T>
    basic::Ref<T> create(const std::string& progId) {
        return basic::cast<T>(classes.CreateObject(progId));
    }
    basic::Ref<qlpipe::IQLPipe> pipe(const std::string& progId = "QLPipePocketPC") {
        const auto made = create<qlpipe::IQLPipe>(progId + ".Pipe");
        made->SetEventSink(sink);
        return made;
    }
    bool send(const ProjectFolder& project, const std::string& device = kDevice) {
        return pipe()->SendProject(device, {}, project.files(), project.application());
    }
    /// Makes a package and returns its path, or "".
    std::string package(const ProjectFolder& project, const std::string& subfolder = "") {
        auto location = folder / subfolder + "/";
        return pipe()->MakePackage(kDevice, {}, project.files(), project.application(), location) ? location : "";
    }
    /// Returns the content of a file on the device.
    std::string onDevice(const std::string& name, const std::string& device = kDevice) const {
        return folder.read("devices/" + device + "/" + name);
    }
    bool isOnDevice(const std::string& name, const std::string& device = kDevice) const {
        return std::filesystem::exists(folder / ("devices/" + device + "/" + name));
    }

    static constexpr char kDevice[] = "PocketPC-ARM";
    TempFolder folder;
    ScriptedUser user;
    host::Clock clock;
    host::EventLoop loop{clock};
    FakeEnvironment environment;
    host::FileSystem files;
    host::RegistryStore registry{{folder / "store/user", folder / "store/machine", {}}};
    host::Classes classes{registry};
    qlpipe::PipeServices services;
    RecordingSink sink;

private:
    std::vector<std::shared_ptr<void>> keep_;
};

} // namespace test
