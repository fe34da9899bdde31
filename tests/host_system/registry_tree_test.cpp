#include "Host/registry/reg_status.h"
#include "Host/registry/registry_tree.h"
#include <gtest/gtest.h>

using host::KeyPath;
using host::RegistryTree;

namespace {

host::RegValue text(std::string data) { return {fernwick::REG_SZ, std::move(data)}; }

std::vector<std::string> namesOf(const std::vector<host::NamedRegValue>& values) {
    std::vector<std::string> names;
    for (const auto& one : values) names.push_back(one.name);
    return names;
}

host::RegStatus refusalOf(RegistryTree& tree, const KeyPath& key) {
    try {
        tree.deleteKey(key);
    } catch (const host::RegFailure& failure) { return failure.status; }
    return host::RegStatus::Success;
}

} // namespace

TEST(RegistryTree, AKeyIsFoundInAnySpellingAndKeepsItsFirst) {
    RegistryTree tree;
    EXPECT_TRUE(tree.createKey(KeyPath() / "Software\\Stra\u00dfe"));
    EXPECT_FALSE(tree.createKey(KeyPath() / "SOFTWARE\\stra\u00dfe"));
    EXPECT_TRUE(tree.hasKey(KeyPath() / "software"));
    EXPECT_FALSE(tree.hasKey(KeyPath() / "soft"));
    EXPECT_EQ(tree.subkeys(KeyPath() / "SOFTWARE"), std::vector<std::string>{"Stra\u00dfe"});
}

TEST(RegistryTree, AKeyHasAtMost512Levels) {
    std::string deepest = "a";
    for (int i = 1; i < 512; ++i) deepest += "\\a";
    RegistryTree tree;
    EXPECT_TRUE(tree.createKey(KeyPath() / deepest));
    try {
        (void)(KeyPath() / (deepest + "\\a"));
        FAIL() << "a key with 513 levels";
    } catch (const host::RegFailure& failure) { EXPECT_EQ(failure.status, host::RegStatus::InvalidParameter); }
}

TEST(RegistryTree, NamesAreLimitedInCharacters) {
    const auto statusOf = [](const auto& action) {
        try {
            action();
        } catch (const host::RegFailure& failure) { return failure.status; }
        return host::RegStatus::Success;
    };
    const auto key = [&](const std::string& name) { return statusOf([&] { (void)(KeyPath() / name); }); };
    const auto value = [&](const std::string& name) { return statusOf([&] { host::requireValueName(name); }); };
    const std::string longKey(254, 'k'), longValue(16382, 'v'), twoBytes = "\u00df";
    for (const auto& last : {std::string("x"), twoBytes}) {
        EXPECT_EQ(key(longKey + last), host::RegStatus::Success);
        EXPECT_EQ(key(longKey + "x" + last), host::RegStatus::InvalidParameter);
        EXPECT_EQ(value(longValue + last), host::RegStatus::Success);
        EXPECT_EQ(value(longValue + "x" + last), host::RegStatus::InvalidParameter);
    }
    EXPECT_EQ(key(longKey + "x\\" + longKey + "x"), host::RegStatus::Success);
    for (const auto* name : {"a\tb", "\x1f", "\xff", "\xc3"}) {
        EXPECT_EQ(key(name), host::RegStatus::InvalidParameter);
        EXPECT_EQ(value(name), host::RegStatus::InvalidParameter);
    }
    EXPECT_EQ(key(" "), host::RegStatus::Success);
    EXPECT_EQ(value(""), host::RegStatus::Success) << "the value without a name";
}

TEST(RegistryTree, SubkeysAreSortedIgnoringCase) {
    RegistryTree tree;
    for (const auto* name : {"b", "C", "a\\x", "B-2"}) tree.createKey(KeyPath() / name);
    EXPECT_EQ(tree.subkeys({}), (std::vector<std::string>{"a", "b", "B-2", "C"}));
}

TEST(RegistryTree, ValuesKeepTheOrderAndSpellingInWhichTheyWereFirstSet) {
    RegistryTree tree;
    const auto key = KeyPath() / "K";
    for (const auto* name : {"z", "A", "m"}) tree.setValue(key, name, text("1"));
    tree.setValue(key, "Z", text("2"));
    EXPECT_EQ(namesOf(tree.values(key)), (std::vector<std::string>{"z", "A", "m"}));
    EXPECT_EQ(tree.value(key, "Z"), text("2"));
    EXPECT_TRUE(tree.deleteValue(key, "a"));
    EXPECT_FALSE(tree.deleteValue(key, "a"));
    tree.setValue(key, "a", text("3"));
    EXPECT_EQ(namesOf(tree.values(key)), (std::vector<std::string>{"z", "m", "a"}));
    EXPECT_EQ(tree.value(KeyPath() / "Q", "a"), std::nullopt);
}

TEST(RegistryTree, OnlyAKeyWithoutSubkeysIsDeleted) {
    RegistryTree tree;
    tree.setValue(KeyPath() / "a\\b", "v", text("1"));
    EXPECT_EQ(refusalOf(tree, {}), host::RegStatus::AccessDenied);
    EXPECT_EQ(refusalOf(tree, KeyPath() / "a"), host::RegStatus::AccessDenied);
    EXPECT_TRUE(tree.deleteKey(KeyPath() / "A\\B"));
    EXPECT_FALSE(tree.deleteKey(KeyPath() / "A\\B"));
    EXPECT_TRUE(tree.deleteKey(KeyPath() / "a"));
    EXPECT_TRUE(tree.subkeys({}).empty());
}
