// The compile target list.
#include "Add-in/core/preference_keys.h"
#include "Add-in/project/clsQLProject.h"
#include "Add-in/project/property_sections.h"
#include "Basic/conversions.h"

namespace fernwick {

namespace {
std::string targetKey(std::int32_t index) { return "CompileTarget" + std::to_string(index); }
} // namespace

std::int32_t clsQLProject::NumCompileTargets() const {
    const auto count = readLong("NumCompileTargets");
    return count <= kMostStoredEntries ? count : 0;
}

void clsQLProject::GetCompileTargetsList(Array<std::string>& newCompileTargetsList) const {
    Procedure here{services_.errors, "clsQLProject.GetCompileTargetsList"};
    const auto count = NumCompileTargets();
    if (count == 0) return;
    if (!here([&] { newCompileTargetsList.ReDim(1, count); })) return;
    for (std::int32_t i = 1; i <= count; ++i) {
        auto& entry = newCompileTargetsList[i];
        // Through a number: device keys are none, so their entries stay empty.
        (void)basic::attempt(
            [&] { entry = basic::CStr(basic::CLng(project_->ReadProperty(kGlobalSection, targetKey(i)))); });
        if (entry == "SOFTWARE\\Quinloft\\DesignTargets\\PalmOS") entry = "PalmOS-DragonBall";
        if (entry == "SOFTWARE\\Quinloft\\DesignTargets\\PocketPC") entry = "PocketPC-SH3";
    }
}

void clsQLProject::SetCompileTargetsList(const Array<std::string>& newCompileTargets) {
    Procedure here{services_.errors, "clsQLProject.SetCompileTargetsList"};
    std::int32_t last = 0;
    if (!here([&] { last = newCompileTargets.UBound(); })) return;
    here([&] { project_->WriteProperty(kGlobalSection, "numCompileTargets", basic::CStr(last)); });
    for (std::int32_t i = 1; i <= last; ++i)
        here([&] { project_->WriteProperty(kGlobalSection, targetKey(i), newCompileTargets[i]); });
}

bool clsQLProject::IsSetCompileTarget(const std::string& compareTargetName) const {
    if (NumCompileTargets() < 1) return false;
    Array<std::string> targets;
    GetCompileTargetsList(targets);
    for (const auto& target : targets)
        if (target == compareTargetName) return true;
    return false;
}

} // namespace fernwick
