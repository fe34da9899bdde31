#include "Components/QLToolkit/compiler.h"
#include "Basic/case_folding.h"
#include "Basic/tables/code_page_names.h"
#include "Basic/text_search.h"
#include "Components/QLToolkit/module_image.h"
#include "Components/QLToolkit/parser/parse_all.h"
#include "Components/QLToolkit/source/res_file.h"
#include <algorithm>
#include <set>
#include <thread>

namespace qltoolkit {

namespace {

unsigned threads() { return std::max(1U, std::thread::hardware_concurrency()); }

/// The share of the sources in the progress; the rest is for writing the image.
constexpr std::size_t kPercentOfSources = 90;

constexpr const char* kSubMain = "Sub Main";

ConditionalConstants conditionalConstants(const std::vector<std::pair<std::string, std::int32_t>>& given) {
    ConditionalConstants constants;
    for (const auto& [name, value] : given) constants.emplace_back(name, value);
    return constants;
}

/// Returns the text of a string literal, or nothing for any other literal.
std::optional<std::string> stringLiteral(const std::string& literal) {
    if (literal.size() < 2 || literal.front() != '"' || literal.back() != '"') return std::nullopt;
    return basic::Replace(literal.substr(1, literal.size() - 2), "\"\"", "\"");
}

bool usesLibrary(const image::Control& control, const std::string& prefix) {
    if (basic::startsWithNoCase(control.className, prefix)) return true;
    return std::any_of(control.children.begin(), control.children.end(),
                       [&](const image::Control& child) { return usesLibrary(child, prefix); });
}

} // namespace

bool ProjectCompiler::Build() {
    *services_.record = {};
    errors_ = 0;
    BuildStarted.raise();
    const bool good = compile();
    BuildFinished.raise(good);
    return good;
}

bool ProjectCompiler::compile() {
    image::Image image;
    image.compilerVersion = kCompilerVersion;
    image.projectName = services_.files.GetFileName(input_.outputPath);
    image.startup = input_.startup;
    image.info.assign(input_.info.begin(), input_.info.end());
    image.constants.assign(input_.constants.begin(), input_.constants.end());

    SymbolTable symbols;
    auto sources = parseSources(symbols);
    const auto libraries = findLibraries();
    for (const auto& library : libraries) image.libraries.push_back(services_.files.GetFileName(library.path));
    auto program = checkNames(sources, symbols, libraries);
    if (program.code) image.code = std::move(*program.code);
    for (std::size_t i = 0; i < sources.size(); ++i)
        if (isRight(sources[i].parsed)) addModule(image, sources[i], std::move(program.forms[i]), symbols);
    checkModules(image);
    if (errors_ > 0) return false;

    reportDependencies(image, libraries);
    if (!writeImage(image)) return false;
    BuildStatus.raise("100% completed");
    return true;
}

std::vector<ProjectCompiler::Source> ProjectCompiler::parseSources(SymbolTable& symbols) {
    std::vector<std::string> paths;
    for (const auto& file : input_.files)
        if (file.kind == SourceFile) paths.push_back(file.path);
    std::vector<Source> sources;
    std::vector<const SourceText*> texts;
    for (const auto& path : paths) {
        sources.push_back(readSource(path));
        if (sources.back().text) texts.push_back(sources.back().text.get());
    }
    auto parsed = parseModules(texts, symbols, conditionalConstants(input_.constants), threads());
    auto next = parsed.begin();
    for (std::size_t i = 0; i < paths.size(); ++i) {
        BuildStatus.raise("Compiling " + services_.files.GetFileName(paths[i]));
        if (sources[i].text) sources[i].parsed = std::move(*next++);
        for (const auto& diagnostic : sources[i].parsed.diagnostics) report(diagnostic);
        BuildStatus.raise(std::to_string((i + 1) * kPercentOfSources / paths.size()) + "% completed");
    }
    return sources;
}

template <class Read>
std::optional<Diagnostic> ProjectCompiler::problemOfReading(const std::string& path, const Read& read) {
    const auto err = basic::attempt(read);
    if (err.Number == 0) {
        services_.record->inputs.push_back(path);
        return std::nullopt;
    }
    const auto message = err.Number == basic::kFileNotFound ? Message::FileMissing : Message::FileUnreadable;
    return fileDiagnostic(message, path, err.Description);
}

/// Without a text, but with a message, if the file cannot be read.
ProjectCompiler::Source ProjectCompiler::readSource(const std::string& path) {
    std::string bytes;
    if (auto problem = problemOfReading(path, [&] { bytes = services_.files.ReadBytes(path); }))
        return {nullptr, {nullptr, {std::move(*problem)}, 1}};
    const auto page = services_.codePageOf ? services_.codePageOf(path) : basic::CodePage::windows1252();
    Source source{std::make_unique<SourceText>(path, std::move(bytes), page), {}};
    services_.record->lines += source.text->lineCount();
    return source;
}

std::vector<image::Resource> ProjectCompiler::resources() {
    std::vector<image::Resource> found;
    const auto path = services_.resourceFileOf ? services_.resourceFileOf(input_.outputPath) : "";
    if (path.empty()) return found;
    if (const auto problem = problemOfReading(path, [&] { found = readResources(services_.files.ReadBytes(path)); }))
        report(*problem);
    return found;
}

void ProjectCompiler::addModule(image::Image& image, const Source& source, std::optional<image::Control> form,
                                const SymbolTable& symbols) {
    image.modules.push_back(imageOf(*source.parsed.module, symbols));
    if (form && source.text->kind() == FileKind::Form) image.forms.push_back(std::move(*form));
}

bool ProjectCompiler::makesCode(const std::vector<Source>& sources) {
    return std::all_of(sources.begin(), sources.end(), [](const Source& source) {
        return source.text && (source.text->kind() == FileKind::Module || source.text->kind() == FileKind::Class);
    });
}

/// A source in UTF-8 doesn't show which page the program means by Chr and Asc.
std::uint32_t ProjectCompiler::codePageOf(const std::vector<Source>& sources) {
    const auto found = std::find_if(sources.begin(), sources.end(), [](const Source& source) {
        return source.text && source.text->codePage().number() != basic::kUtf8Page;
    });
    return static_cast<std::uint32_t>(
        (found == sources.end() ? basic::CodePage::windows1252() : found->text->codePage()).number());
}

ProgramOptions ProjectCompiler::optionsWith(const std::vector<Library>& libraries) const {
    ProgramOptions options;
    options.projectName = services_.files.GetFileName(input_.outputPath);
    for (const auto& library : libraries)
        if (const auto* described = services_.libraryOf ? services_.libraryOf(library.guid) : nullptr)
            options.libraries.push_back(described);
    const auto named = std::count_if(input_.files.begin(), input_.files.end(),
                                     [](const BuildFile& file) { return file.kind != SourceFile; });
    options.isIncomplete = options.libraries.size() < static_cast<std::size_t>(named);
    options.warnsOfDevices = true;
    options.threads = threads();
    return options;
}

ParsedProgram ProjectCompiler::checkNames(const std::vector<Source>& sources, SymbolTable& symbols,
                                          const std::vector<Library>& libraries) {
    std::vector<ParsedSource> parsed;
    for (const auto& source : sources) parsed.push_back({source.text.get(), &source.parsed});
    const ImageParts parts{input_.startup == kSubMain ? "Main" : "", codePageOf(sources), resources()};
    auto program = compileParsed(parsed, symbols, optionsWith(libraries), makesCode(sources) ? &parts : nullptr);
    for (const auto& messages : program.messages)
        for (const auto& diagnostic : messages) report(diagnostic);
    return program;
}

void ProjectCompiler::checkModules(const image::Image& image) {
    std::set<std::string> names;
    bool startFound = input_.startup.empty();
    const bool startsWithMain = input_.startup == kSubMain;
    for (const auto& module : image.modules) {
        if (!names.insert(basic::foldCase(module.name)).second)
            report(fileDiagnostic(Message::ModuleNameTwice, module.file, module.name));
        if (basic::equalNoCase(module.name, input_.startup)) startFound = true;
        if (startsWithMain && module.kind == image::ModuleKind::Module)
            for (const auto& member : module.members)
                if (member.kind == image::MemberKind::Sub && basic::equalNoCase(member.name, "Main")) startFound = true;
    }
    if (!startFound && errors_ == 0) report(fileDiagnostic(Message::StartupMissing, "", input_.startup));
}

std::vector<ProjectCompiler::Library> ProjectCompiler::findLibraries() {
    std::vector<Library> libraries;
    for (const auto& file : input_.files) {
        if (file.kind == SourceFile) continue;
        if (auto library = findLibrary(file))
            libraries.push_back(std::move(*library));
        else
            report(fileDiagnostic(Message::LibraryMissing, "", services_.files.GetFileName(file.path)));
    }
    return libraries;
}

std::optional<ProjectCompiler::Library> ProjectCompiler::findLibrary(const BuildFile& file) {
    const auto& files = services_.files;
    const std::string folder = files.GetParentFolderName(file.path);
    const std::string stem = files.BuildPath(folder, files.GetBaseName(file.path));
    // The project has the library's path on its author's machine; the extension may differ here.
    for (const auto& path : {file.path, stem + ".dll", stem + ".ocx", stem + ".tlb"}) {
        const auto info = services_.classes.TypeLibInfoFromFile(path);
        if (info) return Library{path, info->Name, info->Guid, file.kind};
    }
    return std::nullopt;
}

void ProjectCompiler::reportDependencies(const image::Image& image, const std::vector<Library>& libraries) {
    for (const auto& library : libraries) {
        // Constants of a referenced library need no qualifier, so it counts as used. A library of controls is used
        // only if a form has one of its controls.
        const bool inUse = library.kind == ReferencedLibrary ||
                           std::any_of(image.forms.begin(), image.forms.end(), [&](const image::Control& form) {
                               return usesLibrary(form, library.name + "Ctl.");
                           });
        if (inUse) AddDependency.raise(library.guid, ComponentDependency);
    }
    const std::string folder = services_.files.GetParentFolderName(input_.outputPath);
    for (const auto& form : image.forms) reportFilesOf(form, folder);
}

void ProjectCompiler::reportFilesOf(const image::Control& control, const std::string& folder) {
    const auto& files = services_.files;
    for (const auto& property : control.properties) {
        const auto name = stringLiteral(property.value);
        if (!name || name->empty() || files.IsAbsolute(*name) || files.GetExtensionName(*name).empty()) continue;
        if (files.FileExists(files.BuildPath(folder, *name))) AddDependency.raise(*name, FileDependency);
    }
    for (const auto& child : control.children) reportFilesOf(child, folder);
}

void ProjectCompiler::report(const Diagnostic& diagnostic) {
    services_.record->diagnostics.push_back(diagnostic);
    const bool isError = diagnostic.severity == Severity::Error;
    if (isError) ++errors_;
    const auto& event = isError ? BuildError : BuildWarning;
    event.raise(diagnostic.text, diagnostic.file, std::int32_t(diagnostic.line), diagnostic.number);
}

bool ProjectCompiler::writeImage(const image::Image& image) {
    const std::string path = input_.outputPath + kImageSuffix;
    std::string bytes;
    auto err = basic::attempt([&] { bytes = image::encode(image); });
    BuildStatus.raise("95% completed"); // a host that stops the build here finds no file changed
    if (err.Number == 0) err = basic::attempt([&] { services_.files.WriteBytes(path, bytes); });
    if (err.Number != 0) {
        report(fileDiagnostic(Message::ImageNotWritten, path, err.Description));
        return false;
    }
    services_.record->image = path;
    return true;
}

} // namespace qltoolkit
