#pragma once
// Saves a project interactively, with questions and save dialogs.
#include "Add-in/project/modProjectHandler.h"

namespace fernwick {

class modSaveProject {
public:
    modSaveProject(const ProjectServices& services, modProjectHandler& projects)
        : services_(services), projects_(projects) {}

    /// Returns whether the caller may proceed: the project is saved, needs no saving, or its changes may be discarded,
    /// as the user decides if `ask` is set. Shows `failure` if the project was not saved for a reason other than
    /// Cancel.
    bool SaveProject(const basic::Ref<vbide::VBProject>& project, bool ask, const std::string& question,
                     bool showFailure, const std::string& failure);
    /// Whether the project or a component of it has changes, or a component has no file.
    bool ProjectIsDirty(const basic::Ref<vbide::VBProject>& project);
    /// Saves everything, with a dialog for each file that does not exist yet. False when the user cancels one.
    bool AskForSaveProject(const basic::Ref<vbide::VBProject>& project);

private:
    std::string startFolder() const;
    bool saveComponent(Procedure& here, const basic::Ref<FileSystemObject>& files,
                       const basic::Ref<vbide::VBComponent>& component, const std::string& folder);
    bool saveProjectFile(Procedure& here, const basic::Ref<FileSystemObject>& files,
                         const basic::Ref<vbide::VBProject>& project, const std::string& folder);
    /// Returns the path that the user chooses; "" for Cancel.
    std::string askForPath(Procedure& here, const basic::Ref<FileSystemObject>& files, const std::string& folder,
                           const std::string& name, std::string_view filter);
    /// False for Cancel.
    bool showSave(CommonDialog& dialog);

    const ProjectServices& services_;
    modProjectHandler& projects_;
};

} // namespace fernwick
