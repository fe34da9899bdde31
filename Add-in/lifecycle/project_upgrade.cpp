#include "Add-in/lifecycle/project_upgrade.h"
#include "Add-in/lifecycle/known_lines.h"
#include "Add-in/lifecycle/project_backup.h"
#include "Add-in/lifecycle/project_rewriting.h"
#include "Add-in/project/stored/project_format.h"
#include "Basic/conversions.h"

namespace fernwick {

namespace {

constexpr const char* kVersion = "ProjectVersion";
using Lines = std::vector<std::string>;

Lines linesOf(FileSystemObject& files, const std::string& path) {
    Lines lines;
    const auto file = files.OpenTextFile(path);
    while (!file->AtEndOfStream()) lines.push_back(file->ReadLine());
    file->Close();
    return lines;
}

std::string keyOf(const std::string& line) { return line.substr(0, line.find('=')); }
std::string valueOf(const std::string& line) {
    const auto divider = line.find('=');
    return divider == line.npos ? std::string() : line.substr(divider + 1);
}
std::string lineOf(const std::string& key, const std::string& value) { return key + "=" + value; }

/// The global section among the lines of a project file. Keys are found regardless of letter case, as in the host.
class GlobalLines {
public:
    explicit GlobalLines(Lines& lines) : lines_(lines) {
        while (begin_ < lines.size() && lines[begin_] != "[" + std::string(kGlobalSection) + "]") ++begin_;
        end_ = begin_ = std::min(begin_ + 1, lines.size());
        while (end_ < lines.size() && !lines[end_].starts_with('[')) ++end_;
    }
    /// Null if the key is missing.
    std::string* find(std::string_view key) {
        for (auto i = begin_; i < end_; ++i)
            if (basic::equalNoCase(keyOf(lines_[i]), key)) return &lines_[i];
        return nullptr;
    }
    std::string value(std::string_view key) {
        const auto* line = find(key);
        return line ? valueOf(*line) : std::string();
    }
    void set(const std::string& key, const std::string& value) {
        if (auto* line = find(key))
            *line = lineOf(key, value);
        else
            append(lineOf(key, value));
    }
    void setIfMissing(const std::string& key, const std::string& value) {
        if (!find(key)) append(lineOf(key, value));
    }

private:
    /// After the last line that is not blank.
    void append(std::string line) {
        auto at = end_;
        while (at > begin_ && lines_[at - 1].empty()) --at;
        lines_.insert(lines_.begin() + std::ptrdiff_t(at), std::move(line));
        ++end_;
    }
    Lines& lines_;
    std::size_t begin_ = 0, end_ = 0;
};

/// A device that is not installed has no values.
void addDeviceValues(GlobalLines& global, const DeviceServices& services) {
    const auto key = currentDeviceKey(global.value("TargetDevice"));
    if (!services.devices.GetDesignTarget(key)) return;
    clsDeviceConfig device{services};
    device.ReadDeviceConfig(key);
    global.setIfMissing("TavletStyleID", basic::CStr(device.TavletStyleID));
    global.setIfMissing("DefaultFontName", device.DefaultFontName);
    global.setIfMissing("DefaultFontSize", basic::CStr(device.DefaultFontSize));
    global.setIfMissing("DefaultFontStyle", basic::CStr(device.DefaultFontStyle));
    global.setIfMissing("DefaultFormColor", basic::CStr(device.DefaultFormColor));
    global.setIfMissing("DefaultFormWidth", basic::CStr(device.DefaultFormWidth));
    global.setIfMissing("DefaultFormHeight", basic::CStr(device.defaultFormHeight));
    if (global.find("numCompileTargets")) return;
    global.set("numCompileTargets", "1");
    global.set("CompileTarget1", key);
}

Lines unknownLines(const Lines& lines) {
    const KnownLines known;
    Lines unknown;
    std::string section;
    for (const auto& line : lines) {
        if (line.starts_with('[') && line.ends_with(']'))
            section = line.substr(1, line.size() - 2);
        else if (!line.empty() && KnownLines::isOwnSection(section) && !known.holds(section, keyOf(line)))
            unknown.push_back(line);
    }
    return unknown;
}

UpgradeResult stateOf(GlobalLines& global) {
    bool isOurs = false;
    (void)basic::attempt([&] { isOurs = basic::CBool(global.value("IsQuinloftProject")); });
    if (!isOurs) return UpgradeResult::Foreign;
    const auto version = global.value(kVersion);
    return version.empty() || version == kOldProjectFormat ? UpgradeResult::Upgraded : UpgradeResult::Current;
}

} // namespace

bool hasOldFormat(FileSystemObject& files, const std::string& projectFile) {
    auto lines = linesOf(files, projectFile);
    GlobalLines global(lines);
    return stateOf(global) == UpgradeResult::Upgraded;
}

Upgrade upgradeProject(FileSystemObject& files, const DeviceServices& devices, const std::string& projectFile) {
    auto lines = linesOf(files, projectFile);
    Upgrade upgrade;
    upgrade.unknownLines = unknownLines(lines);
    GlobalLines global(lines);
    upgrade.result = stateOf(global);
    if (upgrade.result != UpgradeResult::Upgraded) return upgrade;
    global.set(kVersion, kProjectFormat);
    addDeviceValues(global, devices);
    upgrade.backup = backUp(files, projectFile);
    rewriteProjectFile(files, projectFile, [&](TextStream& to) {
        for (const auto& line : lines) to.WriteLine(line);
    });
    return upgrade;
}

} // namespace fernwick
