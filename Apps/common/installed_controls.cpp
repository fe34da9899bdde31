#include "Apps/common/installed_controls.h"
#include "Basic/runtime_error.h"
#include <filesystem>

namespace apps {

const host::DescribedClasses& InstalledControls::described() {
    if (described_) return *described_;
    described_.emplace();
    if (installation_.empty()) return *described_;
    std::error_code unreadable;
    for (const auto& entry : std::filesystem::directory_iterator(installation_ + "/tavlets", unreadable)) {
        if (entry.path().extension() != ".toml") continue;
        // without a valid description its controls have no defaults; the error is reported when its library is looked
        // up
        (void)basic::attempt([&] { described_->add(host::readTypeDescription(entry.path().string())); });
    }
    return *described_;
}

} // namespace apps
