#pragma once
// The projects that are open in the host, and the active one.
#include "Add-in/platform/compiler.h"
#include "Add-in/project/clsQLProject.h"
#include "Basic/collection.h"

namespace fernwick {

class modProjectHandler {
public:
    explicit modProjectHandler(const ProjectServices& services) : services_(services) {}

    /// The project that was set up last; Nothing before the first.
    basic::Ref<vbide::VBProject> gCurrentProject;
    /// Whether the add-in itself is opening a project.
    bool gOpeningProject = false;

    void ClearProjectsList();
    /// Returns the new wrapper; Nothing without a project. A second project of the same name is reported and not
    /// listed.
    basic::Ref<clsQLProject> AddToProjectsList(const basic::Ref<vbide::VBProject>& project);
    void RemoveFromProjectsList(const basic::Ref<vbide::VBProject>& project);
    /// An empty old name changes nothing.
    void RenameProjectInList(const basic::Ref<vbide::VBProject>& project, const std::string& OldName);
    /// Reports a project that is not listed, and returns Nothing.
    basic::Ref<clsQLProject> GetQLProject(const basic::Ref<vbide::VBProject>& project);
    /// Like GetQLProject, but returns Nothing without a report for a project that is not listed, such as one that was
    /// open before the add-in was connected or has been removed. The project itself is not called.
    basic::Ref<clsQLProject> FindQLProject(const basic::Ref<vbide::VBProject>& project) const;

    bool ProjectIsFromTemplate(const basic::Ref<vbide::VBProject>& project) {
        return services_.templates.ProjectIsFromTemplate(project);
    }
    std::string GetTemplatePath() { return services_.templates.GetTemplatePath(); }

    /// The "CondComp" text of the project file; "" if it has none.
    std::string GetConditionalCompilationArguments(const basic::Ref<vbide::VBProject>& project);
    /// Passes constants such as "A = 1 : B = -1" to the compiler. A reserved name is refused with a box. No trap: a
    /// value that is not a number is error 13.
    void SetConditionalCompilationArguments(const std::string& text, qltoolkit::Compiler& compiler);

    /// Replaces the open projects by a new one from the template.
    void OpenNewQuinloftProject();
    /// Replaces the open projects by this one. No trap.
    void OpenQuinloftProjectFromPath(const std::string& path);
    /// Removes the components of a temporary project without a question from the host. Their files are discarded.
    void RemoveProjectComponents(const basic::Ref<clsQLProject>& project);

private:
    void removeComponent(Procedure& here, const basic::Ref<vbide::VBProject>& project,
                         const basic::Ref<vbide::VBComponent>& component);
    void box(std::string_view text, int buttons);

    const ProjectServices& services_;
    basic::Collection<basic::Ref<clsQLProject>> projects_;
};

} // namespace fernwick
