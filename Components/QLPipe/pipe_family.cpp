#include "Components/QLPipe/family_validation.h"

namespace qlpipe {
namespace {

struct PipeFamily {
    const char* pipe;   ///< the ProgID that design targets name
    const char* family; ///< what stands before the first "-" of their keys
};

constexpr PipeFamily kPipeFamilies[] = {
    {"QLPipePalmOS", "PalmOS"},
    {"QLPipePocketPC", "PocketPC"},
    {"QLPipeLinux", "LinuxHandheld"},
};

} // namespace

bool FamilyValidation::IsDeviceSupported(const std::string& key) { return key.starts_with(family_ + "-"); }

void registerPipes(const std::function<void(const std::string& progId, ObjectFactory make)>& add) {
    for (const auto& [pipe, family] : kPipeFamilies)
        add(std::string{pipe} + ".Validation",
            [name = std::string{family}] { return basic::make<FamilyValidation>(name); });
}

} // namespace qlpipe
