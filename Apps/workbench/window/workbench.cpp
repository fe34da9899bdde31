#include "Apps/workbench/window/workbench.h"
#include "Apps/common/compile_steps.h"
#include "Apps/common/trusted_folders.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/project/explorer_menu.h"
#include "Apps/workbench/project/new_project.h"
#include "Apps/workbench/project/project_saving.h"
#include "Apps/workbench/window/window_commands.h"
#include "Host/model/projects.h"
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <algorithm>

namespace workbench {

namespace {

constexpr auto kTitle = "Fernwick Workbench";
constexpr auto kNoFernwickProject =
    "%1 is not a Fernwick project: its section [Quinloft Global] has no line IsQuinloftProject=True. Make one from the "
    "template \"Fernwick Project\", or add that section with ProjectVersion=3.5.";

constexpr auto kAboutTitle = "About Fernwick Workbench";
constexpr auto kAbout = "<b>Fernwick Workbench %1</b><p>Turns Visual Basic 6 projects into applications for handhelds."
                        "<p>With Qt %2.";

} // namespace

Workbench::Workbench()
    : machine_({user_, loop_, clipboard_,
                [this](const std::string& commandLine, const std::string& folder) {
                    return mayRunSteps(commandLine, folder);
                },
                [] { return false; },
                [this](const std::string& document) {
                    QMessageBox::information(window_.get(), kTitle, "No program here shows " + qt(document));
                }}),
      modules_(std::make_shared<fernwick::Modules>(machine_.platform())),
      host_(host::Host::create(hostOptions())) {
    host_->listAddIn(apps::kAddInProgId, apps::kAddInName,
                     [modules = std::weak_ptr(modules_)] { return fernwick::asAddIn(modules.lock()); });
    window_ = std::make_unique<MainWindow>(
        *host_, [this](const auto& act) { run(act); }, [this] { return mayClose(); });
    user_.mainWindow = window_.get();
    addWindowCommands(*host_, *window_, deeds());
    addExplorerMenu(*host_, *window_);
    recent_ = std::make_unique<RecentProjects>(*host_, recentMenu(*host_), [this](const auto& path) { open(path); });
    unsaved_ = std::make_unique<UnsavedWork>(*host_, *window_, [this](const auto& path) { open(path); });
    problemsSoon_.setSingleShot(true);
    problemsSoon_.setInterval(0);
    QObject::connect(&problemsSoon_, &QTimer::timeout, [this] { tellProblems(); });
    projectAdded_ =
        host_->Events()->VBProjectsEvents()->ItemAdded.connect([this](const auto&) { problemsSoon_.start(); });
    window_->restoreLayout();
}

Workbench::~Workbench() {
    (void)basic::attempt([this] { host_->close(); });
    recent_.reset();
    unsaved_.reset();
    window_.reset();
}

host::HostOptions Workbench::hostOptions() {
    auto options = apps::hostOptionsOf(machine_, controls_);
    options.handlerFailed = [this](const basic::ErrObject& error) {
        QMessageBox::warning(
            window_.get(), kTitle,
            QString("%1 (error %2 of %3)").arg(qt(error.Description)).arg(error.Number).arg(qt(error.Source)));
    };
    options.mayReplaceChanged = mayReplaceChanged;
    options.askForProject = [this] { return askForProject(); };
    return options;
}

WindowDeeds Workbench::deeds() {
    WindowDeeds deeds;
    deeds.newProject = [this] { newProject(); };
    deeds.saveProject = [this] {
        if (const auto active = host_->ActiveVBProject()) saveWithNames(*host_, active, window_.get());
    };
    deeds.removeProject = [this] {
        const auto active = host_->ActiveVBProject();
        if (active && mayBeClosed(*host_, {active}, window_.get())) host_->VBProjects()->Remove(active);
    };
    deeds.start = [this] { startActive(); };
    deeds.help = [this] { modules_->help.DisplayHelp(fernwick::kUsersGuideTopic); };
    deeds.about = [this] {
        QMessageBox::about(window_.get(), kAboutTitle,
                           QString(kAbout).arg(QApplication::applicationVersion(), qVersion()));
    };
    return deeds;
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

/// The add-in takes up one project that is open. Of more than one the host must tell it as they come.
void Workbench::begin(const std::vector<std::string>& projects) {
    const auto isGroup = [](const std::string& path) { return qt(path).endsWith(".vbg", Qt::CaseInsensitive); };
    const bool several = projects.size() > 1 || std::any_of(projects.begin(), projects.end(), isGroup);
    if (several) connect();
    for (const auto& project : projects) open(project);
    if (!several) connect();
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
    } catch (...) { tell(std::current_exception()); }
}

void Workbench::tell(std::exception_ptr error) {
    try {
        std::rethrow_exception(error);
    } catch (const basic::RuntimeError& e) {
        QMessageBox::critical(window_.get(), kTitle, qt(e.Description));
    } catch (const std::exception& e) { QMessageBox::critical(window_.get(), kTitle, e.what()); }
}

void Workbench::tellProblems() {
    const auto problems = host_->loadProblems();
    if (problems.empty()) return;
    QStringList lines;
    for (const auto& problem : problems)
        lines << (problem.line > 0 ? QString("%1:%2: %3").arg(qt(problem.file)).arg(problem.line).arg(qt(problem.text))
                                   : QString("%1: %2").arg(qt(problem.file), qt(problem.text)));
    constexpr qsizetype kMostShown = 5;
    QMessageBox box(QMessageBox::Warning, kTitle,
                    "Some of the project could not be loaded:\n\n" + lines.mid(0, kMostShown).join('\n'),
                    QMessageBox::Ok, window_.get());
    if (lines.size() > kMostShown) box.setDetailedText(lines.join('\n'));
    box.exec();
}

std::string Workbench::askForProject() {
    const auto recent = RecentProjects::stored();
    const auto folder = recent.isEmpty() ? QDir::homePath() : QFileInfo(recent.front()).path();
    return text(QFileDialog::getOpenFileName(window_.get(), "Open Project", folder,
                                             "Projects (*.vbp *.vbg *.VBP *.VBG);;All files (*)"));
}

void Workbench::startActive() {
    const auto active = host_->ActiveVBProject();
    if (!active) return;
    const auto project = modules_->projects.GetQLProject(active);
    if (!project || !project->IsQuinloftProject()) {
        QMessageBox::information(window_.get(), kTitle, QString(kNoFernwickProject).arg(qt(active->Name())));
        return;
    }
    if (compiled(active)) modules_->sendToDevice.SendProjectToDevice(project, false, project->TargetDevice());
}

/// The messages come up when something is wrong with it.
bool Workbench::compiled(const vbide::Ref<vbide::VBProject>& project) {
    const bool good =
        modules_->compile.CompileProject(project) &&
        modules_->validate.ValidateProject(project, modules_->projects.GetQLProject(project)->TargetDevice());
    if (!good) modules_->messages.ShowProjectCompileErrors(project, true);
    return good;
}

bool Workbench::mayRunSteps(const std::string& commandLine, const std::string& folder) {
    apps::TrustedFolders trusted(machine_.registry());
    if (trusted.holds(folder)) return true;
    QStringList steps{qt(commandLine)};
    if (const auto project = modules_->projects.GetQLProject(host_->ActiveVBProject())) {
        steps.clear();
        for (const auto& step : apps::allSteps(*project)) steps << qt(step);
    }
    QMessageBox box(QMessageBox::Question, kTitle,
                    QString("The project in %1 runs these command lines around a compile:\n\n%2\n\nTrust this folder "
                            "and run them?")
                        .arg(qt(folder), steps.join('\n')),
                    QMessageBox::Yes | QMessageBox::No, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    if (box.exec() != QMessageBox::Yes) return false;
    trusted.add(folder);
    return true;
}

bool Workbench::mayClose() { return mayBeClosed(*host_, host_->VBProjects()->items(), window_.get()); }

} // namespace workbench
