// The list of dependency files in the project.
#include "compile_world.h"

using fernwick::tResource;
using fernwick::tResourceList;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr char kDependencies[] = "Quinloft Project Dependencies";

class StoredResources : public testing::Test, protected test::CompileWorld {
protected:
    StoredResources() { trace.effects.clear(); }
    tResourceList read() { return dependencies.ReadProjectDependencies(project); }
    bool allThere(const std::vector<tResource>& entries) {
        return dependencies.ValidateDependencyList(project, {entries});
    }
};

TEST_F(StoredResources, AreWrittenFromIndexZero) {
    dependencies.WriteProjectDependencies(project, {{{"Media\\a.bmp", "BMP"}, {"Ari_12R.CMF", "CMF"}}});
    EXPECT_THAT(trace.effects,
                ElementsAre("NumDependencies=2", "Dependencies0=Media\\a.bmp,BMP", "Dependencies1=Ari_12R.CMF,CMF"));
}

TEST_F(StoredResources, AShorterListBlanksTheOldKeys) {
    dependencies.WriteProjectDependencies(project, {{{"a", "A"}, {"b", "B"}, {"c", "C"}}});
    project->properties.erase({kDependencies, "Dependencies1"});
    trace.effects.clear();
    dependencies.WriteProjectDependencies(project, {{{"x", "X"}}});
    EXPECT_THAT(trace.effects, ElementsAre("Dependencies0=", "Dependencies2=", "NumDependencies=0", "NumDependencies=1",
                                           "Dependencies0=x,X"));
}

TEST_F(StoredResources, AListThatCouldNotBeReadAgainIsNotWritten) {
    dependencies.WriteProjectDependencies(project, {{{"a", "A"}}});
    trace.effects.clear();
    dependencies.WriteProjectDependencies(project, {std::vector<tResource>(65537, {"x", "X"})});
    EXPECT_THAT(trace.effects, IsEmpty());
    EXPECT_EQ(read().Count(), 1);
    EXPECT_THAT(errors.seen, ElementsAre("modDependencyManagement.WriteProjectDependencies [6]"));
}

TEST_F(StoredResources, AnEmptyListLeavesTheCountZero) {
    dependencies.WriteProjectDependencies(project, {});
    EXPECT_EQ(stored("NumDependencies"), "0");
    EXPECT_EQ(read().Count(), 0);
}

TEST_F(StoredResources, ClearingWhatWasNeverWrittenWritesNothing) {
    dependencies.ClearProjectDependencies(project);
    set(kDependencies, "NumDependencies", "many");
    dependencies.ClearProjectDependencies(project);
    EXPECT_THAT(trace.effects, IsEmpty());
}

TEST_F(StoredResources, AreReadWithTheirSizes) {
    files.files["/p/a.bmp"] = {"12345"};
    files.files["/p/Ari_12R.CMF"] = {"12"};
    files.files["/install/Fonts/Tah_08R.CMF"] = {"123"};
    files.files["/p/Tah_08R.CMF"] = {"1"};
    dependencies.WriteProjectDependencies(
        project, {{{"a.bmp", "bmp"}, {"Tah_08R.CMF", "CMF"}, {"Ari_12R.CMF", "CMF"}, {"gone.bmp", "BMP"}}});
    EXPECT_THAT(read().entries, ElementsAre(tResource{"a.bmp", "BMP", 5}, tResource{"Tah_08R.CMF", "CMF", 3},
                                            tResource{"Ari_12R.CMF", "CMF", 2}, tResource{"gone.bmp", "BMP", 0}));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(StoredResources, AnUnreadableEntryIsBlankAndTheOthersAreRead) {
    set(kDependencies, "NumDependencies", "4");
    set(kDependencies, "Dependencies0", "");
    set(kDependencies, "Dependencies2", "a,b.bmp,BMP");
    set(kDependencies, "Dependencies3", "plain");
    EXPECT_THAT(read().entries, ElementsAre(tResource{}, tResource{}, tResource{"a", "B.BMP,BMP"}, tResource{"plain"}));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(StoredResources, ADamagedCountIsAnEmptyList) {
    for (const char* count : {"", "x", "0", "-3", "65537", "2000000000", "99999999999"}) {
        set(kDependencies, "NumDependencies", count);
        EXPECT_EQ(read().Count(), 0) << count;
    }
}

TEST_F(StoredResources, AreValidWhenAllFilesAreInTheirPlaces) {
    files.files["/p/Media/a.bmp"] = {};
    files.files["/p/Own_08R.CMF"] = {};
    files.files["/install/Fonts/Tah_08R.CMF"] = {};
    const tResource picture{"Media\\a.bmp", "BMP"}, own{"Own_08R.CMF", "CMF"}, installed{"Tah_08R.CMF", "CMF"};
    EXPECT_TRUE(allThere({picture, own, installed}));
    EXPECT_TRUE(allThere({}));
    EXPECT_FALSE(allThere({picture, {"b.bmp", "BMP"}}));
    EXPECT_FALSE(allThere({{"Tah_08R.CMF", "BMP"}})); // of another kind, so it must be in the project's folder
    EXPECT_FALSE(allThere({{"", ""}}));
    EXPECT_THAT(trace.effects, IsEmpty());
}

TEST_F(StoredResources, AFailingCallOfAWriteSkipsOnlyItself) {
    const tResourceList list{{{"a", "A"}, {"b", "B"}}};
    dependencies.WriteProjectDependencies(project, list);
    trace.effects.clear();
    dependencies.WriteProjectDependencies(project, list);
    const auto baseline = trace.effects;
    for (int failing = 1, calls = trace.calls = 0;; ++failing) {
        trace.effects.clear();
        errors.injected = trace.calls = 0;
        trace.failing = failing;
        dependencies.WriteProjectDependencies(project, list);
        calls = trace.calls;
        trace.failing = 0;
        if (calls < failing) break;
        EXPECT_LE(errors.injected, 1) << failing;
        // without a count nothing is cleared
        EXPECT_LE(test::lost(baseline, trace.effects).size(), failing == 1 ? 3U : 1U) << failing;
    }
}

} // namespace
