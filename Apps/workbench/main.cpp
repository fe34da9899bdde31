#include "Apps/common/version.h"
#include "Apps/workbench/base/application_name.h"
#include "Apps/workbench/base/display_guard.h"
#include "Apps/workbench/base/drawn_icons.h"
#include "Apps/workbench/window/workbench.h"
#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <csignal>
#include <optional>

int main(int argc, char** argv) {
    std::signal(SIGCHLD, SIG_DFL); // some parents ignore it, which would hide the exit status of compile steps
    std::optional<workbench::DisplayGuard> guard(std::in_place);
    QApplication app(argc, argv);
    guard.reset();
    workbench::nameApplication();
    QApplication::setApplicationVersion(apps::kVersion);
    QApplication::setDesktopFileName("fernwick-workbench");
    QApplication::setWindowIcon(QIcon::fromTheme("fernwick-workbench", workbench::drawnIcon("Project")));

    QCommandLineParser options;
    options.setApplicationDescription("Turns Visual Basic 6 projects into applications for handhelds.");
    options.addHelpOption();
    options.addVersionOption();
    options.addPositionalArgument("PROJECT", "the project or group to open", "[PROJECT...]");
    options.process(app);

    workbench::apply(workbench::systemTheme());
    workbench::Workbench bench;
    bench.window().show();
    // after the window is shown, as opening and connecting may ask questions
    QTimer::singleShot(0, [&] {
        std::vector<std::string> projects;
        for (const auto& project : options.positionalArguments()) projects.push_back(project.toStdString());
        bench.begin(projects);
    });
    return QApplication::exec();
}
