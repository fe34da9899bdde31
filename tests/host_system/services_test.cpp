#include "Basic/runtime_error.h"
#include "Host/system/clipboard.h"
#include "Host/system/clock.h"
#include "Host/system/environment.h"
#include "Host/system/file_system.h"
#include "Host/system/screen.h"
#include "Host/system/shell.h"
#include "tests/host_system/temp_folder.h"
#include <chrono>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

using testing::ElementsAre;

TEST(LocalEnvironment, IsThatOfTheProcess) {
    host::Environment environment;
    EXPECT_EQ(environment.GetEnvironmentVariable("FERNWICK_TEST_NOT_SET"), "");
    environment.SetEnvironmentVariable("FERNWICK_TEST-VALUE", "a=b");
    EXPECT_STREQ(std::getenv("FERNWICK_TEST-VALUE"), "a=b");
    EXPECT_EQ(environment.GetEnvironmentVariable("FERNWICK_TEST-VALUE"), "a=b");
    EXPECT_EQ(basic::attempt([&] { environment.SetEnvironmentVariable("a=b", "c"); }).Number, 5);
    EXPECT_EQ(basic::attempt([&] { environment.SetEnvironmentVariable("", "c"); }).Number, 5);
}

TEST(LocalClock, HasTheTimeOfTheSystem) {
    const host::Clock clock;
    const auto expected = std::chrono::system_clock::now().time_since_epoch();
    EXPECT_NEAR(double(clock.Now()), double(std::chrono::nanoseconds(expected).count()), 5e9);
    const auto before = clock.Monotonic();
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
    EXPECT_GE(clock.Monotonic() - before, 2'000'000);
}

TEST(PrivateClipboard, KeepsTheOrderOfFormats) {
    host::Clipboard clipboard;
    clipboard.SetData("text", "a"), clipboard.SetData("image", std::string("\0b", 2)), clipboard.SetData("text", "c");
    EXPECT_THAT(clipboard.Formats(), ElementsAre("text", "image"));
    EXPECT_EQ(clipboard.GetData("text"), "c");
    EXPECT_EQ(clipboard.GetData("image"), std::string("\0b", 2));
    EXPECT_EQ(clipboard.GetData("none"), "");
    clipboard.Clear();
    EXPECT_THAT(clipboard.Formats(), testing::IsEmpty());
}

TEST(LocalScreen, HasFifteenTwipsPerPixel) {
    const host::Screen screen;
    EXPECT_EQ(screen.TwipsPerPixelX(), 15);
    EXPECT_EQ(screen.TwipsPerPixelY(), 15);
}

namespace {

/// Fontconfig with only the fonts of a test and a rule that substitutes any family.
class ScreenFonts : public testing::Test {
protected:
    void SetUp() override {
        ::setenv("FONTCONFIG_FILE", (folder / "fonts.conf").c_str(), 1);
        folder.write("fonts.conf",
                     "<?xml version='1.0'?><!DOCTYPE fontconfig SYSTEM 'fonts.dtd'><fontconfig>"
                     "<dir>/usr/share/fonts</dir><cachedir>" +
                         (folder / "cache").string() +
                         "</cachedir>"
                         "<alias><family>Tahoma</family><prefer><family>DejaVu Sans</family></prefer></alias>"
                         "</fontconfig>");
    }
    void TearDown() override { ::unsetenv("FONTCONFIG_FILE"); }
    TempFolder folder;
};

} // namespace

TEST_F(ScreenFonts, ExistOnlyUnderTheirExactFamily) {
    const host::Screen screen;
    if (!std::filesystem::exists("/usr/share/fonts/truetype/dejavu")) GTEST_SKIP() << "fonts-dejavu-core is missing";
    EXPECT_TRUE(screen.FontFamilyExists("DejaVu Sans"));
    EXPECT_TRUE(screen.FontFamilyExists("dejavu sans"));
    EXPECT_FALSE(screen.FontFamilyExists("DejaVu"));
    EXPECT_FALSE(screen.FontFamilyExists("Tahoma")); // substitutes do not count
    EXPECT_FALSE(screen.FontFamilyExists("QLPalm"));
    EXPECT_FALSE(screen.FontFamilyExists(""));
}

namespace {

class LocalShell : public testing::Test {
protected:
    void SetUp() override {
        ::unsetenv("DISPLAY");
        ::unsetenv("WAYLAND_DISPLAY");
    }
    void script(const std::string& name, const std::string& text) {
        std::filesystem::permissions(folder.write(name, "#!/bin/sh\n" + text), std::filesystem::perms(0755));
    }
    std::string waitFor(const std::string& name) {
        for (int i = 0; i < 500 && folder.read(name).find('\n') == std::string::npos; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        return folder.read(name);
    }
    std::string path(const std::string& name) { return (folder / name).string(); }

    TempFolder folder;
    host::FileSystem files;
    std::vector<std::string> reported;
    host::Shell shell{files, [this](const std::string& document) { reported.push_back(document); }};
};

} // namespace

TEST_F(LocalShell, ReportsTheAddressWithoutADesktop) {
    folder.write("Doc/Page.html", "");
    shell.Open("http://www.example.com/");
    shell.Open(path("doc\\page.html"));
    shell.Open(path("Doc"));
    EXPECT_THAT(reported, ElementsAre("http://www.example.com/", path("Doc/Page.html"), path("Doc")));
    EXPECT_EQ(basic::attempt([&] { shell.Open(path("absent.html")); }).Number, 53);
}

TEST_F(LocalShell, OpensDocumentsWithXdgOpen) {
    script("bin/xdg-open", "echo \"$1\" > '" + path("opened") + "'\n");
    const std::string before = std::getenv("PATH");
    ::setenv("PATH", (path("bin") + ":" + before).c_str(), 1);
    ::setenv("DISPLAY", ":99", 1);
    shell.Open("http://www.example.com/a b?c=$d");
    ::setenv("PATH", before.c_str(), 1);
    EXPECT_EQ(waitFor("opened"), "http://www.example.com/a b?c=$d\n");
    EXPECT_TRUE(reported.empty());
}

TEST_F(LocalShell, ReportsADocumentThatXdgOpenCannotOpen) {
    script("bin/xdg-open", "exit 3\n");
    const std::string before = std::getenv("PATH");
    ::setenv("PATH", (path("bin") + ":" + before).c_str(), 1);
    ::setenv("DISPLAY", ":99", 1);
    shell.Open("http://www.example.com/");
    ::setenv("PATH", before.c_str(), 1);
    EXPECT_TRUE(reported.empty());
    for (int i = 0; i < 500 && shell.checkOpened(); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_THAT(reported, ElementsAre("http://www.example.com/"));
}

TEST_F(LocalShell, HelpOpensThePageNextToTheHelpFile) {
    folder.write("VB Toolkit/doc/Guide.chm", "see Guide.html");
    folder.write("VB Toolkit/doc/Guide.html", "");
    shell.Start("Hh.exe " + path("VB Toolkit\\doc\\Guide.chm"));
    EXPECT_THAT(reported, ElementsAre(path("VB Toolkit/doc/Guide.html")));
    EXPECT_EQ(basic::attempt([&] { shell.Start("Hh.exe " + path("Other.chm")); }).Number, 53);
}

TEST_F(LocalShell, OpeningAHelpFileShowsItsFirstPage) {
    folder.write("doc/Guide.chm", "see Guide.html");
    EXPECT_EQ(basic::attempt([&] { shell.Open(path("doc/Guide.chm")); }).Number, 53);
    folder.write("doc/Guide.html", "");
    shell.Open(path("doc\\GUIDE.CHM"));
    EXPECT_THAT(reported, ElementsAre(path("doc/Guide.html")));
    EXPECT_EQ(basic::attempt([&] { shell.Open(path("Other.chm")); }).Number, 53);
}

TEST_F(LocalShell, HelpOpensTheNamedPageOfAHelpFile) {
    folder.write("VB Toolkit/doc/Guide_PNG Files.html", "");
    shell.Start("Hh.exe ms-its:" + path("vb toolkit\\doc\\Guide.chm") + "::/Guide_PNG Files.html");
    EXPECT_THAT(reported, ElementsAre(path("VB Toolkit/doc/Guide_PNG Files.html")));
    const auto absent = "Hh.exe ms-its:" + path("VB Toolkit\\doc\\Guide.chm") + "::/Other.html";
    EXPECT_EQ(basic::attempt([&] { shell.Start(absent); }).Number, 53);
}

TEST_F(LocalShell, HelpOpensThePageOfAContext) {
    folder.write("doc/Codes.html", "");
    folder.write("doc/Codes/1042.html", "");
    shell.Start("Hh.exe -mapid 1042 " + path("doc\\Codes.chm"));
    shell.Start("Hh.exe -mapid 1042 \"" + path("doc\\Codes.chm") + "\"");
    EXPECT_THAT(reported, ElementsAre(path("doc/Codes/1042.html"), path("doc/Codes/1042.html")));
}

TEST_F(LocalShell, AContextWithoutAPageOpensTheFirstOne) {
    folder.write("doc/Codes.html", "");
    shell.Start("Hh.exe -mapid 7 " + path("doc\\Codes.chm"));
    EXPECT_THAT(reported, ElementsAre(path("doc/Codes.html")));
    EXPECT_EQ(basic::attempt([&] { shell.Start("Hh.exe -mapid 7"); }).Number, 53);
}

TEST_F(LocalShell, HelpOpensThePagesOfTheInstallation) {
    const std::string root = FERNWICK_SOURCE_DIR "/installation";
    const auto doc = root + "/VB Toolkit/doc/";
    shell.Start("Hh.exe -mapid 1300 " + root + "\\VB Toolkit\\doc\\Quinloft_Error_Codes.chm");
    shell.Start("Hh.exe -mapid 999 " + root + "\\VB Toolkit\\doc\\Quinloft_Error_Codes.chm");
    shell.Start("Hh.exe ms-its:" + root +
                "\\VB Toolkit\\doc\\Quinloft_Tamarik_and_Components.chm::/"
                "Quinloft_Tamarik_and_Components_Tamarik And PNG Files.html");
    EXPECT_THAT(reported, ElementsAre(doc + "Quinloft_Error_Codes/1300.html", doc + "Quinloft_Error_Codes.html",
                                      doc + "Quinloft_Tamarik_and_Components_Tamarik And PNG Files.html"));
}

TEST_F(LocalShell, ProgramsMayBeInstalledWithoutTheirExtension) {
    script("VB Toolkit/bin/QLFonC", "echo \"$1\" > '" + path("ran") + "'\n");
    shell.Start(path("VB Toolkit\\BIN\\QLFonC.exe") + " \"an argument\"");
    EXPECT_EQ(waitFor("ran"), "an argument\n");
    EXPECT_EQ(shell.Start(path("VB Toolkit\\BIN\\Absent.exe")), 0);
}
