#pragma once
#include "Apps/workbench/options/option_fields.h"

namespace workbench {

class CodeSample;

/// Font and tab width of code.
class EditorPage final : public OptionsPage {
public:
    EditorPage();

    void showStored() override { fields_.showStored(); }
    void showUsual() override { fields_.showUsual(); }
    void store() const override { fields_.store(); }

protected:
    void changeEvent(QEvent* event) override;

private:
    void showSample();

    QFormLayout* rows_;
    OptionFields fields_;
    QFontComboBox* family_;
    QSpinBox *size_, *tab_;
    CodeSample* sample_;
};

} // namespace workbench
