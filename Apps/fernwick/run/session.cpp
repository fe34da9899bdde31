#include "Apps/fernwick/run/session.h"
#include "Add-in/lifecycle/frmDesignTargetNormal.h"
#include "Add-in/project/stored/project_format.h"
#include "Add-in/project/stored/project_store.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/file_errors.h"
#include "Apps/fernwick/output/plural.h"
#include "Host/files/path_lookup.h"
#include "Host/model/project.h"
#include <fmt/format.h>
#include <unordered_set>

namespace cli {

Session::Session(const Options& options, Console& console)
    : options_(options),
      console_(console),
      user_(console, options.answers, {}),
      trust_(options, console),
      machine_(console, user_,
               [this](const std::string& commandLine, const std::string& folder) {
                   return trust_.mayRun(commandLine, folder);
               }),
      controls_(machine_.installation()),
      connections_(machine_.platform()) {
    auto& context = user_.context();
    context.device = options.device;
    context.hostHasUnsaved = [this] { return hasUnsavedComponents(); };
    context.deviceRow = [this](const std::string& key) { return deviceRow(key); };
    if (machine_.installation().empty())
        console.err("fernwick: no installation was found beside the program or through RootDir; there are no design "
                    "targets and controls",
                    Tone::Warning);
    auto hostOptions = apps::hostOptionsOf(machine_, controls_);
    hostOptions.handlerFailed = [&console](const basic::ErrObject& error) {
        console.err(fmt::format("fernwick: {} (error {})", error.Description, error.Number), Tone::Warning);
    };
    host_ = host::Host::create(std::move(hostOptions));
    host_->listAddIn(apps::kAddInProgId, apps::kAddInName, [this] { return connections_.create(); });
}

Session::~Session() {
    // after an interruption nothing is saved; the host must release the add-in first
    (void)basic::attempt([this] { closeUnsaved(); });
}

void Session::open(const std::string& path) {
    path_ = machine_.platform().files.GetAbsolutePathName(path);
    if (machine_.platform().files.FolderExists(path_))
        throw Refusal(kWrongUse, fmt::format("{}: is a folder; name the project file in it", path));
    const auto err = basic::attempt([&] { project_ = host_->VBProjects()->AddFromFile(path_); });
    if (err.Number != 0) throw Refusal(statusOfOpening(err.Number), withFile(path_, err.Description));
    printProblems();
}

void Session::printProblems() {
    for (const auto& problem : host_->loadProblems()) {
        const auto place = problem.line > 0 ? fmt::format("{}:{}", problem.file, problem.line) : problem.file;
        const auto prefix = problem.file + ": ";
        const auto text = problem.text.starts_with(prefix) ? problem.text.substr(prefix.size()) : problem.text;
        console_.err(fmt::format("{}: warning: {}", place, text), Tone::Warning);
    }
}

void Session::requireAllMembers() {
    const auto own = basic::cast<host::Project>(project_);
    if (!own) return;
    std::unordered_set<std::string> loaded;
    for (const auto& component : project_->VBComponents()->items()) loaded.insert(component->FileNames(1));
    host::PathLookup lookup;
    std::size_t unusable = 0;
    for (const auto& member : own->file().members()) {
        if (!host::isComponentKind(member.content.kind)) continue;
        if (loaded.count(lookup.find(own->folder(), member.content.value)) == 0) ++unusable;
    }
    if (unusable > 0)
        throw Refusal(kProjectErrors, fmt::format("{}: {} of the project cannot be used; see above", path_,
                                                  plural(unusable, "source file")));
}

void Session::requireFernwickProject() {
    const auto read = [this](const char* key) {
        std::string value;
        (void)basic::attempt([&] { value = project_->ReadProperty(fernwick::kGlobalSection, key); });
        return value;
    };
    if (!basic::equalNoCase(read("IsQuinloftProject"), "True"))
        throw Refusal(
            kProjectErrors,
            fmt::format("{}: not a Fernwick project: its section [Quinloft Global] has no line "
                        "IsQuinloftProject=True. Create one from the template \"Fernwick Project\", or add that "
                        "section with ProjectVersion=3.5.",
                        path_));
    const auto version = read("ProjectVersion");
    if (version.empty() || version == fernwick::kOldProjectFormat)
        throw Refusal(kProjectErrors,
                      fmt::format("{}: created by a version of Fernwick before 3.5 (version 1.0) and must be converted "
                                  "first. Nothing was written.",
                                  path_));
}

void Session::takeUp() {
    addIn().addIn.gVBInstance = host_;
    settings_ = addIn().projects.AddToProjectsList(project_);
}

void Session::forget() {
    settings_ = nullptr;
    addIn().projects.RemoveFromProjectsList(project_);
}

void Session::connect() {
    host_->connectAddIn(apps::kAddInProgId, vbide::vbext_cm_CommandLine);
    host_->startupComplete();
    connected_ = true;
    machine_.drain();
    if (isOpen()) settings_ = addIn().projects.GetQLProject(project_);
}

bool Session::isOpen() const {
    const auto open = host_->VBProjects()->items();
    return std::any_of(open.begin(), open.end(), [this](const auto& project) { return project == project_; });
}

bool Session::closeAndSave() {
    // a connected add-in saves files and window state when the project is removed
    if (!connected_ && isOpen() && !project_->Saved()) settings_->SaveFiles();
    bool saved = true;
    const auto closing = host_->Events()->VBProjectsEvents()->ItemRemoved.connect([&](const auto& project) {
        if (project == project_) saved = project->Saved();
    });
    close();
    return saved;
}

void Session::closeUnsaved() {
    if (!host_) return;
    for (const auto& project : host_->VBProjects()->items()) project->IsDirty(false);
    close();
}

void Session::close() {
    settings_ = nullptr;
    const auto host = std::exchange(host_, nullptr);
    host->close();
    machine_.drain();
}

bool Session::hasUnsavedComponents() const {
    const auto components = project_->VBComponents()->items();
    return std::any_of(components.begin(), components.end(),
                       [](const auto& component) { return component->IsDirty(); });
}

int Session::deviceRow(const std::string& key) {
    const auto& shown = addIn().chooseTarget.targetKeys();
    for (std::size_t row = 0; row < shown.size(); ++row)
        if (shown[row] == key) return int(row);
    return -1;
}

} // namespace cli
