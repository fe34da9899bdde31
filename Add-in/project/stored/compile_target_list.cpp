#include "Add-in/project/stored/compile_target_list.h"
#include "Add-in/core/stored_lists.h"
#include "Basic/conversions.h"
#include <algorithm>

namespace fernwick {

namespace {
std::string targetKey(std::int32_t index) { return "CompileTarget" + std::to_string(index); }
} // namespace

std::int32_t CompileTargetList::count() const { return store_.readCount(kGlobalSection, "NumCompileTargets"); }

void CompileTargetList::get(Array<std::string>& list) const {
    Procedure here{store_.errors(), "clsQLProject.GetCompileTargetsList"};
    const auto last = count();
    if (last == 0) return;
    if (!here([&] { list.ReDim(1, last); })) return;
    for (std::int32_t i = 1; i <= last; ++i) {
        auto& entry = list[i];
        // Converted to a number: a device key is not one, so its entry stays empty.
        (void)basic::attempt([&] { entry = basic::CStr(basic::CLng(store_.read(kGlobalSection, targetKey(i)))); });
        entry = currentDeviceKey(entry);
    }
}

void CompileTargetList::set(const Array<std::string>& list) {
    Procedure here{store_.errors(), "clsQLProject.SetCompileTargetsList"};
    std::int32_t last = 0;
    if (!here([&] { last = list.UBound(); })) return;
    if (last > 0 && !here([&] { requireStorableCount(std::size_t(last)); })) return;
    store_.write(here, kGlobalSection, "numCompileTargets", basic::CStr(last));
    for (std::int32_t i = 1; i <= last; ++i)
        here([&] { store_.project->WriteProperty(kGlobalSection, targetKey(i), list[i]); });
}

bool CompileTargetList::contains(const std::string& name) const {
    if (count() < 1) return false;
    Array<std::string> targets;
    get(targets);
    return std::find(targets.begin(), targets.end(), name) != targets.end();
}

} // namespace fernwick
