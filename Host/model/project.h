#pragma once
// A project: the text of its file, with its components, its references and the values of add-ins.
#include "Add-in/platform/host_events.h"
#include "Add-in/platform/host_project.h"
#include "Basic/detection/code_page_detection.h"
#include "Host/files/path_lookup.h"
#include "Host/files/project_file.h"
#include "Host/model/code/dirty_mark.h"
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

class Project final : public vbide::VBProject, public std::enable_shared_from_this<Project> {
public:
    /// Creates an empty project; load() or loadText() must follow. `path` is "" for a new one.
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
    std::string StorableText(const std::string& text) const override { return file_->storableText(text); }
    void SaveAs(const std::string& path) override;
    void AddToolboxProgID(const std::string& progId) override;
    vbide::Ref<vbide::References> References() override;
    vbide::Ref<vbide::VBComponents> VBComponents() override;
    vbide::Ref<vbide::VBE> VBE() const override;

    // ---- for the host ----
    /// Error 440 once the project has been removed.
    std::shared_ptr<Host> host() const;
    /// Reads the files of the project and its components. Errors: as readFile; 321 not a project file.
    void load();
    /// Reads the project from this text, which is not saved. `asRead` is the stamp of the file that it is based on.
    void loadText(const std::string& text, const std::optional<FileStamp>& asRead = {});
    /// Detaches the project and its components from their files, after loading them from a template.
    void becomeNew();
    const std::vector<LoadProblem>& loadProblems() const { return problems_; }

    ProjectFile& file() { return *file_; }
    const ProjectFile& file() const { return *file_; }
    Components& components() { return *components_; }
    const Components& components() const { return *components_; }
    ProjectReferences& references() { return *references_; }
    /// Marks the project as dirty: a component without a file changes nothing in its text.
    void changed();
    /// The stamp of the file when it was last read or saved.
    const std::optional<FileStamp>& stamp() const { return stamp_; }
    /// "" for a project without a file.
    std::string folder() const;
    /// A native path as member lines of this project write it.
    std::string memberPath(const std::string& path) const;

    /// The code page of files that are not UTF-8 themselves, and how it was determined.
    const basic::DetectedCodePage& codePage() const { return codePage_; }
    /// Stores the page in the project file, or removes it from there to have it detected, and reads the components' bytes
    /// in the new page; unsaved edits remain. Error 5, without a change, for an unknown page.
    void codePage(std::optional<int> page);
    /// Reads a component, without adding it. The name is that of the source, else `listedName`, else that of the file.
    /// Errors: as readFile; 321 not a source of this kind.
    std::shared_ptr<Component> readComponent(MemberKind kind, const std::string& path, const std::string& listedName);
    /// Updates or adds the component's line after a change of its file or name.
    void writeMember(Component& component);
    void dropMember(Component& component);
    /// Updates the settings that name a component.
    void followRename(const std::string& oldName, const std::string& newName);

    /// Detaches the project from the host. All members raise errors from now on.
    void close();
    /// Returns true for the first call, false while a removal is in progress.
    bool beginRemoval() { return !std::exchange(removing_, true); }

    const vbide::Ref<vbide::VBComponentsEvents> componentsEvents = basic::make<vbide::VBComponentsEvents>();
    const vbide::Ref<vbide::ReferencesEvents> referencesEvents = basic::make<vbide::ReferencesEvents>();
    const vbide::Ref<vbide::FileControlEvents> fileEvents = basic::make<vbide::FileControlEvents>();
    /// The path of the group that the project was opened with; "" for none.
    std::string group;

private:
    void edited();
    void raiseEdited();
    void readText(const std::string& text);
    void loadMembers();
    void loadMember(const ProjectFile::Member& member, PathLookup& lookup, std::unordered_set<std::string>& seen);
    void problem(const std::string& file, std::size_t line, std::string text);
    using MovedLines = std::vector<std::pair<ProjectFile::Place, std::string>>;
    void moveTo(const std::string& path, MovedLines& oldLines);
    bool save(const std::optional<FileStamp>& asRead);

    std::weak_ptr<Host> host_;
    std::string path_;
    basic::DetectedCodePage codePage_;
    std::optional<FileStamp> stamp_;
    std::unique_ptr<ProjectFile> file_;
    std::shared_ptr<Components> components_;
    std::shared_ptr<ProjectReferences> references_;
    std::vector<LoadProblem> problems_;
    DirtyMark dirty_;
    bool removing_ = false;
};

} // namespace host
