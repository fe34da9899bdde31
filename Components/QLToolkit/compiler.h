#pragma once
// The compiler component: takes the files of a project and makes its image.
#include "Add-in/platform/classes.h"
#include "Add-in/platform/compiler.h"
#include "Add-in/platform/files.h"
#include "Components/Image/image.h"
#include "Components/QLToolkit/parser/parse.h"
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qltoolkit {

/// The version that images carry.
inline constexpr const char* kCompilerVersion = "3.5.0 (0624)";
/// What SetOutputPath's path gets to become the image's.
inline constexpr const char* kImageSuffix = ".0000.qlx";

/// What the last Build did, in more detail than its events tell: physical lines and columns, and what was read.
struct BuildRecord {
    std::vector<Diagnostic> diagnostics;
    /// Every file that the image was made from.
    std::vector<std::string> inputs;
    /// "" when none was written.
    std::string image;
    std::uint64_t lines = 0;
};

struct CompilerServices {
    fernwick::FileSystemObject& files;
    const fernwick::Classes& classes;
    std::shared_ptr<BuildRecord> record = std::make_shared<BuildRecord>();
};

class ProjectCompiler : public Compiler {
public:
    explicit ProjectCompiler(CompilerServices services) : services_(std::move(services)) {}

    void SetOutputPath(const std::string& path) override { input_.outputPath = path; }
    void AddBuildFile(const std::string& path, int kind) override { input_.files.push_back({path, kind}); }
    /// Reads and parses every source file, reports what is wrong with them, and writes the image as a whole or not
    /// at all. False when there was an error. What a handler of its events lets out ends the build, with no image.
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

    bool compile();
    void compileSources(image::Image& image, SymbolTable& symbols);
    void compileSource(const std::string& path, image::Image& image, SymbolTable& symbols);
    void checkNames(const image::Image& image);
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
