#pragma once
// Looks up the component of a file. The results are cached within a run.
#include "Add-in/platform/files.h"
#include "Add-in/platform/host_project.h"
#include <map>
#include <string>
#include <vector>

namespace fernwick {

class Procedure;

/// A run issues thousands of messages for few files, so the walk over the components is cached during a run. It continues
/// where the last lookup stopped, starts again when the project's components have changed, and a cached component is used
/// only while it still has that file. Outside a run each lookup walks over the components.
class FileTitles {
public:
    explicit FileTitles(const FileSystemObject& files) : files_(files) {}

    void beginRun();
    /// Releases the components.
    void endRun();
    /// Returns the name of the first component whose file has this name, regardless of case; "" for none.
    std::string find(Procedure& here, const basic::Ref<vbide::VBProject>& project, const std::string& fileName);

private:
    using Components = std::vector<basic::Ref<vbide::VBComponent>>;

    std::string fileNameOf(const basic::Ref<vbide::VBComponent>& component) const;
    bool stillHas(const basic::Ref<vbide::VBComponent>& component, const std::string& name) const;
    void startOver(Components components);
    std::string walkOn(Procedure& here, const std::string& name);

    const FileSystemObject& files_;
    bool inRun_ = false;
    Components components_;
    std::size_t walked_ = 0;
    std::map<std::string, basic::Ref<vbide::VBComponent>> byFile_;
};

} // namespace fernwick
