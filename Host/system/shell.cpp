#include "Host/system/shell.h"
#include "Basic/case_folding.h"
#include "Host/files/system_error.h"
#include "Host/system/home_folder.h"
#include "Host/system/program.h"
#include <algorithm>
#include <cstdlib>
#include <sys/wait.h>

namespace host {
namespace {

constexpr std::string_view kHelpViewer = "Hh.exe ";
/// Precedes the number of a help context.
constexpr std::string_view kContextSwitch = "-mapid ";
/// Precedes a help file and its page, and separates the two.
constexpr std::string_view kPageScheme = "ms-its:", kPageMark = "::/";

/// The part of a help file to show; without a context and a page its first page.
struct HelpTopic {
    std::string file, context, page;
};

HelpTopic helpTopicOf(std::string_view arguments) {
    HelpTopic topic;
    if (basic::startsWithNoCase(arguments, kContextSwitch)) {
        arguments.remove_prefix(kContextSwitch.size());
        topic.context = arguments.substr(0, arguments.find(' '));
        arguments.remove_prefix(std::min(topic.context.size() + 1, arguments.size()));
    }
    if (basic::startsWithNoCase(arguments, kPageScheme)) arguments.remove_prefix(kPageScheme.size());
    const auto mark = arguments.find(kPageMark);
    if (mark != arguments.npos) topic.page = arguments.substr(mark + kPageMark.size());
    topic.file = arguments.substr(0, mark);
    return topic;
}

bool isAddress(const std::string& document) {
    return document.find("://") != document.npos || basic::startsWithNoCase(document, "mailto:");
}

bool hasDesktop() {
    const auto isSet = [](const char* name) {
        const auto* value = std::getenv(name);
        return value && *value;
    };
    return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY");
}

} // namespace

Shell::~Shell() { (void)reapEnded(); }

int Shell::Start(const std::string& commandLine) {
    constexpr int kHelpTask = 1;
    if (basic::startsWithNoCase(commandLine, kHelpViewer)) {
        openHelp(commandLine.substr(kHelpViewer.size()));
        return kHelpTask;
    }
    const auto folder = files_.GetAbsolutePathName("");
    const auto program = findProgram(commandLine, folder, true);
    if (!program && !files_.FileExists(files_.Canonical(commandLine))) return 0;
    const auto id = program ? startProgram(*program, folder) : 0;
    if (id == 0) throw hostError(basic::kFileNotFound, commandLine + ": cannot be started");
    children_.push_back({id, {}});
    return int(id);
}

void Shell::Open(const std::string& document) {
    if (isAddress(document)) return show(document);
    const auto path = files_.Canonical(document);
    if (!files_.FileExists(path) && !files_.FolderExists(path))
        throw hostError(basic::kFileNotFound, document + ": there is no such file or folder");
    if (basic::equalNoCase(files_.GetExtensionName(path), "chm")) return openHelp(path);
    show(path);
}

void Shell::openHelp(std::string arguments) {
    std::erase(arguments, '"');
    const auto topic = helpTopicOf(arguments);
    const auto folder = files_.GetParentFolderName(topic.file);
    const auto name = files_.GetBaseName(topic.file);
    if (!topic.page.empty()) return Open(files_.BuildPath(folder, topic.page));
    if (!topic.context.empty()) {
        const auto page = files_.BuildPath(files_.BuildPath(folder, name), topic.context + ".html");
        if (files_.FileExists(files_.Canonical(page))) return Open(page);
    }
    Open(files_.BuildPath(folder, name + ".html"));
}

void Shell::show(const std::string& document) {
    const auto opener = findProgram("xdg-open", "/", false);
    if (!opener || !hasDesktop()) return report_(document);
    auto program = *opener;
    program.words.push_back(document);
    const auto id = startProgram(program, homeFolder());
    if (id == 0) return report_(document);
    children_.push_back({id, document});
    started_();
}

bool Shell::checkOpened() {
    for (const auto& document : reapEnded()) report_(document);
    return !children_.empty();
}

std::vector<std::string> Shell::reapEnded() {
    std::vector<std::string> failed;
    std::erase_if(children_, [&failed](const Child& child) {
        int status = 0;
        if (::waitpid(child.id, &status, WNOHANG) == 0) return false;
        const bool succeeded = WIFEXITED(status) && WEXITSTATUS(status) == 0;
        if (!succeeded && !child.document.empty()) failed.push_back(child.document);
        return true;
    });
    return failed;
}

} // namespace host
