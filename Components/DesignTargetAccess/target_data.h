#pragma once
// What one file of the targets folder says.
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace designtargetaccess {

struct TargetTavlet {
    std::string clsid; ///< with braces
    std::string progId;
    std::string category; ///< may be empty
};

struct TargetReference {
    std::string name;
    std::string guid; ///< with braces
};

struct TargetTemplates { ///< relative to the installation's root, empty for none
    std::string project;
    std::string form;
    std::string module;
    std::string classModule;
};

struct TargetData {
    std::int64_t order = 0; ///< position among the targets; equal ones stand in the order of their keys
    std::string key;
    std::string name;     ///< with "&" before the accelerator
    std::string platform; ///< empty for a target that isn't offered
    std::string pipe;     ///< ProgID; empty for a target without one
    std::int64_t style = 0;
    std::int64_t formWidth = -1; ///< device pixels; -1 for no fixed size
    std::int64_t formHeight = -1;
    std::int64_t formColor = 0; ///< &HBBGGRR; 0 leaves the form's colour alone
    std::string fontName;
    std::int64_t fontSize = 0; ///< points
    std::map<std::string, std::string> options;
    TargetTemplates templates;
    std::vector<TargetReference> required; ///< references that projects must carry
    std::vector<TargetReference> accepted; ///< further ones that they may carry
    std::vector<std::string> modules;      ///< GUIDs of the libraries whose modules the devices have
    std::vector<TargetTavlet> tavlets;
    std::vector<std::string> tabStopOff;                             ///< classes
    std::vector<std::pair<std::string, std::string>> tavletDefaults; ///< "QLButton.FontSize", "#8"
};

/// The target that the text of one file describes (installation/targets/README.md tells the format).
/// Throws TargetProblem for the first thing that is wrong with it.
TargetData readTarget(std::string_view text, const std::string& fileName);

} // namespace designtargetaccess
