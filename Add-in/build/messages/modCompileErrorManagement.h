#pragma once
// The messages of a project: stored in the project, and shown in the tool window.
#include "Add-in/build/messages/compile_messages.h"
#include "Add-in/build/messages/file_titles.h"
#include "Add-in/build/messages/stored_messages.h"
#include "Add-in/core/AddIn.h"
#include "Add-in/core/procedure.h"
#include "Add-in/platform/platform.h"

namespace fernwick {

/// What the status of the messages window shows.
enum class RunStatus { None, Running, Succeeded, SucceededWithWarnings, Failed };

/// Receives every compile error, validation finding and deployment error of a project. The stored list persists when
/// the project is closed; the window shows the list of the current project.
class modCompileErrorManagement {
public:
    using Project = basic::Ref<vbide::VBProject>;

    modCompileErrorManagement(AddIn& addIn, ErrorReport& errors, const Platform& platform)
        : addIn_(addIn), errors_(errors), app_(platform.app), titles_(platform.files) {}

    /// Shows the message at the top of the window's list and stores it. `line` is the line in the code window, or 0 for
    /// none.
    void AddProjectCompileError(const Project& project, const std::string& message, const std::string& fileName,
                                std::int32_t line, std::int32_t errorNumber);
    /// Shows the message at the end of the window's list and stores it.
    void AddProjectCompileWarning(const Project& project, const std::string& message, const std::string& fileName,
                                  std::int32_t line, std::int32_t errorNumber);
    /// Stores only, with "?" instead of characters that the project's code page lacks. Failures are silent: a project
    /// may be read-only. Nothing is added to a full list (kMostStoredMessages).
    void AddProjectError(const Project& project, const std::string& message, const std::string& fileName,
                         std::int32_t line, int type, std::int32_t errorNumber);
    /// Empties the window and the stored list.
    void ClearProjectCompileErrors(const Project& project);
    /// Returns how many messages are stored, including warnings; 0 when the count cannot be read or is damaged.
    std::int32_t NumProjectCompileErrors(const Project& project);
    void ShowProjectCompileErrors(const Project& project, bool onlyIfAny);
    void HideProjectCompileErrors() { hideToolWindow(); }
    /// Selects the first message with a source line and opens it.
    void ShowFirstProjectError();
    /// Refills the window from the stored list.
    void ReadProjectErrors(const Project& project);

    /// Stores whether the window is showing. Writes only on a change, so that the project is not marked changed.
    void SaveCompileErrorWindowState(const Project& project);
    bool GetCompileErrorWindowState(const Project& project);

    /// Returns the name of the component that has this file; "" for none.
    std::string FindFileTitle(const Project& project, const std::string& fileName);
    /// Sets the status according to the messages shown, and fills the counts into the text that is used.
    void ProjectStatusText(std::string& successText, std::string& warningText, std::string& failureText);
    /// Returns the message as it is stored: on one line, without "|" and quotation marks.
    static std::string FilterCompileMessage(const std::string& text);

    void createToolWindow();
    void showToolWindow();
    void hideToolWindow();
    void clearToolWindow();
    void killToolWindow();
    bool isToolWindowShowing();
    void addToToolWindow(const std::string& fileName, const std::string& title, std::int32_t line,
                         const std::string& message, int type, std::int32_t errorNumber, bool addToTop);

    /// The messages since the list was last cleared, with their full texts: the stored list cannot hold every character
    /// and may not be writable.
    const std::vector<StoredMessage>& messagesOfRun() const { return run_; }

    RunStatus status() const { return status_; }
    /// Errors in the window.
    std::int32_t errorCount() const { return errorCount_; }
    /// Warnings in the window that were added before the first error.
    std::int32_t warningCount() const { return warningCount_; }

private:
    void addMessage(const Project& project, const std::string& message, const std::string& fileName, std::int32_t line,
                    int type, std::int32_t errorNumber);

    AddIn& addIn_;
    ErrorReport& errors_;
    const App& app_;
    FileTitles titles_;
    basic::Ref<CompileMessages> messages_;
    basic::Ref<vbide::Window> window_;
    std::vector<StoredMessage> run_;
    RunStatus status_ = RunStatus::None;
    std::int32_t errorCount_ = 0;
    std::int32_t warningCount_ = 0;
};

} // namespace fernwick
