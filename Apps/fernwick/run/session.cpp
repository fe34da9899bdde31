#include "Apps/fernwick/run/session.h"
#include "Add-in/devices/clsDeviceConfig.h"
#include "Add-in/lifecycle/frmDesignTargetNormal.h"
#include "Add-in/project/stored/project_format.h"
#include "Add-in/project/stored/project_store.h"
#include "Apps/common/file_names.h"
#include "Apps/common/open_projects.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/code_page_note.h"
#include "Apps/fernwick/output/file_errors.h"
#include "Apps/fernwick/output/plural.h"
#include "Apps/fernwick/run/step_processes.h"
#include "Host/files/path_lookup.h"
#include "Host/model/code/component_kind.h"
#include "Host/model/project.h"
#include <fmt/format.h>
#include <unordered_set>

namespace cli {

Session::Session(const Options& options, Console& console)
    : options_(options),
      console_(console),
      user_(console, options.answers, {}),
      trust_(options, console),
      files_(new OutputFiles),
      machine_(console, user_, std::make_unique<StepProcesses>(options, trust_, console),
               std::unique_ptr<host::FileSystem>(files_)),
      controls_(machine_.installation()),
      connections_(machine_.platform()) {
    auto& context = user_.context();
    context.device = options.device;
    context.hostHasUnsaved = [this] { return hasUnsavedComponents(); };
    context.storesMessages = stores();
    answerDeviceList(context);
    if (machine_.installation().empty())
        console.err("fernwick: no installation was found beside the program or through RootDir; there are no design "
                    "targets and controls",
                    Tone::Warning);
    auto hostOptions = apps::hostOptionsOf(machine_, controls_);
    hostOptions.codePage = options.codePage;
    hostOptions.writesFiles = stores();
    if (!stores()) files_->storeNothing();
    hostOptions.handlerFailed = [&console](const basic::ErrObject& error) {
        console.err(fmt::format("fernwick: {} (error {})", error.Description, error.Number), Tone::Warning);
    };
    host_ = host::Host::create(std::move(hostOptions));
    apps::compileOpenProjects(machine_, host_);
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
    if (apps::hasExtension(path_, ".vbg"))
        throw Refusal(kWrongUse, fmt::format("{}: is a project group; name one of its projects", path));
    if (host::memberKindOfFile(path_))
        throw Refusal(kWrongUse, fmt::format("{}: is a source file; name the project that contains it", path));
    if (!options_.output.empty()) {
        if (!options_.dryRun) createOutputFolder(options_.output);
        files_->redirect(files_->GetParentFolderName(path_), options_.output);
    }
    const auto err = basic::attempt([&] { project_ = host_->VBProjects()->AddFromFile(path_); });
    if (err.Number != 0) throw Refusal(statusOfOpening(err.Number), withFile(path_, err.Description));
    printProblems();
    for (const auto& project : host_->VBProjects()->items())
        if (const auto own = basic::cast<host::Project>(project))
            reportCodePage(console_, own->FileName(), own->codePage());
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
    host::PathLookup lookup(own->codePage().page);
    std::size_t unusable = 0;
    for (const auto& member : own->file().members()) {
        if (!host::isComponentKind(member.content.kind)) continue;
        if (loaded.count(lookup.find(own->folder(), member.content.value)) == 0) ++unusable;
    }
    if (unusable > 0)
        throw Refusal(kProjectErrors, fmt::format("{}: {} of the project cannot be used; see above", path_,
                                                  plural(unusable, "source file")));
}

void Session::lock(const std::string& path) {
    const auto place = options_.output.empty() ? path : files_->BuildPath(options_.output, files_->GetFileName(path));
    lock_.emplace(place, !options_.noWait, console_);
}

void Session::requireWritableProject() {
    if (files_->GetAttributes(path_) & fernwick::ReadOnlyAttribute)
        throw Refusal(kMachineTrouble, path_ + ": the project file is read-only");
}

void Session::requireStorableResults() {
    if (stores() && files_->GetAttributes(path_) & fernwick::ReadOnlyAttribute)
        throw Refusal(kMachineTrouble, path_ + ": the project file is read-only, so the results of a build cannot be "
                                               "stored in it; use --output DIR or --no-store");
    if (options_.output.empty() && (makesImage(options_) || stores()))
        requireWritableFolder(files_->GetParentFolderName(path_));
    if (!stores()) return;
    for (const auto& component : project_->VBComponents()->items())
        if (component->FileNames(1).find('|') != std::string::npos)
            throw Refusal(kProjectErrors,
                          fmt::format("{}: stored messages cannot hold a path with \"|\"; rename the file or folder",
                                      component->FileNames(1)));
}

void Session::requireFernwickProject() {
    const auto read = [this](const char* key) {
        std::string value;
        (void)basic::attempt([&] { value = project_->ReadProperty(fernwick::kGlobalSection, key); });
        return value;
    };
    if (!basic::equalNoCase(read("IsQuinloftProject"), "True"))
        throw Refusal(kProjectErrors,
                      fmt::format("{}: not a Fernwick project: its section [Quinloft Global] has no line "
                                  "IsQuinloftProject=True. Make it one with fernwick init.",
                                  path_));
    const auto version = read("ProjectVersion");
    if (version.empty() || version == fernwick::kOldProjectFormat)
        throw Refusal(kProjectErrors,
                      fmt::format("{}: created by a version of Fernwick before 3.5 (version 1.0); bring it over with "
                                  "fernwick upgrade. Nothing was written.",
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

void Session::connectAddIn() {
    host_->connectAddIn(apps::kAddInProgId, vbide::vbext_cm_CommandLine);
    host_->startupComplete();
    connected_ = true;
}

void Session::addFromTemplate(const std::string& path) {
    connectAddIn();
    (void)host_->VBProjects()->AddFromTemplate(path);
    machine_.drain(); // the add-in replaces and removes projects by timers
    project_ = host_->ActiveVBProject();
    settings_ = project_ ? addIn().projects.FindQLProject(project_) : nullptr;
}

void Session::connect() {
    connectAddIn();
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

void Session::answerDeviceList(UserContext& context) {
    context.deviceRows = [this] {
        std::vector<KeyedRow> rows;
        auto& devices = addIn().devices;
        for (const auto& key : addIn().chooseTarget.targetKeys())
            rows.push_back({key, devices.StripAcceleratorInfo(devices.GetDeviceName(key))});
        return rows;
    };
    context.isDevice = [this](const std::string& key) { return addIn().devices.IsValidDevice(key); };
    context.assignDevice = [this](const std::string& key) { assignDevice(key); };
}

void Session::assignDevice(const std::string& key) {
    fernwick::clsDeviceConfig device{addIn().deviceServices};
    device.ReadDeviceConfig(key);
    const auto project = addIn().projects.GetQLProject(addIn().projects.gCurrentProject);
    project->SetProjectForDeviceConfig(device);
}

} // namespace cli
