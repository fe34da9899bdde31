#include "Apps/workbench/window/boxes.h"
#include "Apps/workbench/base/message_box.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/base/title.h"
#include "Apps/workbench/project/recent_projects.h"
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>

namespace workbench {

namespace {

constexpr auto kNoFernwickProject =
    "%1 is not a Fernwick project: its section [Quinloft Global] has no line IsQuinloftProject=True. Create a project "
    "from the template \"Fernwick Project\", or add that section with ProjectVersion=3.5.";

constexpr auto kNotConnected =
    "The Fernwick add-in is not connected. Choose Fernwick in the Add-Ins menu to connect it.";
constexpr auto kOpenedTooEarly =
    "%1 was opened before the Fernwick add-in was connected. Close the project and open it "
    "again.";

constexpr auto kAboutTitle = "About Fernwick Workbench";
constexpr auto kAbout = "<b>Fernwick Workbench %1</b><p>Turns Visual Basic 6 projects into applications for handhelds."
                        "<p>With Qt %2.";

QString lineOf(const host::LoadProblem& problem) {
    return problem.line > 0 ? QString("%1:%2: %3").arg(qt(problem.file)).arg(problem.line).arg(qt(problem.text))
                            : QString("%1: %2").arg(qt(problem.file), qt(problem.text));
}

} // namespace

void showError(std::exception_ptr error, QWidget* window) {
    try {
        std::rethrow_exception(std::move(error));
    } catch (const basic::RuntimeError& e) {
        showBox(window, QMessageBox::Critical, qt(e.Description));
    } catch (const std::exception& e) { showBox(window, QMessageBox::Critical, e.what()); }
}

void showHandlerError(const basic::ErrObject& error, const std::string& source, QWidget* window) {
    showBox(window, QMessageBox::Warning,
            QString("%1 (error %2 of %3)").arg(qt(error.Description)).arg(error.Number).arg(qt(source)));
}

void showInformation(const QString& text, QWidget* window) { showBox(window, QMessageBox::Information, text); }

void showProblems(const std::vector<host::LoadProblem>& problems, QWidget* window) {
    if (problems.empty()) return;
    QStringList lines;
    for (const auto& problem : problems) lines << lineOf(problem);
    constexpr qsizetype kMostShown = 5;
    QMessageBox box(QMessageBox::Warning, kTitle,
                    "Parts of the project could not be loaded:\n\n" + lines.mid(0, kMostShown).join('\n'),
                    QMessageBox::NoButton, window);
    box.setTextFormat(Qt::PlainText);
    addButtons(box, QMessageBox::Ok);
    if (lines.size() > kMostShown) box.setDetailedText(lines.join('\n'));
    box.exec();
}

void showNoFernwickProject(const std::string& project, QWidget* window) {
    showInformation(QString(kNoFernwickProject).arg(qt(project)), window);
}

void showNotConnected(QWidget* window) { showInformation(kNotConnected, window); }

void showOpenedTooEarly(const std::string& project, QWidget* window) {
    showInformation(QString(kOpenedTooEarly).arg(qt(project)), window);
}

void showAbout(QWidget* window) {
    QMessageBox::about(window, kAboutTitle, QString(kAbout).arg(QApplication::applicationVersion(), qVersion()));
}

std::string askForProjectFile(QWidget* window) {
    const auto recent = RecentProjects::stored();
    const auto folder = recent.isEmpty() ? QDir::homePath() : QFileInfo(recent.front()).path();
    return text(QFileDialog::getOpenFileName(window, "Open Project", folder,
                                             "Projects (*.vbp *.vbg *.VBP *.VBG);;All files (*)"));
}

bool askToTrust(const std::string& folder, const QStringList& steps) {
    QMessageBox box(QMessageBox::Question, kTitle,
                    QString("The project in %1 runs these command lines before or after a compile:\n\n%2\n\nTrust this "
                            "folder and run them?")
                        .arg(qt(folder), steps.join('\n')),
                    QMessageBox::NoButton, QApplication::activeWindow());
    addButtons(box, QMessageBox::Yes | QMessageBox::No);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace workbench
