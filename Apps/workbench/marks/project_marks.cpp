#include "Apps/workbench/marks/project_marks.h"
#include "Apps/workbench/base/component_project.h"
#include "Apps/workbench/base/text.h"

namespace workbench {

const ComponentMarks& ProjectMarks::of(const Component& component) {
    if (const auto project = projectOf(component)) read(project);
    return marks_[component.shared()];
}

void ProjectMarks::keep(const Component& component, ComponentMarks marks) {
    marks_[component.shared()] = std::move(marks);
}

void ProjectMarks::read(const vbide::Ref<vbide::VBProject>& project) {
    if (!read_.insert(project.shared()).second || project->FileName().empty()) return;
    const auto stored = readBreakpoints(qt(project->FileName()));
    for (const auto& component : project->VBComponents()->items())
        if (const auto found = stored.find(qt(component->Name())); found != stored.end())
            marks_[component.shared()].breakpoints = found->second;
}

void ProjectMarks::store(const vbide::Ref<vbide::VBProject>& project) {
    read(project); // else those of components that were not shown would be lost
    if (project->FileName().empty()) return;
    Breakpoints all;
    for (const auto& component : project->VBComponents()->items())
        if (const auto& marks = marks_[component.shared()].breakpoints; !marks.empty())
            all[qt(component->Name())] = marks;
    writeBreakpoints(qt(project->FileName()), all);
}

} // namespace workbench
