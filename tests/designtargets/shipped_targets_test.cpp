#include "Components/DesignTargetAccess/design_target_mgr.h"
#include "tests/designtargets/installed_tree.h"
#include <gtest/gtest.h>
#include <set>

namespace {

using designtargetaccess::DesignTargetMgr;
using designtargetaccess::IQLDesignTarget;

class ShippedTargets : public testing::Test {
protected:
    ShippedTargets() { manager_.Initialize(); }

    std::vector<basic::Ref<IQLDesignTarget>> all() const {
        std::vector<basic::Ref<IQLDesignTarget>> targets;
        for (std::int16_t i = 0; i < manager_.Count(); ++i) targets.push_back(manager_.GetDesignTargetByIndex(i));
        return targets;
    }
    basic::Ref<IQLDesignTarget> target(const std::string& key) const {
        basic::Ref<IQLDesignTarget> found;
        EXPECT_TRUE(manager_.GetDesignTarget(key, found)) << key;
        return found;
    }

    DesignTargetMgr manager_{installed::kRoot};
};

TEST_F(ShippedTargets, AllLoad) {
    for (const auto& problem : manager_.problems()) ADD_FAILURE() << problem.text();
    std::vector<std::string> keys;
    for (const auto& each : all()) keys.push_back(each->Key());
    EXPECT_EQ(keys,
              (std::vector<std::string>{"PalmOS-DragonBall", "PocketPC-SH3", "PocketPC-ARM", "LinuxHandheld-ARM"}));
}

TEST_F(ShippedTargets, HaveTheSizesOfTheirScreens) {
    EXPECT_EQ(target("PalmOS-DragonBall")->DefaultFormWidth(), "160");
    EXPECT_EQ(target("PalmOS-DragonBall")->DefaultFormHeight(), "160");
    EXPECT_EQ(target("PocketPC-SH3")->DefaultFormWidth(), "240");
    EXPECT_EQ(target("PocketPC-SH3")->DefaultFormHeight(), "320");
    for (const auto& each : all()) {
        std::string width, height;
        EXPECT_TRUE(each->GetOption("ScreenWidth", width) && each->GetOption("ScreenHeight", height));
        EXPECT_EQ(each->DefaultFormWidth(), width) << each->Key();
        EXPECT_EQ(each->DefaultFormHeight(), height) << each->Key();
    }
}

TEST_F(ShippedTargets, AreComplete) {
    for (const auto& each : all()) {
        SCOPED_TRACE(each->Key());
        EXPECT_NE(each->PlatformName(), "");
        EXPECT_NE(each->Name(), "");
        EXPECT_NE(each->DefaultFontName(), "");
        EXPECT_NE(each->DefaultFormColor(), "0");
        EXPECT_NE(each->TavletStyleID(), "0");
        EXPECT_GT(each->NumSupportedTavlets(), 8);
        EXPECT_GE(each->NumSupportedReferences(), 1);
        EXPECT_GE(each->NumPropertyDefaults(), 1);
        EXPECT_NE(each->VBPTemplate(), "");
        for (const char* option : {"DefaultFontStyle", "ColorDepth", "MaxImageBytes", "MaxHeapBytes", "MaxFileBytes",
                                   "StorageBytes", "MaxNameLength", "FileKinds"}) {
            std::string value;
            EXPECT_TRUE(each->GetOption(option, value) && !value.empty()) << option;
        }
    }
}

TEST_F(ShippedTargets, NameExistingTemplates) {
    for (const auto& each : all())
        for (const std::string& path :
             {each->VBPTemplate(), each->FormTemplate(), each->ModuleTemplate(), each->ClassModuleTemplate()})
            EXPECT_TRUE(path.empty() || std::filesystem::is_regular_file(path)) << path;
}

/// A new project keeps the values of the template, so they must match the target.
TEST_F(ShippedTargets, HaveProjectTemplatesWithMatchingValues) {
    for (const auto& each : all()) {
        SCOPED_TRACE(each->VBPTemplate());
        const std::string text = installed::content(each->VBPTemplate());
        std::string style;
        EXPECT_TRUE(each->GetOption("DefaultFontStyle", style));
        for (const std::string& line :
             {std::string{"[Quinloft Global]"}, std::string{"IsQuinloftProject=True"},
              std::string{"ProjectVersion=3.5"}, "TargetDevice=" + each->Key(), "CompileTarget1=" + each->Key(),
              "TavletStyleID=" + each->TavletStyleID(), "DefaultFormWidth=" + each->DefaultFormWidth(),
              "DefaultFormHeight=" + each->DefaultFormHeight(), "DefaultFormColor=" + each->DefaultFormColor(),
              "DefaultFontName=" + each->DefaultFontName(), "DefaultFontSize=" + each->DefaultFontSize(),
              "DefaultFontStyle=" + style})
            EXPECT_NE(text.find("\r\n" + line + "\r\n"), std::string::npos) << line;
        for (const char* member : {"Form=", "Module=", "Class="})
            EXPECT_EQ(text.find(std::string{"\r\n"} + member), std::string::npos) << member;
    }
}

TEST_F(ShippedTargets, AcceptTheReferencesOfTheirTemplates) {
    for (const auto& each : all()) {
        std::vector<std::string> guids;
        each->GetSupportedReferences(guids);
        EXPECT_EQ(static_cast<std::size_t>(each->NumSupportedReferences()), guids.size());
        for (const auto& guid : guids) {
            EXPECT_TRUE(each->ValidateReference(guid).required) << guid;
            EXPECT_TRUE(each->FindModule(guid)) << guid;
        }
        EXPECT_TRUE(each->ValidateReference("TavletsCtl").accepted);
        EXPECT_TRUE(each->ValidateReference("{00020430-0000-0000-C000-000000000046}").accepted);
        EXPECT_FALSE(each->ValidateReference("{2A75196C-D9EB-4129-B803-931327F72D5C}").known());
    }
}

TEST_F(ShippedTargets, HaveUniqueNamesWithinAFamily) {
    std::set<std::string> names;
    for (const auto& each : all()) EXPECT_TRUE(names.insert(each->Name()).second) << each->Name();
}

} // namespace
