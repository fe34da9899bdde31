#pragma once
// The state that the objects of a form designer share.
#include "Add-in/platform/host_project.h"
#include "Basic/code_page.h"
#include "Host/files/form_file.h"
#include "Host/files/property_value.h"
#include "Host/files/resource_file.h"
#include "Host/model/forms/control_class.h"
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace host {

/// The connection of a designer to its component. All functions are optional.
struct DesignerHooks {
    /// The form's text changed.
    std::function<void()> changed;
    std::function<void(const basic::Ref<vbide::VBControl>&)> controlAdded, controlRemoved;
    /// Called after a control was renamed, with its old name and index (-1 for none).
    std::function<void(const basic::Ref<vbide::VBControl>&, const std::string&, int)> controlRenamed;
    /// Renames the form with all uses of its name. Without it only the block is renamed.
    std::function<void(const std::string& newName)> renameForm;
    /// The resource file that the form refers to by this name; null if it does not exist.
    std::function<std::shared_ptr<const ResourceFile>(const std::string& fileName)> resources;
    /// Appends a record to the form's own resource file, which is written when the form is saved.
    std::function<ResourceReference(const std::string& record)> addResource;
    /// The properties of a class that is not built in; null if it is unknown.
    std::function<std::shared_ptr<const ControlClass>(const std::string& className)> classes;
    /// The class as written in forms for a ProgID (TavletsCtl.QLLabel for "Tavlets.QLLabel").
    std::function<std::string(const std::string& progId)> classOfProgId;
    /// The Object line that a form needs for a control of this class, if any.
    std::function<std::optional<ObjectLine>(const std::string& className)> objectLine;
};

/// A line with a number that depends on the form's scale, before and after a change of the scale.
struct ScaledLine {
    std::shared_ptr<FormBlock> block;
    std::string key, before, after;
};
struct ScaleChange {
    int from = -1, to = -1; ///< scale modes
    std::string word;       ///< the comment of the mode before the change
    std::vector<ScaledLine> lines;
};

/// Owned by the designer. The objects that it returns have weak references, so they remain valid after the form is
/// removed and raise errors.
class DesignerState : public std::enable_shared_from_this<DesignerState> {
public:
    DesignerState(std::shared_ptr<FormFile> file, basic::CodePage codePage, DesignerHooks hooks);

    const std::shared_ptr<FormFile> file;
    const basic::CodePage codePage;
    DesignerHooks hooks;
    ScaleChange lastScaleChange;

    FormBlock& root() { return *file->root(); }
    const ControlClass& classOf(const FormBlock& block);

    /// Edits one property and calls `changed` if the text changed. Error 5, without a change, if the code page lacks a
    /// character.
    void set(FormBlock& block, std::string_view key, const std::string& literal, std::string_view comment = {});
    void remove(FormBlock& block, std::string_view key);
    /// Appends a record to the form's resource file. Returns the literal that refers to it. Error 438 without a
    /// resource file.
    std::string addResource(const std::string& record, bool isString = false) const;
    void checkText(std::string_view text) const;
    void raiseChanged() const;

    /// All controls in the order of the text; nested ones follow their container.
    const std::vector<basic::Ref<vbide::VBControl>>& controls();
    /// Nothing if the block is no longer a control of this form.
    basic::Ref<vbide::VBControl> controlOf(const FormBlock& block);
    bool holds(const FormBlock& block);
    /// Must be called after control blocks were added, removed or renamed.
    void controlsChanged() { listed_ = false; }
    /// The first control with this name, ignoring case, or Nothing.
    basic::Ref<vbide::VBControl> controlNamed(const std::string& name);

private:
    void listControls();
    using ControlsByBlock = std::unordered_map<const FormBlock*, basic::Ref<vbide::VBControl>>;
    void listControls(const FormBlock& container, const ControlsByBlock& before);

    std::unordered_map<std::string, std::shared_ptr<const ControlClass>> classes_;
    bool listed_ = false;
    std::vector<basic::Ref<vbide::VBControl>> controls_;
    ControlsByBlock byBlock_;
    std::unordered_map<std::string, basic::Ref<vbide::VBControl>> byName_;
};

/// Returns the state. Error 440 if the form has been removed.
std::shared_ptr<DesignerState> liveDesigner(const std::weak_ptr<DesignerState>& state);
/// Also error 440 if the block has been removed from the form.
std::shared_ptr<DesignerState> liveDesigner(const std::weak_ptr<DesignerState>& state, const FormBlock& block);

} // namespace host
