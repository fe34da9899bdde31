#pragma once
#include "Apps/workbench/options/option_fields.h"

class QLabel;

namespace workbench {

/// The grid of the form designers.
class DesignerPage final : public OptionsPage {
public:
    DesignerPage();

    void showStored() override { fields_.showStored(); }
    void showUsual() override { fields_.showUsual(); }
    void store() const override { fields_.store(); }

private:
    void showTwips();

    QFormLayout* rows_;
    OptionFields fields_;
    QSpinBox* pixels_;
    QLabel* twips_;
};

} // namespace workbench
