// Edits in an editor reach the host's module.
#include "Apps/workbench/code/code_editor.h"
#include "Apps/workbench/editing/scintilla.h"
#include "tests/support/test_host.h"
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QTest>
#include <random>

namespace {

class Code : public testing::Test {
protected:
    workbench::CodeEditor& editorOf(const test::SampleProject& sample) {
        project = host.open(sample);
        component = project->VBComponents()->Item(1);
        editor = std::make_unique<workbench::CodeEditor>(
            component, workbench::CodeEditor::Shared{names, std::make_shared<workbench::ProjectMarks>()},
            [this](std::exception_ptr) { ++refused; });
        watch = host.ide->panes.codeChanged.connect([this](const auto&) { editor->codeChanged(); });
        return *editor;
    }
    QsciScintilla& text() { return editor->scintilla(); }
    std::string shown() { return text().text().toStdString(); }
    std::string held() { return workbench::codeOf(*component->CodeModule()).toStdString(); }
    std::string saved(const std::string& file) {
        component->SaveAs(component->FileNames(1));
        return host.folder.read(file);
    }
    static QStringList entries(const QComboBox& list) {
        QStringList all;
        for (int i = 0; i < list.count(); ++i) all << list.itemText(i);
        return all;
    }

    test::TestHost host;
    workbench::ProjectNames names{*host.ide};
    basic::Ref<vbide::VBProject> project;
    basic::Ref<vbide::VBComponent> component;
    std::unique_ptr<workbench::CodeEditor> editor;
    fernwick::Subscription watch;
    int refused = 0;
};

test::SampleProject moduleOf(const std::string& code) { return test::SampleProject().module("modA", code); }

} // namespace

TEST_F(Code, AnUntouchedModuleStaysClean) {
    editorOf(moduleOf("Sub A()\r\nEnd Sub\r\n"));
    EXPECT_EQ(shown(), "Sub A()\nEnd Sub");
    EXPECT_FALSE(component->IsDirty());
}

/// One letter for the style of each character: comment, number, keyword, string, preprocessor, operator, identifier, date,
/// unclosed string.
TEST_F(Code, EachPartOfTheLanguageHasItsStyle) {
    editorOf(moduleOf("#If x Then\r\nDim s As String ' c\r\ns = \"t\" & 12: d = #1/2/2000#\r\ns = \"open\r\n"));
    text().SendScintilla(QsciScintilla::SCI_COLOURISE, 0UL, -1L);
    std::string styles;
    for (int at = 0; at < int(shown().size()); ++at)
        styles += shown()[std::size_t(at)] == '\n'
                      ? '\n'
                      : " CNKSPOIDU"[text().SendScintilla(QsciScintilla::SCI_GETSTYLEAT, at)];
    EXPECT_EQ(styles, "PPPPPPPPPP\nKKK I KK KKKKKK CCC\nI O SSS O NNO I O DDDDDDDDDD\nI O UUUUU");
    EXPECT_STREQ(text().lexer()->language(), "Visual Basic");
}

TEST_F(Code, AnEmptyModuleAcceptsItsFirstLines) {
    editorOf(moduleOf(""));
    text().insert("Sub A()\nEnd Sub");
    EXPECT_EQ(held(), "Sub A()\nEnd Sub");
}

TEST_F(Code, ANewNameOfAShortModuleIsKnownAtOnce) {
    editorOf(moduleOf("Dim OldName\r\n"));
    EXPECT_EQ(names.at(component, 0)("oldname", ""), "OldName");
    component->CodeModule()->InsertLines(1, "Dim NewName");
    EXPECT_EQ(names.at(component, 0)("newname", ""), "NewName");
}

TEST_F(Code, APushedDownLineKeepsItsHiddenAttributes) {
    editorOf(test::SampleProject().classModule("clsA",
                                               "Public Sub A()\r\nAttribute A.VB_Description = \"x\"\r\nEnd Sub\r\n"));
    text().insertAt("\n", 0, 0);
    EXPECT_THAT(saved("clsA.cls"),
                testing::EndsWith("\r\n\r\nPublic Sub A()\r\nAttribute A.VB_Description = \"x\"\r\nEnd Sub\r\n"));
    text().undo();
    EXPECT_THAT(
        saved("clsA.cls"),
        testing::EndsWith("Exposed = False\r\nPublic Sub A()\r\nAttribute A.VB_Description = \"x\"\r\nEnd Sub\r\n"));
}

TEST_F(Code, UndoIsAnEditLikeAnyOther) {
    editorOf(moduleOf("Sub A()\r\nEnd Sub\r\n"));
    text().setSelection(0, 0, 1, 7);
    text().removeSelectedText();
    EXPECT_EQ(held(), "");
    text().undo();
    EXPECT_EQ(held(), "Sub A()\nEnd Sub");
}

/// The module equals the editor after any edit.
TEST_F(Code, AThousandEditsReachTheModule) {
    editorOf(moduleOf("Option Explicit\r\n\r\nSub A()\r\n    Beep\r\nEnd Sub\r\n"));
    std::mt19937 dice(7);
    const auto upTo = [&dice](long most) { return long(dice() % std::uint32_t(most + 1)); };
    for (int i = 0; i < 1000; ++i) {
        const long length = text().SendScintilla(QsciScintillaBase::SCI_GETLENGTH), at = upTo(length);
        switch (upTo(3)) {
        case 0:
            text().SendScintilla(QsciScintillaBase::SCI_DELETERANGE, (unsigned long)at, upTo(length - at) / 4);
            break;
        case 1: text().SendScintilla(QsciScintillaBase::SCI_INSERTTEXT, (unsigned long)at, "x\ny\n"); break;
        case 2: text().SendScintilla(QsciScintillaBase::SCI_INSERTTEXT, (unsigned long)at, "\n"); break;
        default: text().undo(); break;
        }
        ASSERT_EQ(held(), shown()) << i;
    }
    EXPECT_EQ(refused, 0);
}

TEST_F(Code, ACharacterThatTheFileCannotHoldIsRefused) {
    editorOf(moduleOf("Sub A()\r\nEnd Sub\r\n"));
    text().insertAt(QString::fromUtf8("\u4e2d"), 0, 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return refused == 1; }));
    EXPECT_EQ(shown(), "Sub A()\nEnd Sub");
    EXPECT_EQ(held(), shown());
}

TEST_F(Code, ARefusedCharacterReplacesNothing) {
    editorOf(moduleOf("Sub A()\r\nEnd Sub\r\n"));
    QTest::keyClicks(&text(), "x");
    text().setSelection(0, 0, 1, 3);
    QTest::sendKeyEvent(QTest::Click, &text(), Qt::Key_unknown, QString::fromUtf8("\u4e2d"), Qt::NoModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return refused == 1; }));
    QInputMethodEvent composed;
    composed.setCommitString(QString::fromUtf8("\u4e2d"));
    QApplication::sendEvent(&text(), &composed);
    EXPECT_TRUE(QTest::qWaitFor([this] { return refused == 2; }));
    QApplication::clipboard()->setText(QString::fromUtf8("a\n\u4e2d\nb"));
    text().paste();
    EXPECT_TRUE(QTest::qWaitFor([this] { return refused == 3; }));
    EXPECT_EQ(shown(), "xSub A()\nEnd Sub");
    EXPECT_EQ(held(), shown());
    text().undo(); // what was done before can still be undone
    EXPECT_EQ(held(), "Sub A()\nEnd Sub");
}

TEST_F(Code, CharactersOfTheFilesCodePageAreTypedAndPasted) {
    editorOf(moduleOf("' \r\n"));
    QTest::keyClick(&text(), Qt::Key_End, Qt::ControlModifier);
    QTest::sendKeyEvent(QTest::Click, &text(), Qt::Key_unknown, QString::fromUtf8("\u00e4"), Qt::NoModifier);
    QApplication::clipboard()->setText(QString::fromUtf8("\u00f6\n"));
    text().paste();
    EXPECT_EQ(held(), "' \u00e4\u00f6\n");
    EXPECT_EQ(refused, 0);
}

TEST_F(Code, EditsOfOthersAreShown) {
    editorOf(moduleOf("Sub A()\r\nEnd Sub\r\n"));
    component->CodeModule()->InsertLines(2, "    Beep");
    EXPECT_EQ(shown(), "Sub A()\n    Beep\nEnd Sub");
}

TEST_F(Code, TheListsShowObjectsAndTheirProcedures) {
    editorOf(test::SampleProject().form("frmA",
                                        "Private Sub Form_Load()\r\nEnd Sub\r\nPrivate Sub My_Own()\r\nEnd Sub\r\n"));
    auto& objects = *editor->findChild<QComboBox*>("objects");
    auto& procedures = *editor->findChild<QComboBox*>("procedures");
    EXPECT_EQ(entries(objects), (QStringList{"(General)", "Form"}));
    EXPECT_EQ(objects.currentText(), "Form");
    EXPECT_EQ(procedures.currentText(), "Load");
    EXPECT_EQ(entries(procedures).first(3), (QStringList{"Activate", "Click", "DblClick"}));
    editor->show();
    text().setCursorPosition(2, 0);
    EXPECT_TRUE(QTest::qWaitFor([&objects] { return objects.currentText() == "(General)"; }));
    EXPECT_EQ(entries(procedures), (QStringList{"(Declarations)", "My_Own"}));
    EXPECT_EQ(procedures.currentText(), "My_Own");
}

TEST_F(Code, ChoosingAProcedureShowsIt) {
    editorOf(moduleOf("Sub A()\r\nEnd Sub\r\nSub B()\r\nEnd Sub\r\n"));
    auto& procedures = *editor->findChild<QComboBox*>("procedures");
    procedures.setCurrentIndex(procedures.findText("B"));
    Q_EMIT procedures.activated(procedures.currentIndex());
    int line = 0, column = 0;
    text().getCursorPosition(&line, &column);
    EXPECT_EQ(line, 2);
}
