// The messages of a project as they lie in its file.
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/build/messages/modCompileErrorManagement.h"
#include "Basic/conversions.h"
#include "Basic/text_search.h"
#include <fmt/format.h>
#include <limits>

namespace fernwick {

namespace {

constexpr char kErrorsSection[] = "Quinloft Project Compile Errors";
constexpr char kNumErrors[] = "NumErrors";
constexpr char kVisible[] = "Visible";

/// More than this are not read back: a damaged count must not keep the IDE busy for hours.
constexpr std::int32_t kMostMessagesRead = 100'000;

std::string typeWord(int type) {
    if (type == ERROR_MSG) return "ERROR";
    if (type == WARNING_MSG) return "WARNING";
    return "UNKNOWN";
}

std::string messageKey(std::int32_t number) { return fmt::format("Error{}", number); }

std::int32_t readCount(const basic::Ref<vbide::VBProject>& project) {
    std::int32_t count = 0;
    basic::Suppressed quietly;
    quietly([&] { count = basic::CLng(project->ReadProperty(kErrorsSection, kNumErrors)); });
    return count;
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
    std::int32_t count = readCount(project);
    if (count < std::numeric_limits<std::int32_t>::max()) ++count;
    const std::string value =
        fmt::format("{}|{}|{}|{}|{}", typeWord(type), fileName, line, FilterCompileMessage(message), errorNumber);
    basic::Suppressed quietly;
    quietly([&] { project->WriteProperty(kErrorsSection, kNumErrors, fmt::to_string(count)); });
    quietly([&] { project->WriteProperty(kErrorsSection, messageKey(count), value); });
}

void modCompileErrorManagement::ClearProjectCompileErrors(const Project& project) {
    clearToolWindow();
    if (NumProjectCompileErrors(project) == 0) return;
    basic::Suppressed quietly;
    quietly([&] { project->WriteProperty(kErrorsSection, kNumErrors, "0"); });
}

std::int32_t modCompileErrorManagement::NumProjectCompileErrors(const Project& project) { return readCount(project); }

void modCompileErrorManagement::ShowProjectCompileErrors(const Project& project, bool onlyIfAny) {
    if (!onlyIfAny || readCount(project) > 0) showToolWindow();
}

void modCompileErrorManagement::ReadProjectErrors(const Project& project) {
    createToolWindow();
    clearToolWindow();
    const std::int32_t count = std::min(readCount(project), kMostMessagesRead);
    basic::Suppressed quietly;
    quietly([&] { messages_->SetStatusLabel(build_texts::kCompileStatus); });
    if (count == 0) return;

    int type = 0;
    for (std::int32_t number = 1; number <= count; ++number) {
        std::string value;
        if (quietly([&] { value = project->ReadProperty(kErrorsSection, messageKey(number)); }))
            showStored(project, value, type);
    }
    build_texts::Outcome outcome;
    ProjectStatusText(outcome.success, outcome.warning, outcome.failure);
}

/// `type` comes as that of the message before, which stays for a text that names none.
void modCompileErrorManagement::showStored(const Project& project, const std::string& value, int& type) {
    const auto fields = basic::Split(value, "|", 5);
    if (fields.size() < 4) return;
    if (fields[0] == "ERROR") type = ERROR_MSG;
    if (fields[0] == "WARNING") type = WARNING_MSG;
    std::int32_t errorNumber = 0, line = 0;
    basic::Suppressed quietly;
    if (fields.size() == 5) quietly([&] { errorNumber = basic::CLng(fields[4]); });
    quietly([&] { line = basic::CLng(fields[2]); });
    const std::string title = FindFileTitle(project, fields[1]);
    addToToolWindow(fields[1], title, line, fields[3], type, errorNumber, false);
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
