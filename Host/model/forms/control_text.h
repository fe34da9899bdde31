#pragma once
// Controls as text, for the clipboard.
#include "Add-in/platform/host_project.h"
#include <map>
#include <string>
#include <vector>

namespace host {

/// Returns the lines of controls with those within them, from the first column. Leaves out menus.
std::string textOfControls(const std::vector<basic::Ref<vbide::VBControl>>& controls);

/// The records of the form's resource file that such a text refers to, by the literals of the references.
using CopiedRecords = std::map<std::string, std::string>;
CopiedRecords recordsOfControls(const basic::Ref<vbide::VBForm>& form,
                                const std::vector<basic::Ref<vbide::VBControl>>& controls);

/// The names in such a text that a single control of the same class on the form has too: the user decides whether they
/// become control arrays.
std::vector<std::string> namesInUse(const basic::Ref<vbide::VBForm>& form, const std::string& text);

struct InsertOptions {
    /// The names that become control arrays.
    std::vector<std::string> arrays;
    /// Whether references to the resource file are valid on this form. Otherwise the records that they refer to are
    /// appended to its own; properties without a record are left out.
    bool keepsResources = false;
    CopiedRecords records = {};
};
/// Adds the controls of such a text in front of those in a container, Nothing for the form itself, and raises ItemAdded
/// for each. Returns those that are directly in the container and that no handler removed. A name that is in use becomes
/// the next member of its control array, or a free name. Error 5 for a container that the file ends in, and for a text
/// without controls or with a character that the code page lacks.
std::vector<basic::Ref<vbide::VBControl>> insertControls(const basic::Ref<vbide::VBForm>& form,
                                                         const basic::Ref<vbide::VBControl>& container,
                                                         const std::string& text, const InsertOptions& options);

} // namespace host
