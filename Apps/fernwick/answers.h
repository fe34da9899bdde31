#pragma once
// How the command line answers the add-in's questions.
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace cli {

enum class Reply { Yes, No, Cancel, Ok };

std::string_view replyName(Reply reply);
/// yes, no, cancel or ok, letter case ignored.
std::optional<Reply> replyNamed(std::string_view name);

/// A question that the add-in can ask, under the name that --answer takes.
struct Question {
    std::string_view name;
    /// The form's type, or a piece of the box's text.
    std::string_view form;
    std::string_view boxText;
    Reply otherwise;
    std::string_view meaning;
};

/// The table of answers: each question with the answer that a script gets.
const Question* questionOfForm(std::string_view typeName);
const Question* questionOfBox(std::string_view text);
const Question* questionNamed(std::string_view name);
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
    std::optional<Reply> given(const Question* question) const;

private:
    std::optional<Reply> all_;
    std::map<std::string, Reply, std::less<>> named_;
};

} // namespace cli
