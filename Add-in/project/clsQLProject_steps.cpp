// Pre- and post-compile steps. They alone count from 0.
#include "Add-in/core/preference_keys.h"
#include "Add-in/project/clsQLProject.h"
#include "Add-in/project/property_sections.h"
#include "Basic/conversions.h"

namespace fernwick {

std::int32_t clsQLProject::PostCompileStepCount() const { return GetCompileStepCount(CompileStep::Post); }
std::int32_t clsQLProject::PreCompileStepCount() const { return GetCompileStepCount(CompileStep::Pre); }
bool clsQLProject::GetPostCompileSteps(Array<std::string>& list) const {
    return GetCompileSteps(list, CompileStep::Post);
}
bool clsQLProject::GetPreCompileSteps(Array<std::string>& list) const {
    return GetCompileSteps(list, CompileStep::Pre);
}
void clsQLProject::SetPostCompileSteps(const Array<std::string>& list) { SetCompileSteps(list, CompileStep::Post); }
void clsQLProject::SetPreCompileSteps(const Array<std::string>& list) { SetCompileSteps(list, CompileStep::Pre); }
void clsQLProject::ZeroPostCompileSteps() { ZeroCompileSteps(CompileStep::Post); }
void clsQLProject::ZeroPreCompileSteps() { ZeroCompileSteps(CompileStep::Pre); }

std::string clsQLProject::stepKey(CompileStep kind, const std::string& end) {
    return (kind == CompileStep::Post ? "PostCompileStep" : "PreCompileStep") + end;
}

std::int32_t clsQLProject::GetCompileStepCount(CompileStep kind) const try {
    const auto count = basic::CLng(project_->ReadProperty(kCompilerOptionsSection, stepKey(kind, "Count")));
    if (count > kMostStoredEntries) throw basic::RuntimeError(basic::kOverflow);
    return count;
} catch (const basic::RuntimeError& error) {
    reportUnlessAbsent("clsQLProject.GetCompileStepCount", error);
    return 0;
}

bool clsQLProject::GetCompileSteps(Array<std::string>& list, CompileStep kind) const try {
    const auto count = GetCompileStepCount(kind);
    if (count <= 0) return false;
    list.ReDim(0, count - 1);
    for (std::int32_t i = 0; i < count; ++i)
        list[i] = project_->ReadProperty(kCompilerOptionsSection, stepKey(kind, std::to_string(i)));
    return true;
} catch (const basic::RuntimeError& error) {
    reportUnlessAbsent("clsQLProject.GetCompileSteps", error);
    return error.Number != basic::kInvalidProcedureCall;
}

void clsQLProject::SetCompileSteps(const Array<std::string>& list, CompileStep kind) {
    Procedure here{services_.errors, "clsQLProject.SetCompileSteps"};
    std::int32_t lower = 0, upper = -1;
    here([&] { lower = list.LBound(); });
    here([&] { upper = list.UBound(); });
    const auto write = [&](const std::string& end, const std::string& value) {
        here([&] { project_->WriteProperty(kCompilerOptionsSection, stepKey(kind, end), value); });
    };
    write("Count", basic::CStr(upper - lower + 1));
    for (std::int32_t i = lower; i <= upper; ++i) write(std::to_string(i - lower), list[i]);
}

void clsQLProject::ZeroCompileSteps(CompileStep kind) {
    Procedure here{services_.errors, "clsQLProject.ZeroCompileSteps"};
    here([&] { project_->WriteProperty(kCompilerOptionsSection, stepKey(kind, "Count"), "0"); });
}

} // namespace fernwick
