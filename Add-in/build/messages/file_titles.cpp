#include "Add-in/build/messages/file_titles.h"
#include "Add-in/core/procedure.h"
#include "Basic/text.h"

namespace fernwick {

std::string FileTitles::find(Procedure& here, const basic::Ref<vbide::VBProject>& project,
                             const std::string& fileName) {
    const std::string name = here.value([&] { return basic::LCase(files_.GetFileName(fileName)); });
    if (name.empty()) return {};

    if (!(project_ == project)) startOver(here, project);
    if (const auto known = byFile_.find(name); known != byFile_.end()) {
        const auto component = known->second;
        if (stillHas(component, name)) return here.value([&] { return component->Name(); });
        startOver(here, project);
    }
    return walkOn(here, name);
}

std::string FileTitles::fileNameOf(const basic::Ref<vbide::VBComponent>& component) const {
    return basic::LCase(files_.GetFileName(component->FileNames(1)));
}

bool FileTitles::stillHas(const basic::Ref<vbide::VBComponent>& component, const std::string& name) const {
    bool same = false;
    const auto err = basic::attempt([&] { same = fileNameOf(component) == name; });
    return err.Number == 0 && same;
}

void FileTitles::startOver(Procedure& here, const basic::Ref<vbide::VBProject>& project) {
    project_ = nullptr;
    byFile_.clear();
    walked_ = 0;
    components_.clear();
    if (here([&] { components_ = project->VBComponents()->items(); })) project_ = project;
}

std::string FileTitles::walkOn(Procedure& here, const std::string& name) {
    while (walked_ < components_.size()) {
        const auto component = components_[walked_++];
        std::string own;
        const bool found = here.test([&] { return (own = fileNameOf(component)) == name; });
        if (!own.empty()) byFile_.emplace(own, component); // the first of two files with this name takes precedence
        if (found) return here.value([&] { return component->Name(); });
    }
    return {};
}

} // namespace fernwick
