#include "Basic/runtime_error.h"
#include "Components/Tamarik/objects/collection.h"
#include "Components/Tamarik/values/encoding.h"
#include <gtest/gtest.h>

namespace tamarik {

namespace {

class Collections : public testing::Test {
public:
    ~Collections() override {
        release(heap, items);
        while (heap.hasPending()) destroy(heap, static_cast<Object*>(heap.takePending()));
        EXPECT_EQ(heap.used(), 0U);
    }

    Heap heap;
    Collection* items = makeObject<Collection>(heap);

    static Variant number(std::int32_t value) { return ofNumber(value); }
    int add(std::int32_t value, std::string_view key = {}, Variant before = missing(), Variant after = missing()) {
        const Variant keyed = key.empty() ? missing() : ofText(makeTextOfUtf8(heap, key));
        const auto error = basic::attempt([&] { items->add(heap, number(value), keyed, before, after); });
        release(heap, keyed);
        return error.Number;
    }
    int errorOf(const Variant& index) {
        return basic::attempt([&] { (void)items->item(index); }).Number;
    }
    std::int32_t at(std::string_view key) {
        const Variant index = ofText(makeTextOfUtf8(heap, key));
        const std::int32_t found = items->item(index).number;
        release(heap, index);
        return found;
    }
    std::string order() {
        std::string numbers;
        for (std::int32_t i = 1; i <= items->count(); ++i)
            numbers += std::to_string(items->item(number(i)).number) + " ";
        return numbers;
    }
};

TEST_F(Collections, KeepTheOrderOfTheirItems) {
    add(1);
    add(2);
    add(3, {}, number(1));
    add(4, {}, missing(), number(2));
    EXPECT_EQ(order(), "3 1 4 2 ");
    items->remove(heap, number(2));
    items->remove(heap, number(1));
    items->remove(heap, number(2));
    EXPECT_EQ(order(), "4 ");
}

TEST_F(Collections, FindItemsByKeyIgnoringCase) {
    EXPECT_EQ(add(1, "Key"), 0);
    EXPECT_EQ(add(2, "1"), 0);
    EXPECT_EQ(add(3, "KEY"), 457);
    EXPECT_EQ(at("kEY"), 1);
    EXPECT_EQ(at("1"), 2);
    EXPECT_EQ(items->count(), 2);
}

TEST_F(Collections, ForgetTheKeysOfRemovedItems) {
    for (int i = 0; i < 100; ++i) add(i, "key" + std::to_string(i));
    for (int i = 0; i < 50; ++i) items->remove(heap, number(1));
    EXPECT_EQ(at("key50"), 50);
    EXPECT_EQ(add(0, "key7"), 0);
    EXPECT_EQ(at("key7"), 0);
}

TEST_F(Collections, RefuseUnknownIndexesAndKeys) {
    add(1);
    EXPECT_EQ(errorOf(number(0)), 9);
    EXPECT_EQ(errorOf(number(2)), 9);
    EXPECT_EQ(errorOf(ofText(nullptr)), 5);
    EXPECT_EQ(errorOf(ofKind(kNull)), 13);
    EXPECT_EQ(add(2, {}, number(1), number(1)), 5);
    EXPECT_EQ(add(2, {}, number(5)), 9);
    EXPECT_EQ(items->count(), 1);
}

TEST_F(Collections, AreWalkedOverWhileTheyChange) {
    for (int i = 1; i <= 4; ++i) add(i);
    auto* const walk = static_cast<Walk*>(items->walk(heap));
    std::string seen;
    Variant element;
    while (walk->next(heap, element)) {
        seen += std::to_string(element.number) + " ";
        if (element.number == 2) items->remove(heap, number(2));
        if (element.number == 3) add(5);
    }
    EXPECT_EQ(seen, "1 2 3 4 5 ");
    release(heap, walk);
}

} // namespace

} // namespace tamarik
