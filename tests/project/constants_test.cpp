#include "project_world.h"
#include "tests/support/fake_compiler.h"

using namespace fernwick;

namespace {
struct Constants : test::ProjectTest {
    test::FakeCompiler compiler{trace};

    std::string read(const std::string& text) {
        host.folder.write("Hello.vbp", text);
        return projects.GetConditionalCompilationArguments(traced());
    }
    Texts passed(const std::string& text) {
        trace.effects.clear();
        projects.SetConditionalCompilationArguments(text, compiler);
        return trace.effects;
    }
};
} // namespace

TEST_F(Constants, AreReadFromAQuotedLine) {
    EXPECT_EQ(read("Type=Exe\r\nCondComp=\"A = 1 : B = -1\"\r\nCondComp=\"C = 1\"\r\n"), "A = 1 : B = -1");
    EXPECT_EQ(read("CondComp=\"\"\r\n"), "");
    EXPECT_TRUE(reports().empty());
}

TEST_F(Constants, AreEmptyWithoutALine) {
    EXPECT_EQ(read("Type=Exe\r\ncondcomp=\"A = 1\"\r\n"), "");
    EXPECT_TRUE(reports().empty());
}

TEST_F(Constants, ALineWithoutQuotesOrAFileIsReported) {
    EXPECT_EQ(read("CondComp=\r\n"), "");
    files.DeleteFile(path("Hello.vbp"), true);
    EXPECT_EQ(projects.GetConditionalCompilationArguments(traced()), "");
    EXPECT_EQ(reports(), (Texts{"modProjectHandler.GetConditionalCompilationArguments [5]",
                                "modProjectHandler.GetConditionalCompilationArguments [53]"}));
}

TEST_F(Constants, ArePassedToTheCompiler) {
    EXPECT_EQ(passed("A = 1 : B=-1:C= 2 "), (Texts{"constant A=1", "constant B=-1", "constant C=2"}));
}

TEST_F(Constants, ReservedNamesAreRefusedInABox) {
    user.expectBox("WIN32 is not allowed as Conditional Compilation Constant");
    EXPECT_EQ(passed("A = 1:WIN32 = 2"), Texts{"constant A=1"});
    user.expectBox("win32 is not allowed as Conditional Compilation Constant");
    user.expectBox("QuinLoft is not allowed as Conditional Compilation Constant");
    EXPECT_EQ(passed("win32 = 2: QuinLoft =1"), Texts{});
}

TEST_F(Constants, APieceWithoutAnEqualsSignIsIgnored) { EXPECT_EQ(passed("A:B::C = 3"), Texts{"constant C=3"}); }

TEST_F(Constants, AValueThatIsNotANumberRaisesAnError) {
    EXPECT_EQ(test::errorOf([&] { passed("A = 1:B = x:C = 3"); }), 13);
    EXPECT_EQ(trace.effects, Texts{"constant A=1"});
}

TEST_F(Constants, AReservedNameNeedsANumberToo) {
    EXPECT_EQ(test::errorOf([&] { passed("WIN32=abc"); }), 13);
    EXPECT_TRUE(user.sawNothing()); // the error comes before the box
}
