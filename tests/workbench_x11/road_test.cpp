// From an edit to the device, once with the mouse only and once with the keyboard only.
#include "tests/workbench_x11/x_desktop.h"
#include <QToolBar>
#include <gmock/gmock.h>

using namespace test;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace {

struct Road : XDesktop {
    void waitForSelection(const QString& line) {
        eventually("the line of the message is chosen", [&] { return code() && code()->selectedText() == line; });
    }
    static Answer yes(With hand) { return {hand, {"btnYes", "OK"}}; }
    static bool isSent() { return !filesOnDevices().empty(); }
};

} // namespace

TEST_F(Road, ByTheMouseAlone) {
    openSample("HelloWorld");
    // edit
    click(explorerEntry("frmHello"));
    choose("&View", "&Code");
    eventually("the code of frmHello", [this] { return code() && code()->isVisible(); });
    doubleClick(wordInCode("Const NAME_PREFERENCE"));
    doubleClick(wordInCode("Const"));
    eventually("a word is chosen", [this] { return code()->selectedText() == "Const"; });
    choose("&Edit", "Cu&t");
    eventually("the word is gone", [this] { return !code()->text().contains("Const"); });
    // save
    choose("&File", "Sa&ve Project");
    eventually("it is saved", [this] { return !component("frmHello")->IsDirty(); });
    EXPECT_THAT(read("HelloWorld/frmHello.frm"), Not(HasSubstr("Const ")));
    // compile
    choose("&Fernwick", "Compile and &Validate");
    answerUntil("messages", yes(With::Mouse), [this] {
        return !QApplication::activeModalWidget() && messages() && messages()->model()->rowCount() > 0;
    });
    // jump
    doubleClick(ask([this] {
        return middleOf(*messages()->viewport(), messages()->visualRect(messages()->model()->index(0, 5)));
    }));
    waitForSelection("Private  NAME_PREFERENCE As String = \"Name\"");
    // fix
    choose("&Edit", "&Undo");
    eventually("the word is back", [this] { return code()->text().contains("Private Const"); });
    choose("&File", "Sa&ve Project");
    // deploy
    click(ask([this] {
        auto& bar = *window().findChild<QToolBar*>("Fernwick");
        return middleOf(*bar.widgetForAction(bar.actions().at(1)));
    }));
    answerUntil("the device has it", yes(With::Mouse), [] { return isSent() && !QApplication::activeModalWidget(); });
    EXPECT_THAT(filesOnDevices(), Contains("HelloWorld.0000.qlx"));
    EXPECT_THAT(read("HelloWorld/frmHello.frm"), HasSubstr("Private Const NAME_PREFERENCE"));
}

TEST_F(Road, ByTheKeyboardAlone) {
    openSample("HelloWorld");
    // edit
    if (!ask([this] { return window().explorer().hasFocus(); })) press({"ctrl+r"});
    eventually("the explorer has the keys", [this] { return window().explorer().hasFocus(); });
    press({"Home", "Down", "Down"});
    eventually("frmHello is chosen",
               [this] { return window().explorer().currentComponent() == component("frmHello"); });
    press({"F7"});
    eventually("the code of frmHello", [this] { return code() && code()->hasFocus(); });
    press({"ctrl+End", "Return"});
    type("Sub Broken(");
    eventually("it is typed", [this] { return code()->text().endsWith("Sub Broken("); });
    // save
    press({"ctrl+s"});
    eventually("it is saved", [this] { return !component("frmHello")->IsDirty(); });
    EXPECT_THAT(read("HelloWorld/frmHello.frm"), HasSubstr("Sub Broken("));
    // compile
    press({"F5"});
    answerUntil("messages", yes(With::Keyboard), [this] {
        return !QApplication::activeModalWidget() && messages() && messages()->model()->rowCount() > 0;
    });
    // jump
    press({"ctrl+m"});
    eventually("the messages have the keys", [this] { return messages()->hasFocus(); });
    press({"Home", "Return"});
    waitForSelection("Sub Broken(");
    eventually("the code has the keys", [this] { return code()->hasFocus(); });
    // fix
    press({"Delete", "ctrl+s"});
    eventually("it is saved", [this] { return !component("frmHello")->IsDirty(); });
    EXPECT_THAT(read("HelloWorld/frmHello.frm"), Not(HasSubstr("Broken")));
    // deploy
    press({"F5"});
    answerUntil("the device has it", yes(With::Keyboard),
                [] { return isSent() && !QApplication::activeModalWidget(); });
    EXPECT_THAT(filesOnDevices(), Contains("HelloWorld.0000.qlx"));
}
