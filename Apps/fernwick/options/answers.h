#pragma once
// How the command line answers the add-in's questions.
#include "Add-in/platform/interaction.h"
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace cli {

enum class Reply { Yes, No, Cancel, Ok };

std::string_view replyName(Reply reply);
/// yes, no, cancel or ok, letter case ignored.
std::optional<Reply> replyNamed(std::string_view name);

/// A question that the add-in can ask.
struct KnownQuestion {
    /// What --answer calls it.
    std::string_view name;
    /// The type of the form, or the question of the message box.
    std::variant<std::string_view, fernwick::Question> asker;
    /// The answer that a script gets.
    Reply otherwise;
    std::string_view meaning;
};

/// Null for an asker or a name that is not in the table.
const KnownQuestion* questionOfForm(std::string_view typeName);
const KnownQuestion* questionOfBox(fernwick::Question question);
const KnownQuestion* questionNamed(std::string_view name);
/// The table as help text, a line each.
std::string describeQuestions();

/// What the options say, above the table.
class Answers {
public:
    /// --yes and --no.
    void everything(Reply reply) { all_ = reply; }
    /// --answer NAME=REPLY. False for a name or reply that is not known.
    bool add(std::string_view assignment);
    /// The reply that the options give to a question; none where they are silent.
    std::optional<Reply> given(const KnownQuestion* question) const;

private:
    std::optional<Reply> all_;
    std::map<std::string, Reply, std::less<>> named_;
};

} // namespace cli
