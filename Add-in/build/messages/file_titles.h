#pragma once
// Looks up the component of a file. The results are cached within a run.
#include "Add-in/platform/files.h"
#include "Add-in/platform/host_project.h"
#include <map>
#include <string>
#include <vector>

namespace fernwick {

class Procedure;

/// A run issues thousands of messages for few files, so the walk over the components is cached. It continues where the
/// last lookup stopped, and a cached component is used only while it still has that file.
class FileTitles {
public:
    explicit FileTitles(const FileSystemObject& files) : files_(files) {}

    /// Called at the start of a run, because the components may have changed.
    void forget() { project_ = nullptr; }
    /// Returns the name of the first component whose file has this name, regardless of case; "" for none.
    std::string find(Procedure& here, const basic::Ref<vbide::VBProject>& project, const std::string& fileName);

private:
    std::string fileNameOf(const basic::Ref<vbide::VBComponent>& component) const;
    bool stillHas(const basic::Ref<vbide::VBComponent>& component, const std::string& name) const;
    void startOver(Procedure& here, const basic::Ref<vbide::VBProject>& project);
    std::string walkOn(Procedure& here, const std::string& name);

    const FileSystemObject& files_;
    basic::Ref<vbide::VBProject> project_;
    std::vector<basic::Ref<vbide::VBComponent>> components_;
    std::size_t walked_ = 0;
    std::map<std::string, basic::Ref<vbide::VBComponent>> byFile_;
};

} // namespace fernwick
