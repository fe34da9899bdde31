#include "Apps/common/installed_controls.h"
#include "Basic/runtime_error.h"
#include <filesystem>

namespace apps {

const host::DescribedClasses& InstalledControls::described() {
    if (described_) return *described_;
    described_.emplace();
    std::error_code unreadable;
    for (const auto& entry : std::filesystem::directory_iterator(installation_ + "/tavlets", unreadable)) {
        if (entry.path().extension() != ".toml") continue;
        // a faulty description costs the defaults of its controls; the look-up of its library names the fault
        (void)basic::attempt([&] { described_->add(host::readTypeDescription(entry.path().string())); });
    }
    return *described_;
}

} // namespace apps
