// Stored results of checks.
#include "Apps/fernwick/checks/check_cache.h"
#include "Apps/fernwick/checks/key_text.h"
#include "Components/QLToolkit/check_results.h"
#include "tests/support/temp_folder.h"
#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <iterator>
#include <thread>
#include <vector>

using namespace cli;

namespace {

std::string resultsWith(int number) {
    qltoolkit::CheckResults results(1);
    results[0].lines = 5;
    auto& warning = results[0].diagnostics.emplace_back();
    warning.severity = qltoolkit::Severity::Warning;
    warning.number = number;
    warning.text = "text";
    return qltoolkit::bytesOf(results);
}

std::filesystem::path onlyFile(const std::filesystem::path& folder) {
    const std::filesystem::directory_iterator first(folder);
    return first->path();
}

} // namespace

TEST(CheckCache, FindsOnlyWhatHasTheSameContent) {
    const test::TempFolder folder;
    const CheckCache cache{folder / "new/checks"};
    EXPECT_FALSE(cache.find({1, 2}));
    cache.store({1, 2}, resultsWith(2900));
    EXPECT_EQ(cache.find({1, 2}), resultsWith(2900));
    EXPECT_FALSE(cache.find({1, 3}));
    EXPECT_FALSE(cache.find({2, 2}));
    cache.store({1, 3}, resultsWith(2901));
    EXPECT_FALSE(cache.find({1, 2}));
    EXPECT_EQ(cache.find({1, 3}), resultsWith(2901));
}

TEST(CheckCache, DamagedFilesAreNotFound) {
    const test::TempFolder folder;
    const CheckCache cache{folder.path()};
    cache.store({1, 2}, resultsWith(2900));
    const auto file = onlyFile(folder.path());
    const auto good = folder.read(file.filename().string());
    for (std::size_t i = 0; i < good.size(); ++i) {
        folder.write(file.filename().string(), good.substr(0, i));
        EXPECT_FALSE(cache.find({1, 2})) << "the first " << i << " bytes";
        auto changed = good;
        changed[i] = static_cast<char>(changed[i] ^ 1);
        folder.write(file.filename().string(), changed);
        EXPECT_FALSE(cache.find({1, 2})) << "byte " << i;
    }
    folder.write(file.filename().string(), good + "x");
    EXPECT_FALSE(cache.find({1, 2}));
    folder.write(file.filename().string(), good);
    EXPECT_TRUE(cache.find({1, 2}));
}

TEST(CheckCache, WhatCannotBeStoredIsNotFound) {
    const test::TempFolder folder;
    folder.write("file", "");
    for (const auto& place : {std::string(), folder / "file", folder / "file/below"}) {
        const CheckCache cache{place};
        cache.store({1, 2}, resultsWith(2900));
        EXPECT_FALSE(cache.find({1, 2}));
    }
    EXPECT_EQ(onlyFile(folder.path()).filename(), "file");
}

TEST(CheckCache, SeveralWritersLeaveOneWholeFile) {
    const test::TempFolder folder;
    const CheckCache cache{folder.path()};
    cache.store({1, 0}, resultsWith(2900));
    std::vector<std::jthread> readers;
    std::atomic<bool> isOver = false;
    std::atomic<int> missed = 0;
    for (int i = 0; i < 2; ++i)
        readers.emplace_back([&] {
            while (!isOver) missed += !cache.find({1, 0});
        });
    for (int i = 0; i < 300; ++i) cache.store({1, 0}, resultsWith(2900 + i % 2));
    isOver = true;
    readers.clear();
    EXPECT_EQ(missed, 0);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST(CheckCache, ForgetsProjectsThatWereNotCheckedForAMonth) {
    const test::TempFolder folder;
    const CheckCache cache{folder.path()};
    const auto now = std::filesystem::file_time_type::clock::now();
    cache.store({1, 0}, resultsWith(2900));
    const auto first = onlyFile(folder.path());
    folder.write("left.123", "by a run that was killed");
    for (const auto& file : {first, std::filesystem::path(folder / "left.123")})
        std::filesystem::last_write_time(file, now - std::chrono::days(31));
    EXPECT_TRUE(cache.find({1, 0})); // which renews it
    cache.store({2, 0}, resultsWith(2900));
    EXPECT_TRUE(cache.find({1, 0}));
    EXPECT_FALSE(std::filesystem::exists(folder / "left.123"));
    std::filesystem::last_write_time(first, now - std::chrono::days(31));
    cache.store({2, 0}, resultsWith(2900));
    EXPECT_FALSE(cache.find({1, 0}));
}

TEST(KeyText, DistinguishesValuesAndTheirOrder) {
    const auto digestOf = [](const std::vector<std::string>& texts) {
        KeyText key;
        for (const auto& text : texts) key.add(text);
        return key.digest();
    };
    EXPECT_EQ(digestOf({"a", "b"}), digestOf({"a", "b"}));
    EXPECT_NE(digestOf({"ab", "c"}), digestOf({"a", "bc"}));
    EXPECT_NE(digestOf({"a", "b"}), digestOf({"b", "a"}));
    EXPECT_NE(digestOf({"a"}), digestOf({"a", ""}));
}

TEST(KeyText, DistinguishesStatesOfAFile) {
    const test::TempFolder folder;
    const auto path = folder / "file";
    const auto digest = [&] {
        KeyText key;
        key.addStateOf(path);
        return key.digest();
    };
    const auto missing = digest();
    folder.write("file", "");
    const auto empty = digest();
    EXPECT_NE(missing, empty);
    std::filesystem::last_write_time(path, std::filesystem::last_write_time(path) + std::chrono::nanoseconds(1000));
    EXPECT_NE(digest(), empty);
}
