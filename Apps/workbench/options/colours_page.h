#pragma once
#include "Apps/workbench/options/code_look.h"
#include "Apps/workbench/options/option_fields.h"
#include <map>

class QLabel;
class QToolButton;

namespace workbench {

class CodeSample;

/// The theme, and the colours of code in each theme.
class ColoursPage final : public OptionsPage {
public:
    ColoursPage();

    void showStored() override;
    void showUsual() override;
    void store() const override;

    /// Asks for a colour; an invalid one cancels.
    std::function<QColor(const QColor& current, const QString& title)> ask;

private:
    Theme shownTheme() const;
    void addButtons(QFormLayout& rows);
    void choose(const CodeColour& colour);
    void showColours();

    std::map<Theme, CodeColours> colours_;
    QFormLayout* rows_;
    OptionFields fields_;
    QComboBox* of_;
    std::vector<QToolButton*> buttons_;
    QLabel* contrast_;
    CodeSample* sample_;
};

} // namespace workbench
