#pragma once
// The machine that a program works on: the host's services over this system.
#include "Add-in/platform/platform.h"
#include "Components/QLPipe/pipe_services.h"
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

namespace apps {

/// What a program has of its own.
struct FrontEnd {
    fernwick::Interaction& user;
    fernwick::EventLoop& loop;
    fernwick::Clipboard& clipboard;
    /// Whether a command line of a project may run.
    host::Processes::Permission mayRun;
    host::Processes::Interrupted interrupted;
    /// Told of a document that no program here can show.
    host::Shell::Report tell;
};

/// Opens nothing by itself: stores, fonts and targets are read when they are asked for.
class Machine {
public:
    explicit Machine(FrontEnd front);
    Machine(const Machine&) = delete;

    fernwick::Platform& platform() { return platform_; }
    host::RegistryStore& registry() { return registry_; }
    host::Classes& classes() { return classes_; }
    const fernwick::Clipboard& clipboard() const { return platform_.clipboard; }
    const std::string& installation() const { return installation_; }
    /// What the last build did.
    const qltoolkit::BuildRecord& build() const { return *build_; }
    /// What the pipes did; a run that asks for one transfer clears it first.
    qlpipe::TransferRecord& transfers() { return *transfers_; }
    /// What pipes stand on.
    qlpipe::PipeServices pipeServices() {
        return {files_, classes_, registry_, environment_, installation_, transfers_};
    }

private:
    void registerComponents();

    host::Environment environment_;
    host::Clock clock_;
    host::FileSystem files_;
    std::string installation_;
    host::RegistryStore registry_;
    host::Classes classes_;
    host::Processes processes_;
    host::Shell shell_;
    host::Screen screen_;
    host::Resources resources_;
    std::shared_ptr<qltoolkit::BuildRecord> build_ = std::make_shared<qltoolkit::BuildRecord>();
    std::shared_ptr<qlpipe::TransferRecord> transfers_ = std::make_shared<qlpipe::TransferRecord>();
    std::vector<std::shared_ptr<void>> registered_;
    fernwick::Platform platform_;
};

/// The root of the installation: beside the program, else the machine store's "RootDir".
std::string findInstallation(const fernwick::Environment& environment);

} // namespace apps
