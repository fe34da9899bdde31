#pragma once
// The content of a design target file.
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

struct TargetTemplates { ///< relative to the installation's root; empty if absent
    std::string project;
    std::string form;
    std::string module;
    std::string classModule;
};

struct TargetData {
    std::int64_t order = 0; ///< position among the targets; equal ones are sorted by key
    std::string key;
    std::string name;     ///< with "&" before the accelerator
    std::string platform; ///< empty for a hidden target
    std::string pipe;     ///< ProgID; may be empty
    std::int64_t style = 0;
    std::int64_t formWidth = -1; ///< device pixels; -1 without a fixed size
    std::int64_t formHeight = -1;
    std::int64_t formColor = 0; ///< &HBBGGRR; 0 keeps the form's color
    std::string fontName;
    std::int64_t fontSize = 0; ///< points
    std::map<std::string, std::string> options;
    TargetTemplates templates;
    std::vector<TargetReference> required; ///< references that projects must have
    std::vector<TargetReference> accepted; ///< further references that they may have
    std::vector<std::string> modules;      ///< GUIDs of libraries whose modules the devices support
    std::vector<TargetTavlet> tavlets;
    std::vector<std::string> tabStopOff;                             ///< classes
    std::vector<std::pair<std::string, std::string>> tavletDefaults; ///< "QLButton.FontSize", "#8"
};

/// Parses a design target file, described in installation/targets/README.md. Throws TargetProblem for its first error.
TargetData readTarget(std::string_view text, const std::string& fileName);

} // namespace designtargetaccess
