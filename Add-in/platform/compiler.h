#pragma once
// The compiler component, as the compile driver sees it.
#include "Add-in/platform/events.h"
#include "Add-in/platform/object.h"
#include "Basic/ref.h"
#include <cstdint>
#include <string>

namespace qltoolkit {

/// Kinds of input files.
enum BuildFileKind : int { SourceFile = 0, ReferencedLibrary = 1, ControlLibrary = 2 };
/// Kinds of reported dependencies.
enum DependencyType : int { ComponentDependency = 0, FileDependency = 1 };

/// Raises its events from within Build, on the caller's thread.
class Compiler : public fernwick::Object {
public:
    fernwick::Event<> BuildStarted;
    /// The text begins with the percentage: "45% completed".
    fernwick::Event<const std::string&> BuildStatus;
    /// Message, file name, line in the file on disk (from 1, 0 for none), error number.
    fernwick::Event<const std::string&, const std::string&, std::int32_t, std::int32_t> BuildError, BuildWarning;
    /// Name and DependencyType.
    fernwick::Event<const std::string&, std::int32_t> AddDependency;
    fernwick::Event<bool> BuildFinished;

    /// Folder, separator and project name, without an extension.
    virtual void SetOutputPath(const std::string& path) = 0;
    virtual void AddBuildFile(const std::string& path, int kind) = 0;
    virtual bool Build() = 0;
    /// Discards all input.
    virtual void Reset() = 0;
    /// Name of the start-up component, "Sub Main", or "".
    virtual void SetStartupObject(const std::string& name) = 0;
    virtual void AddConditionalConstant(const std::string& name, std::int32_t value) = 0;
    virtual void SetVersionInfo(const std::string& key, const std::string& value) = 0;
};

/// Registered as "QLToolkit.CompilerFactory".
class CompilerFactory : public fernwick::Object {
public:
    virtual basic::Ref<Compiler> CreateCompiler() = 0;
};

} // namespace qltoolkit
