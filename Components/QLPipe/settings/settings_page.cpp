#include "Components/QLPipe/settings/settings_page.h"
#include "Basic/case_folding.h"
#include "Basic/printable.h"
#include <algorithm>

namespace qlpipe {

SettingField::SettingField(fernwick::Form& page, const PipeSetting& setting)
    : setting_(setting), label_(&page, std::string("lbl") + setting.key, setting.caption) {
    if (setting.choices.empty())
        text_ = std::make_unique<fernwick::TextBox>(&page, std::string("txt") + setting.key);
    else
        list_ = std::make_unique<fernwick::ComboBox>(&page, std::string("cbo") + setting.key);
}

void SettingField::show(const std::string& value) {
    const auto tip = tipOf(setting_);
    label_.ToolTipText(tip);
    if (list_) return list_->ToolTipText(tip), showChoice(value);
    text_->ToolTipText(tip);
    text_->Text(value);
}

/// A stored value that is not a choice is listed as well, so that it is neither hidden nor replaced by accident.
void SettingField::showChoice(const std::string& value) {
    choices_.assign(setting_.choices.begin(), setting_.choices.end());
    choices_.insert(choices_.begin(), "");
    const auto isShown = [&](const std::string& choice) { return basic::equalNoCase(choice, value); };
    if (std::ranges::none_of(choices_, isShown)) choices_.push_back(value);
    list_->Clear();
    for (const auto& choice : choices_)
        list_->AddItem(choice.empty() ? std::string("(") + setting_.usual + ")" : basic::printable(shortened(choice)));
    const auto row = std::ranges::find_if(choices_, isShown);
    *row = value; // in its own letter case, which stays as it is stored
    list_->ListIndex(int(row - choices_.begin()));
}

std::string SettingField::value() const {
    if (text_) return text_->Text();
    const auto row = list_->ListIndex();
    return row < 0 ? std::string() : choices_.at(std::size_t(row));
}

SettingsPage::SettingsPage(fernwick::Interaction& user, const char* typeName, const PipeSettings& settings)
    : Form(user), typeName_(typeName) {
    for (const auto& row : settings.rows) fields_.emplace_back(*this, row);
}

void SettingsPage::show(const SettingValues& values) {
    Load();
    for (std::size_t i = 0; i < fields_.size(); ++i) fields_[i].show(values[i]);
}

SettingValues SettingsPage::typed() const {
    SettingValues values;
    for (const auto& field : fields_) values.push_back(field.value());
    return values;
}

} // namespace qlpipe
