#include "Add-in/project/stored/compile_step_list.h"
#include "Add-in/core/stored_lists.h"
#include "Basic/conversions.h"

namespace fernwick {

std::int32_t CompileStepList::count() const try {
    const auto count = basic::CLng(store().read(kCompilerOptionsSection, key("Count")));
    if (count > kMostStoredEntries) throw basic::RuntimeError(basic::kOverflow);
    return count;
} catch (const basic::RuntimeError& error) {
    store().reportUnlessAbsent("clsQLProject.GetCompileStepCount", error);
    return 0;
}

bool CompileStepList::get(Array<std::string>& list) const try {
    const auto steps = count();
    if (steps <= 0) return false;
    list.ReDim(0, steps - 1);
    for (std::int32_t i = 0; i < steps; ++i) list[i] = store().read(kCompilerOptionsSection, key(std::to_string(i)));
    return true;
} catch (const basic::RuntimeError& error) {
    store().reportUnlessAbsent("clsQLProject.GetCompileSteps", error);
    return error.Number != basic::kInvalidProcedureCall;
}

void CompileStepList::set(const Array<std::string>& list) {
    Procedure here{store().errors(), "clsQLProject.SetCompileSteps"};
    std::int32_t lower = 0, upper = -1;
    here([&] { lower = list.LBound(); });
    here([&] { upper = list.UBound(); });
    const auto count = upper - lower + 1;
    if (!here([&] { requireStorableCount(std::size_t(count)); })) return;
    store().write(here, kCompilerOptionsSection, key("Count"), basic::CStr(count));
    for (std::int32_t i = lower; i <= upper; ++i)
        store().write(here, kCompilerOptionsSection, key(std::to_string(i - lower)), list[i]);
}

void CompileStepList::clear() {
    Procedure here{store().errors(), "clsQLProject.ZeroCompileSteps"};
    store().write(here, kCompilerOptionsSection, key("Count"), "0");
}

ProjectSetting::Values CompileStepList::values() const {
    Array<std::string> list;
    get(list);
    return {list.begin(), list.end()};
}

void CompileStepList::assign(const Values& values) {
    if (values.empty())
        clear();
    else
        set(Array<std::string>(0, values));
}

} // namespace fernwick
