#pragma once
// The message boxes and file dialogs of the program.
#include "Host/model/host.h"
#include <QWidget>
#include <exception>
#include <string>
#include <vector>

namespace workbench {

void showError(std::exception_ptr error, QWidget* window);
/// An error that a handler of the add-in did not catch, and whose it is.
void showHandlerError(const basic::ErrObject& error, const std::string& source, QWidget* window);
void showInformation(const QString& text, QWidget* window);
/// Shows what could not be loaded of a project; nothing if everything was.
void showProblems(const std::vector<host::LoadProblem>& problems, QWidget* window);
/// The add-in is needed to send a project.
void showNotConnected(QWidget* window);
/// The add-in knows only projects that were opened or active while it was connected.
void showOpenedTooEarly(const std::string& project, QWidget* window);
void showNoFernwickProject(const std::string& project, QWidget* window);
void showAbout(QWidget* window);
/// "" if the user cancels. The dialog opens in the folder of the most recent project.
std::string askForProjectFile(QWidget* window);
/// Whether the user trusts a folder and allows these compile steps.
bool askToTrust(const std::string& folder, const QStringList& steps);

} // namespace workbench
