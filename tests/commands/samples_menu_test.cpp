// The samples listed in the registry.
#include "Host/registry/registry_store.h"
#include "Host/system/file_system.h"
#include "commands_world.h"
#include "tests/support/temp_folder.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SamplesMenu : public testing::Test, protected test::CommandsWorld {
protected:
    std::vector<std::string> samples(const std::string& popup = "") {
        build();
        const auto all = shownMenu("Samples and Tutorials");
        return captions(popup.empty() ? all : test::Ref<test::TracedBar>(all->at(popup)->popup));
    }
    /// Name and project of each entry in the array, "> caption" for a popup.
    std::vector<std::string> listed() {
        std::vector<std::string> all;
        for (const auto& item : items.gSampleItems)
            all.push_back(item->popupMenu ? "> " + item->myOfficeCommandBar->Caption()
                                          : item->Name + "=" + item->fullPath);
        return all;
    }
    const std::vector<std::string> fixed{"Introduction to Fernwick", "Hello World Tutorial", "Open samples directory"};
};

TEST_F(SamplesMenu, WithoutAKeyHoldsItsThreeItems) {
    EXPECT_EQ(samples(), fixed);
    EXPECT_FALSE(items.gSampleItems.isAllocated());
}

TEST_F(SamplesMenu, ListsTheSamplesOfAKey) {
    addSample("\\Applications", "", "Applications");
    addSample("\\Applications", "Address Book", "/s/AddressBook.vbp");
    addSample("\\Applications", "Hello", "/s/Hello.vbp");
    EXPECT_THAT(samples(), ElementsAre(fixed[0], fixed[1], "Applications", fixed[2]));
    EXPECT_THAT(samples("Applications"), ElementsAre("Address Book", "Hello"));
    EXPECT_THAT(listed(), ElementsAre("> Applications", "Address Book=/s/AddressBook.vbp", "Hello=/s/Hello.vbp"));
    EXPECT_EQ(std::count(pictures.loaded.begin(), pictures.loaded.end(), 123), 4); // it was built twice
}

TEST_F(SamplesMenu, NestsAsTheKeysDo) {
    addSample("\\A", "", "A");
    addSample("\\A", "Leaf", "/s/leaf.vbp");
    addSample("\\A\\B", "", "B");
    addSample("\\A\\B\\C", "", "C");
    addSample("\\A\\B\\C", "Deep", "/s/deep.vbp");
    EXPECT_THAT(samples("A"), ElementsAre("B", "Leaf"));
    EXPECT_THAT(listed(), ElementsAre("> A", "> B", "> C", "Deep=/s/deep.vbp", "Leaf=/s/leaf.vbp"));
}

TEST_F(SamplesMenu, OnlyTheFirstPopupBeginsAGroup) {
    addSample("\\A", "", "A");
    addSample("\\A\\B", "", "B");
    addSample("\\C", "", "C");
    build();
    const auto all = shownMenu("Samples and Tutorials");
    EXPECT_TRUE(all->at("A")->group);
    EXPECT_FALSE(all->at("A")->popup->at("B")->group);
    EXPECT_FALSE(all->at("C")->group);
    EXPECT_TRUE(all->at(fixed[2])->group);
}

TEST_F(SamplesMenu, SkipsAKeyWithoutANameAndItsSubkeys) {
    addSample("\\A", "Leaf", "/s/leaf.vbp");
    addSample("\\A\\B", "", "B");
    addSample("\\C", "", "");
    EXPECT_EQ(samples(), fixed);
}

TEST_F(SamplesMenu, SkipsAValueWithoutANameOrData) {
    addSample("\\A", "", "A");
    addSample("\\A", "Empty", "");
    EXPECT_THAT(samples("A"), IsEmpty());
}

TEST_F(SamplesMenu, ForgetsRemovedSamples) {
    addSample("\\A", "", "A");
    build();
    std::uint32_t root = fernwick::HKEY_LOCAL_MACHINE;
    registry.RegDeleteKey(root, "SOFTWARE\\Quinloft\\VB Toolkit\\Samples\\A");
    EXPECT_EQ(samples(), fixed);
    EXPECT_FALSE(items.gSampleItems.isAllocated());
}

TEST_F(SamplesMenu, AFailureLosesOneBranch) {
    addSample("\\A", "", "A");
    addSample("\\A", "One", "/s/1.vbp");
    addSample("\\A", "Two", "/s/2.vbp");
    build();
    for (int failing = 1;; ++failing) {
        shownMenu("Samples and Tutorials")->items.clear();
        errors.injected = 0;
        trace.calls = 0;
        trace.failing = failing;
        menu.SetupSamplesMenu();
        trace.failing = 0;
        if (trace.calls < failing) break;
        EXPECT_LE(errors.injected, 1) << failing; // faces fail silently
        const auto standing = captions(shownMenu("Samples and Tutorials"));
        const auto missing = test::lost({fixed[0], fixed[1], "A", fixed[2]}, standing);
        EXPECT_LE(missing.size(), 1U) << failing;
    }
    EXPECT_THAT(errors.seen, testing::Contains("modMenuManagement.SetupSamplesMenu [50000]"));
    EXPECT_THAT(errors.seen, testing::Contains("modMenuManagement.SetupDynamicSamplesMenuHelper [50000]"));
}

TEST_F(SamplesMenu, AnItemKnowsItsProjectAndFolder) {
    fernwick::clsSampleMenuItem item;
    item.fullPath = "/s/Tip/Tip.vbp";
    EXPECT_EQ(item.sampleVbp(files), "Tip.vbp");
    EXPECT_EQ(item.samplePath(files), "/s/Tip");
}

class SamplesList : public testing::Test, protected test::CommandsWorld {
protected:
    std::vector<std::string> listed() {
        samples.InitSamplesList();
        std::vector<std::string> all;
        for (const auto& sample : samples.gSamplesList) all.push_back(sample.Name + "=" + sample.fullPath);
        return all;
    }
    fernwick::modSamplesManagement samples{registry2};
};

TEST_F(SamplesList, IsFlatWithTheSamplesOfAKeyBeforeThoseBelow) {
    addSample("", "Top", "/s/top.vbp");
    addSample("\\A", "", "A");
    addSample("\\A", "Leaf", "/s/leaf.vbp");
    addSample("\\A\\B\\C", "Deep", "/s/deep.vbp");
    addSample("\\D", "Last", "/s/last.vbp");
    EXPECT_EQ(samples.SamplesListLength(), 0);
    EXPECT_THAT(listed(), ElementsAre("Top=/s/top.vbp", "Leaf=/s/leaf.vbp", "Deep=/s/deep.vbp", "Last=/s/last.vbp"));
    EXPECT_EQ(samples.SamplesListLength(), 4);
}

TEST_F(SamplesList, SkipsEntriesWithoutANameOrData) {
    addSample("\\A", "", "A");
    addSample("\\A", "Empty", "");
    EXPECT_THAT(listed(), IsEmpty());
}

/// The samples of this installation.
TEST(InstalledSamples, AreExistingProjects) {
    const test::TempFolder stores;
    host::RegistryStore store{{stores / "user", stores / "machine", FERNWICK_SOURCE_DIR "/installation"}};
    fernwick::modRegistry2 registry{store};
    fernwick::modSamplesManagement samples{registry};
    const host::FileSystem disk;
    samples.InitSamplesList();
    EXPECT_EQ(samples.SamplesListLength(), 3);
    for (const auto& sample : samples.gSamplesList) EXPECT_TRUE(disk.FileExists(sample.fullPath)) << sample.fullPath;
}

TEST_F(SamplesList, IsReadAgainEachTime) {
    EXPECT_THAT(listed(), IsEmpty());
    addSample("\\A", "Leaf", "/s/leaf.vbp");
    EXPECT_THAT(listed(), ElementsAre("Leaf=/s/leaf.vbp"));
    EXPECT_THAT(listed(), ElementsAre("Leaf=/s/leaf.vbp"));
}

} // namespace
