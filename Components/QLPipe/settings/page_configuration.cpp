#include "Components/QLPipe/settings/page_configuration.h"

namespace qlpipe {

std::shared_ptr<SettingsPage> PageConfiguration::makePage() {
    return std::make_shared<SettingsPage>(services_.user, pageType_, settings_);
}

basic::Ref<fernwick::Form> PageConfiguration::CreatePage(const basic::Ref<vbide::VBProject>& project, std::int32_t,
                                                         std::int32_t) {
    ClosePage();
    if (!project) return {};
    project_ = project;
    device_ = deviceToCheckFor(services_.classes, project, family_);
    limits_ = limitsOf(services_.classes, device_);
    shown_ = stored();
    page_ = makePage();
    page_->show(shown_);
    pageShown(*page_);
    return page_;
}

void PageConfiguration::ShowPage() {
    if (page_) page_->Visible(true);
}

void PageConfiguration::HidePage() {
    if (!page_) return;
    page_->leave();
    page_->Hide();
}

bool PageConfiguration::ValidatePage() {
    if (!page_) return true;
    const auto wrong = problems();
    if (!wrong.empty()) refuse("These settings cannot be used. Correct them, or clear them for their defaults.", wrong);
    return wrong.empty();
}

void PageConfiguration::ApplyPage() {
    if (!page_) return;
    const auto notStored =
        std::string("The page ") + settings_.page + " was not stored. Correct it and apply it again.";
    if (const auto wrong = problems(); !wrong.empty()) return refuse(notStored, wrong);
    const auto values = page_->typed();
    const auto failed = basic::attempt([&] { store(shown_, values); });
    if (failed.Number != 0) return refuse(notStored, failed.Description);
    shown_ = values;
}

void PageConfiguration::release() {
    if (page_) {
        page_->leave();
        page_->Unload();
    }
    page_.reset();
    project_ = {};
}

SettingValues PageConfiguration::stored() { return readProjectValues(settings_, project_); }

void PageConfiguration::store(const SettingValues& before, const SettingValues& values) {
    writeProjectValues(settings_, project_, before, values);
}

void PageConfiguration::refuse(const std::string& what, const std::string& why) {
    services_.user.MsgBox(what + "\n\n" + why, fernwick::vbExclamation, "Fernwick");
}

} // namespace qlpipe
