#include "Apps/fernwick/options/answers.h"
#include "Apps/fernwick/options/suggestions.h"
#include "Basic/case_folding.h"
#include <array>
#include <fmt/format.h>

namespace cli {

namespace {

// The two kinds of askers.
using Box = fernwick::Question;
using FormType = std::string_view;

constexpr std::array kQuestions{
    KnownQuestion{"save-files", FormType("frmSaveProjectFiles"), Reply::No,
                  "save files before compiling? (yes if nothing is unsaved)"},
    KnownQuestion{"save-warning", FormType("frmSaveWarning"), Reply::Ok, "the project must be saved"},
    KnownQuestion{"not-current", FormType("frmCompileWarning"), Reply::Yes,
                  "the compiled file is not current: compile?"},
    KnownQuestion{"device", FormType("frmDesignTargetNormal"), Reply::Cancel, "which device? (see --device)"},
    KnownQuestion{"failed-step", Box::FailedStep, Reply::No, "a pre-compile step failed: continue?"},
    KnownQuestion{"convert-dpi", Box::ConvertForms, Reply::No, "convert forms from another screen resolution?"},
    KnownQuestion{"copy-file", Box::CopyFile, Reply::No, "copy a dependency to the project folder?"},
    KnownQuestion{"missing-file", Box::MissingFile, Reply::No, "a dependency or font file is missing: continue?"},
    KnownQuestion{"edit-list", Box::EditDependencies, Reply::No, "edit the project's dependencies?"},
    KnownQuestion{"deploy-errors", Box::DeployWithErrors, Reply::No,
                  "the project has compile errors: deploy the old image?"},
    KnownQuestion{"replace-file", Box::ReplaceFile, Reply::No, "overwrite an existing file?"},
    KnownQuestion{"invalid-refs", Box::InvalidReferences, Reply::No,
                  "remove the references that the new device lacks?"},
    KnownQuestion{"convert-files", Box::ConvertedFiles, Reply::No,
                  "replace these files, or write outside of the new folder?"},
};

template <class Test>
const KnownQuestion* find(Test&& test) {
    for (const auto& question : kQuestions)
        if (test(question)) return &question;
    return nullptr;
}

std::vector<std::string> questionNames() {
    std::vector<std::string> names;
    for (const auto& question : kQuestions) names.emplace_back(question.name);
    return names;
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

const KnownQuestion* questionOfForm(std::string_view typeName) {
    return find([&](const KnownQuestion& known) { return known.asker == decltype(known.asker)(typeName); });
}

const KnownQuestion* questionOfBox(fernwick::Question question) {
    return find([&](const KnownQuestion& known) { return known.asker == decltype(known.asker)(question); });
}

const KnownQuestion* questionNamed(std::string_view name) {
    return find([&](const KnownQuestion& known) { return known.name == name; });
}

std::string describeQuestions() {
    std::string text;
    for (const auto& question : kQuestions)
        text += fmt::format("  {:<14}{:<8}{}\n", question.name, replyName(question.otherwise), question.meaning);
    return text;
}

std::string Answers::add(std::string_view assignment) {
    const auto equals = assignment.find('=');
    if (equals == assignment.npos) return fmt::format("{} has no reply; write NAME=REPLY", assignment);
    const auto name = assignment.substr(0, equals), given = assignment.substr(equals + 1);
    const auto* question = questionNamed(name);
    if (!question) return fmt::format("unknown question {}{}", name, didYouMean(name, questionNames()));
    const auto reply = replyNamed(given);
    if (!reply) return fmt::format("unknown reply {}; use yes, no, cancel or ok", given);
    named_[std::string(question->name)] = *reply;
    return {};
}

std::optional<Reply> Answers::given(const KnownQuestion* question) const {
    if (question)
        if (const auto found = named_.find(question->name); found != named_.end()) return found->second;
    return all_;
}

} // namespace cli
