#pragma once
// A component of a project (module, class, form and so on), over the text of its file.
#include "Add-in/platform/host_project.h"
#include "Host/files/project_file.h"
#include "Host/files/resource_file.h"
#include "Host/files/text_file.h"
#include "Host/model/code/dirty_mark.h"
#include "Host/model/code/source_file.h"
#include "Host/model/pane_events.h"
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace host {

class ComponentDesigner;
class ModuleCode;
class Project;
struct LoadedSource;

/// Where a component was read from. Empty for a new one.
struct ComponentOrigin {
    std::string path; ///< native
    std::optional<FileStamp> stamp;
    std::optional<ProjectFile::Place> member;
};

class Component final : public vbide::VBComponent, public std::enable_shared_from_this<Component> {
public:
    Component(const std::shared_ptr<Project>& project, LoadedSource loaded, ComponentOrigin origin);
    ~Component() override;

    std::string Name() const override;
    void Name(const std::string& name) override;
    vbide::vbext_ComponentType Type() const override;
    std::string FileNames(int index) const override;
    int FileCount() const override;
    bool IsDirty() const override;
    void IsDirty(bool dirty) override;
    bool Saved() const override;
    void SaveAs(const std::string& path) override;
    void Activate() override;
    vbide::Ref<vbide::CodeModule> CodeModule() override;
    vbide::Ref<vbide::Properties> Properties() override;
    vbide::Ref<vbide::VBForm> Designer() override;
    bool HasOpenDesigner() const override;
    vbide::Ref<vbide::Window> DesignerWindow() override;
    vbide::Ref<vbide::VBE> VBE() const override;
    vbide::Ref<vbide::VBComponents> Collection() const override;

    // ---- for the host ----
    /// The project. Error 440 once the component or its project has been removed.
    std::shared_ptr<Project> owner() const;
    SourceFile& source() { return source_; }
    const std::string& path() const { return origin_.path; }
    /// The line in the project's file; none for a component without a file.
    const std::optional<ProjectFile::Place>& member() const { return origin_.member; }
    void member(std::optional<ProjectFile::Place> place) { origin_.member = place; }
    /// The stamp of the file when it was last read or saved; none for a component without a file.
    const std::optional<FileStamp>& stamp() const { return origin_.stamp; }
    /// The source file that has the binary companion beside it: its own, or that of its template until it is saved.
    const std::string& resourceOwner() const { return origin_.path.empty() ? template_ : origin_.path; }

    /// Detaches the component from its file, which becomes its template.
    void becomeNew();
    /// Renames a component that is not yet in the project.
    void rename(const std::string& name);
    /// Reads the file again and discards unsaved changes; the file determines the name. Objects of the old designer
    /// raise errors afterwards. Errors, without a change: as readFile; 321 not a source of this kind; 32813 the name is
    /// taken.
    void reread();
    /// Replaces the source with unsaved text that was based on the file with the stamp `base`. If the file has changed
    /// since, the next save treats it as changed by another program. Errors as above.
    void restore(std::string bytes, const std::optional<FileStamp>& base, const UnsavedRecords& records = {});
    /// Reads the same bytes in the present code page of the project. Errors as above.
    void decodeAgain();
    /// Marks the component as dirty after an edit of its text, unless the text is again that of the file.
    void changed() { dirty_.edited(); }
    /// Detaches the component from its project. All members raise errors from now on, those of its designer too.
    void remove();
    /// Returns true for the first call, false while a removal is in progress.
    bool beginRemoval() { return !std::exchange(removing_, true); }

    bool hasDesigner() const;
    ComponentDesigner& designer() { return *designer_; }
    /// As in "Project1 - Form1 (Form)", with the present names.
    std::string designerCaption() const;
    /// Raises ItemActivated for the selected component, whose designer is shown again, after a save for example.
    void designerShown();
    /// Raises an event of the host's panes. Does nothing for a removed component.
    void raiseToPanes(PaneEvent event);

private:
    void replaceSource(LoadedSource loaded);
    void adoptName(const std::string& name);
    void raiseReplaced();

    std::weak_ptr<Project> project_;
    vbide::vbext_ComponentType type_;
    std::string name_;
    SourceFile source_;
    ComponentOrigin origin_;
    std::string template_;
    DirtyMark dirty_;
    bool removing_ = false;
    std::shared_ptr<ModuleCode> code_;
    std::unique_ptr<ComponentDesigner> designer_;
};

} // namespace host
