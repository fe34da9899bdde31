#pragma once
// The compiled files of a project on disk.
#include "Add-in/build/frmCompile.h"

namespace fernwick {

class CompiledImage {
public:
    using QLProject = basic::Ref<clsQLProject>;

    CompiledImage(ErrorReport& errors, const FileSystemObject& files, frmCompile& compile)
        : errors_(errors), files_(files), compile_(compile) {}

    bool IsCompiledImageCurrent(const QLProject& WorkingProject);

private:
    std::string imageOf(Procedure& here, const QLProject& project);

    ErrorReport& errors_;
    const FileSystemObject& files_;
    frmCompile& compile_;
};

/// Whether the compiler writes files of this name for the project.
bool IsCompilerFile(ErrorReport& errors, const std::string& FileName, const std::string& VBProjectName);

} // namespace fernwick
