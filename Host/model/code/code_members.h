#pragma once
// What a module declares, read off the lines of its code without understanding more of them than their first words.
#include "Add-in/platform/host_project.h"
#include <string>
#include <vector>

namespace host {

class CodeText;

struct CodeOutline {
    struct Procedure {
        std::string name;
        vbide::vbext_ProcKind kind = vbide::vbext_pk_Proc;
        int start = 0; ///< its first line: comments and blank lines above the head belong to it
        int body = 0;  ///< the line of its head
        int end = 0;   ///< the line of its End statement; the module's last line where it has none
    };
    /// Procedures, variables, constants and events in the order of the code; a property once, whatever its procedures.
    std::vector<vbide::Member> members;
    std::vector<Procedure> procedures;
    int declarationLines = 0;
};

CodeOutline outlineOf(const CodeText& code);

} // namespace host
