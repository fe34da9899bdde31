#pragma once
// The Dictionary class of the library Scripting.
#include "Components/Tamarik/objects/item_list.h"
#include "Components/Tamarik/objects/key_table.h"

namespace tamarik {

/// Items by keys of any type, in the order in which they were added. All single items are found, added and removed in constant
/// time.
class Dictionary final : public LibraryObject {
public:
    /// An unknown key. The number is that of the library, which the language does not define.
    static constexpr int kElementNotFound = 32811;

    [[nodiscard]] std::string_view className() const override { return "Dictionary"; }
    [[nodiscard]] std::span<const LibraryMember> members() const override;
    [[nodiscard]] std::string_view defaultMember() const override { return "Item"; }
    [[nodiscard]] Object* walk(Heap& heap) override;
    void releaseMembers(Heap& heap) override;

    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(items_.count()); }
    [[nodiscard]] bool ignoresCase() const { return ignoresCase_; }
    /// Error 5 while there are items.
    void ignoreCase(bool ignores);

    // All of these take error 5 for a key that is an array.
    [[nodiscard]] bool exists(Heap& heap, const Variant& key) const;
    /// Adds copies. Error 457.
    void add(Heap& heap, const Variant& key, const Variant& item);
    /// Adds the key with Empty if it is unknown.
    [[nodiscard]] const Variant& item(Heap& heap, const Variant& key);
    /// Replaces the item, or adds the key.
    void setItem(Heap& heap, const Variant& key, const Variant& item);
    /// Changes a key in its place. Errors 32811, 457.
    void rename(Heap& heap, const Variant& key, const Variant& newKey);
    /// Error 32811.
    void remove(Heap& heap, const Variant& key);

    /// Calls act(key, item) for each item.
    template <class F>
    void forEach(F act) const {
        for (const Node* node = items_.first(); node; node = node->next) act(node->key, node->value);
    }

private:
    struct Node {
        Variant key, value;
        Node *previous, *next;
        std::uint32_t hash;

        [[nodiscard]] const Variant& shown() const { return key; }
    };

    [[nodiscard]] Node* find(Heap& heap, const Variant& key, std::uint32_t hash) const;
    /// Error 32811.
    [[nodiscard]] Node& at(Heap& heap, const Variant& key) const;
    Node& append(Heap& heap, const Variant& key, std::uint32_t hash, const Variant& item);
    void free(Heap& heap, Node* node);

    ItemList<Node> items_;
    KeyTable<Node> keys_;
    bool ignoresCase_ = false;
};

} // namespace tamarik
