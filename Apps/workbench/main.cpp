#include "Apps/workbench/base/application_name.h"
#include "Apps/workbench/base/display_guard.h"
#include "Apps/workbench/window/workbench.h"
#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

int main(int argc, char** argv) {
    const auto app = [&] {
        const workbench::DisplayGuard guard;
        return QApplication(argc, argv);
    }();
    workbench::nameApplication();

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
