#pragma once
// The host's services on this system.
#include "Add-in/platform/platform.h"
#include "Add-in/platform/windows/no_windows.h"
#include "Apps/common/described_libraries.h"
#include "Components/QLPipe/base/pipe_services.h"
#include "Components/QLToolkit/compiler.h"
#include "Host/registry/registry_store.h"
#include "Host/system/classes.h"
#include "Host/system/clock.h"
#include "Host/system/environment.h"
#include "Host/system/file_system.h"
#include "Host/system/processes.h"
#include "Host/system/resources.h"
#include "Host/system/screen.h"
#include "Host/system/shell.h"
#include <memory>

namespace apps {

/// The services that each program supplies.
struct FrontEnd {
    fernwick::Interaction& user;
    fernwick::EventLoop& loop;
    fernwick::Clipboard& clipboard;
    /// Runs the command lines of projects.
    std::unique_ptr<fernwick::Processes> processes;
    /// Called for a document that no installed program can show.
    host::Shell::Report report;
    std::unique_ptr<host::FileSystem> files = std::make_unique<host::FileSystem>();
    /// See host::Shell::Started.
    host::Shell::Started opening = [] {};
    /// Null for a program without windows.
    fernwick::HostWindows* windows = nullptr;
};

/// Stores, fonts and targets are read on first use.
class Machine {
public:
    explicit Machine(FrontEnd front);
    Machine(const Machine&) = delete;

    fernwick::Platform& platform() { return platform_; }
    host::RegistryStore& registry() { return registry_; }
    host::Shell& shell() { return shell_; }
    host::Classes& classes() { return classes_; }
    const fernwick::Clipboard& clipboard() const { return platform_.clipboard; }
    const std::string& installation() const { return installation_; }
    /// Sets the code page of a source file for the compiler, by its path.
    void codePageOfSource(std::function<basic::CodePage(const std::string& path)> page) {
        codePageOfSource_ = std::move(page);
    }
    /// Sets the resource file of a project for the compiler, by the path of its image without the suffix.
    void resourceFileOfProject(std::function<std::string(const std::string& outputPath)> file) {
        resourceFileOfProject_ = std::move(file);
    }
    /// Record of the last build.
    const qltoolkit::BuildRecord& build() const { return *build_; }
    /// Record of the pipes' transfers; clear it before a run.
    qlpipe::TransferRecord& transfers() { return *transfers_; }
    qlpipe::PipeServices pipeServices() {
        return {platform_.interaction, platform_.loop, *files_,   classes_, registry_,
                environment_,          installation_,  transfers_};
    }

private:
    void registerComponents();

    host::Environment environment_;
    host::Clock clock_;
    std::unique_ptr<host::FileSystem> files_;
    std::string installation_;
    host::RegistryStore registry_;
    host::Classes classes_;
    DescribedLibraries libraries_;
    std::unique_ptr<fernwick::Processes> processes_;
    host::Shell shell_;
    host::Screen screen_;
    fernwick::NoWindows noWindows_;
    host::Resources resources_;
    std::function<basic::CodePage(const std::string&)> codePageOfSource_;
    std::function<std::string(const std::string&)> resourceFileOfProject_;
    std::shared_ptr<qltoolkit::BuildRecord> build_ = std::make_shared<qltoolkit::BuildRecord>();
    std::shared_ptr<qlpipe::TransferRecord> transfers_ = std::make_shared<qlpipe::TransferRecord>();
    std::vector<std::shared_ptr<void>> registered_;
    fernwick::Platform platform_;
};

/// Returns the root of the installation: beside the program, else "RootDir" in the machine's store.
std::string findInstallation(const fernwick::Environment& environment);

} // namespace apps
