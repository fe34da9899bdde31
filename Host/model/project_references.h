#pragma once
// The references of a project: those that the language brings along, and those of its Reference and Object lines.
#include "Add-in/platform/host_project.h"
#include "Host/files/form_file.h"
#include "Host/files/library_reference.h"
#include "Host/files/project_file.h"
#include "Host/model/references/type_libraries.h"
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace host {

class Project;

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
    /// From now on every member raises an error.
    void remove() { removed_ = true; }

private:
    void check() const;

    LibraryReference line_;
    std::string path_, name_;
    bool builtIn_, known_;
    bool removed_ = false;
    std::optional<ProjectFile::Place> member_;
};

class ProjectReferences final : public vbide::References {
public:
    explicit ProjectReferences(Project& project) : project_(&project) {}

    int Count() const override;
    vbide::Ref<vbide::Reference> Item(int index) const override;
    std::vector<vbide::Ref<vbide::Reference>> items() const override;
    vbide::Ref<vbide::Reference> AddFromGuid(const std::string& guid, int major, int minor) override;
    vbide::Ref<vbide::Reference> AddFromFile(const std::string& path) override;
    void Remove(const vbide::Ref<vbide::Reference>& reference) override;

    // ---- for the host ----
    /// The references of the project's file, without events.
    void load(const std::vector<ProjectFile::Member>& members);
    /// The control library of a ProgID on an Object line of its own, unless one is there. Error 429 for a class that is
    /// not registered.
    void addControlLibrary(const std::string& progId);
    /// The line by which a form refers to the library of a control class ("TavletsCtl.QLLabel"); nothing for a library
    /// that the project has no Object line for.
    std::optional<ObjectLine> objectLineOf(const std::string& className) const;
    void close();

private:
    std::shared_ptr<Project> project() const;
    std::shared_ptr<ProjectReference> made(const LibraryReference& line) const;
    std::shared_ptr<ProjectReference> withGuid(const std::string& guid) const;
    vbide::Ref<vbide::Reference> add(MemberKind kind, const LibraryReference& line);

    Project* project_;
    std::vector<std::shared_ptr<ProjectReference>> list_;
};

} // namespace host
