#include "Add-in/platform/controls.h"
#include "Add-in/platform/text_box.h"
#include "Components/QLPipe/linux_handheld/linux_handheld.h"
#include "Components/QLPipe/linux_handheld/linux_handheld_settings.h"
#include <algorithm>

namespace qlpipe {

namespace {

class LinuxHandheldPage final : public fernwick::Form {
public:
    using Form::Form;
    const char* typeName() const override { return "LinuxHandheldPage"; }
    fernwick::Label lblFolder{this, "lblFolder", "Folder on the handheld (fernwick):"};
    fernwick::TextBox txtFolder{this, "txtFolder"};

    void show(const LinuxHandheldSettings& stored) {
        Load();
        txtFolder.Text(stored.Folder);
    }
    LinuxHandheldSettings typed() const {
        LinuxHandheldSettings settings;
        settings.Folder = txtFolder.Text();
        return settings;
    }
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
    explicit LinuxHandheldConfiguration(fernwick::Interaction& user) : user_(user) {}
    basic::Ref<fernwick::Form> CreatePage(const basic::Ref<vbide::VBProject>& project, std::int32_t,
                                          std::int32_t) override {
        ClosePage();
        if (!project) return {};
        project_ = project;
        page_ = std::make_shared<LinuxHandheldPage>(user_);
        page_->show(readProjectSettings(project));
        return page_;
    }
    void ShowPage() override {
        if (page_) page_->Visible(true);
    }
    void HidePage() override {
        if (page_) page_->Hide();
    }
    bool ValidatePage() override { return !page_ || canBeStored(page_->typed()); }
    void ApplyPage() override {
        if (page_) writeProjectSettings(project_, page_->typed());
    }
    void ClosePage() override {
        if (page_) page_->Unload();
        page_.reset();
        project_ = {};
    }
    bool HasPage() override { return true; }
    std::string PageName() override { return "Linux Handheld Settings"; }

private:
    fernwick::Interaction& user_;
    basic::Ref<vbide::VBProject> project_;
    std::shared_ptr<LinuxHandheldPage> page_;
};

} // namespace

basic::Ref<IQLPipeConfiguration> configureLinuxHandheld(const PipeServices& services) {
    return basic::make<LinuxHandheldConfiguration>(services.user);
}

} // namespace qlpipe
