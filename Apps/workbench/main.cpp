#include "Apps/workbench/letter_icons.h"
#include "Apps/workbench/workbench.h"
#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setOrganizationName("fernwick");
    QApplication::setApplicationName("workbench");
    QApplication::setApplicationDisplayName("Fernwick Workbench");
    QApplication::setApplicationVersion(FERNWICK_VERSION);
    QApplication::setDesktopFileName("fernwick-workbench");
    QApplication::setWindowIcon(QIcon::fromTheme("fernwick-workbench", workbench::projectIcon()));

    QCommandLineParser options;
    options.setApplicationDescription("Turns Visual Basic 6 projects into applications for handhelds.");
    options.addHelpOption();
    options.addVersionOption();
    options.addPositionalArgument("PROJECT", "the project or group to open", "[PROJECT...]");
    options.process(app);

    workbench::apply(workbench::systemTheme());
    workbench::Workbench bench;
    bench.window().show();
    // when the window stands: what opens and connects may ask
    QTimer::singleShot(0, [&] {
        for (const auto& project : options.positionalArguments()) bench.open(project.toStdString());
        bench.connect();
    });
    return QApplication::exec();
}
