#include "tests/designtargets/target_folder.h"
#include <gtest/gtest.h>

namespace {

using designtargetaccess::readTarget;
using designtargetaccess::TargetProblem;

/// Returns the problem of a file as shown to users, or "".
std::string problemOf(const std::string& text) {
    try {
        readTarget(text, "t.toml");
        return {};
    } catch (const TargetProblem& problem) { return problem.text(); }
}

std::string replaced(const std::string& from, const std::string& to) {
    std::string text = TargetFolder::target("Some", 1);
    return text.replace(text.find(from), from.size(), to);
}

struct FaultyFile {
    const char* what;
    std::string text;
    const char* problem;
};

class FaultyFiles : public testing::TestWithParam<FaultyFile> {};

TEST_P(FaultyFiles, AreReportedWithLineAndReason) { EXPECT_EQ(problemOf(GetParam().text), GetParam().problem); }

INSTANTIATE_TEST_SUITE_P(
    TargetFile, FaultyFiles,
    testing::Values(
        FaultyFile{"MissingKey", replaced("key = \"Some\"\n", ""), "t.toml:1: \"key\" is missing"},
        FaultyFile{"EmptyKey", replaced("key = \"Some\"", "key = \"\""), "t.toml:2: \"key\" must not be empty"},
        FaultyFile{"NumberForText", replaced("key = \"Some\"", "key = 5"), "t.toml:2: \"key\" must be a string"},
        FaultyFile{"TextForNumber", replaced("style = 4", "style = \"4\""),
                   "t.toml:6: \"style\" must be a whole number"},
        FaultyFile{"FractionForNumber", replaced("style = 4", "style = 4.5"),
                   "t.toml:6: \"style\" must be a whole number"},
        FaultyFile{"UnknownKey", replaced("style = 4", "style = 4\ncolour = 1"),
                   "t.toml:7: \"colour\" is not a known key"},
        FaultyFile{"UnknownInnerKey", replaced("width = 100", "width = 100\ndepth = 1"),
                   "t.toml:9: \"depth\" is not a known key"},
        FaultyFile{"NoForm", "order=1\nkey='K'\nname='N'\nstyle=0\n", "t.toml:1: \"form\" is missing"},
        FaultyFile{"FormIsNoTable", "order=1\nkey='K'\nname='N'\nstyle=0\nform=3\n",
                   "t.toml:5: \"form\" must be a table"},
        FaultyFile{"NegativeWidth", replaced("width = 100", "width = -2"),
                   "t.toml:8: \"width\" must be from -1 to 2147483647"},
        FaultyFile{"HugeWidth", replaced("width = 100", "width = 4294967296"),
                   "t.toml:8: \"width\" must be from -1 to 2147483647"},
        FaultyFile{"NoColour", replaced("0xC0C0C0", "0x1000000"), "t.toml:10: \"color\" must be from 0 to 16777215"},
        FaultyFile{"NoFontSize", replaced("size = 9", "size = 0"), "t.toml:13: \"size\" must be from 1 to 2147483647"},
        FaultyFile{"ListForOption", TargetFolder::target("Some", 1, "[options]\nA = [1]\n"),
                   "t.toml:15: \"A\" must be a string or a whole number"},
        FaultyFile{
            "NoGuid",
            TargetFolder::target("Some", 1, "[tavlets]\nsupported = [ { clsid = \"{1}\", progid = \"A.B\" } ]\n"),
            "t.toml:15: \"clsid\" must be a GUID in braces"},
        FaultyFile{"NoModuleGuid", TargetFolder::target("Some", 1, "[references]\nmodules = [ \"x\" ]\n"),
                   "t.toml:15: \"modules\" must contain GUIDs in braces"},
        FaultyFile{"NumberInTexts", TargetFolder::target("Some", 1, "[tavlets]\ntab_stop_off = [ 1 ]\n"),
                   "t.toml:15: \"tab_stop_off\" must contain only strings"},
        FaultyFile{"TextForList", TargetFolder::target("Some", 1, "[tavlets]\ntab_stop_off = \"QLButton\"\n"),
                   "t.toml:15: \"tab_stop_off\" must be a list of strings"},
        FaultyFile{"TextForTables", TargetFolder::target("Some", 1, "[tavlets]\nsupported = \"QLButton\"\n"),
                   "t.toml:15: \"supported\" must be a list of tables"},
        FaultyFile{"TextInTables", TargetFolder::target("Some", 1, "[tavlets]\nsupported = [\n\"QLButton\"]\n"),
                   "t.toml:16: \"supported\" must be a table"},
        FaultyFile{"TemplateElsewhere", TargetFolder::target("Some", 1, "[templates]\nform = \"/etc/passwd\"\n"),
                   "t.toml:15: \"form\" must be a path inside the installation"},
        FaultyFile{"TemplateAbove", TargetFolder::target("Some", 1, "[templates]\nform = \"../x.frm\"\n"),
                   "t.toml:15: \"form\" must be a path inside the installation"}),
    [](const auto& info) { return std::string{info.param.what}; });

TEST(TargetFile, ReportsTheLineOfASyntaxError) {
    EXPECT_EQ(problemOf("order = 1\n\nkey = [").substr(0, 9), "t.toml:3:");
    EXPECT_EQ(problemOf("order = 1\norder = 2\n").substr(0, 9), "t.toml:2:");
}

TEST(TargetFile, ReportsTheLineOfATableWithoutAName) {
    EXPECT_EQ(problemOf("order = 1\n[+font]\n").substr(0, 9), "t.toml:2:");
    EXPECT_EQ(problemOf("order = 1\n[]\n").substr(0, 9), "t.toml:2:");
}

TEST(TargetFile, SurvivesDeepNesting) { EXPECT_NE(problemOf("a = " + std::string(100000, '[')), ""); }

TEST(TargetFile, AcceptsAMinimalTarget) { EXPECT_EQ(problemOf(TargetFolder::target("Some", 1)), ""); }

} // namespace
