#include "Components/QLPipe/pipe_family.h"
#include "Components/QLPipe/family_validation.h"

namespace qlpipe {
namespace {

constexpr PipeFamily kPipeFamilies[] = {
    {"PalmOS", "QLPipePalmOS", nullptr, nullptr},
    {"PocketPC", "QLPipePocketPC", nullptr, nullptr},
    {"LinuxHandheld", "QLPipeLinux", nullptr, nullptr},
};

} // namespace

std::span<const PipeFamily> pipeFamilies() { return kPipeFamilies; }

void registerPipes(const PipeServices&, const std::function<void(const std::string& progId, ObjectFactory make)>& add) {
    for (const auto& family : pipeFamilies())
        add(std::string{family.pipe} + ".Validation",
            [name = std::string{family.name}] { return basic::make<FamilyValidation>(name); });
}

} // namespace qlpipe
