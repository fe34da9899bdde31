#include "Apps/fernwick/answers.h"
#include "Basic/case_folding.h"
#include <array>
#include <fmt/format.h>

namespace cli {

namespace {

constexpr std::array kQuestions{
    Question{"save-files", "frmSaveProjectFiles", "", Reply::No,
             "save files before compiling (yes when nothing in the host is unsaved)"},
    Question{"save-warning", "frmSaveWarning", "", Reply::Ok, "the project must be saved"},
    Question{"not-current", "frmCompileWarning", "", Reply::Yes, "the compiled file is not current: compile?"},
    Question{"device", "frmDesignTargetNormal", "", Reply::Cancel, "which device (--device chooses)"},
    Question{"failed-step", "", "One or more of your pre compile steps may have failed.", Reply::No,
             "a pre-compile step failed: continue?"},
    Question{"convert-dpi", "", "This project was saved at a different DPI setting", Reply::No,
             "convert forms from another screen resolution?"},
    Question{"copy-file", "", "All dependency files must exist in the project folder.", Reply::No,
             "copy a dependency into the project's folder?"},
    Question{"missing-file", "", "ERROR: Missing ", Reply::No, "a dependency or font file is missing: continue?"},
    Question{"edit-list", "", "One or more of the specified dependency files are invalid", Reply::No,
             "edit the project's dependencies?"},
    Question{"deploy-errors", "", "This project has compile errors. Would you still like to deploy?", Reply::No,
             "the project has compile errors: deploy the old image?"},
    Question{"replace-file", "", " already exists.  Do you want to replace it?", Reply::No, "replace a file?"},
};

template <class Test>
const Question* find(Test&& test) {
    for (const auto& question : kQuestions)
        if (test(question)) return &question;
    return nullptr;
}

} // namespace

std::string_view replyName(Reply reply) {
    switch (reply) {
    case Reply::Yes: return "Yes";
    case Reply::No: return "No";
    case Reply::Cancel: return "Cancel";
    case Reply::Ok: break;
    }
    return "OK";
}

std::optional<Reply> replyNamed(std::string_view name) {
    for (const Reply reply : {Reply::Yes, Reply::No, Reply::Cancel, Reply::Ok})
        if (basic::equalNoCase(name, replyName(reply))) return reply;
    return std::nullopt;
}

const Question* questionOfForm(std::string_view typeName) {
    return find([&](const Question& q) { return q.form == typeName; });
}

const Question* questionOfBox(std::string_view text) {
    return find([&](const Question& q) { return !q.boxText.empty() && text.find(q.boxText) != text.npos; });
}

const Question* questionNamed(std::string_view name) {
    return find([&](const Question& q) { return q.name == name; });
}

std::string describeQuestions() {
    std::string text;
    for (const auto& question : kQuestions)
        text += fmt::format("  {:<14}{:<8}{}\n", question.name, replyName(question.otherwise), question.meaning);
    return text;
}

bool Answers::add(std::string_view assignment) {
    const auto equals = assignment.find('=');
    if (equals == assignment.npos) return false;
    const auto* question = questionNamed(assignment.substr(0, equals));
    const auto reply = replyNamed(assignment.substr(equals + 1));
    if (!question || !reply) return false;
    named_[std::string(question->name)] = *reply;
    return true;
}

std::optional<Reply> Answers::given(const Question* question) const {
    if (question)
        if (const auto found = named_.find(question->name); found != named_.end()) return found->second;
    return all_;
}

} // namespace cli
