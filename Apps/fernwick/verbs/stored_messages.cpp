#include "Apps/fernwick/verbs/stored_messages.h"
#include "Basic/case_folding.h"
#include "Basic/conversions.h"
#include "Basic/text_search.h"
#include "Host/model/component.h"
#include <filesystem>
#include <unordered_map>

namespace cli {

namespace {

constexpr const char* kErrorsSection = "Quinloft Project Compile Errors";
constexpr std::size_t kStoredFields = 5;
/// The compiler's own numbers; the add-in's begin above.
constexpr int kLastCompilerNumber = 2998;

std::string storedValue(const vbide::VBProject& project, const std::string& key) {
    std::string value;
    (void)basic::attempt([&] { value = project.ReadProperty(kErrorsSection, key); });
    return value;
}

std::int32_t numberOrZero(const std::string& text) {
    std::int32_t number = 0;
    (void)basic::attempt([&] { number = basic::CLng(text); });
    return number;
}

std::string fileTitleOf(const std::string& path) { return std::filesystem::path(path).filename().string(); }

using ComponentNames = std::unordered_map<std::string, std::string, basic::NoCaseHash, basic::NoCaseEqual>;

/// Names of the components by their file's name; of two the first.
ComponentNames componentsByFile(const basic::Ref<vbide::VBProject>& project) {
    ComponentNames names;
    for (const auto& component : project->VBComponents()->items())
        names.emplace(fileTitleOf(component->FileNames(1)), component->Name());
    return names;
}

/// 0 for a message without a line.
int physicalLineOf(const basic::Ref<vbide::VBProject>& project, const Message& message) {
    if (message.codeLine <= 0 || message.component.empty()) return 0;
    const auto component = basic::cast<host::Component>(project->VBComponents()->Item(message.component));
    if (!component) return 0;
    auto& source = component->source();
    return int(source.headLines() + source.code().physicalLine(std::size_t(message.codeLine)));
}

} // namespace

std::vector<Message> storedMessages(const basic::Ref<vbide::VBProject>& project) {
    std::vector<Message> messages;
    const auto components = componentsByFile(project);
    const auto count = numberOrZero(storedValue(*project, "NumErrors"));
    for (std::int32_t i = 1; i <= count; ++i) {
        const auto fields = basic::Split(storedValue(*project, "Error" + std::to_string(i)), "|", kStoredFields);
        if (fields.size() + 1 < kStoredFields) continue; // earlier versions stored no number
        Message message;
        message.isError = fields[0] == "ERROR";
        message.file = fields[1];
        message.codeLine = numberOrZero(fields[2]);
        message.text = fields[3];
        message.number = fields.size() == kStoredFields ? numberOrZero(fields[4]) : 0;
        if (const auto found = components.find(fileTitleOf(message.file)); found != components.end())
            message.component = found->second;
        messages.push_back(std::move(message));
    }
    return messages;
}

std::vector<Message> messagesOfRun(const basic::Ref<vbide::VBProject>& project, const qltoolkit::BuildRecord& build) {
    auto messages = storedMessages(project);
    auto diagnostic = build.diagnostics.begin();
    for (auto& message : messages) {
        const bool isCompilers = message.number <= kLastCompilerNumber;
        if (!isCompilers) message.line = physicalLineOf(project, message);
        if (!isCompilers || diagnostic == build.diagnostics.end()) continue;
        message.line = int(diagnostic->line);
        message.column = int(diagnostic->column);
        message.text = diagnostic->text;
        ++diagnostic;
    }
    return messages;
}

} // namespace cli
