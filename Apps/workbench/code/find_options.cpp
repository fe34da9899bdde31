#include "Apps/workbench/code/find_options.h"
#include <QCheckBox>
#include <QComboBox>
#include <QSettings>
#include <algorithm>

namespace workbench {

namespace {

constexpr auto kCaseKey = "find/matchCase", kWordKey = "find/wholeWord", kPatternKey = "find/pattern",
               kScopeKey = "find/scope";

struct ScopeName {
    FindScope scope;
    const char *caption, *name;
};
constexpr ScopeName kScopes[] = {
    {FindScope::Procedure, "Current Procedure", "current procedure"},
    {FindScope::Module, "Current Module", "current module"},
    {FindScope::Project, "Current Project", "current project"},
    {FindScope::AllProjects, "All Projects", "open projects"},
};

QCheckBox* findOption(const char* name, const char* caption, const char* tip) {
    auto* const made = new QCheckBox(caption);
    made->setObjectName(name);
    made->setToolTip(tip);
    return made;
}

} // namespace

FindOptionsRow::FindOptionsRow() : FindOptionsRow(new QComboBox) {}

FindOptionsRow::FindOptionsRow(QComboBox* scope)
    : FindRow("&In:", scope, Width::OfField),
      scope_(scope),
      matchCase_(findOption("matchCase", "&Match case", "Distinguish capital and small letters")),
      wholeWord_(findOption("wholeWord", "Whole word onl&y", "Do not match parts of longer words")),
      asPattern_(
          findOption("pattern", "&Use pattern",
                     "? any character, # any digit, * any characters, [a-z] one of these, [!a-z] none of these")) {
    scope_->setObjectName("findScope");
    scope_->setAccessibleName("Look in");
    scope_->setToolTip("Where to look");
    for (const auto& one : kScopes) scope_->addItem(one.caption);
    for (auto* option : {matchCase_, wholeWord_, asPattern_}) add(option);
    restore();
}

FindOptions FindOptionsRow::options() const {
    return {matchCase_->isChecked(), wholeWord_->isChecked(), asPattern_->isChecked()};
}

void FindOptionsRow::setScope(FindScope scope) {
    for (int row = 0; row < scope_->count(); ++row)
        if (kScopes[row].scope == scope) scope_->setCurrentIndex(row);
}

FindScope FindOptionsRow::scope() const { return kScopes[scope_->currentIndex()].scope; }

const char* FindOptionsRow::scopeName() const { return kScopes[scope_->currentIndex()].name; }

void FindOptionsRow::restore() {
    const QSettings settings;
    matchCase_->setChecked(settings.value(kCaseKey).toBool());
    wholeWord_->setChecked(settings.value(kWordKey).toBool());
    asPattern_->setChecked(settings.value(kPatternKey).toBool());
    const int module = int(FindScope::Module);
    scope_->setCurrentIndex(std::clamp(settings.value(kScopeKey, module).toInt(), 0, scope_->count() - 1));
}

void FindOptionsRow::store() const {
    QSettings settings;
    settings.setValue(kCaseKey, matchCase_->isChecked());
    settings.setValue(kWordKey, wholeWord_->isChecked());
    settings.setValue(kPatternKey, asPattern_->isChecked());
    settings.setValue(kScopeKey, scope_->currentIndex());
}

} // namespace workbench
