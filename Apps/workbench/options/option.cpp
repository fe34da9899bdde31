#include "Apps/workbench/options/option.h"
#include <QFontDatabase>
#include <QFontInfo>
#include <QSettings>
#include <algorithm>

namespace workbench {

namespace {

void storeUnlessUsual(const QString& key, const QVariant& value, bool isUsual) {
    QSettings settings;
    isUsual ? settings.remove(key) : settings.setValue(key, value);
}

QString storedText(const QString& key) { return QSettings().value(key).toString(); }

} // namespace

int NumberOption::stored() const {
    bool isNumber = false;
    const int value = QSettings().value(key).toInt(&isNumber);
    return isNumber && value >= least && value <= most ? value : usual;
}

void NumberOption::store(int value) const { storeUnlessUsual(key, value, value == usual); }

bool FlagOption::stored() const {
    const auto text = storedText(key);
    return text == "true" || text == "false" ? text == "true" : usual;
}

void FlagOption::store(bool value) const { storeUnlessUsual(key, value, value == usual); }

int ChoiceOption::stored() const {
    const auto found = std::find(names.begin(), names.end(), storedText(key));
    return found == names.end() ? 0 : int(found - names.begin());
}

void ChoiceOption::store(int index) const { storeUnlessUsual(key, names[std::size_t(index)], index == 0); }

QString FamilyOption::usual() const { return QFontInfo(QFontDatabase::systemFont(QFontDatabase::FixedFont)).family(); }

QString FamilyOption::stored() const {
    const auto family = storedText(key);
    return QFontDatabase::isFixedPitch(family) ? family : usual();
}

void FamilyOption::store(const QString& family) const { storeUnlessUsual(key, family, family == usual()); }

QColor ColourOption::stored() const {
    const auto name = storedText(key);
    const auto colour = QColor::isValidColorName(name) ? QColor(name) : QColor();
    return colour.isValid() && colour.alpha() == 255 ? colour : usual;
}

void ColourOption::store(const QColor& colour) const { storeUnlessUsual(key, colour.name(), colour == usual); }

} // namespace workbench
