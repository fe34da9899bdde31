#pragma once
// What the objects of one form designer share.
#include "Add-in/platform/host_project.h"
#include "Basic/code_page.h"
#include "Host/files/form_file.h"
#include "Host/files/resource_file.h"
#include "Host/model/forms/control_class.h"
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace host {

/// What the designer needs of its component and tells it. Any of them may be empty.
struct DesignerHooks {
    /// The form's text changed.
    std::function<void()> changed;
    std::function<void(const basic::Ref<vbide::VBControl>&)> controlAdded, controlRemoved;
    /// After a renaming, with the old name and index (-1 for none).
    std::function<void(const basic::Ref<vbide::VBControl>&, const std::string&, int)> controlRenamed;
    /// Renames the form, whose name stands in more places than its block. Without it the block alone is renamed.
    std::function<void(const std::string& newName)> renameForm;
    /// The resource file of a name that stands in the form; null when it is not there.
    std::function<std::shared_ptr<const ResourceFile>(const std::string& fileName)> resources;
    /// The properties of a class that is not the language's own; null when nothing is known of it.
    std::function<std::shared_ptr<const ControlClass>(const std::string& className)> classes;
    /// The class that a form's text uses for a ProgID ("Tavlets.QLLabel" is TavletsCtl.QLLabel).
    std::function<std::string(const std::string& progId)> classOfProgId;
    /// The Object line that a form needs for a control of this class; nothing where it needs none.
    std::function<std::optional<ObjectLine>(const std::string& className)> objectLine;
};

/// A line whose number depends on the form's scale, before and after a change of it.
struct ScaledLine {
    std::shared_ptr<FormBlock> block;
    std::string key, before, after;
};
struct ScaleChange {
    int from = -1, to = -1; ///< scale modes
    std::string word;       ///< what stood behind the mode before
    std::vector<ScaledLine> lines;
};

/// Owned by the designer alone. The objects that it hands out know it weakly, so that they stay valid objects
/// whose members raise errors when the form is gone.
class DesignerState : public std::enable_shared_from_this<DesignerState> {
public:
    DesignerState(std::shared_ptr<FormFile> file, basic::CodePage codePage, DesignerHooks hooks);

    const std::shared_ptr<FormFile> file;
    const basic::CodePage codePage;
    DesignerHooks hooks;
    ScaleChange lastScaleChange;

    FormBlock& root() { return *file->root(); }
    const ControlClass& classOf(const FormBlock& block);

    /// Edits one property. Error 5 and no change for text that the code page lacks. Tells `changed` when the
    /// text changed.
    void set(FormBlock& block, std::string_view key, const std::string& literal, std::string_view comment = {});
    void remove(FormBlock& block, std::string_view key);
    void checkText(std::string_view text) const;
    void tellChanged() const;

    /// All controls in the order of the text, nested ones behind their container.
    const std::vector<basic::Ref<vbide::VBControl>>& controls();
    /// Nothing for a block that is no control of this form any more.
    basic::Ref<vbide::VBControl> controlOf(const FormBlock& block);
    bool holds(const FormBlock& block);
    /// To be called when control blocks come, go or change their names.
    void controlsChanged() { listed_ = false; }
    /// The first control of a name, letter case ignored; Nothing when there is none.
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

/// The state behind an object of a form. Error 440 when the form is gone.
std::shared_ptr<DesignerState> liveDesigner(const std::weak_ptr<DesignerState>& state);

} // namespace host
