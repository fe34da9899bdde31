#pragma once
// The files that are sent to a device with a project, and their names there.
#include "Add-in/build/dependencies/modDependencyManagement.h"
#include "Add-in/deploy/pipe_services.h"

namespace fernwick {

class PackageContents {
public:
    using QLProject = basic::Ref<clsQLProject>;
    using Names = std::vector<std::string>;

    PackageContents(const PipeServices& services, modDependencyManagement& dependencies, QLProject project)
        : errors_(services.errors),
          user_(services.platform.interaction),
          files_(services.platform.files),
          install_(services.install),
          dependencies_(dependencies),
          project_(std::move(project)) {}

    /// The lists are unchanged if the result is false.
    bool CreateResourceList(const std::string& VBProjectName, const std::string& ProjectPath, Names& ProjectFileList,
                            Names& ProjectResourceList, const tResourceList& ProjectDependencies);

private:
    /// Each path once, regardless of case, in the order of first mention.
    void add(const std::string& path);
    void addCompilerFiles(Procedure& here, const std::string& projectName);
    bool addDependencies(Procedure& here, const tResourceList& dependencies);
    bool addTavletFiles(Procedure& here);
    bool addFonts(Procedure& here);
    bool addOrAsk(Procedure& here, const std::string& path, const char* question);
    std::string inProject(Procedure& here, const std::string& name);
    std::string inFonts(Procedure& here, const std::string& name);
    std::string nameOnDevice(Procedure& here, const std::string& path);

    ErrorReport& errors_;
    Interaction& user_;
    const FileSystemObject& files_;
    const modQLInstallInfo& install_;
    modDependencyManagement& dependencies_;
    QLProject project_;
    std::string projectFolder_, fontsFolder_;
    basic::Collection<std::string> paths_;
};

} // namespace fernwick
