// The hash table of keys, against a list.
#include "Components/Tamarik/objects/key_table.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <random>

using tamarik::KeyTable;

namespace {

struct Item {
    int key;
    std::uint32_t hash;
};

Item* found(const KeyTable<Item>& table, const Item& wanted) {
    return table.find(wanted.hash, [&](const Item& item) { return item.key == wanted.key; });
}

} // namespace

// Few hashes, some at the end of the table, so that runs of items meet and go around its end.
TEST(KeyTable, FindsExactlyWhatItHolds) {
    std::mt19937 random{1};
    for (int round = 0; round < 50; ++round) {
        KeyTable<Item> table;
        std::vector<std::unique_ptr<Item>> held;
        for (int step = 0; step < 400; ++step) {
            if (held.empty() || random() % 5 < 3) {
                held.push_back(std::make_unique<Item>(Item{step, 10 + static_cast<std::uint32_t>(random() % 8)}));
                ASSERT_EQ(found(table, *held.back()), nullptr);
                table.add(held.back()->hash, held.back().get());
            } else {
                const auto at = held.begin() + static_cast<std::ptrdiff_t>(random() % held.size());
                table.remove((*at)->hash, at->get());
                ASSERT_EQ(found(table, **at), nullptr);
                held.erase(at);
                for (const auto& item : held) ASSERT_EQ(found(table, *item), item.get());
            }
        }
    }
}

TEST(KeyTable, IsEmptyAfterClear) {
    KeyTable<Item> table;
    Item item{1, 7};
    EXPECT_EQ(found(table, item), nullptr);
    table.add(item.hash, &item);
    table.clear();
    EXPECT_EQ(found(table, item), nullptr);
    table.add(item.hash, &item);
    EXPECT_EQ(found(table, item), &item);
}
