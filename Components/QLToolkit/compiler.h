#pragma once
// The compiler component: compiles the files of a project into an image.
#include "Add-in/platform/classes.h"
#include "Add-in/platform/compiler.h"
#include "Add-in/platform/files.h"
#include "Components/Image/image.h"
#include "Components/QLToolkit/parsed_program.h"
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qltoolkit {

/// The version that is stored in images.
inline constexpr const char* kCompilerVersion = "3.5.0 (0624)";
/// Appended to the path of SetOutputPath to form the path of the image.
inline constexpr const char* kImageSuffix = ".0000.qlx";

/// The result of the last Build in more detail than its events: physical lines and columns, and the files read.
struct BuildRecord {
    std::vector<Diagnostic> diagnostics;
    /// Every file that the compiler read.
    std::vector<std::string> inputs;
    /// Path of the image, or "" if none was written.
    std::string image;
    std::uint64_t lines = 0;
};

struct CompilerServices {
    fernwick::FileSystemObject& files;
    const fernwick::Classes& classes;
    std::shared_ptr<BuildRecord> record = std::make_shared<BuildRecord>();
    /// The code page of a source file, by its path. Without it sources are Windows-1252 or UTF-8.
    std::function<basic::CodePage(const std::string& path)> codePageOf = {};
    /// The path of the resource file of the project that is compiled to this path; "" for none.
    std::function<std::string(const std::string& outputPath)> resourceFileOf = {};
    /// The contents of a library, by its GUID; null for one that is not described.
    std::function<const language::Library*(const std::string& guid)> libraryOf = {};
};

class ProjectCompiler : public Compiler {
public:
    explicit ProjectCompiler(CompilerServices services) : services_(std::move(services)) {}

    void SetOutputPath(const std::string& path) override { input_.outputPath = path; }
    void AddBuildFile(const std::string& path, int kind) override { input_.files.push_back({path, kind}); }
    /// Parses every source file, reports errors and warnings, and writes the image atomically. Returns false if there
    /// was an error. An exception from an event handler aborts the build without an image.
    bool Build() override;
    void Reset() override { input_ = {}; }
    void SetStartupObject(const std::string& name) override { input_.startup = name; }
    void AddConditionalConstant(const std::string& name, std::int32_t value) override {
        input_.constants.emplace_back(name, value);
    }
    void SetVersionInfo(const std::string& key, const std::string& value) override {
        input_.info.emplace_back(key, value);
    }

private:
    struct BuildFile {
        std::string path;
        int kind;
    };
    struct Input {
        std::string outputPath, startup;
        std::vector<BuildFile> files;
        std::vector<std::pair<std::string, std::int32_t>> constants;
        std::vector<std::pair<std::string, std::string>> info;
    };
    struct Library {
        std::string path, name, guid;
        int kind;
    };
    /// A source file and its tree, which refers to the text; a file that could not be read has neither.
    struct Source {
        std::unique_ptr<SourceText> text;
        ParseResult parsed;
    };

    bool compile();
    std::vector<Source> parseSources(SymbolTable& symbols);
    Source readSource(const std::string& path);
    std::vector<image::Resource> resources();
    /// Returns what is wrong with a file if `read` throws.
    template <class Read>
    std::optional<Diagnostic> problemOfReading(const std::string& path, const Read& read);
    static void addModule(image::Image& image, const Source& source, std::optional<image::Control> form,
                          const SymbolTable& symbols);
    void checkModules(const image::Image& image);
    ParsedProgram checkNames(const std::vector<Source>& sources, SymbolTable& symbols,
                             const std::vector<Library>& libraries);
    [[nodiscard]] ProgramOptions optionsWith(const std::vector<Library>& libraries) const;
    /// Forms have no code yet, and modules beside them cannot run alone.
    static bool makesCode(const std::vector<Source>& sources);
    static std::uint32_t codePageOf(const std::vector<Source>& sources);
    std::vector<Library> findLibraries();
    std::optional<Library> findLibrary(const BuildFile& file);
    void reportDependencies(const image::Image& image, const std::vector<Library>& libraries);
    void reportFilesOf(const image::Control& control, const std::string& folder);
    void report(const Diagnostic& diagnostic);
    bool writeImage(const image::Image& image);

    CompilerServices services_;
    Input input_;
    std::size_t errors_ = 0;
};

/// Registered as "QLToolkit.CompilerFactory".
class ProjectCompilerFactory : public CompilerFactory {
public:
    explicit ProjectCompilerFactory(CompilerServices services) : services_(std::move(services)) {}
    basic::Ref<Compiler> CreateCompiler() override { return basic::make<ProjectCompiler>(services_); }

private:
    CompilerServices services_;
};

} // namespace qltoolkit
