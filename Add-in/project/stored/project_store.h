#pragma once
// The text values that a project keeps in its file.
#include "Add-in/core/procedure.h"
#include "Add-in/platform/host_project.h"
#include "Add-in/project/stored/project_services.h"

namespace fernwick {

// Sections of the project file that hold settings and lists.
inline constexpr const char* kGlobalSection = "Quinloft Global";
inline constexpr const char* kCompilerOptionsSection = "Quinloft Compiler Options";
inline constexpr const char* kDependenciesSection = "Quinloft Components And Tavlet Dependencies Section";

/// Whether a key is this beginning and a number.
bool isNumberedKey(std::string_view key, std::string_view beginning);

/// The open project that settings and lists are stored in. Nothing is cached.
class ProjectStore {
public:
    /// Null for settings that only describe themselves.
    explicit ProjectStore(const ProjectServices* services) : services_(services) {}
    ProjectStore(const ProjectStore&) = delete;

    basic::Ref<vbide::VBProject> project;

    const ProjectServices& services() const { return *services_; }
    ErrorReport& errors() const { return services_->errors; }

    /// Error 5 for a key that is absent.
    std::string read(const char* section, const std::string& key) const { return project->ReadProperty(section, key); }
    /// The length of a stored list; 0 for a value that is absent, not a number or damaged.
    std::int32_t readCount(const char* section, const std::string& key) const;
    void write(Procedure& here, const char* section, const std::string& key, const std::string& value);
    /// Reports a failed read, unless the value is merely absent.
    void reportUnlessAbsent(const std::string& location, const basic::RuntimeError& error) const;

    /// The folder of the project file, without a separator at the end; "" for a project that was never saved.
    std::string folder() const;
    /// "<project> <procedure>", as the location of an error report.
    std::string withProjectName(const std::string& procedure) const;

private:
    const ProjectServices* services_;
};

} // namespace fernwick
