#include "Apps/fernwick/stored/stored_messages.h"
#include "Add-in/build/messages/stored_messages.h"
#include "Apps/common/source_code_page.h"
#include "Apps/fernwick/output/token_ends.h"
#include "Basic/runtime_error.h"
#include "Basic/text_search.h"
#include "Host/files/text_file.h"
#include "Host/model/component.h"
#include <map>
#include <optional>

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

/// Reads each file once.
class EndColumns {
public:
    explicit EndColumns(host::Host& host) : host_(host) {}

    int of(const Message& message) {
        auto [file, isNew] = files_.try_emplace(message.file);
        if (isNew)
            (void)basic::attempt([&] {
                file->second.emplace(host::readFile(message.file).bytes, apps::codePageOfSource(host_, message.file));
            });
        return file->second ? file->second->endColumn(message.line, message.column) : 0;
    }

private:
    host::Host& host_;
    std::map<std::string, std::optional<TokenEnds>> files_;
};

/// A message is printed on one line.
std::string oneLine(const std::string& text) { return basic::Replace(basic::Replace(text, "\r\n", " "), "\n", " "); }

Message messageOf(Session& session, const fernwick::StoredMessage& stored) {
    Message message;
    message.isError = stored.type == fernwick::ERROR_MSG;
    message.isKnown = message.isError || stored.type == fernwick::WARNING_MSG;
    message.number = stored.errorNumber;
    message.text = oneLine(stored.text);
    message.file = stored.fileName;
    message.component = session.addIn().messages.FindFileTitle(session.project(), stored.fileName);
    message.codeLine = stored.line;
    return message;
}

} // namespace

std::vector<Message> storedMessages(Session& session) {
    std::vector<Message> messages;
    for (const auto& stored : fernwick::storedMessages(session.project()))
        messages.push_back(messageOf(session, stored));
    return messages;
}

std::vector<Message> messagesOfRun(Session& session) {
    std::vector<Message> messages;
    EndColumns ends{session.host()};
    const auto& diagnostics = session.machine().build().diagnostics;
    auto diagnostic = diagnostics.begin();
    for (const auto& added : session.addIn().messages.messagesOfRun()) {
        auto& message = messages.emplace_back(messageOf(session, added));
        const bool isCompilers = message.number <= kLastCompilerNumber;
        if (!isCompilers) message.line = physicalLineOf(session.project(), message);
        if (!isCompilers || diagnostic == diagnostics.end()) continue;
        message.line = int(diagnostic->line);
        message.column = int(diagnostic->column);
        message.endColumn = ends.of(message);
        ++diagnostic;
    }
    return messages;
}

} // namespace cli
