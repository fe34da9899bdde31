#pragma once
// One reference of a project.
#include "Add-in/platform/host_project.h"
#include "Host/files/library_reference.h"
#include "Host/files/project_file.h"
#include <optional>
#include <string>

namespace host {

class ProjectReference final : public vbide::Reference {
public:
    ProjectReference(LibraryReference line, std::string path, std::string name, bool builtIn, bool known);

    std::string Name() const override;
    std::string Guid() const override;
    int Major() const override;
    int Minor() const override;
    std::string FullPath() const override;
    std::string Description() const override;
    bool BuiltIn() const override;
    bool IsBroken() const override;

    // ---- for the host ----
    const LibraryReference& line() const { return line_; }
    const std::optional<ProjectFile::Place>& member() const { return member_; }
    void member(std::optional<ProjectFile::Place> place) { member_ = place; }
    /// All members raise errors from now on.
    void remove() { removed_ = true; }

private:
    void check() const;

    LibraryReference line_;
    std::string path_, name_;
    bool builtIn_, known_;
    bool removed_ = false;
    std::optional<ProjectFile::Place> member_;
};

} // namespace host
