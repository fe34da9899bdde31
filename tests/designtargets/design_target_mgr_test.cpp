#include "tests/designtargets/target_folder.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using designtargetaccess::DesignTargetMgr;
using designtargetaccess::IQLDesignTarget;

std::vector<std::string> keysOf(const DesignTargetMgr& manager) {
    std::vector<std::string> keys;
    for (std::int16_t i = 0; i < manager.Count(); ++i) keys.push_back(manager.GetDesignTargetByIndex(i)->Key());
    return keys;
}

TEST(DesignTargetMgr, HasNoTargetsWithoutAFolder) {
    DesignTargetMgr manager{"/nowhere/at/all"};
    manager.Initialize();
    EXPECT_EQ(manager.Count(), 0);
    EXPECT_TRUE(manager.problems().empty());
}

TEST(DesignTargetMgr, IsEmptyBeforeInitialize) {
    TargetFolder folder;
    folder.add("a.toml", TargetFolder::target("A", 1));
    DesignTargetMgr manager{folder.root()};
    EXPECT_EQ(manager.Count(), 0);
    manager.Initialize();
    EXPECT_EQ(manager.Count(), 1);
}

TEST(DesignTargetMgr, OrdersByNumberThenByKey) {
    TargetFolder folder;
    folder.add("1.toml", TargetFolder::target("Zeta", 1));
    folder.add("2.toml", TargetFolder::target("Beta", 2));
    folder.add("3.toml", TargetFolder::target("Alpha", 2));
    folder.add("4.toml", TargetFolder::target("First", -5));
    EXPECT_EQ(keysOf(*initialized(folder.root())), (std::vector<std::string>{"First", "Zeta", "Alpha", "Beta"}));
}

TEST(DesignTargetMgr, FindsByKeyExactly) {
    TargetFolder folder;
    folder.add("a.toml", TargetFolder::target("PalmOS-X", 2));
    folder.add("b.toml", TargetFolder::target("PalmOS-Y", 1));
    const auto manager = initialized(folder.root());
    std::int32_t position = -1;
    EXPECT_TRUE(manager->FindDesignTarget("PalmOS-X", position));
    EXPECT_EQ(position, 1);
    EXPECT_FALSE(manager->FindDesignTarget("palmos-x", position));
    EXPECT_FALSE(manager->FindDesignTarget("", position));
}

TEST(DesignTargetMgr, ReturnsNothingForAnUnknownKey) {
    TargetFolder folder;
    folder.add("a.toml", TargetFolder::target("A", 1));
    const auto manager = initialized(folder.root());
    basic::Ref<IQLDesignTarget> target = manager->GetDesignTargetByIndex(0);
    EXPECT_FALSE(manager->GetDesignTarget("B", target));
    EXPECT_FALSE(target);
    EXPECT_TRUE(manager->GetDesignTarget("A", target));
    EXPECT_EQ(target->Name(), "&A");
}

TEST(DesignTargetMgr, ReturnsNothingOutOfRange) {
    TargetFolder folder;
    folder.add("a.toml", TargetFolder::target("A", 1));
    const auto manager = initialized(folder.root());
    EXPECT_FALSE(manager->GetDesignTargetByIndex(-1));
    EXPECT_FALSE(manager->GetDesignTargetByIndex(1));
    EXPECT_TRUE(manager->GetDesignTargetByIndex(0));
}

TEST(DesignTargetMgr, ReportsAnInvalidFileAndKeepsTheOthers) {
    TargetFolder folder;
    folder.add("broken.toml", "order = 1\nkey = \n");
    folder.add("good.toml", TargetFolder::target("Good", 1));
    const auto manager = initialized(folder.root());
    EXPECT_EQ(keysOf(*manager), std::vector<std::string>{"Good"});
    ASSERT_EQ(manager->problems().size(), 1u);
    EXPECT_EQ(manager->problems()[0].file, folder.root() + "/targets/broken.toml");
    EXPECT_EQ(manager->problems()[0].line, 2u);
    EXPECT_FALSE(manager->problems()[0].reason.empty());
}

TEST(DesignTargetMgr, UsesTheFirstOfTwoFilesWithTheSameKey) {
    TargetFolder folder;
    folder.add("late.toml", TargetFolder::target("A", 2));
    folder.add("soon.toml", TargetFolder::target("A", 1));
    const auto manager = initialized(folder.root());
    EXPECT_EQ(manager->Count(), 1);
    ASSERT_EQ(manager->problems().size(), 1u);
    EXPECT_EQ(manager->problems()[0].text(),
              folder.root() + "/targets/late.toml: the key \"A\" is already used by another file");
}

TEST(DesignTargetMgr, ReadsOnlyTomlFiles) {
    TargetFolder folder;
    folder.add("README.md", "# no target");
    folder.add("a.toml~", "no target");
    const auto manager = initialized(folder.root());
    EXPECT_EQ(manager->Count(), 0);
    EXPECT_TRUE(manager->problems().empty());
}

TEST(DesignTargetMgr, ReportsUnreadableFiles) {
    TargetFolder folder;
    std::filesystem::create_directory(folder.root() + "/targets/folder.toml");
    std::filesystem::create_symlink("nowhere", folder.root() + "/targets/link.toml");
    folder.add("large.toml", std::string(2 << 20, '#'));
    folder.add("binary.toml", std::string("\xFF\x00\x01", 3));
    const auto manager = initialized(folder.root());
    EXPECT_EQ(manager->Count(), 0);
    std::vector<std::string> texts;
    for (const auto& problem : manager->problems()) texts.push_back(problem.text());
    const auto path = [&](const char* name) { return folder.root() + "/targets/" + name; };
    EXPECT_THAT(texts,
                testing::ElementsAre(testing::StartsWith(path("binary.toml:1: ")), path("folder.toml: Is a directory"),
                                     path("large.toml: too large for a design target"),
                                     path("link.toml: No such file or directory")));
}

TEST(DesignTargetMgr, ReadsTheFilesAgainWhenReinitialized) {
    TargetFolder folder;
    folder.add("a.toml", TargetFolder::target("A", 1));
    folder.add("b.toml", "nonsense");
    auto manager = initialized(folder.root());
    manager->Initialize();
    EXPECT_EQ(manager->Count(), 1);
    EXPECT_EQ(manager->problems().size(), 1u);
}

} // namespace
