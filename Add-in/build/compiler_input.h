#pragma once
// What a compile passes to the compiler.
#include "Add-in/build/compile_services.h"
#include "Add-in/platform/compiler.h"
#include "Add-in/platform/with_events.h"

namespace fernwick {

class CompilerInput {
public:
    using Project = basic::Ref<vbide::VBProject>;

    CompilerInput(const CompileServices& services, const WithEvents<qltoolkit::Compiler>& compiler)
        : services_(services), files_(services.platform.files), compiler_(compiler) {}

    /// Passes references, components, output path, start-up object and constants to the compiler.
    void pass(Procedure& here, const Project& project);
    void SendAppInfoToCompiler(const basic::Ref<clsQLProject>& qlProject);

private:
    void passReferences(Procedure& here, const Project& project);
    void passReference(const basic::Ref<vbide::Reference>& reference);
    void passComponents(Procedure& here, const Project& project);
    void passStartupObject(Procedure& here, const Project& project);
    void passConstants(Procedure& here, const Project& project);

    const CompileServices& services_;
    FileSystemObject& files_;
    const WithEvents<qltoolkit::Compiler>& compiler_;
};

} // namespace fernwick
