// The designer's properties and the library of forms describe the same classes.
#include "Components/Language/foreign.h"
#include "Host/model/forms/control_class.h"
#include <algorithm>
#include <gtest/gtest.h>

namespace {

bool hasMember(const language::Group& group, const std::string& name) {
    return std::any_of(group.members.begin(), group.members.end(),
                       [&](const auto& member) { return member.name == name; });
}

void expectProperties(const std::string& className, const std::vector<std::string>& except = {}) {
    const auto* described = language::findClass(className);
    ASSERT_TRUE(described) << className;
    const auto designed = host::builtInClass(className);
    for (const auto& property : designed->properties) {
        const bool isExcepted = std::find(except.begin(), except.end(), property.name) != except.end();
        EXPECT_TRUE(isExcepted || hasMember(*described, property.name)) << className << "." << property.name;
    }
}

} // namespace

TEST(ClassMembers, IncludeThePropertiesOfControls) {
    for (const auto& group : language::formsLibrary().groups) {
        // The designer knows these by the properties that most controls have.
        const bool isUndescribed = group.name == "Data" || group.name == "OLE";
        if (group.control && !isUndescribed) expectProperties("VB." + group.name);
    }
}

TEST(ClassMembers, IncludeThePropertiesOfForms) {
    for (const auto* name : {"VB.Form", "VB.MDIForm", "VB.PropertyPage", "VB.UserDocument"}) expectProperties(name);
    // The container places the control.
    expectProperties("VB.UserControl", {"Left", "Top"});
}
