// Libraries that a project uses and its device does not have.
#include "validate_world.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

constexpr char kId[] = "{8A516A60-1B8E-11D3-8C4B-0050046ECCF2}";

std::string notSupported(const std::string& name) {
    return "||4119|" + name +
           " is not supported and may cause errors on a Platform device.  To ingore this warning and deploy to any "
           "device, turn off reference checking in the Compiler section of the Fernwick Settings screen. "
           "(Double-Click here to open the Fernwick Settings.)";
}

class ValidateReferences : public testing::Test, protected test::ValidateWorld {
protected:
    void module(const std::string& path, const std::string& help) {
        registry.set(fernwick::HKEY_LOCAL_MACHINE, std::string("Software\\Quinloft\\Modules\\") + kId, "", path);
        classes.libraries[path].HelpString = help;
    }
};

TEST_F(ValidateReferences, ABrokenOneIsAnErrorAndOthersAreNot) {
    addReference("{1}");
    addReference("{2}", true);
    addReference("{3}", true);
    EXPECT_FALSE(run());
    const std::string row = "||8205|There is a missing reference in this project, please remove the reference.";
    EXPECT_THAT(rows(), ElementsAre(row, row));
    EXPECT_EQ(messages.errorCount(), 2);
}

TEST_F(ValidateReferences, WithoutADeviceOnlyBrokenOnesCount) {
    dependOn({kId});
    EXPECT_TRUE(run(""));
    addReference(kId, true);
    EXPECT_FALSE(run(""));
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(ValidateReferences, AnUnknownDeviceEndsTheChecks) {
    dependOn({kId});
    EXPECT_TRUE(run("Palm-2"));
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ValidateReferences, AKnownReferenceGivesNoMessage) {
    addReference(kId);
    dependOn({kId});
    targets.knows.references = {kId};
    EXPECT_TRUE(run());
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(ValidateReferences, AnUnknownReferenceOfTheProjectIsAnError) {
    addReference(kId);
    dependOn({kId});
    targets.knows.modules = {kId}; // only consulted for modules that the project does not refer to
    EXPECT_FALSE(run());
    EXPECT_THAT(rows(), ElementsAre(notSupported(std::string("TypeLib with UUID = ") + kId)));
    EXPECT_EQ(stored("Error1").substr(0, 9), "ERROR||0|");
}

TEST_F(ValidateReferences, GuidsAreCaseSensitive) {
    addReference("{8a516a60-1b8e-11d3-8c4b-0050046eccf2}");
    dependOn({kId});
    targets.knows.modules = {kId};
    EXPECT_TRUE(run());
}

TEST_F(ValidateReferences, AModuleWithoutAReferenceIsLookedUpAmongModules) {
    dependOn({kId, "{B}"});
    targets.knows.modules = {"{B}"};
    EXPECT_FALSE(run());
    EXPECT_EQ(rows().size(), 1U);
    targets.knows.modules = {kId, "{B}"};
    messages.ClearProjectCompileErrors(project);
    EXPECT_TRUE(run());
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(ValidateReferences, AreNamedByTheirLibrarysDescription) {
    dependOn({kId});
    module("/modules/some.dll", "Some Controls 2.0");
    EXPECT_FALSE(run());
    EXPECT_THAT(rows(), ElementsAre(notSupported("Some Controls 2.0")));
    EXPECT_EQ(registry.openKeys(), 0U);
}

TEST_F(ValidateReferences, ALibraryWithoutADescriptionIsNamedByItsIdentifier) {
    dependOn({kId});
    module("/modules/some.dll", "");
    EXPECT_FALSE(run());
    module("", "unused");
    EXPECT_FALSE(run());
    EXPECT_THAT(rows(), testing::Each(notSupported(std::string("TypeLib with UUID = ") + kId)));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(ValidateReferences, AMissingLibraryIsReportedAndNamedByItsIdentifier) {
    dependOn({kId});
    module("/modules/some.dll", "");
    classes.libraries.clear();
    EXPECT_FALSE(run());
    EXPECT_THAT(errors.seen, ElementsAre("frmValidate.GetTypeLibDisplayName [91]"));
    EXPECT_THAT(rows(), ElementsAre(notSupported(std::string("TypeLib with UUID = ") + kId)));
}

TEST_F(ValidateReferences, AControlThatThisMachineLacksIsReported) {
    targets.knows.tavlets = {kId};
    EXPECT_TRUE(run());
    EXPECT_THAT(trace.effects, testing::Contains("box 48 Fernwick: Could not get ProgID of \r\ndefined in Palm-1"));
    set("Quinloft Global", "ScanReferences", "False");
    EXPECT_TRUE(run());
    EXPECT_THAT(trace.effects, testing::Not(testing::Contains(testing::StartsWith("box"))));
}

TEST_F(ValidateReferences, WithoutDesignTargetsTheLookupsAreReported) {
    classes.forget("DesignTargetAccess.QLDesignTargetMgr");
    addReference("{2}", true);
    dependOn({kId});
    EXPECT_FALSE(run());
    EXPECT_THAT(trace.effects,
                testing::Contains("box 16 Fernwick: Error Creating DesignTargetAccess Object, please contact Quinloft "
                                  "support"));
    EXPECT_THAT(errors.seen,
                ElementsAre("modDeviceManagement.initDesignTargetMgr [429]", "frmValidate.ScanReferences [91]"));
    EXPECT_THAT(rows(), ElementsAre(StartsWith("||8205|")));
}

} // namespace
