#include "tests/designtargets/installed_tree.h"
#include <gtest/gtest.h>

namespace {

using installed::kRoot;
using installed::leadsSomewhere;

TEST(InstalledFiles, ExistForEveryLiteralPath) {
    for (const char* path :
         {R"(\VB TOOLKIT\BIN\QLCOMPILE.AVI)", R"(\VB TOOLKIT\BIN\QLVALIDATE.AVI)", R"(\VB TOOLKIT\BIN\QLUPLOAD.AVI)",
          R"(\VB TOOLKIT\BIN\QLDEFAULT.ico)", R"(\Fonts)", R"(\VB Toolkit\Samples)", R"(\VB Toolkit\Template\Projects)",
          R"(\Template\Projects)", R"(\Template\Projects\Fernwick Project.vbp)",
          R"(\VB Toolkit\doc\Quinloft_Users_Guide.chm)", R"(\VB Toolkit\doc\Quinloft_Addin_Guide.chm)",
          R"(\VB Toolkit\doc\Quinloft_Error_Codes.chm)", R"(\VB Toolkit\doc\Quinloft_Tamarik_and_Components.chm)",
          R"(\VB Toolkit\doc\Hello World Tutorial\hw_write.html)",
          R"(\VB Toolkit\doc\Quinloft_AddIn_Guide_Fernwick Settings_Setting Compiler Settings.html)",
          R"(\VB Toolkit\doc\Quinloft_Tamarik_and_Components_Tamarik And PNG Files.html)"})
        EXPECT_TRUE(leadsSomewhere(kRoot, path)) << path;
}

/// The tools are separate programs, and the path of a folder ends before their names.
bool isShipped(const std::string& path) { return !path.ends_with(".exe") && !path.ends_with('\\'); }

/// The help topic "file.chm::/page.html" is the page next to the file.
std::string pageOf(const std::string& path) {
    const auto topic = path.find("::/");
    return topic == std::string::npos ? path : path.substr(0, path.rfind('\\', topic) + 1) + path.substr(topic + 3);
}

TEST(InstalledFiles, ExistForEveryNameInTheAddIn) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator{FERNWICK_SOURCE_DIR "/Add-in"}) {
        if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h") continue;
        const std::string text = installed::lower(installed::replaced(installed::content(entry.path()), "\\\\", "\\"));
        for (const std::string& rest : installed::textsAfter(text, "\\vb toolkit", "\")")) {
            const std::string path = pageOf("\\vb toolkit" + rest);
            if (isShipped(path)) { EXPECT_TRUE(leadsSomewhere(kRoot, path)) << path << " in " << entry.path(); }
        }
    }
}

TEST(InstalledFiles, IncludeAPageForEachHelpFile) {
    const auto helpFiles = installed::filesOf(kRoot + "/VB Toolkit/doc", ".chm");
    EXPECT_EQ(helpFiles.size(), 4u);
    for (auto path : helpFiles) EXPECT_TRUE(std::filesystem::exists(path.replace_extension(".html"))) << path;
}

TEST(InstalledFiles, HaveNoDeadHelpLinks) {
    for (const auto& path : installed::filesOf(kRoot + "/VB Toolkit/doc", ".html"))
        for (const std::string& link : installed::textsAfter(installed::content(path), "href=\"", "\"#")) {
            const std::string target = installed::replaced(link, "%20", " ");
            EXPECT_TRUE(std::filesystem::exists(path.parent_path() / target)) << target << " in " << path;
        }
}

TEST(InstalledFiles, IncludeSmallValidAnimations) {
    for (const char* name : {"QLCOMPILE.AVI", "QLVALIDATE.AVI", "QLUPLOAD.AVI"}) {
        const std::string bytes = installed::content(kRoot + "/VB Toolkit/Bin/" + name);
        ASSERT_GT(bytes.size(), 12u) << name;
        EXPECT_LT(bytes.size(), 200u * 1024) << name;
        EXPECT_EQ(bytes.substr(0, 4) + bytes.substr(8, 8), "RIFFAVI LIST") << name;
        const auto byte = [&](std::size_t at) { return std::size_t{static_cast<unsigned char>(bytes[at])}; };
        EXPECT_EQ(byte(4) + (byte(5) << 8) + (byte(6) << 16) + (byte(7) << 24) + 8, bytes.size()) << name;
    }
}

TEST(InstalledFiles, IncludeAnIconWithTwoImages) {
    const std::string bytes = installed::content(kRoot + "/VB Toolkit/Bin/QLDEFAULT.ico");
    ASSERT_GT(bytes.size(), 6u + 2 * 16u);
    EXPECT_EQ(bytes.substr(0, 6), std::string("\0\0\1\0\2\0", 6));
    const auto number = [&](std::size_t at) {
        return std::size_t{static_cast<unsigned char>(bytes[at])} |
               std::size_t{static_cast<unsigned char>(bytes[at + 1])} << 8;
    };
    EXPECT_EQ(number(6 + 12), 6u + 2 * 16u);
    EXPECT_EQ(number(6 + 16 + 12) + number(6 + 16 + 8), bytes.size());
}

TEST(InstalledFiles, IncludeWellFormedRegistryFiles) {
    const auto files = installed::filesOf(kRoot + "/registry", ".reg");
    EXPECT_EQ(files.size(), 4u);
    for (const auto& path : files) {
        const std::string text = installed::content(path);
        EXPECT_TRUE(text.starts_with("Windows Registry Editor Version 5.00\r\n\r\n[")) << path;
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), std::count(text.begin(), text.end(), '\r')) << path;
        EXPECT_TRUE(text.ends_with("\r\n")) << path;
    }
}

TEST(InstalledFiles, ExistForEveryRegisteredPath) {
    const auto keys = installed::registered();
    EXPECT_EQ(keys.at("hkey_local_machine\\software\\quinloft").at("rootdir"), "%RootDir%");
    EXPECT_EQ(keys.at("hkey_local_machine\\software\\microsoft\\visualstudio\\6.0\\setup\\microsoft visual basic")
                  .at("productdir"),
              "%RootDir%");
    const auto samples = keys.at("hkey_local_machine\\software\\quinloft\\vb toolkit\\samples\\applications");
    EXPECT_EQ(samples.size(), 4u);
    for (const auto& [name, path] : samples) {
        if (name != "@") { EXPECT_TRUE(leadsSomewhere(kRoot, installed::belowRoot(path))) << path; }
    }
}

} // namespace
