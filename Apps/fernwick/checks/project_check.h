#pragma once
// The check of whole projects.
#include "Apps/common/checked_project.h"
#include "Apps/common/described_libraries.h"
#include "Apps/fernwick/checks/check_cache.h"
#include "Apps/fernwick/checks/key_text.h"
#include "Apps/fernwick/checks/stored_program.h"
#include "Apps/fernwick/options/options.h"
#include "Components/QLToolkit/check.h"
#include "Host/files/text_file.h"
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace cli {

/// What was found in a source of a project.
struct CheckedSource {
    qltoolkit::CheckResult result;
    /// Null for a file without messages and for one that could not be read.
    std::unique_ptr<qltoolkit::SourceText> text;
};

struct CheckedFiles {
    std::vector<CheckedSource> sources;  ///< in the order of the project's
    qltoolkit::CheckResult resourceFile; ///< of the project's, if it has one
};

struct CompiledProject {
    CheckedFiles files;
    std::optional<image::CodeImage> code; ///< of a project without errors; it is not verified
    std::vector<qltoolkit::EntryPoint> entries;
};

/// Checks and compiles projects, or finds what was made of the same bytes before.
class ProjectCheck {
public:
    ProjectCheck(const Options& options, host::FileContents& contents);

    CheckedFiles check(const apps::CheckedProject& project);
    /// Checks a project and makes its code.
    CompiledProject compile(const apps::CheckedProject& project);

private:
    /// A source, or why it could not be read.
    struct Source {
        std::optional<host::FileContent> content;
        qltoolkit::CheckResult failure;
    };

    std::vector<Source> readSources(const apps::CheckedProject& project);
    Source read(const std::string& path);
    /// Without a content and without an error if the project has none.
    Source readResourceFile(const apps::CheckedProject& project);
    [[nodiscard]] CheckKey keyOf(const apps::CheckedProject& project, const std::vector<Source>& sources) const;
    /// `resources`: the project's resource file, if it has one.
    [[nodiscard]] CheckKey compileKeyOf(const apps::CheckedProject& project, const std::vector<Source>& sources,
                                        const Source& resources) const;
    static std::vector<image::Resource> resourcesIn(const apps::CheckedProject& project, Source& file);
    static void addContent(KeyText& key, const Source& source);
    void addLibraries(KeyText& key, const apps::CheckedProject& project) const;
    [[nodiscard]] qltoolkit::ProgramOptions programOf(const apps::CheckedProject& project,
                                                      const std::vector<CheckedSource>& sources);
    /// Takes the contents of the sources. `results` are dropped if they do not match.
    static std::vector<CheckedSource> checkedSources(const apps::CheckedProject& project, std::vector<Source>& sources,
                                                     std::optional<qltoolkit::CheckResults>& results);
    static void addResults(std::vector<CheckedSource>& checked, const std::vector<Source>& sources,
                           qltoolkit::CheckResults results);

    const Options& options_;
    host::FileContents& contents_;
    std::string installation_;
    apps::DescribedLibraries libraries_;
    CheckCache cache_;
};

} // namespace cli
