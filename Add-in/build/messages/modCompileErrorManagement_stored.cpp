// The messages stored in the project's file.
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/build/messages/modCompileErrorManagement.h"
#include "Add-in/build/messages/stored_messages.h"
#include <fmt/format.h>

namespace fernwick {

namespace {

constexpr char kVisible[] = "Visible";

std::string typeWord(int type) {
    if (type == ERROR_MSG) return "ERROR";
    if (type == WARNING_MSG) return "WARNING";
    return "UNKNOWN";
}

} // namespace

std::string modCompileErrorManagement::FilterCompileMessage(const std::string& text) {
    std::string filtered;
    filtered.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool pair = c == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        if (c == '|')
            filtered += ':';
        else if (c == '"')
            filtered += '\'';
        else if (c == '\r' || c == '\n')
            filtered += ' ';
        else
            filtered += c;
        if (pair) ++i;
    }
    return filtered;
}

void modCompileErrorManagement::AddProjectError(const Project& project, const std::string& message,
                                                const std::string& fileName, std::int32_t line, int type,
                                                std::int32_t errorNumber) {
    const std::int32_t count = storedMessageCount(project) + 1;
    if (count > kMostStoredMessages) return; // the whole list would count as damaged
    std::string value =
        fmt::format("{}|{}|{}|{}|{}", typeWord(type), fileName, line, FilterCompileMessage(message), errorNumber);
    basic::Suppressed quietly;
    quietly([&] { value = project->StorableText(value); });
    quietly([&] { project->WriteProperty(kErrorsSection, kNumErrors, fmt::to_string(count)); });
    quietly([&] { project->WriteProperty(kErrorsSection, storedMessageKey(count), value); });
}

void modCompileErrorManagement::ClearProjectCompileErrors(const Project& project) {
    run_.clear();
    clearToolWindow();
    if (NumProjectCompileErrors(project) == 0) return;
    basic::Suppressed quietly;
    quietly([&] { project->WriteProperty(kErrorsSection, kNumErrors, "0"); });
}

std::int32_t modCompileErrorManagement::NumProjectCompileErrors(const Project& project) {
    return storedMessageCount(project);
}

void modCompileErrorManagement::ShowProjectCompileErrors(const Project& project, bool onlyIfAny) {
    if (!onlyIfAny || storedMessageCount(project) > 0) showToolWindow();
}

void modCompileErrorManagement::ReadProjectErrors(const Project& project) {
    createToolWindow();
    clearToolWindow();
    basic::Suppressed quietly;
    quietly([&] { messages_->SetStatusLabel(build_texts::kCompileStatus); });
    if (storedMessageCount(project) == 0) return;
    for (const auto& message : storedMessages(project))
        addToToolWindow(message.fileName, FindFileTitle(project, message.fileName), message.line, message.text,
                        message.type, message.errorNumber, false);
    build_texts::Outcome outcome;
    ProjectStatusText(outcome.success, outcome.warning, outcome.failure);
}

void modCompileErrorManagement::SaveCompileErrorWindowState(const Project& project) {
    const bool showing = isToolWindowShowing();
    if (showing == GetCompileErrorWindowState(project)) return;
    basic::Suppressed quietly;
    quietly([&] { project->WriteProperty(kErrorsSection, kVisible, showing ? "TRUE" : "FALSE"); });
}

bool modCompileErrorManagement::GetCompileErrorWindowState(const Project& project) {
    std::string state;
    basic::Suppressed quietly;
    quietly([&] { state = project->ReadProperty(kErrorsSection, kVisible); });
    return state == "TRUE";
}

} // namespace fernwick
