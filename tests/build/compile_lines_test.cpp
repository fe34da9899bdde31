// Conversion of the compiler's lines to those of the code window.
#include "Add-in/build/line_counts.h"
#include "compile_world.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class CompileLines : public testing::Test, protected test::CompileWorld {
protected:
    /// Returns the stored line of an error that the compiler reports at a line.
    std::string lineOf(const std::string& file, int line) {
        compiler->work = [&](test::FakeCompiler& c) { c.BuildError.raise("m", file, line, 1); };
        run();
        const auto value = stored("Error1");
        const auto at = value.find('|', value.find('|') + 1) + 1;
        return value.substr(at, value.find('|', at) - at);
    }
};

TEST_F(CompileLines, TheHeaderOfDesignDataDoesNotCount) {
    addModule("Form1", "VERSION 5.00\r\nBegin VB.Form Form1\r\nEnd\r\nSub A()\r\nEnd Sub\r\n");
    EXPECT_EQ(lineOf("/p/Form1.bas", 5), "2");
}

TEST_F(CompileLines, LoneLineFeedsDoNotCount) {
    addModule("Module1", "Sub A()\nx\nEnd Sub\n")->code->lines = 3;
    EXPECT_EQ(lineOf("/p/Module1.bas", 2), "5");
}

TEST_F(CompileLines, AMessageWithoutAFileOrLineHasNoLine) {
    // A header, so that a conversion would be seen
    addModule("Form1", "VERSION 5.00\r\nBegin VB.Form Form1\r\nEnd\r\nSub A()\r\nEnd Sub\r\n");
    EXPECT_EQ(lineOf("", 7), "0");
    EXPECT_EQ(lineOf("/p/Form1.bas", 0), "0");
    EXPECT_EQ(lineOf("/p/Form1.bas", -3), "0");
    EXPECT_EQ(lineOf("/p/Form1.bas", 1), "-2");
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(CompileLines, AFileOfNoComponentIsReported) {
    files.files["/p/Other.bas"] = {"a\r\nb\r\n"};
    EXPECT_EQ(lineOf("/p/Other.bas", 5), "3");
    EXPECT_THAT(errors.seen, ElementsAre("frmCompile.FixupLineNumber [9]"));
}

TEST_F(CompileLines, AFileIsReadOnceInARun) {
    addModule("Module1");
    compiler->work = [](test::FakeCompiler& c) {
        for (int i = 0; i < 100; ++i) c.BuildError.raise("m", "/p/Module1.bas", 1, 1);
    };
    files.reads = 0;
    run();
    EXPECT_EQ(files.reads, 1);
}

class LineCount : public testing::Test, protected test::TracedPlatform {
protected:
    int of(const std::string& bytes) {
        files.files["/f"] = {bytes};
        fernwick::LineCounts counts{files};
        return counts.getLineCount("/f");
    }
};

TEST_F(LineCount, CountsCarriageReturns) {
    EXPECT_EQ(of(""), 0);
    EXPECT_EQ(of("a\r\nb\r\nlast"), 2);
    EXPECT_EQ(of("a\nb\n"), 0);
    EXPECT_EQ(of("a\rb\rc"), 2);
}

TEST_F(LineCount, SkipsTheCharacterAfterACarriageReturn) {
    EXPECT_EQ(of("a\r\r\nb"), 1);
    EXPECT_EQ(of("\r\r\r"), 2);
    EXPECT_EQ(of("a\r"), 1);
}

TEST_F(LineCount, NoticesAChangedFile) {
    fernwick::LineCounts counts{files};
    files.files["/f"] = {"a\r\n"};
    EXPECT_EQ(counts.getLineCount("/f"), 1);
    files.files["/f"] = {"a\r\r\n", 0, 1};
    EXPECT_EQ(counts.getLineCount("/f"), 1);
    files.files["/f"] = {"\r\n\r\n", 0, 2}; // same size, but later
    EXPECT_EQ(counts.getLineCount("/f"), 2);
}

} // namespace
