// The list of dependency files in memory.
#include "Add-in/build/dependencies/modDependencyManagement.h"
#include "tests/support/errors.h"

using Dependencies = fernwick::modDependencyManagement;
using fernwick::tResource;
using fernwick::tResourceList;

namespace {

tResourceList listOf(const std::vector<std::string>& names) {
    tResourceList list;
    for (const auto& name : names) Dependencies::AddDependency({name, "BMP", 7}, list);
    return list;
}

std::vector<std::string> namesOf(const tResourceList& list) {
    std::vector<std::string> names;
    for (const auto& entry : list) names.push_back(entry.FileName);
    return names;
}

} // namespace

TEST(ResourceList, AppendsEntriesThatHaveAName) {
    auto list = listOf({"a.bmp", "b.bmp"});
    Dependencies::AddDependency({"", "BMP", 7}, list);
    Dependencies::AddDependency({"a.bmp"}, list);
    EXPECT_EQ(namesOf(list), (std::vector<std::string>{"a.bmp", "b.bmp", "a.bmp"}));
    EXPECT_EQ(list.Count(), 3);
    EXPECT_EQ(list.entries[0].Description, "???");
}

TEST(ResourceList, ClearLeavesNothing) {
    auto list = listOf({"a.bmp"});
    Dependencies::ClearDependencyList(list);
    EXPECT_EQ(list.Count(), 0);
}

TEST(ResourceList, ContainsExactNamesAndFindsThemInAnyCase) {
    const auto list = listOf({"a.bmp", "B.bmp", "b.BMP"});
    EXPECT_TRUE(Dependencies::ResourceinDependencyList("B.bmp", list));
    EXPECT_FALSE(Dependencies::ResourceinDependencyList("A.bmp", list));
    EXPECT_EQ(Dependencies::FindResourceIndex("b.bmp", list), 1);
    EXPECT_EQ(Dependencies::FindResourceIndex("c.bmp", list), -1);
}

TEST(ResourceList, RemovingMovesLaterEntriesDown) {
    auto list = listOf({"a", "b", "c"});
    Dependencies::RemoveDependency(1, list);
    EXPECT_EQ(namesOf(list), (std::vector<std::string>{"a", "c"}));
    Dependencies::RemoveDependency(-1, list);
    EXPECT_EQ(list.Count(), 2);
    EXPECT_EQ(test::errorOf([&] { Dependencies::RemoveDependency(2, list); }), basic::kSubscriptOutOfRange);
    EXPECT_EQ(test::errorOf([&] { Dependencies::RemoveDependency(-2, list); }), basic::kSubscriptOutOfRange);
}
