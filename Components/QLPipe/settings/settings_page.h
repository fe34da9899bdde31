#pragma once
// The page of a family in the dialog of settings.
#include "Add-in/platform/combo_box.h"
#include "Add-in/platform/text_box.h"
#include "Components/QLPipe/settings/pipe_setting.h"
#include <deque>

namespace qlpipe {

/// A label and a text box, or a list of choices, for one setting. Their names end with the setting's key.
class SettingField {
public:
    SettingField(fernwick::Form& page, const PipeSetting& setting);

    void show(const std::string& value);
    std::string value() const;

private:
    void showChoice(const std::string& value);

    const PipeSetting& setting_;
    fernwick::Label label_;
    std::unique_ptr<fernwick::TextBox> text_;
    std::unique_ptr<fernwick::ComboBox> list_;
    /// The values of the list's rows. The first is "".
    SettingValues choices_;
};

class SettingsPage : public fernwick::Form {
public:
    /// `typeName` must be a literal.
    SettingsPage(fernwick::Interaction& user, const char* typeName, const PipeSettings& settings);
    const char* typeName() const override { return typeName_; }
    fernwick::Label lblHint{this, "lblHint", "An empty field has the default that its tip shows."};

    /// Loads the page with these values.
    void show(const SettingValues& values);
    SettingValues typed() const;
    /// Called when the user leaves the page or the dialog closes.
    virtual void leave() {}

private:
    const char* typeName_;
    std::deque<SettingField> fields_;
};

} // namespace qlpipe
