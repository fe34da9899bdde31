// Design target files: an accepted file satisfies the invariants of the add-in; a refused one has a reason.
#include "Components/DesignTargetAccess/design_target.h"
#include "Components/DesignTargetAccess/target_problem.h"
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

void requireTargetHolds(const designtargetaccess::DesignTarget& target) {
    require(!target.Key().empty() && !target.Name().empty());
    std::vector<std::string> clsids, progIds, categories;
    target.GetSupportedTavlets(clsids, progIds, categories);
    require(clsids.size() == progIds.size() && clsids.size() == categories.size());
    require(clsids.size() == static_cast<std::size_t>(target.NumSupportedTavlets()));
    std::vector<std::string> guids;
    target.GetSupportedReferences(guids);
    for (const auto& guid : guids) require(target.ValidateReference(guid).required);
    require(std::stol(target.DefaultFormWidth()) >= -1 && std::stol(target.DefaultFontSize()) >= 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        requireTargetHolds({designtargetaccess::readTarget(text, "fuzz.toml"), "/root"});
    } catch (const designtargetaccess::TargetProblem& refused) { require(!refused.reason.empty()); }
    return 0;
}
