#include "core_world.h"

using namespace fernwick;

namespace {
struct QuinloftControls : test::CoreTest {
    static constexpr const char* kClasses = "SOFTWARE\\Quinloft\\Classes\\";
    modReferencesManagement references{registry, classes, errors};
};
} // namespace

TEST_F(QuinloftControls, AreListedInTheRegistry) {
    store.set(kMachine, std::string(kClasses) + "TavletsCtl.QLLabel", "name", "Tavlets.QLLabel");
    store.set(kMachine, std::string(kClasses) + "TavletsCtl.QLNone", "other", "x");
    references.SaveQuinloftClasses();
    references.SaveQuinloftClasses(); // a second connection
    EXPECT_TRUE(references.IsQuinloftControl("tavletsctl.qllabel"));
    for (const auto* other : {"Tavlets.QLLabel", "TavletsCtl.QLNone", "VB.TextBox"})
        EXPECT_FALSE(references.IsQuinloftControl(other)) << other;
    EXPECT_EQ(references.gQuinloftClasses.Count(), 1);
    EXPECT_EQ(references.gQuinloftClasses.Item("TavletsCtl.QLLabel"), "Tavlets.QLLabel");
    EXPECT_TRUE(errors.seen.empty());
}

TEST_F(QuinloftControls, NoneWithoutTheKey) {
    references.SaveQuinloftClasses();
    EXPECT_EQ(references.gQuinloftClasses.Count(), 0);
}

TEST_F(QuinloftControls, HaveNoProgIdForAnInvalidClass) {
    classes.progIds = {{"{1}", "Tavlets.QLLabel"}, {"1", "Tavlets.QLWrong"}};
    EXPECT_EQ(references.GetProgID("{1}"), "Tavlets.QLLabel");
    EXPECT_EQ(references.GetProgID("1"), "");
    EXPECT_EQ(references.GetProgID("{2}"), "");
    EXPECT_TRUE(errors.seen.empty());
}
