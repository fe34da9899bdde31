#include "Components/QLPipe/linux_handheld/linux_handheld.h"
#include "Components/QLPipe/linux_handheld/linux_handheld_settings.h"
#include <algorithm>

namespace qlpipe {

namespace {

class LinuxHandheldPage final : public IQLPipePage {
public:
    explicit LinuxHandheldPage(const LinuxHandheldSettings& stored) {
        for (const auto& setting : kLinuxHandheldSettings) {
            if (!setting.isOfProjects) continue;
            settings_.push_back(&setting);
            fields_.push_back({kLinuxHandheldSection, setting.name, setting.caption, stored.*setting.value});
        }
    }
    std::vector<PipeSetting>& Settings() override { return fields_; }
    bool Visible() const override { return isVisible_; }
    void show(bool visible) { isVisible_ = visible; }

    /// The texts of the fields, in their order.
    LinuxHandheldSettings typed() const {
        LinuxHandheldSettings settings;
        for (std::size_t i = 0; i < settings_.size(); ++i) settings.*settings_[i]->value = fields_[i].Value;
        return settings;
    }

private:
    std::vector<const LinuxHandheldSetting*> settings_;
    std::vector<PipeSetting> fields_;
    bool isVisible_ = false;
};

/// Stores neither values that a transfer would refuse nor values that a project file cannot contain.
bool canBeStored(LinuxHandheldSettings settings) {
    for (const auto& [name, value, caption, isOfProjects] : kLinuxHandheldSettings)
        if ((settings.*value).find_first_of("\r\n") != std::string::npos) return false;
    // The host is one of the user's settings.
    if (settings.Host.empty()) settings.Host = "handheld";
    try {
        (void)sshTarget(settings, "");
        return true;
    } catch (const TransferError&) { return false; }
}

class LinuxHandheldConfiguration final : public IQLPipeConfiguration {
public:
    basic::Ref<IQLPipePage> CreatePage(const basic::Ref<vbide::VBProject>& project, std::int32_t,
                                       std::int32_t) override {
        ClosePage();
        if (!project) return {};
        project_ = project;
        page_ = std::make_shared<LinuxHandheldPage>(readProjectSettings(project));
        return page_;
    }
    void ShowPage() override {
        if (page_) page_->show(true);
    }
    void HidePage() override {
        if (page_) page_->show(false);
    }
    bool ValidatePage() override { return !page_ || canBeStored(page_->typed()); }
    void ApplyPage() override {
        if (page_) writeProjectSettings(project_, page_->typed());
    }
    void ClosePage() override {
        page_.reset();
        project_ = {};
    }
    bool HasPage() override { return true; }
    std::string PageName() override { return "Linux Handheld"; }

private:
    basic::Ref<vbide::VBProject> project_;
    std::shared_ptr<LinuxHandheldPage> page_;
};

} // namespace

basic::Ref<IQLPipeConfiguration> configureLinuxHandheld(const PipeServices&) {
    return basic::make<LinuxHandheldConfiguration>();
}

} // namespace qlpipe
