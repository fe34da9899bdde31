#pragma once
// The declarations of a module, found from the first words of its statements without parsing them.
#include "Add-in/platform/host_project.h"
#include <string>
#include <vector>

namespace host {

class CodeText;

struct CodeOutline {
    struct Procedure {
        std::string name;
        vbide::vbext_ProcKind kind = vbide::vbext_pk_Proc;
        int start = 0; ///< its first line, including comments and blank lines above the head
        int body = 0;  ///< the line of its head
        int end = 0;   ///< the line of its End statement, or the module's last line if it has none
    };
    /// A variable with events, or an interface that the module implements.
    struct Source {
        std::string name, className; ///< the class as it is written: "clsTimer", "MSComctlLib.TreeView"
        bool isInterface = false;
    };
    /// Procedures, variables, constants and events in the order of the code. A property with several procedures occurs
    /// once.
    std::vector<vbide::Member> members;
    std::vector<Procedure> procedures;
    std::vector<Source> sources;
    int declarationLines = 0;
};

CodeOutline outlineOf(const CodeText& code);

} // namespace host
