#include "Apps/common/machine.h"
#include "Apps/common/installation.h"
#include "Apps/common/maker.h"
#include "Components/DesignTargetAccess/design_target_mgr.h"
#include "Components/QLPipe/pipe_family.h"
#include <csignal>

namespace apps {

namespace {

/// Returns "RootDir" of the machine's store; "" if it is not set.
std::string storedRootDir(const fernwick::Environment& environment) {
    host::RegistryStore store{host::usualRegistryPlaces(environment, {})};
    std::uint32_t key = 0, type = 0, length = 0;
    if (store.RegOpenKeyEx(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", fernwick::KEY_QUERY_VALUE, key) != 0)
        return {};
    std::string data;
    store.RegQueryValueEx(key, "RootDir", type, data, length);
    data.resize(length);
    if (store.RegQueryValueEx(key, "RootDir", type, data, length) != 0) data.clear();
    store.RegCloseKey(key);
    while (!data.empty() && data.back() == '\0') data.pop_back();
    return data;
}

} // namespace

std::string findInstallation(const fernwick::Environment& environment) {
    const auto beside = installationBeside(programFolder());
    return beside.empty() ? storedRootDir(environment) : beside;
}

Machine::Machine(FrontEnd front)
    : files_(std::move(front.files)),
      installation_(findInstallation(environment_)),
      registry_(host::usualRegistryPlaces(environment_, installation_)),
      classes_(registry_),
      libraries_(installation_),
      processes_(std::move(front.processes)),
      shell_(*files_, std::move(front.report), std::move(front.opening)),
      resources_(*files_, installation_),
      platform_{front.user,
                front.loop,
                registry_,
                *files_,
                *processes_,
                classes_,
                environment_,
                front.clipboard,
                shell_,
                screen_,
                front.windows ? *front.windows : noWindows_,
                clock_,
                resources_,
                appOf(installation_, programFolder())} {
    std::signal(SIGCHLD, SIG_DFL); // a parent that ignores it would hide the exit status of compile steps
    registerComponents();
}

void Machine::registerComponents() {
    const auto add = [this](const std::string& progId, fernwick::Classes::Factory make) {
        registered_.push_back(classes_.RegisterClass(progId, std::move(make)));
    };
    add("DesignTargetAccess.QLDesignTargetMgr",
        [this] { return basic::make<designtargetaccess::DesignTargetMgr>(installation_); });
    add("QLToolkit.CompilerFactory", [this] {
        return basic::make<qltoolkit::ProjectCompilerFactory>(
            qltoolkit::CompilerServices{*files_, classes_, build_, codePageOfSource_, resourceFileOfProject_,
                                        [this](const std::string& guid) { return libraries_.find(guid); }});
    });
    add("Scripting.FileSystemObject", [] { return basic::make<host::FileSystem>(); });
    qlpipe::registerPipes(pipeServices(), add);
}

} // namespace apps
