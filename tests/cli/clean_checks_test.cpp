// Projects without messages are remembered until one of their files or folders changes.
#include "Apps/fernwick/checks/clean_checks.h"
#include "tests/support/temp_folder.h"
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace cli;
using namespace std::chrono_literals;

namespace {

/// The folder of the user's caches, for the time of a test.
struct CacheFolder {
    explicit CacheFolder(const std::string& path) { ::setenv("XDG_CACHE_HOME", path.c_str(), 1); }
    ~CacheFolder() { ::unsetenv("XDG_CACHE_HOME"); }
};

class CleanProjects : public testing::Test {
protected:
    CleanProjects() {
        for (const char* name : {"work/One.vbp", "work/One.bas", "other/Two.cls", "work/One.res"})
            folder.write(name, "text");
        check.project.path = path("work/One.vbp");
        check.project.sources = {path("work/One.bas"), path("other/Two.cls")};
        check.project.resourceFile = path("work/One.res");
        check.project.page = {basic::CodePage(1251), basic::CodePageReason::Key, true};
        check.absoluteSources = check.project.sources;
        check.lines = {7, 300};
        later.store(check.project, check.lines);
    }

    std::string path(const std::string& name) const { return folder / name; }
    bool isFound() const { return later.find(check.project.path).has_value(); }
    std::filesystem::path stored() const {
        return *std::filesystem::directory_iterator(folder / "cache/fernwick/clean");
    }

    const test::TempFolder folder;
    const CacheFolder cache{folder / "cache"};
    Options options;
    /// Its checks begin a while after the files were written.
    const CleanChecks later{options, std::chrono::system_clock::now() + 10s};
    CleanCheck check;
};

} // namespace

TEST_F(CleanProjects, AreFoundAsTheyWere) {
    const auto found = later.find(check.project.path);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->project.path, check.project.path);
    EXPECT_EQ(found->project.sources, check.project.sources);
    EXPECT_EQ(found->project.resourceFile, check.project.resourceFile);
    EXPECT_EQ(found->project.page.page.number(), 1251);
    EXPECT_EQ(found->project.page.reason, basic::CodePageReason::Key);
    EXPECT_TRUE(found->project.page.matters);
    EXPECT_EQ(found->absoluteSources, check.absoluteSources);
    EXPECT_EQ(found->lines, check.lines);
    EXPECT_FALSE(later.find(path("work/Other.vbp")));
}

TEST_F(CleanProjects, WithAChangedFileAreNotFound) {
    for (const char* name : {"work/One.vbp", "work/One.bas", "other/Two.cls", "work/One.res"}) {
        later.store(check.project, check.lines);
        ASSERT_TRUE(isFound());
        const auto time = std::filesystem::last_write_time(folder / name);
        std::ofstream(folder / name) << "TEXT"; // of the same size, and soon with the same time
        std::filesystem::last_write_time(folder / name, time);
        EXPECT_FALSE(isFound()) << name;
    }
}

TEST_F(CleanProjects, WithANewFileInAFolderAreNotFound) {
    folder.write("other/TWO.CLS", "text");
    EXPECT_FALSE(isFound());
    later.store(check.project, check.lines);
    EXPECT_TRUE(isFound());
    folder.write("work/ONE.BAS", "text");
    EXPECT_FALSE(isFound());
}

TEST_F(CleanProjects, WithoutAFileAreNeitherFoundNorStored) {
    std::filesystem::remove(folder / "work/One.bas");
    EXPECT_FALSE(isFound());
    later.store(check.project, check.lines);
    EXPECT_FALSE(isFound());
}

TEST_F(CleanProjects, AreNotStoredSoonAfterAChange) {
    const CleanChecks now{options};
    std::filesystem::remove(stored());
    now.store(check.project, check.lines);
    EXPECT_FALSE(isFound());
    const CleanChecks soon{options, std::chrono::system_clock::now() + 2s};
    soon.store(check.project, check.lines);
    EXPECT_FALSE(isFound());
}

TEST_F(CleanProjects, AreThoseOfTheSameOptions) {
    Options warning;
    warning.warnsOptionally = true;
    EXPECT_FALSE(CleanChecks(warning).find(check.project.path));
    Options given;
    given.codePage = basic::CodePage(1251);
    EXPECT_FALSE(CleanChecks(given).find(check.project.path));
    EXPECT_TRUE(CleanChecks(options).find(check.project.path));
}

TEST_F(CleanProjects, InDamagedFilesAreNotFound) {
    const auto name = std::filesystem::relative(stored(), folder.path()).string();
    const auto good = folder.read(name);
    for (std::size_t i = 0; i < good.size(); i += 7) {
        folder.write(name, good.substr(0, i));
        EXPECT_FALSE(isFound()) << "the first " << i << " bytes";
        auto changed = good;
        changed[i] = static_cast<char>(changed[i] ^ 1);
        folder.write(name, changed);
        EXPECT_FALSE(isFound()) << "byte " << i;
    }
    folder.write(name, good);
    EXPECT_TRUE(isFound());
}
