#include "Apps/workbench/window/workbench.h"
#include "Add-in/core/error_source.h"
#include "Add-in/core/trusted_folders.h"
#include "Add-in/lifecycle/project_importer.h"
#include "Apps/common/compile_steps.h"
#include "Apps/common/open_projects.h"
#include "Apps/workbench/assist/editor_assist.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/messages/messages_view.h"
#include "Apps/workbench/options/options_dialog.h"
#include "Apps/workbench/project/new_project.h"
#include "Apps/workbench/project/project_reopening.h"
#include "Apps/workbench/project/project_saving.h"
#include "Apps/workbench/window/command_keys.h"
#include "Apps/workbench/window/context_menus.h"
#include "Apps/workbench/window/menus.h"
#include "Apps/workbench/window/page_window.h"
#include "Apps/workbench/window/project_converting.h"
#include "Host/model/projects.h"
#include <QStatusBar>

namespace workbench {

Workbench::Workbench()
    : machine_({user_, loop_, clipboard_,
                std::make_unique<host::Processes>([this](const std::string& commandLine, const std::string& folder) {
                    return mayRunSteps(commandLine, folder);
                }),
                [this](const std::string& document) { showWithoutBrowser(qt(document), window_.get()); },
                std::make_unique<host::FileSystem>(), [this] { openingCheck_.start(); }, &windows_}),
      connections_(machine_.platform()),
      host_(host::Host::create(hostOptions())) {
    apps::compileOpenProjects(machine_, host_);
    host_->listAddIn(apps::kAddInProgId, apps::kAddInName, [this] { return connections_.create(); });
    host_->listAddIn(apps::kImporterProgId, apps::kImporterName, [this] {
        return basic::make<fernwick::ProjectImporter>(machine_.platform(),
                                                      [this](const auto& backup) { showBackup(backup); });
    });
    buildWindow();
    problemsSoon_.setSingleShot(true);
    problemsSoon_.setInterval(0);
    QObject::connect(&problemsSoon_, &QTimer::timeout, [this] { showProblems(host_->loadProblems(), window_.get()); });
    projectAdded_ =
        host_->Events()->VBProjectsEvents()->ItemAdded.connect([this](const auto&) { problemsSoon_.start(); });
    constexpr int kMillisecondsBetweenChecks = 200;
    openingCheck_.setInterval(kMillisecondsBetweenChecks);
    QObject::connect(&openingCheck_, &QTimer::timeout, [this] {
        if (!machine_.shell().checkOpened()) openingCheck_.stop();
    });
    window_->restoreLayout();
}

void Workbench::buildWindow() {
    const Run runHere = [this](const auto& act) { run(act); };
    window_ = std::make_unique<MainWindow>(*host_, windows_, runHere, [this] { return mayClose(); });
    windows_.attach(*window_, window_->design().forms());
    user_.mainWindow = window_.get();
    addMenus({*host_, *window_, programActions()});
    addExplorerMenu(*host_, window_->explorer(), runHere);
    addEditorMenu(*host_, window_->code(), runHere);
    addDesignerMenu(*host_, window_->design(), *window_, runHere);
    insight_ = std::make_unique<ProjectInsight>(*host_, machine_.installation());
    assistEditors(window_->code(), *insight_,
                  [this](const QString& error) { window_->statusBar()->showMessage(error); });
    names_ = std::make_unique<NameCommands>(*insight_, window_->code(), window_->results(),
                                            [this] { window_->showResults(); });
    recent_ = std::make_unique<RecentProjects>(*host_, recentMenu(*host_), [this](const auto& path) { open(path); });
    unsaved_ = std::make_unique<UnsavedWork>(*host_, *window_, unsavedCallbacks());
    watchForms();
}

void Workbench::watchForms() {
    transfers_ = std::make_unique<TransferNotice>(machine_, connections_, window_->notice(),
                                                  [this](const auto& act) { run(act); });
    user_.closed = [this](const fernwick::Form& form) {
        window_->docks().drawMessagesSoon();
        transfers_->formClosed(form);
        formClosed(form);
    };
    window_->docks().isStatusCurrent = [this] {
        return user_.isShowingForm() || addIn().messages.status() != fernwick::RunStatus::Running;
    };
}

Workbench::~Workbench() {
    (void)basic::attempt([this] { host_->close(); });
    recent_.reset();
    unsaved_.reset();
    names_.reset();
    windows_.detach();
    window_.reset();
    insight_.reset();
}

host::HostOptions Workbench::hostOptions() {
    auto options = apps::hostOptionsOf(machine_, controls_);
    options.handlerFailed = [this](const basic::ErrObject& error) {
        showHandlerError(error, fernwick::errorSource(error.Source, machine_.platform().app), window_.get());
    };
    options.mayReplaceChanged = mayReplaceChanged;
    options.mayReplaceProjects = [this] { return mayClose(); };
    options.askForProject = [this] { return askForProjectFile(window_.get()); };
    return options;
}

ProgramActions Workbench::programActions() {
    ProgramActions actions;
    actions.newProject = [this] { newProject(); };
    actions.saveProject = [this] {
        if (const auto active = host_->ActiveVBProject()) saveWithNames(*host_, active, window_.get());
    };
    actions.removeProject = [this] {
        const auto active = host_->ActiveVBProject();
        if (active && mayBeClosed(*host_, {active}, window_.get())) host_->VBProjects()->Remove(active);
    };
    actions.start = [this] { startActive(); };
    actions.convert = [this] { convertActive(); };
    actions.options = [this] { editOptions(); };
    actions.findReferences = [this] { names_->findReferences(); };
    actions.rename = [this] { names_->rename(window_.get()); };
    actions.help = [this] { addIn().help.DisplayHelp(fernwick::kUsersGuideTopic); };
    actions.about = [this] { showAbout(window_.get()); };
    return actions;
}

UnsavedWork::Callbacks Workbench::unsavedCallbacks() {
    return {[this](const auto& path) { open(path); },
            [this](const auto& project) { reopenProject(*host_, window_->code(), project); },
            [this] {
                window_->code().refreshSoon();
                window_->explorer().refreshSoon();
            }};
}

void Workbench::editOptions() {
    auto keys = keyOptions(*host_);
    for (auto& key : MessagesView::walkKeys()) keys.push_back(std::move(key));
    OptionsDialog(
        std::move(keys), [this] { window_->optionsChanged(); }, window_.get())
        .exec();
}

void Workbench::newProject() {
    const auto kind = askForProjectKind(host_->TemplatePath(), window_.get());
    if (!kind) return;
    if (kind->path.empty())
        host_->projects().addNew();
    else
        host_->VBProjects()->AddFromTemplate(kind->path);
}

void Workbench::open(const std::string& path) {
    run([&] { host_->VBProjects()->AddFromFile(path); });
}

void Workbench::begin(const std::vector<std::string>& projects) {
    connect();
    for (const auto& project : projects) open(project);
}

void Workbench::connect() {
    run([this] {
        host_->connectAddIn(apps::kAddInProgId, vbide::vbext_cm_Startup);
        host_->startupComplete();
    });
    unsaved_->started();
}

void Workbench::run(const std::function<void()>& act) {
    try {
        act();
    } catch (...) { showError(std::current_exception(), window_.get()); }
}

/// A box says why there is none.
vbide::Ref<fernwick::clsQLProject> Workbench::activeFernwickProject() {
    const auto active = host_->ActiveVBProject();
    if (!active) return nullptr;
    if (!isConnected()) return showNotConnected(window_.get()), nullptr;
    const auto project = addIn().projects.FindQLProject(active);
    if (!project) return showOpenedTooEarly(active->Name(), window_.get()), nullptr;
    if (!project->IsQuinloftProject()) return showNoFernwickProject(active->Name(), window_.get()), nullptr;
    return project;
}

void Workbench::startActive() {
    const auto project = activeFernwickProject();
    if (project && compiled(project->VBProject()))
        addIn().sendToDevice.SendProjectToDevice(project, false, project->TargetDevice());
}

void Workbench::convertActive() {
    if (const auto project = activeFernwickProject()) convertProject(*host_, addIn(), project->VBProject());
}

void Workbench::formClosed(const fernwick::Form& form) {
    const auto& converter = addIn().converter;
    if (&form == &converter && !converter.backup().empty()) showBackup(converter.backup());
}

/// After a conversion in place.
void Workbench::showBackup(const std::string& backup) {
    window_->statusBar()->showMessage(QString("The old project file is %1").arg(qt(backup)));
}

bool Workbench::isConnected() const { return host_->Addins()->Item(apps::kAddInProgId)->Connect(); }

/// Shows the messages if the project does not compile.
bool Workbench::compiled(const vbide::Ref<vbide::VBProject>& project) {
    const bool good = addIn().compile.CompileProject(project) &&
                      addIn().validate.ValidateProject(project, addIn().projects.GetQLProject(project)->TargetDevice());
    if (!good) addIn().messages.ShowProjectCompileErrors(project, true);
    return good;
}

bool Workbench::mayRunSteps(const std::string& commandLine, const std::string& folder) {
    fernwick::TrustedFolders trusted(machine_.registry());
    if (trusted.holds(folder)) return true;
    QStringList steps{qt(commandLine)};
    if (const auto project = addIn().projects.GetQLProject(host_->ActiveVBProject())) {
        steps.clear();
        for (const auto& step : apps::allSteps(*project)) steps << qt(step);
    }
    if (!askToTrust(folder, steps)) return false;
    trusted.add(folder);
    return true;
}

bool Workbench::mayClose() { return mayBeClosed(*host_, host_->VBProjects()->items(), window_.get()); }

} // namespace workbench
