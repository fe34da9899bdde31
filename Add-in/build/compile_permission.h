#pragma once
// Decides whether a project may be compiled or validated, and saves it first if needed.
#include "Add-in/build/compile_services.h"

namespace fernwick {

/// The compiler's version, compared exactly with that of the project's last good compile.
inline constexpr char kCompilerVersion[] = "3.5.0 (0624)";

class CompilePermission {
public:
    using Project = basic::Ref<vbide::VBProject>;

    explicit CompilePermission(const CompileServices& services) : services_(services) {}

    bool canCompile(const Project& project);
    bool readyForValidation(const Project& project);
    bool lastCompileVersionGood(const Project& project);
    bool ProjectIsDirty(const Project& project);

private:
    using QLProject = basic::Ref<clsQLProject>;

    bool filesHaveBeenSaved(Procedure& here, const QLProject& qlProject);
    bool saveForCompile(Procedure& here, const Project& project, const QLProject& qlProject);
    bool askToSave(Procedure& here, const Project& project, const QLProject& qlProject);

    CompileServices services_;
};

} // namespace fernwick
