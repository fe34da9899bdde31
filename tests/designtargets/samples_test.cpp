#include "tests/designtargets/installed_tree.h"
#include <gtest/gtest.h>

namespace {

const std::string kSamples = FERNWICK_SOURCE_DIR "/samples";

std::vector<std::filesystem::path> projectFiles() {
    std::vector<std::filesystem::path> projects;
    for (const auto& entry : std::filesystem::directory_iterator{kSamples})
        if (entry.is_directory()) projects.push_back(entry.path() / (entry.path().filename().string() + ".vbp"));
    return projects;
}

/// Returns the forms, modules and classes of the project.
std::vector<std::filesystem::path> membersOf(const std::filesystem::path& project) {
    const std::string text = installed::content(project);
    std::vector<std::filesystem::path> files;
    for (const char* key : {"\r\nForm=", "\r\nModule=", "\r\nClass="})
        for (const std::string& value : installed::textsAfter(text, key, "\r")) {
            const auto name = value.find("; ");
            files.push_back(project.parent_path() / (name == std::string::npos ? value : value.substr(name + 2)));
        }
    return files;
}

/// Returns the text of the project's design target file.
std::string targetOf(const std::filesystem::path& project) {
    const auto keys = installed::textsAfter(installed::content(project), "\r\nTargetDevice=", "\r");
    return keys.size() == 1 ? installed::content(installed::kRoot + "/targets/" + keys[0] + ".toml") : std::string{};
}

TEST(Samples, AreThreeProjectsWithTheirMembers) {
    const auto projects = projectFiles();
    EXPECT_EQ(projects.size(), 3u);
    for (const auto& project : projects) {
        ASSERT_TRUE(std::filesystem::exists(project)) << project;
        for (const auto& member : membersOf(project)) EXPECT_TRUE(std::filesystem::exists(member)) << member;
    }
    EXPECT_EQ(membersOf(kSamples + "/HelloWorld/HelloWorld.vbp").size(), 1u);
    EXPECT_EQ(membersOf(kSamples + "/AddressBook/AddressBook.vbp").size(), 4u);
}

TEST(Samples, HaveTheLineEndsOfTheIde) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator{kSamples}) {
        if (!entry.is_regular_file() || entry.path().extension() == ".md") continue;
        const std::string text = installed::content(entry.path());
        EXPECT_TRUE(text.ends_with("\r\n")) << entry.path();
        for (std::size_t at = 0; at < text.size(); ++at) {
            const bool feed = text[at] == '\n', returned = at > 0 && text[at - 1] == '\r';
            if (feed != returned) FAIL() << entry.path() << " at " << at;
        }
    }
}

TEST(Samples, AreFernwickProjectsForAShippedTarget) {
    for (const auto& project : projectFiles()) {
        const std::string text = installed::content(project);
        const auto section = text.find("\r\n\r\n[Quinloft Global]\r\n");
        ASSERT_NE(section, std::string::npos) << project;
        const std::string values = text.substr(section);
        EXPECT_NE(values.find("\r\nIsQuinloftProject=True\r\n"), std::string::npos) << project;
        EXPECT_NE(values.find("\r\nProjectVersion=3.5\r\n"), std::string::npos) << project;
        EXPECT_NE(targetOf(project), "") << project;
    }
}

TEST(Samples, UseTavletsOfTheirDevice) {
    for (const auto& project : projectFiles()) {
        const std::string target = targetOf(project);
        int controls = 0;
        for (const auto& member : membersOf(project))
            for (const std::string& name :
                 installed::textsAfter(installed::content(member), "Begin TavletsCtl.", " ")) {
                EXPECT_NE(target.find("\"Tavlets." + name + "\""), std::string::npos) << name << " in " << member;
                ++controls;
            }
        EXPECT_GT(controls, 3) << project;
    }
}

/// Every handler belongs to an existing control or the form.
TEST(Samples, HandleEventsOfExistingControls) {
    for (const auto& project : projectFiles())
        for (const auto& member : membersOf(project)) {
            const std::string text = installed::content(member);
            for (const std::string& procedure : installed::textsAfter(text, "\nPrivate Sub ", "(")) {
                const auto event = procedure.find('_');
                if (event == std::string::npos || procedure.starts_with("Form_")) continue;
                const std::string control = std::string{" "}.append(procedure, 0, event).append(" \r\n");
                EXPECT_NE(text.find(control), std::string::npos) << procedure;
            }
        }
}

} // namespace
