#include "Host/system/program.h"
#include "Basic/case_folding.h"
#include "Host/files/path_lookup.h"
#include "Host/system/command_line.h"
#include "Host/system/path_text.h"
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <unistd.h>

extern char** environ;

namespace host {
namespace {

bool isExecutable(const std::string& path) {
    struct stat state {};
    return ::stat(path.c_str(), &state) == 0 && S_ISREG(state.st_mode) && ::access(path.c_str(), X_OK) == 0;
}

bool hasSeparator(std::string_view name) { return name.find_first_of("\\/") != name.npos; }

std::string searchPathList(const std::string& name) {
    const auto* list = std::getenv("PATH");
    std::string_view rest = list ? list : "/usr/local/bin:/usr/bin:/bin";
    while (!rest.empty()) {
        const auto end = std::min(rest.find(':'), rest.size());
        const auto folder = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (auto path = joinedPath(folder, name); !folder.empty() && isExecutable(path)) return path;
    }
    return "";
}

std::string pathOfProgram(const std::string& name, const std::string& folder, bool searched) {
    if (name.empty()) return "";
    if (auto path = PathLookup().find(folder, name); isExecutable(path)) return path;
    return searched && !hasSeparator(name) ? searchPathList(name) : "";
}

std::string withoutExe(const std::string& name) {
    constexpr std::string_view kExe = ".exe";
    const bool has = name.size() > kExe.size() && basic::equalNoCase(name.substr(name.size() - kExe.size()), kExe);
    return has ? name.substr(0, name.size() - kExe.size()) : "";
}

/// Owns the settings of posix_spawn.
struct SpawnSettings {
    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;

    explicit SpawnSettings(const std::string& folder) {
        ::posix_spawn_file_actions_init(&actions);
        ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        ::posix_spawn_file_actions_adddup2(&actions, STDERR_FILENO, STDOUT_FILENO);
        ::posix_spawn_file_actions_addchdir_np(&actions, folder.c_str());
        ::posix_spawnattr_init(&attributes);
        sigset_t none, ordinary;
        ::sigemptyset(&none);
        ::sigemptyset(&ordinary);
        for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGPIPE, SIGCHLD}) ::sigaddset(&ordinary, number);
        ::posix_spawnattr_setsigmask(&attributes, &none);
        ::posix_spawnattr_setsigdefault(&attributes, &ordinary);
        ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    SpawnSettings(const SpawnSettings&) = delete;
    SpawnSettings& operator=(const SpawnSettings&) = delete;
    ~SpawnSettings() {
        ::posix_spawn_file_actions_destroy(&actions);
        ::posix_spawnattr_destroy(&attributes);
    }
};

} // namespace

std::optional<Program> findProgram(std::string_view commandLine, const std::string& folder, bool dropExe) {
    bool shortest = true;
    for (const auto& reading : programReadings(commandLine)) {
        auto path = pathOfProgram(reading.name, folder, shortest);
        if (path.empty() && dropExe) path = pathOfProgram(withoutExe(reading.name), folder, shortest);
        shortest = false;
        if (path.empty()) continue;
        Program found{path, splitArguments(reading.arguments)};
        found.words.insert(found.words.begin(), reading.name);
        return found;
    }
    return std::nullopt;
}

pid_t startProgram(const Program& program, const std::string& folder) {
    std::vector<char*> words;
    for (const auto& word : program.words) words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    const SpawnSettings settings(folder);
    pid_t process = 0;
    const int error =
        ::posix_spawn(&process, program.path.c_str(), &settings.actions, &settings.attributes, words.data(), environ);
    return error == 0 ? process : 0;
}

} // namespace host
