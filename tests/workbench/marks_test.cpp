// Bookmarks, breakpoints, folding and the lines between procedures.
#include "Apps/workbench/base/state_folder.h"
#include "Apps/workbench/editing/fold_levels.h"
#include "Apps/workbench/editing/procedure_lines.h"
#include "Apps/workbench/marks/breakpoint_file.h"
#include "Apps/workbench/marks/statement_lines.h"
#include "Apps/workbench/options/declared_options.h"
#include "tests/workbench/open_desktop.h"
#include <QDir>
#include <QLabel>
#include <fmt/format.h>

using testing::ElementsAre;

namespace {

constexpr auto kCode = "Dim x\r\n"         // 0
                       "' Works\r\n"       // 1
                       "Sub Work()\r\n"    // 2
                       "    Dim a\r\n"     // 3
                       "    If x Then\r\n" // 4
                       "        Beep\r\n"  // 5
                       "    End If\r\n"    // 6
                       "End Sub\r\n"       // 7
                       "\r\n"              // 8
                       "Sub Other()\r\n"   // 9
                       "    f a, _\r\n"    // 10
                       "      b\r\n"       // 11
                       "End Sub\r\n";      // 12

class Marks : public test::OpenDesktop {
protected:
    Marks() {
        path = test::SampleProject().module("modA", kCode).module("modB", kCode).writeTo(folder);
        openFile(path);
        text = &code("modA");
    }

    workbench::EditorMarks& marks(const std::string& name = "modA") { return editor(name).ownMarks(); }
    std::vector<int> breakpoints(const std::string& name = "modA") {
        std::vector<int> lines;
        for (const auto& mark : marks(name).placed().breakpoints) lines.push_back(mark.line);
        return lines;
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&window().code().current()->scintilla(), key, modifiers);
        settle();
    }
    std::string place() {
        const auto at = window().code().current()->place();
        return fmt::format("{} {}", at.component->Name(), at.line);
    }
    int folded(int line) { return text->SendScintilla(QsciScintilla::SCI_GETLINEVISIBLE, line) == 0; }
    void closeAndOpen() {
        window().code().closeAll();
        settle();
        clean(project());
        bench->host().VBProjects()->Remove(project());
        settle();
        openFile(path);
        text = &code("modA");
    }

    std::string path;
    QsciScintilla* text = nullptr;
};

} // namespace

// ---- bookmarks ------------------------------------------------------------------------------------------------------

TEST_F(Marks, BookmarksAreVisitedInTheOrderOfTheProject) {
    marks("modB").bookmarks().toggle(1);
    window().code().closeCurrent();
    marks().bookmarks().toggle(8);
    text->setCursorPosition(5, 2);
    key(Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
    key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(place(), "modA 8");
    key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(place(), "modB 1");
    key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(place(), "modA 5");
    key(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(place(), "modB 1");
    window().markCommands().clearBookmarks();
    key(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(place(), "modB 1");
    EXPECT_TRUE(marks().bookmarks().lines().empty());
}

TEST_F(Marks, FollowEdits) {
    marks().bookmarks().toggle(5);
    marks().toggleBreakpoint(6);
    text->insertAt("\n\n", 0, 0);
    component("modA")->CodeModule()->InsertLines(1, "Dim y"); // by an add-in
    EXPECT_THAT(marks().bookmarks().lines(), ElementsAre(8));
    EXPECT_THAT(breakpoints(), ElementsAre(9));
    component("modA")->CodeModule()->ReplaceLine(13, "Sub Others()"); // below them
    EXPECT_THAT(breakpoints(), ElementsAre(9));
}

TEST_F(Marks, SurviveTheirWindow) {
    marks().bookmarks().toggle(8);
    marks().toggleBreakpoint(5);
    window().code().closeAll();
    settle();
    component("modA")->CodeModule()->InsertLines(1, "Dim y");
    text = &code("modA");
    EXPECT_THAT(breakpoints(), ElementsAre(6));
}

TEST_F(Marks, OfMessagesLeaveThemAlone) {
    marks().bookmarks().toggle(8);
    editor("modA").marks().show({{2, true, "x"}});
    editor("modA").marks().show({});
    EXPECT_THAT(marks().bookmarks().lines(), ElementsAre(8));
}

// ---- breakpoints ----------------------------------------------------------------------------------------------------

TEST_F(Marks, BreakpointsAreSetByKeyAndByMouse) {
    text->setCursorPosition(5, 2);
    key(Qt::Key_F9);
    EXPECT_THAT(breakpoints(), ElementsAre(5));
    Q_EMIT text->marginClicked(2, 6, Qt::NoModifier);
    EXPECT_THAT(breakpoints(), ElementsAre(5, 6));
    key(Qt::Key_F9);
    EXPECT_THAT(breakpoints(), ElementsAre(6));
    key(Qt::Key_F9, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(breakpoints().empty());
}

TEST_F(Marks, BreakpointsNeedAStatement) {
    std::vector<int> lines;
    for (int line = 0; line < text->lines(); ++line)
        if (workbench::holdsStatement(*text, line)) lines.push_back(line);
    EXPECT_THAT(lines, ElementsAre(2, 4, 5, 6, 7, 9, 10, 12));
    text->setCursorPosition(3, 0);
    key(Qt::Key_F9);
    EXPECT_TRUE(breakpoints().empty());
    EXPECT_TRUE(window().notice().isVisible());
}

TEST_F(Marks, BreakpointsSurviveClosingAndChangesByOthers) {
    const auto before = folder.read("modA.bas");
    text->setCursorPosition(5, 2);
    key(Qt::Key_F9);
    marks("modB").toggleBreakpoint(4);
    window().markCommands().clearBookmarks();
    text = &code("modA");
    closeAndOpen();
    EXPECT_THAT(breakpoints(), ElementsAre(5));
    EXPECT_THAT(breakpoints("modB"), ElementsAre(4));
    EXPECT_EQ(folder.read("modA.bas"), before);
    clean(project());
    bench->host().VBProjects()->Remove(project());
    auto changed = before;
    folder.write("modA.bas", changed.insert(changed.find("Dim x"), "Dim y\r\nDim z\r\n"));
    openFile(path);
    EXPECT_THAT(breakpoints(), ElementsAre(7));
}

TEST(PlacedMarks, MoveToTheNearestLineWithTheirText) {
    const QStringList text{"a", "b", " a ", "c", "b"};
    for (const auto& [line, of, found] : {std::tuple(2, "a", 2),
                                          {0, "a", 0},
                                          {1, "a", 2}, // as near as line 0
                                          {3, "b", 4},
                                          {2, "b", 1},
                                          {4, "a", 2},
                                          {0, "c", 3},
                                          {9, "b", 4},
                                          {9, "c", 3},
                                          {4, "x", -1},
                                          {4, "", -1}})
        EXPECT_EQ(workbench::lineOf({line, of}, text), found) << line << " " << of;
    EXPECT_EQ(workbench::lineOf({4, "first"}, {"first", "", "", "", ""}), 0);
    EXPECT_EQ(workbench::lineOf({0, "last"}, {"", "", "", "", "last"}), 4);
    EXPECT_THAT(workbench::linesOf({{4, "a"}, {0, "x"}, {0, "c"}}, text), ElementsAre(2, 3));
}

TEST_F(Marks, ABreakpointIsRemovedWithItsStatement) {
    marks().toggleBreakpoint(5);
    text->insertAt("' ", 5, 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return breakpoints().empty(); }));
}

TEST_F(Marks, DamagedFilesOfBreakpointsAreEmpty) {
    const auto project = QString::fromStdString(path);
    workbench::writeBreakpoints(project, {{"modA", {{4, "If x\tThen"}}}});
    const QDir stored(workbench::stateFolder() + "/breakpoints");
    const auto name = stored.filePath(stored.entryList(QDir::Files).front());
    EXPECT_EQ(workbench::readBreakpoints(project)["modA"].front(), (workbench::PlacedMark{4, "If x\tThen"}));
    const auto good = std::string("Fernwick breakpoints 1\n") + path + "\n";
    for (const auto& bad :
         std::vector<std::string>{std::string(), std::string("x"), good + "modA\t0\tBeep\n", good + "modA\t5\n",
                                  good + "modA\t99999999999\tBeep\n", good + "modA\t10000000\tBeep\n",
                                  "Fernwick breakpoints 1\n/other\nmodA\t5\tBeep\n", std::string(2'000'000, 'x')}) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bad.data(), qint64(bad.size()));
        file.close();
        EXPECT_TRUE(workbench::readBreakpoints(project).empty()) << bad.substr(0, 60);
    }
    workbench::writeBreakpoints(project, {});
    EXPECT_TRUE(QDir(stored).isEmpty());
}

// ---- folding and separators -----------------------------------------------------------------------------------------

TEST_F(Marks, BlocksAreFoldedAroundTheCursor) {
    text->setCursorPosition(5, 2);
    key(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(folded(5) && folded(6));
    EXPECT_FALSE(folded(4) || folded(7));
    EXPECT_EQ(place(), "modA 4");
    key(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(folded(5));
    window().code().current()->goToLine(1);
    workbench::foldProcedures(*text);
    EXPECT_TRUE(folded(3) && folded(7) && folded(10) && folded(12));
    EXPECT_FALSE(folded(2) || folded(8) || folded(9));
    window().code().current()->goToLine(12);
    EXPECT_FALSE(folded(11));
    workbench::unfoldAll(*text);
    EXPECT_FALSE(folded(5));
}

TEST_F(Marks, FoldLevelsFollowEdits) {
    const auto level = [this](int line) {
        return int(text->SendScintilla(QsciScintilla::SCI_GETFOLDLEVEL, line) & QsciScintilla::SC_FOLDLEVELNUMBERMASK) -
               int(QsciScintilla::SC_FOLDLEVELBASE);
    };
    const auto levels = [&] {
        std::vector<int> all;
        for (int line = 0; line < text->lines(); ++line) all.push_back(level(line));
        return all;
    };
    EXPECT_EQ(levels(), (std::vector{0, 0, 0, 1, 1, 2, 2, 1, 0, 0, 1, 1, 1}));
    text->insertAt("Do\n", 4, 0);
    EXPECT_EQ(levels(), (std::vector{0, 0, 0, 1, 1, 2, 3, 3, 2, 0, 0, 1, 1, 1}));
    text->insertAt("Loop\n", 8, 0);
    EXPECT_EQ(levels(), (std::vector{0, 0, 0, 1, 1, 2, 3, 3, 2, 1, 0, 0, 1, 1, 1}));
    text->undo();
    text->undo();
    EXPECT_EQ(levels(), (std::vector{0, 0, 0, 1, 1, 2, 2, 1, 0, 0, 1, 1, 1}));
}

TEST_F(Marks, ALongProcedureGetsItsLevelsWhenTheLoopTurns) {
    QString lines;
    for (int i = 0; i < 2000; ++i) lines += "Beep\n";
    text->insertAt(lines, 5, 0);
    text->insertAt("Do\n", 3, 0);
    settle();
    EXPECT_EQ(text->SendScintilla(QsciScintilla::SCI_GETFOLDLEVEL, 2000) & QsciScintilla::SC_FOLDLEVELNUMBERMASK,
              QsciScintilla::SC_FOLDLEVELBASE + 3);
}

TEST_F(Marks, TheTextBeginsAfterTheMargins) {
    const auto gap = text->SendScintilla(QsciScintilla::SCI_GETMARGINLEFT);
    for (const int margin : {1, 2, 3}) {
        text->setMarginWidth(margin, text->marginWidth(margin) + 7);
        EXPECT_EQ(workbench::marginsWidth(*text) + gap,
                  text->SendScintilla(QsciScintilla::SCI_POINTXFROMPOSITION, 0UL, 0L));
    }
}

TEST_F(Marks, LinesAreDrawnBetweenProcedures) {
    std::vector<int> lines;
    for (int line = 0; line < text->lines(); ++line)
        if (workbench::isBetweenProcedures(*text, line)) lines.push_back(line);
    EXPECT_THAT(lines, ElementsAre(0, 7));
    const auto shown = text->viewport()->grab().toImage();
    workbench::kProcedureLines.store(false);
    workbench::kFolding.store(false);
    window().optionsChanged();
    EXPECT_NE(text->viewport()->grab().toImage(), shown);
    EXPECT_EQ(text->marginWidth(3), 0);
}

/// Pictures for review.
TEST_F(Marks, LookLikeTheirPictures) {
    marks().bookmarks().toggle(8);
    marks().toggleBreakpoint(5);
    editor("modA").marks().show({{4, true, "x"}, {10, false, "y"}});
    text->setCursorPosition(9, 0);
    workbench::toggleFold(*text);
    for (const auto& [theme, name] :
         {std::pair(workbench::Theme::Light, "light"), std::pair(workbench::Theme::Dark, "dark")}) {
        window().setTheme(theme);
        settle();
        EXPECT_TRUE(window().grab().save(QString(FERNWICK_BINARY_DIR "/marks-%1.png").arg(name)));
    }
}
