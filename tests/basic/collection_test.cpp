#include "Basic/collection.h"
#include "Basic/ref.h"
#include <gtest/gtest.h>

using namespace basic;

namespace {

using Texts = std::vector<std::string>;

/// "a", "b" with key "B", "c" with key "Ç".
void fillLetters(Collection<std::string>& letters) {
    letters.Add("a");
    letters.Add("b", "B");
    letters.Add("c", "Ç");
}

} // namespace

TEST(Collection, CountsFromOneAndFindsByKey) {
    Collection<std::string> letters;
    EXPECT_EQ(letters.Count(), 0);
    fillLetters(letters);
    EXPECT_EQ(letters.Count(), 3);
    EXPECT_EQ(letters.Item(1), "a");
    EXPECT_EQ(letters.Item(3), "c");
    EXPECT_EQ(letters.Item("b"), "b");
    EXPECT_EQ(letters.Item("ç"), "c");
    EXPECT_TRUE(letters.contains("ç"));
    EXPECT_FALSE(letters.contains("a"));
    letters.Item("B") = "other";
    EXPECT_EQ(letters.items(), (Texts{"a", "other", "c"}));
}

TEST(Collection, AddsBeforeAndAfter) {
    using Index = std::optional<CollectionIndex>;
    struct Row {
        Index before, after;
        Texts items;
    };
    const Row rows[] = {
        {std::nullopt, std::nullopt, {"a", "b", "c", "new"}},
        {1, std::nullopt, {"new", "a", "b", "c"}},
        {3, std::nullopt, {"a", "b", "new", "c"}},
        {"b", std::nullopt, {"a", "new", "b", "c"}},
        {std::nullopt, 1, {"a", "new", "b", "c"}},
        {std::nullopt, 3, {"a", "b", "c", "new"}},
        {std::nullopt, "B", {"a", "b", "new", "c"}},
    };
    for (const Row& row : rows) {
        Collection<std::string> letters;
        fillLetters(letters);
        letters.Add("new", "New", row.before, row.after);
        EXPECT_EQ(letters.items(), row.items);
        EXPECT_EQ(letters.Item("new"), "new");
    }
}

TEST(Collection, AFailedAddChangesNothing) {
    Collection<std::string> letters;
    fillLetters(letters);
    struct Row {
        int error;
        std::function<void()> call;
    };
    const Row rows[] = {
        {9, [&] { letters.Item(0); }},
        {9, [&] { letters.Item(-1); }},
        {9, [&] { letters.Item(4); }},
        {9, [&] { letters.Item(std::int64_t{1} << 40); }},
        {5, [&] { letters.Item("a"); }},
        {5, [&] { letters.Item(""); }},
        {9, [&] { letters.Remove(0); }},
        {9, [&] { letters.Remove(4); }},
        {5, [&] { letters.Remove("a"); }},
        {457, [&] { letters.Add("x", "b"); }},
        {457, [&] { letters.Add("x", "ç"); }},
        {5, [&] { letters.Add("x", "X", 1, 1); }},
        {9, [&] { letters.Add("x", "X", 0); }},
        {9, [&] { letters.Add("x", "X", std::nullopt, 4); }},
        {5, [&] { letters.Add("x", "X", "none"); }},
        {5, [&] { letters.Add("x", "X", std::nullopt, "none"); }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(&row - rows);
        EXPECT_EQ(attempt(row.call).Number, row.error);
        EXPECT_EQ(letters.items(), (Texts{"a", "b", "c"}));
        EXPECT_FALSE(letters.contains("x"));
    }
}

TEST(Collection, RemovesByIndexAndKey) {
    Collection<std::string> letters;
    fillLetters(letters);
    letters.Remove("b");
    EXPECT_EQ(letters.items(), (Texts{"a", "c"}));
    letters.Add("again", "b");
    letters.Remove(1);
    EXPECT_EQ(letters.Item(1), "c");
    EXPECT_EQ(letters.Item("B"), "again");
    letters.clear();
    EXPECT_EQ(letters.Count(), 0);
    EXPECT_EQ(attempt([&] { letters.Item("b"); }).Number, 5);
    letters.Add("", "");
    EXPECT_EQ(letters.Item(""), "");
}

TEST(Collection, MayChangeWhileItsItemsAreIterated) {
    Collection<Ref<std::string>> texts;
    for (const char* text : {"a", "b", "c"}) texts.Add(make<std::string>(text), text);
    std::string walked;
    for (const Ref<std::string>& text : texts.items()) {
        walked += *text;
        texts.Remove(*text);
    }
    EXPECT_EQ(walked, "abc");
    EXPECT_EQ(texts.Count(), 0);
}

TEST(Collection, AgreesWithASimpleModelOverRandomCalls) {
    Collection<int> collection;
    std::vector<int> plain;
    std::uint32_t x = 7;
    const auto draw = [&](std::size_t below) {
        return static_cast<std::size_t>((x = x * 1664525 + 1013904223) >> 8) % below;
    };
    for (int i = 0; i < 4000; ++i) {
        if (plain.empty() || draw(5) < 3) {
            const std::size_t place = draw(plain.size() + 1);
            if (place == plain.size())
                collection.Add(i, "k" + std::to_string(i));
            else
                collection.Add(i, "k" + std::to_string(i), place + 1);
            plain.insert(plain.begin() + static_cast<std::ptrdiff_t>(place), i);
        } else {
            const std::size_t place = draw(plain.size());
            if (draw(2))
                collection.Remove(place + 1);
            else
                collection.Remove("K" + std::to_string(plain[place]));
            plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(place));
        }
        if (plain.empty()) continue;
        const std::size_t place = draw(plain.size());
        ASSERT_EQ(collection.Item(place + 1), plain[place]);
    }
    EXPECT_EQ(collection.items(), plain);
}

TEST(Collection, IsFastWithManyItems) {
    Collection<int> collection;
    constexpr int kItems = 200000;
    for (int i = 0; i < kItems; ++i) collection.Add(i, "key" + std::to_string(i));
    for (int i = 0; i < kItems; i += 2) collection.Remove("KEY" + std::to_string(i));
    for (int i = 0; i < kItems / 4; ++i) collection.Remove(1);
    EXPECT_EQ(collection.Count(), kItems / 4);
    EXPECT_EQ(collection.Item(1), kItems / 2 + 1);
}
