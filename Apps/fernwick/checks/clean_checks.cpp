#include "Apps/fernwick/checks/clean_checks.h"
#include "Apps/common/described_libraries.h"
#include "Apps/common/machine.h"
#include "Apps/common/version.h"
#include "Apps/fernwick/checks/key_text.h"
#include "Apps/fernwick/checks/stored_text.h"
#include "Basic/runtime_error.h"
#include "Components/Image/image_bytes.h"
#include "Host/files/path_lookup.h"
#include "Host/system/environment.h"
#include <algorithm>
#include <filesystem>
#include <set>
#include <sys/stat.h>
#include <utility>

namespace cli {

namespace {

namespace chrono = std::chrono;

/// More than the ticks of file systems: two seconds at most.
constexpr auto kTick = chrono::seconds(3);

std::filesystem::path folderBeside(const std::filesystem::path& checks) {
    return checks.empty() ? checks : checks.parent_path() / "clean";
}

/// A check, and what else its result depends on.
struct StoredCheck {
    CleanCheck check;
    /// Of its files, since a new file can have the name that the project gives in other letters.
    std::vector<std::string> folders;
};

std::vector<std::string> filesOf(const apps::CheckedProject& project) {
    std::vector<std::string> files{project.path};
    files.insert(files.end(), project.sources.begin(), project.sources.end());
    if (!project.resourceFile.empty()) files.push_back(project.resourceFile);
    return files;
}

std::vector<std::string> foldersOf(const std::vector<std::string>& files) {
    std::set<std::string> folders;
    for (const std::filesystem::path file : files) folders.insert(file.has_parent_path() ? file.parent_path() : ".");
    return {folders.begin(), folders.end()};
}

std::vector<std::string> inputsOf(const StoredCheck& stored) {
    auto inputs = filesOf(stored.check.project);
    inputs.insert(inputs.end(), stored.folders.begin(), stored.folders.end());
    return inputs;
}

std::uint64_t stateOf(const std::vector<std::string>& inputs) {
    KeyText state;
    for (const auto& input : inputs) state.addStateOf(input);
    return state.digest();
}

chrono::system_clock::time_point timeOf(const timespec& time) {
    return chrono::system_clock::time_point(chrono::seconds(time.tv_sec)) +
           chrono::duration_cast<chrono::system_clock::duration>(chrono::nanoseconds(time.tv_nsec));
}

bool areOlder(const std::vector<std::string>& paths, chrono::system_clock::time_point time) {
    return std::ranges::all_of(paths, [&](const std::string& path) {
        struct ::stat state {};
        return ::stat(path.c_str(), &state) == 0 && std::max(timeOf(state.st_mtim), timeOf(state.st_ctim)) < time;
    });
}

StoredCheck read(image::Reader& in) {
    StoredCheck stored;
    auto& check = stored.check;
    auto& project = check.project;
    project.path = readText(in);
    project.resourceFile = readText(in);
    project.page.page = basic::CodePage(static_cast<int>(in.u32()));
    project.page.reason = static_cast<basic::CodePageReason>(in.u8());
    project.page.matters = in.u8() != 0;
    for (auto count = in.variable(); count > 0; --count) stored.folders.emplace_back(readText(in));
    while (!in.atEnd()) {
        project.sources.emplace_back(readText(in));
        check.absoluteSources.emplace_back(readText(in));
        check.lines.push_back(in.variable());
    }
    return stored;
}

void write(image::Writer& out, const StoredCheck& stored) {
    const auto& check = stored.check;
    const auto& project = check.project;
    writeText(out, project.path);
    writeText(out, project.resourceFile);
    out.u32(static_cast<std::uint32_t>(project.page.page.number()));
    out.u8(static_cast<std::uint8_t>(project.page.reason));
    out.u8(project.page.matters);
    out.variable(static_cast<std::uint32_t>(stored.folders.size()));
    for (const auto& folder : stored.folders) writeText(out, folder);
    for (std::size_t i = 0; i < project.sources.size(); ++i) {
        writeText(out, project.sources[i]);
        writeText(out, check.absoluteSources[i]);
        out.variable(check.lines[i]);
    }
}

} // namespace

CleanChecks::CleanChecks(const Options& options, chrono::system_clock::time_point begin)
    : options_(options), begin_(begin), cache_(folderBeside(checkCacheFolder())) {}

std::optional<CleanCheck> CleanChecks::find(const std::string& path) const {
    const auto bytes = cache_.find(keyOf(path));
    if (!bytes) return std::nullopt;
    std::optional<CleanCheck> check;
    (void)basic::attempt([&] {
        image::Reader in{*bytes};
        const std::uint64_t low = in.u32(), high = in.u32();
        auto stored = read(in);
        if (stateOf(inputsOf(stored)) == (high << 32 | low)) check = std::move(stored.check);
    });
    return check;
}

void CleanChecks::store(const apps::CheckedProject& project, const std::vector<std::uint32_t>& lines) const {
    StoredCheck stored{{project, {}, lines}, foldersOf(filesOf(project))};
    const auto inputs = inputsOf(stored);
    const auto state = stateOf(inputs);
    // After the state: a change in between makes a file young, and one that follows makes the state another.
    if (!areOlder(inputs, begin_ - kTick)) return;
    for (const auto& source : project.sources) stored.check.absoluteSources.push_back(host::absolutePath(source));
    image::Writer out;
    out.u32(static_cast<std::uint32_t>(state));
    out.u32(static_cast<std::uint32_t>(state >> 32));
    write(out, stored);
    cache_.store(keyOf(project.path), out.bytes());
}

CheckKey CleanChecks::keyOf(const std::string& path) const {
    KeyText name, content;
    name.add(path);
    name.add(host::absolutePath(path));
    name.add(options_.warnsOptionally);
    name.add(static_cast<std::uint64_t>(options_.codePage ? options_.codePage->number() : 0));
    content.add(apps::kVersion);
    content.addStateOf("/proc/self/exe");
    for (const auto& library : apps::libraryDescriptions(apps::findInstallation(host::Environment{})))
        content.addStateOf(library);
    return {name.digest(), content.digest()};
}

} // namespace cli
