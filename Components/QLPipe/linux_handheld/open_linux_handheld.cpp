#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/base/sha256.h"
#include "Components/QLPipe/linux_handheld/linux_handheld.h"
#include "Components/QLPipe/linux_handheld/ssh_storage.h"
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <thread>

namespace qlpipe {

namespace {

constexpr std::chrono::milliseconds kPatience{30'000}, kPause{20};

std::string locksFolder(const PipeServices& services) {
    auto data = services.environment.GetEnvironmentVariable("XDG_DATA_HOME");
    // Only an absolute path is valid.
    if (!data.starts_with('/')) data = services.files.HomeFolder() + "/.local/share";
    return data + "/fernwick/device-locks";
}

std::string placeOf(const SshTarget& target) { return target.user + "@" + target.address() + ":" + target.folder; }

/// Waits for other transfers of this account that use the device. If a lock file cannot be created, none is used: the
/// storage detects other transfers as well, only later.
FileDescriptor lockHandheld(const std::string& folder, const std::string& place) {
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    Sha256 name;
    name.add(place);
    FileDescriptor lock{::open((folder + "/" + name.hex()).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)};
    if (lock.get() < 0) return lock;
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (::flock(lock.get(), LOCK_EX | LOCK_NB) != 0 && (errno == EWOULDBLOCK || errno == EINTR)) {
        if (std::chrono::steady_clock::now() >= end) throw transferError(kDeviceBusy, {{"device", place}});
        std::this_thread::sleep_for(kPause);
    }
    return lock;
}

void warnOfIgnoredSettings(const DeviceRequest& request) {
    const auto names = ignoredProjectSettings(request.project);
    if (request.warn && !names.empty())
        request.warn(kProjectSettingsIgnored, {{"settings", names}, {"device", request.device}});
}

} // namespace

std::unique_ptr<DeviceStorage> openLinuxHandheld(const PipeServices& services, const DeviceRequest& request) {
    warnOfIgnoredSettings(request);
    const auto settings =
        layered(readProjectSettings(request.project), readUserSettings(services.registry, request.device));
    const auto target = sshTarget(settings, request.device);
    if (request.isReadOnly) return std::make_unique<SshStorage>(target, SshTimeouts{}, FileDescriptor{}, SshUse::Read);
    return std::make_unique<SshStorage>(target, SshTimeouts{}, lockHandheld(locksFolder(services), placeOf(target)));
}

} // namespace qlpipe
