#include "core_world.h"

using namespace fernwick;

namespace {
struct QuinloftControls : test::CoreTest {
    static constexpr const char* kClasses = "SOFTWARE\\Quinloft\\Classes\\";
    modReferencesManagement references{registry, classes, errors};
};
} // namespace

TEST_F(QuinloftControls, AreListedInTheRegistry) {
    store.set(kMachine, std::string(kClasses) + "Tavlets.QLLabel", "name", "Tavlets.QLLabel");
    store.set(kMachine, std::string(kClasses) + "Tavlets.QLNone", "other", "x");
    references.SaveQuinloftClasses();
    references.SaveQuinloftClasses(); // a second connection
    EXPECT_TRUE(references.IsQuinloftControl("tavlets.qllabel"));
    EXPECT_FALSE(references.IsQuinloftControl("Tavlets.QLNone"));
    EXPECT_FALSE(references.IsQuinloftControl("VB.TextBox"));
    EXPECT_EQ(references.gQuinloftClasses.Item("Tavlets.QLLabel"), "Tavlets.QLLabel");
    EXPECT_TRUE(errors.seen.empty());
}

TEST_F(QuinloftControls, NoneWithoutTheKey) {
    references.SaveQuinloftClasses();
    EXPECT_EQ(references.gQuinloftClasses.Count(), 0);
}

TEST_F(QuinloftControls, HaveNoProgIdForAnInvalidClass) { EXPECT_EQ(references.GetProgID("Tavlets.QLLabel"), ""); }
