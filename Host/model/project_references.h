#pragma once
// The references of a project: the built-in libraries and those of its Reference and Object lines.
#include "Add-in/platform/host_project.h"
#include "Host/files/form_file.h"
#include "Host/files/library_reference.h"
#include "Host/files/project_file.h"
#include "Host/model/references/project_reference.h"
#include "Host/model/references/type_libraries.h"
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace host {

class Project;

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
    /// Reads the references of the project's file, without raising events.
    void load(const std::vector<ProjectFile::Member>& members);
    /// Adds the control library of a ProgID, unless the project has it. Error 429 for a class that is not registered.
    void addControlLibrary(const std::string& progId);
    /// Adds the control library with this GUID, unless the project has it. Error -2147319779 if it is not registered.
    void addControls(const std::string& guid);
    /// Adds the control library in a file, unless the project has it. Errors as AddFromFile.
    void addControlFile(const std::string& path);
    /// Puts the project's Reference lines into this order. References without a line, and control libraries, stay.
    void arrange(const std::vector<vbide::Ref<vbide::Reference>>& order);
    /// Returns the line with which a form refers to the library of a control class ("TavletsCtl.QLLabel"); nothing if
    /// the project has no such library.
    std::optional<ObjectLine> objectLineOf(const std::string& className) const;
    /// Detaches the collection from its project. All members raise errors from now on.
    void close();

private:
    std::shared_ptr<Project> project() const;
    std::shared_ptr<ProjectReference> makeReference(const LibraryReference& line) const;
    std::shared_ptr<ProjectReference> withGuid(const std::string& guid) const;
    TypeLibrary libraryOf(const std::string& file) const;
    vbide::Ref<vbide::Reference> add(MemberKind kind, const LibraryReference& line);

    Project* project_;
    std::vector<std::shared_ptr<ProjectReference>> list_;
};

} // namespace host
