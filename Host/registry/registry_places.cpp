#include "Host/registry/registry_places.h"
#include "Host/files/atomic_save.h"
#include "Host/system/home_folder.h"
#include <sys/stat.h>
#include <unistd.h>

namespace host {
namespace {

constexpr auto kSystemWideStore = "/var/lib/fernwick";

bool isWritableFolder(const std::filesystem::path& folder) {
    struct stat state {};
    return ::stat(folder.c_str(), &state) == 0 && S_ISDIR(state.st_mode) && !isReadOnly(folder);
}

bool canBeMadeOrWritten(const std::filesystem::path& folder) {
    if (::access(folder.c_str(), F_OK) == 0) return isWritableFolder(folder);
    return isWritableFolder(folder.parent_path());
}

std::filesystem::path homeOfUser(const fernwick::Environment& environment) {
    const auto home = environment.GetEnvironmentVariable("HOME");
    return home.empty() ? homeFolder() : home;
}

/// The base folder named by a variable; a relative path is ignored.
std::filesystem::path baseFolder(const fernwick::Environment& environment, const char* variable, const char* inHome) {
    const std::filesystem::path named = environment.GetEnvironmentVariable(variable);
    return named.is_absolute() ? named : homeOfUser(environment) / inHome;
}

} // namespace

RegistryPlaces usualRegistryPlaces(const fernwick::Environment& environment, std::filesystem::path installation) {
    RegistryPlaces places;
    places.installation = std::move(installation);
    places.user = baseFolder(environment, "XDG_CONFIG_HOME", ".config") / "fernwick";
    places.machine = environment.GetEnvironmentVariable("FERNWICK_MACHINE_STORE");
    if (!places.machine.empty()) return places;
    places.machine = kSystemWideStore;
    if (!canBeMadeOrWritten(places.machine))
        places.machine = baseFolder(environment, "XDG_DATA_HOME", ".local/share") / "fernwick";
    return places;
}

} // namespace host
