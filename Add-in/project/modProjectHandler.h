#pragma once
// The projects that are open in the host, and the one that is the active one.
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
    /// The new wrapper; Nothing for no project. A second project of the same name is reported and not listed.
    basic::Ref<clsQLProject> AddToProjectsList(const basic::Ref<vbide::VBProject>& project);
    void RemoveFromProjectsList(const basic::Ref<vbide::VBProject>& project);
    /// An empty old name changes nothing.
    void RenameProjectInList(const basic::Ref<vbide::VBProject>& project, const std::string& OldName);
    /// A project that is not listed is reported and gives Nothing.
    basic::Ref<clsQLProject> GetQLProject(const basic::Ref<vbide::VBProject>& project);
    /// For one that need not be listed, such as a project that was open before the add-in came, or that has gone:
    /// Nothing then, and no report. The project itself is not asked.
    basic::Ref<clsQLProject> FindQLProject(const basic::Ref<vbide::VBProject>& project) const;

    bool ProjectIsFromTemplate(const basic::Ref<vbide::VBProject>& project) {
        return services_.templates.ProjectIsFromTemplate(project);
    }
    std::string GetTemplatePath() { return services_.templates.GetTemplatePath(); }

    /// The "CondComp" text of the project file; "" where it has none.
    std::string GetConditionalCompilationArguments(const basic::Ref<vbide::VBProject>& project);
    /// Passes constants such as "A = 1 : B = -1" to the compiler, reserved names excepted, which get a box. No trap:
    /// a value that is no number is error 13.
    void SetConditionalCompilationArguments(const std::string& text, qltoolkit::Compiler& compiler);

    /// Replaces what is open by a new project from the template.
    void OpenNewQuinloftProject();
    /// Replaces what is open by this project. No trap.
    void OpenQuinloftProjectFromPath(const std::string& path);
    /// Empties a temporary project without a question of the host. Its files end up nowhere.
    void RemoveProjectComponents(const basic::Ref<clsQLProject>& project);

private:
    void removeComponent(Procedure& here, const basic::Ref<vbide::VBProject>& project,
                         const basic::Ref<vbide::VBComponent>& component);
    void box(std::string_view text, int buttons);

    const ProjectServices& services_;
    basic::Collection<basic::Ref<clsQLProject>> projects_;
};

} // namespace fernwick
