// Which button of a form answers a reply, and which replies a form has.
#include "Apps/fernwick/run/form_controls.h"
#include "tests/support/scripted_user.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using cli::Reply;
using testing::ElementsAre;

namespace {

class Buttons : public fernwick::Form {
public:
    Buttons(fernwick::Interaction& user, const std::vector<std::string>& names, const std::string& cancel = {})
        : Form(user) {
        for (const auto& name : names) {
            buttons_.push_back(std::make_unique<fernwick::CommandButton>(this, name, name, &Buttons::press));
            buttons_.back()->Cancel = name == cancel;
        }
    }
    const char* typeName() const override { return "frmButtons"; }
    std::string nameOf(Reply reply) {
        const auto* found = cli::buttonOf(*this, reply);
        return found ? found->Name : "none";
    }
    std::vector<std::string> namesOfAll() {
        return {nameOf(Reply::Yes), nameOf(Reply::No), nameOf(Reply::Ok), nameOf(Reply::Cancel)};
    }

private:
    void press() {}
    std::vector<std::unique_ptr<fernwick::CommandButton>> buttons_;
};

} // namespace

TEST(FormControls, YesAndNoHaveTheirButtons) {
    test::ScriptedUser user;
    Buttons form(user, {"btnYes", "btnNo"}, "btnNo");
    EXPECT_THAT(form.namesOfAll(), ElementsAre("btnYes", "btnNo", "none", "btnNo"));
    EXPECT_THAT(cli::repliesOf(form), ElementsAre(Reply::Yes, Reply::No));
}

TEST(FormControls, OkMeansYesAndCancelMeansNo) {
    test::ScriptedUser user;
    Buttons form(user, {"btnOK", "btnCancel"});
    EXPECT_THAT(form.namesOfAll(), ElementsAre("btnOK", "btnCancel", "btnOK", "btnCancel"));
    EXPECT_THAT(cli::repliesOf(form), ElementsAre(Reply::Ok, Reply::Cancel));
}

TEST(FormControls, EscapesButtonCancels) {
    test::ScriptedUser user;
    Buttons form(user, {"btnYes", "btnNo", "btnQuit"}, "btnQuit");
    EXPECT_THAT(form.namesOfAll(), ElementsAre("btnYes", "btnNo", "none", "btnQuit"));
    EXPECT_THAT(cli::repliesOf(form), ElementsAre(Reply::Yes, Reply::No, Reply::Cancel));
}

TEST(FormControls, AFormWithoutButtonsHasNoReplies) {
    test::ScriptedUser user;
    Buttons form(user, {});
    EXPECT_THAT(form.namesOfAll(), ElementsAre("none", "none", "none", "none"));
    EXPECT_TRUE(cli::repliesOf(form).empty());
    EXPECT_EQ(cli::formText(form), "");
}
