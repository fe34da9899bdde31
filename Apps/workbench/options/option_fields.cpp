#include "Apps/workbench/options/option_fields.h"
#include <QCheckBox>
#include <QComboBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QSpinBox>

namespace workbench {

QSpinBox* OptionFields::add(const QString& label, const NumberOption& option, const QString& unit) {
    auto* const box = new QSpinBox;
    box->setObjectName(option.key);
    box->setRange(option.least, option.most);
    box->setSuffix(" " + unit);
    box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    rows_.addRow(label, box);
    QObject::connect(box, &QSpinBox::valueChanged, box, [this] { changed_(); });
    fields_.push_back({[=](bool stored) { box->setValue(stored ? option.stored() : option.usual); },
                       [=] { option.store(box->value()); }});
    return box;
}

QCheckBox* OptionFields::add(const QString& label, const FlagOption& option) {
    auto* const box = new QCheckBox(label);
    box->setObjectName(option.key);
    rows_.addRow(box);
    QObject::connect(box, &QCheckBox::toggled, box, [this] { changed_(); });
    fields_.push_back({[=](bool stored) { box->setChecked(stored ? option.stored() : option.usual); },
                       [=] { option.store(box->isChecked()); }});
    return box;
}

QComboBox* OptionFields::add(const QString& label, const ChoiceOption& option, const QStringList& texts) {
    auto* const list = new QComboBox;
    list->setObjectName(option.key);
    list->addItems(texts);
    list->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    rows_.addRow(label, list);
    QObject::connect(list, &QComboBox::currentIndexChanged, list, [this] { changed_(); });
    fields_.push_back({[=](bool stored) { list->setCurrentIndex(stored ? option.stored() : 0); },
                       [=] { option.store(list->currentIndex()); }});
    return list;
}

QFontComboBox* OptionFields::add(const QString& label, const FamilyOption& option) {
    auto* const list = new QFontComboBox;
    list->setObjectName(option.key);
    list->setEditable(false);
    list->setFontFilters(QFontComboBox::MonospacedFonts);
    rows_.addRow(label, list);
    QObject::connect(list, &QFontComboBox::currentFontChanged, list, [this] { changed_(); });
    fields_.push_back({[=](bool stored) { list->setCurrentFont(stored ? option.stored() : option.usual()); },
                       [=] { option.store(list->currentFont().family()); }});
    return list;
}

void OptionFields::show(bool stored) const {
    for (const auto& field : fields_) field.show(stored);
}

void OptionFields::store() const {
    for (const auto& field : fields_) field.store();
}

} // namespace workbench
