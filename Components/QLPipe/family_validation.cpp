#include "Components/QLPipe/family_validation.h"
#include "Components/QLPipe/package/setting_checks.h"

namespace qlpipe {

bool FamilyValidation::IsDeviceSupported(const std::string& key) { return isOfFamily(key, family_.name); }

bool FamilyValidation::ValidateFiles(const basic::Ref<vbide::VBProject>& project, const ProjectFiles& files) {
    auto listing = listFiles(files_, files);
    auto limits = limitsOf(classes_, device_.empty() ? deviceToCheckFor(classes_, project, family_.name) : device_);
    checkSettings(family_.settings, project, limits, listing);
    checkFiles(limits, listing);
    bool good = true;
    for (const auto& finding : listing.findings) {
        if (finding.isError) good = false;
        if (!sink_) continue;
        if (finding.isError)
            sink_->SendError(finding.number, finding.text);
        else
            sink_->SendWarning(finding.text, finding.source, 0, finding.number);
    }
    return good;
}

} // namespace qlpipe
