#include "Apps/fernwick/session.h"
#include "Add-in/lifecycle/frmDesignTargetNormal.h"
#include "Apps/fernwick/exit_status.h"
#include <fmt/format.h>

namespace cli {

namespace {
constexpr const char* kProgId = "QLVBAddIn.Connect";

} // namespace

int statusOfOpening(int number) {
    switch (number) {
    case basic::kFileNotFound:
    case basic::kPathNotFound: return kWrongUse;
    case basic::kPermissionDenied:
    case basic::kPathFileAccessError:
    case basic::kDeviceIOError: return kMachineTrouble;
    default: return kProjectErrors;
    }
}

Session::Session(const Options& options, Console& console)
    : options_(options),
      console_(console),
      user_(console, options.answers, {}),
      trust_(options, console),
      machine_(console, user_,
               [this](const std::string& commandLine, const std::string& folder) {
                   return trust_.mayRun(commandLine, folder);
               }),
      modules_(std::make_shared<fernwick::Modules>(machine_.platform())) {
    auto& context = user_.context();
    context.device = options.device;
    context.hostHasUnsaved = [this] { return hasUnsavedComponents(); };
    context.deviceRow = [this](const std::string& key) { return deviceRow(key); };
    if (machine_.installation().empty())
        console.err("fernwick: no installation was found beside the program or through RootDir; design targets and "
                    "controls are missing",
                    Tone::Warning);
    host::HostOptions hostOptions;
    hostOptions.templatePath = machine_.installation().empty() ? "" : machine_.installation() + "/Template";
    hostOptions.registry = &machine_.registry();
    hostOptions.classes = &machine_.classes();
    hostOptions.handlerFailed = [&console](const basic::ErrObject& error) {
        console.err(fmt::format("fernwick: {} (error {})", error.Description, error.Number), Tone::Warning);
    };
    host_ = host::Host::create(std::move(hostOptions));
    // weak, for the add-in keeps the host from its connection on
    host_->listAddIn(kProgId, "Fernwick",
                     [modules = std::weak_ptr(modules_)] { return fernwick::asAddIn(modules.lock()); });
}

Session::~Session() {
    // an interrupted run: nothing is saved, and the host lets go before the add-in does
    (void)basic::attempt([this] { closeUnsaved(); });
}

void Session::open(const std::string& path) {
    path_ = machine_.platform().files.GetAbsolutePathName(path);
    const auto err = basic::attempt([&] { project_ = host_->VBProjects()->AddFromFile(path_); });
    if (err.Number != 0) throw Refusal(statusOfOpening(err.Number), fmt::format("{}: {}", path, err.Description));
    tellProblems();
}

void Session::tellProblems() {
    for (const auto& problem : host_->loadProblems())
        console_.err(problem.line > 0 ? fmt::format("{}:{}: warning: {}", problem.file, problem.line, problem.text)
                                      : fmt::format("{}: warning: {}", problem.file, problem.text),
                     Tone::Warning);
}

void Session::requireFernwickProject() {
    const auto read = [this](const char* key) {
        std::string value;
        (void)basic::attempt([&] { value = project_->ReadProperty("Quinloft Global", key); });
        return value;
    };
    if (!basic::equalNoCase(read("IsQuinloftProject"), "True"))
        throw Refusal(
            kProjectErrors,
            fmt::format("{}: not a Fernwick project: its section [Quinloft Global] has no line "
                        "IsQuinloftProject=True. Make one from the template \"Fernwick Project\", or add that "
                        "section with ProjectVersion=3.5.",
                        path_));
    const auto version = read("ProjectVersion");
    if (version.empty() || version == "1.0")
        throw Refusal(kProjectErrors,
                      fmt::format("{}: made by a Fernwick before 3.5 (version 1.0); it must be converted before it can "
                                  "be used. Nothing was written.",
                                  path_));
}

void Session::takeUp() {
    modules_->addIn.gVBInstance = host_;
    settings_ = modules_->projects.AddToProjectsList(project_);
}

void Session::forget() {
    settings_ = nullptr;
    modules_->projects.RemoveFromProjectsList(project_);
}

void Session::connect() {
    host_->connectAddIn(kProgId, vbide::vbext_cm_CommandLine);
    host_->startupComplete();
    machine_.drain();
    if (isOpen()) settings_ = modules_->projects.GetQLProject(project_);
}

bool Session::isOpen() const {
    const auto open = host_->VBProjects()->items();
    return std::any_of(open.begin(), open.end(), [this](const auto& project) { return project == project_; });
}

bool Session::closeAndSave() {
    if (isOpen() && settings_ && settings_->IsQuinloftProject() && settings_->ProjectVersion() != "1.0") {
        if (modules_->devices.IsValidDevice(settings_->TargetDevice()) && !project_->Saved())
            modules_->messages.SaveCompileErrorWindowState(project_);
        if (!project_->Saved()) settings_->SaveFiles();
    }
    const bool saved = !isOpen() || project_->Saved();
    closeUnsaved();
    return saved;
}

void Session::closeUnsaved() {
    if (!host_) return;
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
    const auto& shown = modules_->chooseTarget.targetKeys();
    for (std::size_t row = 0; row < shown.size(); ++row)
        if (shown[row] == key) return int(row);
    return -1;
}

} // namespace cli
