#include "Add-in/lifecycle/project_upgrade.h"
#include "Add-in/lifecycle/known_lines.h"
#include "Add-in/lifecycle/project_backup.h"
#include "Add-in/lifecycle/project_lines.h"
#include "Add-in/lifecycle/project_rewriting.h"
#include "Add-in/project/stored/project_format.h"
#include "Basic/conversions.h"

namespace fernwick {

namespace {

constexpr const char* kVersion = "ProjectVersion";

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
    if (global.has("numCompileTargets")) return;
    global.set("numCompileTargets", "1");
    global.set("CompileTarget1", key);
}

ProjectLines unknownLines(const ProjectLines& lines) {
    const KnownLines known;
    ProjectLines unknown;
    std::string section;
    for (const auto& line : lines) {
        if (isSectionHeader(line))
            section = line.substr(1, line.size() - 2);
        else if (!line.empty() && KnownLines::isOwnSection(section) && !known.holds(section, keyOfLine(line)))
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
    auto lines = readProjectLines(files, projectFile);
    GlobalLines global(lines);
    return stateOf(global) == UpgradeResult::Upgraded;
}

Upgrade upgradeProject(FileSystemObject& files, const DeviceServices& devices, const std::string& projectFile) {
    auto lines = readProjectLines(files, projectFile);
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
