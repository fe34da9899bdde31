#include "Add-in/build/control_events.h"
#include "Components/Language/foreign.h"
#include <gtest/gtest.h>

/// The validation of a project and the library of forms name the same events of forms.
TEST(FormEvents, AreValidWhereTheLibraryHasThemOnDevices) {
    const auto* form = language::findClass("VB.Form");
    ASSERT_TRUE(form);
    for (const auto& member : form->members) {
        if (member.kind != language::MemberKind::Event) continue;
        EXPECT_EQ(fernwick::IsValidFormEvent("Form_" + member.name), member.onDevices) << member.name;
    }
}
