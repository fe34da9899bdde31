#pragma once
// Fields of the options dialog, each bound to its option.
#include "Apps/workbench/options/option.h"
#include "Apps/workbench/options/options_page.h"
#include <vector>

class QCheckBox;
class QComboBox;
class QFontComboBox;
class QFormLayout;
class QSpinBox;

namespace workbench {

/// Each field has the option's key as its object name.
class OptionFields {
public:
    /// Calls `changed` after each change by the user.
    OptionFields(QFormLayout& rows, std::function<void()> changed) : rows_(rows), changed_(std::move(changed)) {}

    QSpinBox* add(const QString& label, const NumberOption& option, const QString& unit);
    QCheckBox* add(const QString& label, const FlagOption& option);
    QComboBox* add(const QString& label, const ChoiceOption& option, const QStringList& texts);
    QFontComboBox* add(const QString& label, const FamilyOption& option);

    void showStored() const { show(true); }
    void showUsual() const { show(false); }
    void store() const;

private:
    struct Field {
        std::function<void(bool stored)> show;
        std::function<void()> store;
    };
    void show(bool stored) const;

    QFormLayout& rows_;
    std::function<void()> changed_;
    std::vector<Field> fields_;
};

} // namespace workbench
