// A project of hundreds of components: code is read when it is shown.
#include "tests/workbench/open_desktop.h"
#include <QElapsedTimer>
#include <fmt/format.h>

namespace {

class BigProject : public test::OpenDesktop {
protected:
    static constexpr int kModules = 300;

    static test::SampleProject sample() {
        test::SampleProject project("Big");
        std::string code;
        for (int i = 0; i < 200; ++i) code += fmt::format("Sub S{}()\r\n    Beep\r\nEnd Sub\r\n", i);
        for (int i = 0; i < kModules; ++i) project.module(fmt::format("mod{}", i), code);
        return project;
    }
};

} // namespace

TEST_F(BigProject, OpensNoEditorUntilOneIsAskedFor) {
    open(sample());
    EXPECT_EQ(project()->VBComponents()->Count(), kModules);
    EXPECT_EQ(window().code().count(), 0);
    EXPECT_TRUE(window().code().findChildren<QsciScintilla*>().isEmpty());
    code("mod299");
    EXPECT_EQ(window().code().findChildren<QsciScintilla*>().size(), 1);
}

TEST_F(BigProject, NothingIsDrawnAgainWithoutAnEdit) {
    open(test::SampleProject().module("modA", "Dim x\r\n"));
    QTest::keyClicks(&code("modA"), "y");
    settle(800); // until the marks of the last key are up to date
    int refreshed = 0;
    window().code().refreshed = [&refreshed] { ++refreshed; };
    window().explorer().refreshSoon();
    settle(100);
    EXPECT_EQ(refreshed, 0);
}

TEST_F(BigProject, TypingDoesNotDependOnTheProjectsSize) {
    open(sample());
    auto& editor = code("mod7");
    QElapsedTimer time;
    time.start();
    QTest::keyClicks(&editor, "' a line of fifty keys, each of which must be quick");
    constexpr int kMillisecondsForAll = 2000; // they take a tenth of it
    EXPECT_LT(time.elapsed(), kMillisecondsForAll);
    EXPECT_EQ(held("mod7").substr(0, 16), "' a line of fift");
}
