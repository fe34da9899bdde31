// Marks for the lines of messages.
#include "tests/workbench/open_desktop.h"
#include <QHelpEvent>
#include <QToolTip>

namespace {

class LineMarks : public test::OpenDesktop {
protected:
    LineMarks() {
        open(test::SampleProject().module("modA", "a\r\nb\r\nc\r\n"));
        editor = &OpenDesktop::editor("modA");
    }
    QsciScintilla& text() { return editor->scintilla(); }
    workbench::LineMarks& marks() { return editor->marks(); }

    workbench::CodeEditor* editor = nullptr;
};

} // namespace

TEST_F(LineMarks, MoveWithTheirLines) {
    marks().show({{2, true, "Expected: )"}});
    EXPECT_EQ(text().markersAtLine(1), 1u << 1);
    text().insertAt("new\nlines\n", 0, 0);
    EXPECT_EQ(marks().lines(), std::vector<int>{3});
    EXPECT_EQ(marks().textAt(3).toStdString(), "Expected: )");
    EXPECT_EQ(marks().textAt(1).toStdString(), "");
}

TEST_F(LineMarks, StayInPlaceWhenTheSameMessagesAreShownAgain) {
    marks().show({{2, true, "x"}});
    text().insertAt("\n", 0, 0);
    marks().show({{2, true, "x"}});
    EXPECT_EQ(marks().lines(), std::vector<int>{2});
    marks().show({{2, true, "another"}});
    EXPECT_EQ(marks().lines(), std::vector<int>{1});
    marks().show({});
    EXPECT_EQ(text().markersAtLine(1), 0u);
}

TEST_F(LineMarks, OfMissingLinesAreAtTheNearestLine) {
    marks().show({{0, true, "x"}, {99, false, "y"}, {-7, false, "z"}});
    EXPECT_EQ(marks().lines(), (std::vector<int>{0, 2, 0}));
    EXPECT_EQ(marks().textAt(0).toStdString(), "x\nz");
}

TEST_F(LineMarks, StayWhenAnAddInEditsTheCode) {
    marks().show({{3, true, "x"}});
    component("modA")->CodeModule()->InsertLines(1, "new");
    EXPECT_EQ(text().lines(), 4);
    EXPECT_EQ(marks().lines().size(), 1u);
    EXPECT_EQ(marks().textAt(marks().lines()[0]).toStdString(), "x");
}

TEST_F(LineMarks, ShowTheirMessagesInAToolTip) {
    marks().show({{2, true, "Expected: <identifier>"}, {2, false, "and more"}});
    const auto over = [this](int line) {
        const int y = text().textHeight(0) * line + 3;
        QHelpEvent help(QEvent::ToolTip, {5, y}, text().viewport()->mapToGlobal(QPoint(5, y)));
        QApplication::sendEvent(text().viewport(), &help);
        return QToolTip::text().toStdString();
    };
    EXPECT_EQ(over(1), "Expected: &lt;identifier&gt;<br>and more");
    over(0);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}
