#pragma once
// The answers to the add-in's questions.
#include "Add-in/platform/interaction.h"
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace cli {

enum class Reply { Yes, No, Cancel, Ok };

std::string_view replyName(Reply reply);
/// yes, no, cancel or ok, in any letter case.
std::optional<Reply> replyNamed(std::string_view name);

/// A question that the add-in can ask.
struct KnownQuestion {
    /// The name for --answer.
    std::string_view name;
    /// The type of the form, or the question of the message box.
    std::variant<std::string_view, fernwick::Question> asker;
    /// The answer without options and without a terminal.
    Reply otherwise;
    std::string_view meaning;
};

/// Null for an asker or a name that is not in the table.
const KnownQuestion* questionOfForm(std::string_view typeName);
const KnownQuestion* questionOfBox(fernwick::Question question);
const KnownQuestion* questionNamed(std::string_view name);
/// The table as help text, one line each.
std::string describeQuestions();

/// The answers given by options. They override the table.
class Answers {
public:
    /// --yes and --no.
    void everything(Reply reply) { all_ = reply; }
    /// --answer NAME=REPLY. Returns what is wrong with it; "" if nothing is.
    std::string add(std::string_view assignment);
    /// The reply that the options give to a question, if any.
    std::optional<Reply> given(const KnownQuestion* question) const;

private:
    std::optional<Reply> all_;
    std::map<std::string, Reply, std::less<>> named_;
};

} // namespace cli
