#include "Components/QLPipe/base/target_limits.h"
#include "Add-in/platform/design_targets.h"
#include <charconv>
#include <iterator>
#include <sstream>

namespace qlpipe {
namespace {

using designtargetaccess::IQLDesignTarget;
using designtargetaccess::IQLDesignTargetMgr;

basic::Ref<IQLDesignTargetMgr> installedTargets(fernwick::Classes& classes) {
    const auto manager = basic::cast<IQLDesignTargetMgr>(classes.CreateObject("DesignTargetAccess.QLDesignTargetMgr"));
    manager->Initialize();
    return manager;
}

std::optional<std::int64_t> numberOption(const basic::Ref<IQLDesignTarget>& target, const char* name) {
    std::string text;
    std::int64_t number = 0;
    if (!target->GetOption(name, text)) return {};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size()) return {};
    return number;
}

std::vector<std::string> wordsOption(const basic::Ref<IQLDesignTarget>& target, const char* name) {
    std::string text;
    target->GetOption(name, text);
    std::istringstream words{text};
    return {std::istream_iterator<std::string>{words}, {}};
}

} // namespace

bool isOfFamily(const std::string& device, const std::string& family) { return device.starts_with(family + "-"); }

TargetLimits limitsOf(fernwick::Classes& classes, const std::string& device) {
    TargetLimits limits;
    limits.platform = device;
    basic::Ref<IQLDesignTarget> target;
    if (!installedTargets(classes)->GetDesignTarget(device, target)) return limits;
    if (const auto name = target->PlatformName(); !name.empty()) limits.platform = name;
    limits.imageBytes = numberOption(target, "MaxImageBytes");
    limits.fileBytes = numberOption(target, "MaxFileBytes");
    limits.heapBytes = numberOption(target, "MaxHeapBytes");
    limits.storageBytes = numberOption(target, "StorageBytes");
    limits.nameLength = numberOption(target, "MaxNameLength");
    limits.fileKinds = wordsOption(target, "FileKinds");
    return limits;
}

std::string deviceToCheckFor(fernwick::Classes& classes, const basic::Ref<vbide::VBProject>& project,
                             const std::string& family) {
    std::string own;
    // A project without a device does not have this value (error 5).
    const auto noDevice = basic::attempt([&] { own = project->ReadProperty("Quinloft Global", "TargetDevice"); });
    if (noDevice.Number == 0 && isOfFamily(own, family)) return own;
    const auto targets = installedTargets(classes);
    for (std::int16_t i = 0; i < targets->Count(); ++i) {
        const auto target = targets->GetDesignTargetByIndex(i);
        if (target && isOfFamily(target->Key(), family)) return target->Key();
    }
    return {};
}

} // namespace qlpipe
