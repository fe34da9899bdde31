#pragma once
// Moves a Fernwick project to another device, in place or as a copy in another folder.
#include "Add-in/lifecycle/device_references.h"
#include "Add-in/lifecycle/project_copy.h"
#include "Add-in/lifecycle/project_setup.h"

namespace fernwick {

struct ConversionServices {
    ErrorReport& errors;
    Interaction& user;
    FileSystemObject& files;
    const DeviceServices& devices;
    const ProjectServices& projects;
    modProjectHandler& openProjects;
    ProjectSetup& setup;
};

/// What the last conversion did.
struct Conversion {
    bool projectConverted = false;
    /// The new project file; "" for a conversion in place.
    std::string projectFile;
    /// The host must load projectFile instead of the open project.
    bool doReloadProject = false;
    /// The key of the chosen device.
    std::string newPlatform;
    /// The copy of the project file before a conversion in place; "" for a project without a file.
    std::string backup;
    /// Whether all files of the project are in the copy.
    bool isComplete = true;
};

class ProjectConversion {
public:
    explicit ProjectConversion(const ConversionServices& services) : services_(services) {}

    /// Forgets the last conversion.
    void clear();
    const Conversion& last() const { return last_; }

    /// Converts the open project in place. Its file is backed up first; without a backup nothing is changed.
    void convertInPlace(const basic::Ref<vbide::VBProject>& project, const std::string& key);
    /// Copies the project's files and converts the copy. `askForPlace` returns the new project file, "" for Cancel.
    void convertCopy(const basic::Ref<vbide::VBProject>& project, const std::string& key,
                     const std::function<std::string()>& askForPlace);
    /// Removes from the open copy the references that were removed from the original.
    void finishCopy(const basic::Ref<vbide::VBProject>& copy);

private:
    /// A reference that was removed.
    struct Removed {
        std::string name, guid, path;
        int major = 0, minor = 0;
    };
    using Target = basic::Ref<designtargetaccess::IQLDesignTarget>;

    Target begin(Procedure& here, const basic::Ref<vbide::VBProject>& project, const std::string& key);
    void validateProjectReferences(Procedure& here, const basic::Ref<vbide::VBProject>& project);
    void remove(Procedure& here, const basic::Ref<vbide::VBProject>& project,
                const basic::Ref<vbide::Reference>& reference);
    void restoreReferences(Procedure& here, const basic::Ref<vbide::VBProject>& project);
    void takeDevice(Procedure& here, clsQLProject& open);
    void setUp(Procedure& here, const basic::Ref<clsQLProject>& open);
    bool backUpFile(const basic::Ref<vbide::VBProject>& project);
    void writeCompileTargets(Procedure& here, const basic::Ref<vbide::VBProject>& project, std::int32_t count);
    bool mayCopy(Procedure& here, const ProjectCopy& copy);
    void copyFiles(Procedure& here, const ProjectCopy& copy);
    void rewriteCopy(Procedure& here, const designtargetaccess::IQLDesignTarget& target);
    void box(Procedure& here, const std::string& text);

    ConversionServices services_;
    Conversion last_;
    std::vector<Removed> removed_;
};

} // namespace fernwick
