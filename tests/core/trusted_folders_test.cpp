#include "Add-in/core/trusted_folders.h"
#include "core_world.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {
struct TrustedFoldersTest : test::CoreTest {
    fernwick::TrustedFolders trusted{store};
};
} // namespace

TEST_F(TrustedFoldersTest, AreNoneAtFirst) {
    EXPECT_THAT(trusted.list(), IsEmpty());
    EXPECT_FALSE(trusted.holds("/a"));
    EXPECT_TRUE(trusted.remove("/a"));
}

TEST_F(TrustedFoldersTest, AreAddedAndRemoved) {
    EXPECT_TRUE(trusted.add("/a"));
    EXPECT_TRUE(trusted.add("/b"));
    EXPECT_TRUE(trusted.add("/a"));
    EXPECT_THAT(trusted.list(), ElementsAre("/a", "/b"));
    EXPECT_EQ(stored(kUser, "SOFTWARE\\Quinloft\\Fernwick\\TrustedFolders", "/b"), "4:1");
    EXPECT_TRUE(trusted.remove("/a"));
    EXPECT_THAT(trusted.list(), ElementsAre("/b"));
}

TEST_F(TrustedFoldersTest, DifferInCase) {
    trusted.add("/Work");
    EXPECT_FALSE(trusted.holds("/work"));
    EXPECT_TRUE(trusted.remove("/work"));
    EXPECT_TRUE(trusted.holds("/Work"));
    trusted.add("/work");
    EXPECT_THAT(trusted.list(), ElementsAre("/work"));
}

TEST_F(TrustedFoldersTest, StayAsTheyAreInAReadOnlyStore) {
    trusted.add("/a");
    store.readOnlyRoots.insert(kUser);
    EXPECT_FALSE(trusted.add("/b"));
    EXPECT_FALSE(trusted.remove("/a"));
    EXPECT_TRUE(trusted.remove("/b"));
    EXPECT_THAT(trusted.list(), ElementsAre("/a"));
}
