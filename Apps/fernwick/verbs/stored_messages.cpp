#include "Apps/fernwick/verbs/stored_messages.h"
#include "Add-in/build/messages/stored_messages.h"
#include "Host/model/component.h"

namespace cli {

namespace {

/// The compiler's own numbers; the add-in's begin above.
constexpr int kLastCompilerNumber = 2998;

/// 0 for a message without a line.
int physicalLineOf(const basic::Ref<vbide::VBProject>& project, const Message& message) {
    if (message.codeLine <= 0 || message.component.empty()) return 0;
    const auto component = basic::cast<host::Component>(project->VBComponents()->Item(message.component));
    if (!component) return 0;
    auto& source = component->source();
    return int(source.headLines() + source.code().physicalLine(std::size_t(message.codeLine)));
}

} // namespace

std::vector<Message> storedMessages(Session& session) {
    std::vector<Message> messages;
    for (const auto& stored : fernwick::storedMessages(session.project())) {
        Message message;
        message.isError = stored.type == fernwick::ERROR_MSG;
        message.number = stored.errorNumber;
        message.text = stored.text;
        message.file = stored.fileName;
        message.component = session.addIn().messages.FindFileTitle(session.project(), stored.fileName);
        message.codeLine = stored.line;
        messages.push_back(std::move(message));
    }
    return messages;
}

std::vector<Message> messagesOfRun(Session& session) {
    auto messages = storedMessages(session);
    const auto& diagnostics = session.machine().build().diagnostics;
    auto diagnostic = diagnostics.begin();
    for (auto& message : messages) {
        const bool isCompilers = message.number <= kLastCompilerNumber;
        if (!isCompilers) message.line = physicalLineOf(session.project(), message);
        if (!isCompilers || diagnostic == diagnostics.end()) continue;
        message.line = int(diagnostic->line);
        message.column = int(diagnostic->column);
        message.text = diagnostic->text;
        ++diagnostic;
    }
    return messages;
}

} // namespace cli
