#include "Apps/fernwick/run/command_line_user.h"
#include <gtest/gtest.h>

namespace {

using cli::CommandLineUser;
using fernwick::Question;

int answerTo(Question question, const std::string& words, const std::string& given = {}) {
    cli::Console console{cli::Verbosity::Quiet};
    cli::Answers answers;
    if (!given.empty()) answers.add(given);
    CommandLineUser user{console, answers, {}};
    return user.ask(question, words, fernwick::vbYesNo, "Fernwick");
}

TEST(Answers, FindsAQuestionWhateverItsWords) {
    EXPECT_EQ(answerTo(Question::ReplaceFile, "Overwrite it?", "replace-file=yes"), fernwick::vbYes);
    EXPECT_EQ(answerTo(Question::ReplaceFile, "Overwrite it?", "copy-file=yes"), fernwick::vbNo);
}

TEST(Answers, HasARowForEveryBoxQuestion) {
    for (int question = 0; question <= int(Question::ReplaceFile); ++question)
        EXPECT_NE(cli::questionOfBox(Question(question)), nullptr) << question;
}

TEST(Answers, GivesOtherBoxesTheHarmlessAnswer) {
    cli::Console console{cli::Verbosity::Quiet};
    CommandLineUser user{console, {}, {}};
    EXPECT_EQ(user.MsgBox("Continue?", fernwick::vbYesNo, "Fernwick"), fernwick::vbNo);
    EXPECT_EQ(user.MsgBox("Continue?", fernwick::vbOKCancel, "Fernwick"), fernwick::vbCancel);
}

TEST(Answers, AgreeWithAnOkToAQuestionThatHasNoYes) {
    cli::Console console{cli::Verbosity::Quiet};
    cli::Answers answers;
    answers.add("replace-file=yes");
    CommandLineUser user{console, answers, {}};
    EXPECT_EQ(user.ask(Question::ReplaceFile, "Overwrite it?", fernwick::vbOKCancel, "Fernwick"), fernwick::vbOK);
}

} // namespace
