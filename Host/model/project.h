#pragma once
// A project: the text of its file with components, references and the values of add-ins.
#include "Add-in/platform/host_events.h"
#include "Add-in/platform/host_project.h"
#include "Host/files/path_lookup.h"
#include "Host/files/project_file.h"
#include "Host/model/components.h"
#include "Host/model/errors/load_problem.h"
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace host {

class Host;
class ProjectReferences;

/// A component's source as it was read, and what it says of itself.
struct LoadedSource {
    SourceFile source;
    vbide::vbext_ComponentType type;
    std::string name; ///< "" where the source tells none
    std::optional<FileStamp> stamp;
};

/// The kind of line that lists a component of this type.
MemberKind memberKindOf(vbide::vbext_ComponentType type) noexcept;

class Project final : public vbide::VBProject, public std::enable_shared_from_this<Project> {
public:
    /// A project of which nothing is read yet. `path` is "" for a new one.
    Project(const std::shared_ptr<Host>& host, std::string path);
    ~Project() override;

    std::string Name() const override;
    void Name(const std::string& name) override;
    std::string FileName() const override;
    bool IsDirty() const override;
    void IsDirty(bool dirty) override;
    bool Saved() const override;
    std::string ReadProperty(const std::string& section, const std::string& key) const override;
    void WriteProperty(const std::string& section, const std::string& key, const std::string& value) override;
    void SaveAs(const std::string& path) override;
    void AddToolboxProgID(const std::string& progId) override;
    vbide::Ref<vbide::References> References() override;
    vbide::Ref<vbide::VBComponents> VBComponents() override;
    vbide::Ref<vbide::VBE> VBE() const override;

    // ---- for the host ----
    /// Error 440 once the project has been removed.
    std::shared_ptr<Host> host() const;
    /// Reads the project's file and its components'. Errors: as readFile; 321 for what is no project file.
    void load();
    /// Makes a new project of this text.
    void loadText(const std::string& text);
    /// Forgets all file names: a new project made from a template.
    void becomeNew();
    const std::vector<LoadProblem>& loadProblems() const { return problems_; }

    ProjectFile& file() { return *file_; }
    const ProjectFile& file() const { return *file_; }
    Components& components() { return *components_; }
    ProjectReferences& references() { return *references_; }
    void changed() { dirty_ = true; }
    /// Of its file as it was read or saved last.
    const std::optional<FileStamp>& stamp() const { return stamp_; }
    std::string folder() const;
    std::string memberPath(const std::string& path) const;

    /// Reads a component's source. Errors: as readFile; 321 for what is no source of this kind.
    LoadedSource readSource(MemberKind kind, const std::string& path) const;
    /// The same of bytes that are no file of the project. Error 321 as above.
    LoadedSource sourceOf(MemberKind kind, std::string bytes, const std::string& path) const;
    /// Reads the file of a component. Errors: as readFile; 321 for what is no source of this kind.
    std::shared_ptr<Component> readComponent(MemberKind kind, const std::string& path, const std::string& listedName);
    /// A component got a file, another file or another name: its line in the project's file.
    void writeMember(Component& component);
    void dropMember(Component& component);
    /// Settings that name a component follow its new name.
    void followRename(const std::string& oldName, const std::string& newName);

    /// From now on every member raises an error.
    void close();
    /// True for the first who asks: a removal is under way.
    bool beginRemoval() { return !std::exchange(removing_, true); }

    const vbide::Ref<vbide::VBComponentsEvents> componentsEvents = basic::make<vbide::VBComponentsEvents>();
    const vbide::Ref<vbide::ReferencesEvents> referencesEvents = basic::make<vbide::ReferencesEvents>();
    const vbide::Ref<vbide::FileControlEvents> fileEvents = basic::make<vbide::FileControlEvents>();

private:
    void loadMembers();
    void loadMember(const ProjectFile::Member& member, PathLookup& lookup, std::unordered_set<std::string>& seen);
    void problem(const std::string& file, std::size_t line, std::string text);
    using MovedLines = std::vector<std::pair<ProjectFile::Place, std::string>>;
    void moveTo(const std::string& path, MovedLines& oldLines);
    bool save(const std::optional<FileStamp>& asRead);

    std::weak_ptr<Host> host_;
    std::string path_;
    std::optional<FileStamp> stamp_;
    std::unique_ptr<ProjectFile> file_;
    std::shared_ptr<Components> components_;
    std::shared_ptr<ProjectReferences> references_;
    std::vector<LoadProblem> problems_;
    bool dirty_ = false, removing_ = false;
};

} // namespace host
