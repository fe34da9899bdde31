#include "Apps/fernwick/run/project_lock.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/output/console.h"
#include "Apps/fernwick/run/interruption.h"
#include "Host/files/path_lookup.h"
#include "Host/files/text_file.h"
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fmt/format.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace cli {

namespace fs = std::filesystem;

namespace {

/// The names of the locks that the parents of this process hold.
constexpr const char* kInherited = "FERNWICK_LOCKS";
constexpr auto kRetryInterval = std::chrono::milliseconds(50);

std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

/// "" if the user has no home.
fs::path lockFolder() {
    const auto state = variable("XDG_STATE_HOME"), home = variable("HOME");
    if (state.starts_with('/')) return fs::path(state) / "fernwick/locks";
    return home.starts_with('/') ? fs::path(home) / ".local/state/fernwick/locks" : fs::path();
}

std::string lockName(const std::string& project) {
    std::error_code missing;
    const auto path = fs::weakly_canonical(host::absolutePath(project), missing).string();
    return fmt::format("{:016x}", host::digestOf(path));
}

bool isInherited(const std::string& name) { return variable(kInherited).find(name) != std::string::npos; }

/// Lets the programs that this run starts use the project.
void inherit(const std::string& name) { ::setenv(kInherited, (variable(kInherited) + " " + name).c_str(), 1); }

void disinherit(const std::string& name) {
    auto names = variable(kInherited);
    if (const auto at = names.find(" " + name); at != names.npos) names.erase(at, name.size() + 1);
    ::setenv(kInherited, names.c_str(), 1);
}

/// A lock file is deleted by the run that releases it, so this one may no longer be the file at its path.
bool isCurrent(int descriptor, const std::string& path) {
    struct stat open {
    }, named{};
    return ::fstat(descriptor, &open) == 0 && ::stat(path.c_str(), &named) == 0 && open.st_ino == named.st_ino &&
           open.st_dev == named.st_dev;
}

} // namespace

ProjectLock::ProjectLock(const std::string& project, bool wait, Console& console) {
    const auto name = lockName(project);
    const auto folder = lockFolder();
    if (folder.empty() || isInherited(name)) return;
    std::error_code failed;
    fs::create_directories(folder, failed);
    path_ = (folder / name).string();
    bool noted = false;
    while (!take()) {
        if (!wait) throw Refusal(kProjectErrors, fmt::format("{}: another fernwick is working on it", project));
        if (!noted) console.note(fmt::format("fernwick: waiting for another fernwick that works on {}", project));
        noted = true;
        std::this_thread::sleep_for(kRetryInterval);
        checkInterrupt();
    }
    if (descriptor_ >= 0) inherit(name);
}

ProjectLock::~ProjectLock() {
    if (descriptor_ < 0) return;
    ::unlink(path_.c_str());
    ::close(descriptor_);
    disinherit(fs::path(path_).filename().string());
}

/// Returns false if another process has the lock. A file system without locks counts as success.
bool ProjectLock::take() {
    for (;;) {
        const int opened = ::open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
        if (opened < 0) return true;
        const bool locked = ::flock(opened, LOCK_EX | LOCK_NB) == 0;
        const bool taken = !locked && errno == EWOULDBLOCK;
        if (locked && isCurrent(opened, path_)) {
            descriptor_ = opened;
            return true;
        }
        ::close(opened);
        if (!locked) return !taken;
    }
}

} // namespace cli
