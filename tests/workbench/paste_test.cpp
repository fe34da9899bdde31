// Controls on the clipboard, and the history of a form.
#include "Apps/workbench/designer/control_clipboard.h"
#include "Apps/workbench/designer/form_commands.h"
#include "Host/files/resource_file.h"
#include "Host/model/forms/property_source.h"
#include "tests/workbench/canvas_desktop.h"
#include <QClipboard>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <fmt/format.h>
#include <random>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

struct Pasting : test::CanvasDesktop {
    Pasting() { QApplication::clipboard()->clear(); }

    void copy() { choose("&Edit", "&Copy"); }
    void cut() { choose("&Edit", "Cu&t"); }
    void paste() { choose("&Edit", "&Paste"); }
    /// Answers the question of control arrays.
    void paste(QMessageBox::StandardButton answer) {
        test::whenShown<QMessageBox>([this, answer](QMessageBox& box) {
            question = box.text();
            box.button(answer)->click();
        });
        paste();
    }
    /// After a box or another form, when controls can be pasted.
    bool returnsToForm() {
        window().activateWindow();
        canvas().setFocus();
        return QTest::qWaitFor([this] { return menuItem("&Edit", "&Paste")->isEnabled(); });
    }
    /// Undoes and redoes everything.
    void expectRoundTrip(int steps) {
        const auto after = saved("frmMain");
        for (int i = 0; i < steps; ++i) undo();
        EXPECT_EQ(saved("frmMain"), original);
        for (int i = 0; i < steps; ++i) redo();
        EXPECT_EQ(saved("frmMain"), after);
    }
    std::vector<std::string> added;
    fernwick::Subscription watchAdded() {
        const auto form = component("frmMain");
        const auto events = bench->host().Events()->VBControlsEvents(bench->host().ActiveVBProject(), form->Designer());
        return events->ItemAdded.connect(
            [this](auto control) { added.push_back(fernwick::asText(control->Properties()->Item("Name")->Value())); });
    }
    QString question;
};

} // namespace

TEST_F(Pasting, TheClipboardHasTheLinesOfTheForm) {
    openBoxes();
    choose({"fraD"});
    copy();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              crLfOf("Begin VB.Frame fraD \n   Height          =   600\n   Left            =   2400\n"
                     "   Top             =   2400\n   Width           =   1200\n   Begin VB.CommandButton cmdIn \n"
                     "      Height          =   240\n      Left            =   60\n      Top             =   60\n"
                     "      Width           =   240\n   End\nEnd\n"));
    EXPECT_EQ(saved("frmMain"), original);
}

TEST_F(Pasting, ACutControlReturnsOneStepAside) {
    openBoxes();
    choose({"cmdB"});
    cut();
    EXPECT_FALSE(view().picture().find(view().selected()));
    const auto without = saved("frmMain");
    EXPECT_THAT(without, Not(HasSubstr("cmdB")));
    const auto watch = watchAdded();
    paste();
    EXPECT_THAT(added, ElementsAre("cmdB"));
    EXPECT_THAT(selection(), ElementsAre("cmdB"));
    EXPECT_EQ(difference(without, saved("frmMain")),
              "+   Begin VB.CommandButton cmdB \n+      Height          =   600\n+      Left            =   1920\n"
              "+      Top             =   360\n+      Width           =   1200\n+   End\n");
    expectRoundTrip(2);
    EXPECT_EQ(added.size(), 1u); // a redone paste notifies nobody
}

TEST_F(Pasting, ANameInUseBecomesAControlArrayIfTheUserAgrees) {
    openBoxes();
    choose({"cmdA"});
    copy();
    view().select(nullptr);
    paste(QMessageBox::Yes);
    EXPECT_EQ(question, "You already have a control named 'cmdA'. Do you want to create a control array?");
    EXPECT_THAT(saved("frmMain"), HasSubstr(crLfOf("   Begin VB.CommandButton cmdA \n      Height          =   600\n"
                                                   "      Index           =   1\n      Left            =   360\n")));
    EXPECT_THAT(saved("frmMain"), HasSubstr(crLfOf("      Height          =   600\n      Index           =   0\n"
                                                   "      Left            =   240\n")));
    view().select(nullptr);
    paste(); // is an array already
    EXPECT_THAT(saved("frmMain"), HasSubstr("      Index           =   2\r\n      Left            =   480\r\n"));
    expectRoundTrip(2);
}

TEST_F(Pasting, ANameInUseIsReplacedIfTheUserDeclines) {
    openBoxes();
    choose({"fraD"});
    copy();
    view().select(nullptr);
    int asked = 0;
    test::whenShown<QMessageBox>([&asked](QMessageBox& box) {
        ++asked;
        test::whenShown<QMessageBox>([&asked](QMessageBox& next) {
            ++asked;
            next.button(QMessageBox::No)->click();
        });
        box.button(QMessageBox::No)->click();
    });
    paste();
    EXPECT_EQ(asked, 2); // the frame and its button
    EXPECT_TRUE(control("Frame1"));
    EXPECT_EQ(control("Frame1")->ContainedVBControls().size(), 1u);
    EXPECT_TRUE(control("Command1"));
    expectRoundTrip(1);
}

TEST_F(Pasting, ASelectedContainerGetsTheControls) {
    openBoxes();
    choose({"cmdA", "cmdB"});
    cut();
    choose({"fraD"});
    paste();
    EXPECT_EQ(control("fraD")->ContainedVBControls().size(), 3u);
    EXPECT_THAT(saved("frmMain"), HasSubstr("      Begin VB.CommandButton cmdA \r\n         Height "));
    EXPECT_THAT(selection(), ElementsAre("cmdA", "cmdB"));
    expectRoundTrip(2);
}

TEST_F(Pasting, WhatAnAddInChangesBelongsToTheStep) {
    openBoxes();
    choose({"cmdA", "cmdB"});
    cut();
    const auto form = component("frmMain");
    const auto events = bench->host().Events()->VBControlsEvents(bench->host().ActiveVBProject(), form->Designer());
    const auto watch = events->ItemAdded.connect([&](auto control) {
        if (fernwick::asText(control->Properties()->Item("Name")->Value()) == "cmdA")
            form->Designer()->VBControls()->Remove(control);
        else
            control->Properties()->Item("TabStop")->Value(false);
    });
    paste();
    EXPECT_THAT(selection(), ElementsAre("cmdB"));
    EXPECT_THAT(saved("frmMain"), Not(HasSubstr("cmdA")));
    EXPECT_THAT(saved("frmMain"), HasSubstr("TabStop         =   0   'False"));
    expectRoundTrip(2);
}

TEST_F(Pasting, OtherFormsLackTheResourcesOfThisOne) {
    openForm(box("PictureBox", "picA", 240, 240, "      Picture         =   \"frmMain.frx\":0000\n"));
    choose({"picA"});
    copy();
    view().select(nullptr);
    paste(QMessageBox::Yes);
    EXPECT_THAT(saved("frmMain"), HasSubstr("\"frmMain.frx\":0000"));
    bench->host().ActiveVBProject()->VBComponents()->Add(vbide::vbext_ct_VBForm);
    settle();
    ASSERT_NE(view().component(), component("frmMain"));
    ASSERT_TRUE(returnsToForm());
    paste();
    EXPECT_TRUE(control("picA"));
    view().component()->SaveAs(folder / "Other.frm");
    EXPECT_THAT(folder.read("Other.frm"), Not(HasSubstr("frmMain.frx")));
}

TEST_F(Pasting, OtherFormsGetTheRecordsTheyNeed) {
    const auto picture = host::pictureRecord("BM, a picture", false), items = host::listRecord({"One", "Two"});
    const auto numbers = host::itemDataRecord({"7", "8"}), lines = host::textRecord("One\r\nTwo");
    folder.write("frmMain.frx", picture + items + numbers + lines);
    const auto at = [&](std::size_t offset) { return fmt::format("\"frmMain.frx\":{:04X}\n", offset); };
    openForm(box("PictureBox", "picA", 240, 240, "      Picture         =   " + at(0)) +
             box("ListBox", "lstB", 240, 960,
                 "      ItemData        =   " + at(picture.size() + items.size()) +
                     "      List            =   " + at(picture.size())) +
             box("TextBox", "txtC", 240, 1800,
                 "      MultiLine       =   -1  'True\n      Text            =   " +
                     at(picture.size() + items.size() + numbers.size())));
    choose({"picA", "lstB", "txtC"});
    copy();
    bench->host().ActiveVBProject()->VBComponents()->Add(vbide::vbext_ct_VBForm);
    settle();
    ASSERT_TRUE(returnsToForm());
    paste();
    const auto expectValues = [this] {
        EXPECT_EQ(fernwick::asText(control("txtC")->Properties()->Item("Text")->Value()), "One\r\nTwo");
        EXPECT_EQ(host::itemsOf(control("lstB")->Properties()->Item("List")), (std::vector<std::string>{"One", "Two"}));
        EXPECT_EQ(host::itemsOf(control("lstB")->Properties()->Item("ItemData")), (std::vector<std::string>{"7", "8"}));
        EXPECT_EQ(host::imageOf(control("picA")->Properties()->Item("Picture")), "BM, a picture");
    };
    expectValues();
    undo();
    EXPECT_TRUE(view().picture().controls.empty());
    redo();
    expectValues();
    view().component()->SaveAs(folder / "Other.frm");
    EXPECT_EQ(folder.read("Other.frx").size(), picture.size() + items.size() + numbers.size() + lines.size());
    EXPECT_THAT(folder.read("Other.frm"), Not(HasSubstr("frmMain.frx")));
}

TEST_F(Pasting, InvalidContentsAreRefused) {
    openBoxes();
    const auto expectRefused = [this](const char* text) {
        auto* const data = new QMimeData;
        data->setData("application/x-fernwick-controls", text);
        QApplication::clipboard()->setMimeData(data);
        ASSERT_TRUE(returnsToForm()) << text;
        question.clear();
        test::whenShown<QMessageBox>([this](QMessageBox& box) {
            question = box.text();
            box.accept();
        });
        paste();
        EXPECT_EQ(question, "The text has no controls.") << text;
        EXPECT_EQ(saved("frmMain"), original);
    };
    for (const char* text : {"", "nonsense", "Begin", "Begin VB.Menu mnuA \r\nEnd\r\n", "Begin VB.Label lblA \r\n",
                             "Begin Label lblA \r\nEnd\r\n", "Begin VB.Label 1 \r\nEnd\r\n", "End\r\nEnd\r\n"})
        expectRefused(text);
}

TEST_F(Pasting, DuplicatesStayInTheirContainer) {
    openBoxes();
    choose({"cmdIn"});
    test::whenShown<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
    choose("F&ormat", "D&uplicate");
    EXPECT_EQ(control("fraD")->ContainedVBControls().size(), 2u);
    EXPECT_EQ(placeOf("Command1"), placeOf("cmdIn").translated(8, 8));
    expectRoundTrip(1);
}

TEST_F(Pasting, TextsKeepTheirOwnClipboard) {
    openBoxes();
    choose({"cmdA"});
    copy();
    settle();
    EXPECT_TRUE(menuItem("&Edit", "&Paste")->isEnabled());
    QApplication::clipboard()->setText("words");
    settle();
    EXPECT_FALSE(menuItem("&Edit", "&Paste")->isEnabled());
    EXPECT_TRUE(menuItem("&Edit", "&Copy")->isEnabled());
}

TEST_F(Pasting, SelectAllSelectsInTheContainer) {
    openBoxes();
    canvas().setFocus();
    choose("&Edit", "Select &All");
    EXPECT_THAT(selection(), ElementsAre("fraD", "cmdC", "cmdB", "cmdA"));
    choose({"cmdIn"});
    choose("&Edit", "Select &All");
    EXPECT_THAT(selection(), ElementsAre("cmdIn"));
    choose("&Edit", "&Delete");
    expectRoundTrip(1);
}

TEST_F(Pasting, UndoKeepsWhatOthersChanged) {
    openBoxes();
    choose({"cmdA"});
    key(Qt::Key_Right, Qt::ControlModifier);
    control("cmdA")->Properties()->Item("Caption")->Value(std::string("Other"));
    component("frmMain")->Designer()->VBControls()->Add("VB.Label");
    undo();
    EXPECT_EQ(valueOf("cmdA", "Left"), "240");
    EXPECT_EQ(valueOf("cmdA", "Caption"), "Other");
    EXPECT_TRUE(control("Label1"));
    redo();
    EXPECT_EQ(valueOf("cmdA", "Left"), "360");
    EXPECT_TRUE(control("Label1"));
}

TEST_F(Pasting, ANewStepEndsTheRedo) {
    openBoxes();
    choose({"cmdA"});
    key(Qt::Key_Right, Qt::ControlModifier);
    undo();
    key(Qt::Key_Down, Qt::ControlModifier);
    settle();
    EXPECT_FALSE(menuItem("&Edit", "&Redo")->isEnabled());
    undo();
    EXPECT_EQ(saved("frmMain"), original);
}

/// Random gestures; FERNWICK_SEED repeats a run.
TEST_F(Pasting, AnyGesturesAreUndoneAndRedone) {
    openBoxes("   Begin VB.Menu mnuFile \n      Caption         =   \"&File\"\n   End\n");
    const unsigned seed = qEnvironmentVariableIsSet("FERNWICK_SEED")
                              ? unsigned(qEnvironmentVariableIntValue("FERNWICK_SEED"))
                              : std::random_device{}();
    std::printf("seed %u\n", seed);
    std::mt19937 random(seed);
    const auto roll = [&](int below) { return int(random() % unsigned(below)); };
    const auto place = [&] { return QPointF(pointOn(QPointF(roll(416), roll(416)))); };
    const auto modifiers = [&] {
        return std::array<Qt::KeyboardModifiers, 3>{Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier}[roll(3)];
    };
    using workbench::Arrangement;
    const std::vector<std::function<void()>> commands{[&] { arrange(view(), Arrangement::AlignLefts); },
                                                      [&] { arrange(view(), Arrangement::AlignToGrid); },
                                                      [&] { arrange(view(), Arrangement::SameSize); },
                                                      [&] { arrange(view(), Arrangement::MoreSpaceAcross); },
                                                      [&] { arrange(view(), Arrangement::CentreDown); },
                                                      [&] { bringToFront(view()); },
                                                      [&] { sendToBack(view()); },
                                                      [&] { copyControls(view()); }};
    const std::vector<std::function<void()>> gestures{
        [&] {
            canvas().press(place(), modifiers());
            canvas().moveTo(place());
            canvas().release(place());
        },
        [&] {
            if (view().selected()) canvas().press(gripOf(selected()));
            canvas().moveTo(place());
            canvas().moveTo(place());
            canvas().release(place());
        },
        [&] {
            canvas().key(std::array{Qt::Key_Left, Qt::Key_Down, Qt::Key_Right, Qt::Key_Tab}[roll(4)], modifiers());
        },
        [&] {
            if (roll(6) == 0) canvas().key(Qt::Key_Delete);
        },
        [&] { commands[std::size_t(roll(int(commands.size())))](); },
        [&] {
            // a name in use is renamed, as the question is answered
            QTimer answer;
            QObject::connect(&answer, &QTimer::timeout, [] {
                if (auto* const asked = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget()))
                    asked->button(QMessageBox::No)->click();
            });
            answer.start(5);
            if (view().picture().controls.size() < 20) pasteControls(view());
        },
        [&] { view().add("VB.Label", QRectF(roll(300), roll(300), 40, 24)); },
    };
    canvas().setFocus();
    constexpr int kGestures = 300;
    for (int i = 0; i < kGestures; ++i) gestures[std::size_t(roll(int(gestures.size())))]();
    const auto after = saved("frmMain");
    int steps = 0;
    for (; desk().stepToUndo(); ++steps) desk().undo();
    EXPECT_LT(steps, 200); // else the first ones were dropped
    EXPECT_EQ(saved("frmMain"), original) << "seed " << seed;
    for (int i = 0; i < steps; ++i) desk().redo();
    EXPECT_EQ(saved("frmMain"), after) << "seed " << seed;
    EXPECT_FALSE(desk().stepToRedo());
}

TEST_F(Pasting, TheContextMenuHasTheCommands) {
    openBoxes();
    choose({"cmdA", "cmdB"});
    canvas().contextMenu(middleOf("cmdB"), {10, 10});
    auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    EXPECT_THAT(selection(), ElementsAre("cmdA", "cmdB"));
    QStringList texts;
    for (const auto* action : menu->actions())
        if (!action->isSeparator() && action->isEnabled()) texts << action->text();
    menu->close();
    EXPECT_EQ(texts.join(' '), "&Code Cu&t &Copy &Delete Align to &Grid &Bring to Front &Send to Back &Tab Order "
                               "&Lock Controls &Menu Editor... Properties &Window");
    canvas().contextMenu(middleOf("cmdC"), {10, 10});
    QApplication::activePopupWidget()->close();
    EXPECT_THAT(selection(), ElementsAre("cmdC"));
    settle();
    EXPECT_FALSE(window().findChild<QMenu*>("designerMenu")); // closed ones do not add up
}
