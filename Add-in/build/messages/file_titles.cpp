#include "Add-in/build/messages/file_titles.h"
#include "Add-in/core/procedure.h"
#include "Basic/text.h"

namespace fernwick {

void FileTitles::beginRun() {
    startOver({});
    inRun_ = true;
}

void FileTitles::endRun() {
    startOver({});
    inRun_ = false;
}

std::string FileTitles::find(Procedure& here, const basic::Ref<vbide::VBProject>& project,
                             const std::string& fileName) {
    const std::string name = here.value([&] { return basic::LCase(files_.GetFileName(fileName)); });
    if (name.empty()) return {};

    auto components = here.value([&] { return project->VBComponents()->items(); });
    if (!inRun_ || components != components_) startOver(std::move(components));
    if (const auto known = byFile_.find(name); known != byFile_.end()) {
        const auto component = known->second;
        if (stillHas(component, name)) return here.value([&] { return component->Name(); });
        startOver(components_);
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

void FileTitles::startOver(Components components) {
    byFile_.clear();
    walked_ = 0;
    components_ = std::move(components);
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
