#pragma once
// A component of a project: a module, class, form or one of their kin, over the text of its file.
#include "Add-in/platform/host_events.h"
#include "Add-in/platform/host_project.h"
#include "Host/files/project_file.h"
#include "Host/files/text_file.h"
#include "Host/model/code/source_file.h"
#include "Host/model/forms/designer_state.h"
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace host {

class FormDesigner;
class ModuleCode;
class Project;
class ToolWindow;
struct LoadedSource;
struct PaneEvents;

/// Where a component comes from. A new one has none of it.
struct ComponentOrigin {
    std::string path; ///< native
    std::optional<FileStamp> stamp;
    std::optional<ProjectFile::Place> member;
};

class Component final : public vbide::VBComponent, public std::enable_shared_from_this<Component> {
public:
    Component(const std::shared_ptr<Project>& project, vbide::vbext_ComponentType type, std::string name,
              SourceFile source, ComponentOrigin origin);
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
    const std::optional<ProjectFile::Place>& member() const { return origin_.member; }
    void member(std::optional<ProjectFile::Place> place) { origin_.member = place; }
    /// Forgets its file: it was made from a template, from where its resources come until it is saved.
    void becomeNew();
    /// Writes another name into its text, before it is taken in.
    void rename(const std::string& name);
    /// Of its file as it was read or saved last; none for a component without a file.
    const std::optional<FileStamp>& stamp() const { return origin_.stamp; }
    /// Reads its file again: what was not saved is forgotten, its name is what the file tells. Its designer is another
    /// object then. Errors, and nothing changed: as readFile; 321 no source of this kind; 32813 the name is taken.
    void reread();
    /// Takes this for its source, unsaved: text that was made from its file when that had the stamp `base`. A later save
    /// over any other file is one over what another program wrote. Errors as above.
    void restore(std::string bytes, const std::optional<FileStamp>& base);
    /// The text was edited.
    void changed() { dirty_ = true; }
    /// From now on every member raises an error, those of its designer too.
    void remove();
    /// True for the first who asks: a removal is under way.
    bool beginRemoval() { return !std::exchange(removing_, true); }
    bool hasDesigner() const;
    void openDesigner();
    /// True for this component's own designer; makes none.
    bool isDesignedBy(const vbide::Ref<vbide::VBForm>& form) const;
    const vbide::Ref<vbide::VBControlsEvents>& controlsEvents() const { return controlsEvents_; }

private:
    void replaceSource(LoadedSource loaded);
    void adoptName(const std::string& name);
    void tellReplaced();
    FormDesigner& designer();
    std::shared_ptr<const ResourceFile> resources(const std::string& name);
    DesignerHooks designerHooks();
    /// The file beside which the binary companion lies.
    const std::string& resourcesOf() const { return origin_.path.empty() ? template_ : origin_.path; }
    void tellPanes(fernwick::Event<vbide::Ref<vbide::VBComponent>> PaneEvents::*event);
    void copyCompanion(Project& project, const std::string& target);

    std::weak_ptr<Project> project_;
    vbide::vbext_ComponentType type_;
    std::string name_;
    SourceFile source_;
    ComponentOrigin origin_;
    std::string template_;
    bool dirty_ = false, removing_ = false;
    std::shared_ptr<ToolWindow> designerWindow_;
    std::vector<fernwick::Subscription> designerEvents_;
    std::shared_ptr<ModuleCode> code_;
    std::map<std::string, std::shared_ptr<const ResourceFile>> resources_; // by path
    std::unique_ptr<FormDesigner> designer_;                               // made at first use
    const vbide::Ref<vbide::VBControlsEvents> controlsEvents_ = basic::make<vbide::VBControlsEvents>();
};

/// The name of the binary companion of a component's file: .frx for .frm, .ctx for .ctl and so on.
std::string companionOf(const std::string& path);

} // namespace host
