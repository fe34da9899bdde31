#include "Add-in/build/messages/modCompileErrorManagement.h"
#include "Add-in/build/messages/build_texts.h"
#include "Basic/text_search.h"
#include <fmt/format.h>

namespace fernwick {

void modCompileErrorManagement::AddProjectCompileError(const Project& project, const std::string& message,
                                                       const std::string& fileName, std::int32_t line,
                                                       std::int32_t errorNumber) {
    addMessage(project, message, fileName, line, ERROR_MSG, errorNumber);
}

void modCompileErrorManagement::AddProjectCompileWarning(const Project& project, const std::string& message,
                                                         const std::string& fileName, std::int32_t line,
                                                         std::int32_t errorNumber) {
    addMessage(project, message, fileName, line, WARNING_MSG, errorNumber);
}

void modCompileErrorManagement::addMessage(const Project& project, const std::string& message,
                                           const std::string& fileName, std::int32_t line, int type,
                                           std::int32_t errorNumber) {
    const std::string title = FindFileTitle(project, fileName);
    addToToolWindow(fileName, title, line, message, type, errorNumber, type == ERROR_MSG);
    AddProjectError(project, message, fileName, line, type, errorNumber);
}

void modCompileErrorManagement::addToToolWindow(const std::string& fileName, const std::string& title,
                                                std::int32_t line, const std::string& message, int type,
                                                std::int32_t errorNumber, bool addToTop) {
    Procedure here{errors_, "modCompileErrorManagement.addToToolWindow"};
    if (!messages_) return;
    if (type == ERROR_MSG) ++errorCount_;
    if (type == WARNING_MSG && errorCount_ == 0) ++warningCount_;
    here([&] { messages_->add(fileName, title, line, message, type, errorNumber, addToTop); });
}

std::string modCompileErrorManagement::FindFileTitle(const Project& project, const std::string& fileName) {
    Procedure here{errors_, "modCompileErrorManagement.FindFileTitle"};
    return titles_.find(here, project, fileName);
}

void modCompileErrorManagement::ShowFirstProjectError() {
    Procedure here{errors_, "modCompileErrorManagement.ShowFirstProjectError"};
    here([&] { messages_->gotoFirstError(); });
}

void modCompileErrorManagement::ProjectStatusText(std::string& successText, std::string& warningText,
                                                  std::string& failureText) {
    Procedure here{errors_, "modCompileErrorManagement.ProjectStatusText"};
    titles_.endRun();
    status_ = errorCount_ > 0     ? RunStatus::Failed
              : warningCount_ > 0 ? RunStatus::SucceededWithWarnings
                                  : RunStatus::Succeeded;
    std::string& text = errorCount_ > 0 ? failureText : warningCount_ > 0 ? warningText : successText;
    if (&text != &successText) {
        here([&] { text = basic::Replace(text, "$ERRORNUM$", fmt::to_string(errorCount_)); });
        here([&] { text = basic::Replace(text, "$WARNINGNUM$", fmt::to_string(warningCount_)); });
    }
    here([&] { messages_->SetStatusText(text); });
}

void modCompileErrorManagement::createToolWindow() {
    Procedure here{errors_, "modCompileErrorManagement.createToolWindow"};
    if (messages_ && window_) return;
    const auto& vbe = addIn_.gVBInstance;
    basic::Ref<Object> document;
    here([&] {
        window_ = vbe->Windows()->CreateToolWindow(vbe->Addins()->Item(app_.Title + ".Connect"),
                                                   app_.Title + ".udocCompileMsgs", build_texts::kMessagesCaption,
                                                   "{8531D96D-DE1E-11d2-8E96-00104B78F251}", document);
    });
    messages_ = basic::cast<CompileMessages>(document);
    here([&] { window_->Visible(false); });
}

void modCompileErrorManagement::showToolWindow() {
    Procedure here{errors_, "modCompileErrorManagement.showToolWindow"};
    if (!messages_ || !window_) createToolWindow();
    here([&] { window_->Visible(true); });
}

void modCompileErrorManagement::hideToolWindow() {
    basic::Suppressed quietly;
    if (messages_ && window_) quietly([&] { window_->Visible(false); });
}

bool modCompileErrorManagement::isToolWindowShowing() {
    bool showing = false;
    basic::Suppressed quietly;
    quietly([&] { showing = window_->Visible(); });
    return showing;
}

void modCompileErrorManagement::clearToolWindow() {
    titles_.beginRun();
    if (!messages_) return;
    basic::Suppressed quietly;
    quietly([&] { messages_->clearMessages(); });
    status_ = RunStatus::Running;
    errorCount_ = 0;
    warningCount_ = 0;
    quietly([&] { messages_->SetStatusLabel(build_texts::kCompileStatus); });
    quietly([&] { messages_->SetStatusText(build_texts::kCompilingAndValidating); });
}

void modCompileErrorManagement::killToolWindow() {
    messages_ = nullptr;
    window_ = nullptr;
}

} // namespace fernwick
