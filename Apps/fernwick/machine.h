#pragma once
// The machine that a run of the command line works on: the host's services over this system.
#include "Add-in/platform/platform.h"
#include "Apps/fernwick/command_line_user.h"
#include "Components/QLPipe/pipe_services.h"
#include "Components/QLToolkit/compiler.h"
#include "Host/registry/registry_store.h"
#include "Host/system/classes.h"
#include "Host/system/clipboard.h"
#include "Host/system/clock.h"
#include "Host/system/environment.h"
#include "Host/system/event_loop.h"
#include "Host/system/file_system.h"
#include "Host/system/processes.h"
#include "Host/system/resources.h"
#include "Host/system/screen.h"
#include "Host/system/shell.h"

namespace cli {

/// Opens nothing by itself: stores, fonts and targets are read when they are asked for.
class Machine {
public:
    Machine(Console& console, CommandLineUser& user, host::Processes::Permission mayRun);
    Machine(const Machine&) = delete;

    fernwick::Platform& platform() { return platform_; }
    host::RegistryStore& registry() { return registry_; }
    host::Classes& classes() { return classes_; }
    const host::Clipboard& clipboard() const { return clipboard_; }
    const std::string& installation() const { return installation_; }
    /// What the last build did.
    const compiler::BuildRecord& build() const { return *build_; }
    /// What the pipes did; a run that asks for one transfer clears it first.
    qlpipe::TransferRecord& transfers() { return *transfers_; }
    /// What pipes stand on.
    qlpipe::PipeServices pipeServices() {
        return {files_, classes_, registry_, environment_, installation_, transfers_};
    }
    /// Turns the event loop until nothing is due.
    void drain();

private:
    void registerComponents();

    host::Environment environment_;
    host::Clock clock_;
    host::EventLoop loop_{clock_};
    host::FileSystem files_;
    std::string installation_;
    host::RegistryStore registry_;
    host::Classes classes_;
    host::Processes processes_;
    host::Clipboard clipboard_;
    host::Shell shell_;
    host::Screen screen_;
    host::Resources resources_;
    std::shared_ptr<compiler::BuildRecord> build_ = std::make_shared<compiler::BuildRecord>();
    std::shared_ptr<qlpipe::TransferRecord> transfers_ = std::make_shared<qlpipe::TransferRecord>();
    std::vector<std::shared_ptr<void>> registered_;
    fernwick::Platform platform_;
};

/// The root of the installation: beside the program, else the machine store's "RootDir".
std::string findInstallation(const fernwick::Environment& environment);

} // namespace cli
