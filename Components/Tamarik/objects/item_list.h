#pragma once
// Items in order, which For Each may walk over while they change.
#include "Components/Tamarik/objects/walk.h"
#include <cstddef>
#include <utility>
#include <vector>

namespace tamarik {

template <class Node>
class ListWalk;

/// A linked list. A Node has `previous` and `next`, and `shown()`, which For Each yields.
template <class Node>
class ItemList {
public:
    [[nodiscard]] Node* first() const { return first_; }
    [[nodiscard]] Node* last() const { return last_; }
    [[nodiscard]] std::size_t count() const { return count_; }

    /// Inserts before an item; null is the end.
    void insert(Node* node, Node* before) {
        node->next = before;
        node->previous = before ? before->previous : last_;
        (node->previous ? node->previous->next : first_) = node;
        (before ? before->previous : last_) = node;
        ++count_;
    }

    void remove(Node* node) {
        for (ListWalk<Node>* walk : walks_)
            if (walk->visited_ == node) walk->visited_ = node->previous;
        (node->previous ? node->previous->next : first_) = node->next;
        (node->next ? node->next->previous : last_) = node->previous;
        --count_;
    }

    /// Empties the list and calls act(node) for each item, in order.
    template <class F>
    void clear(F act) {
        for (ListWalk<Node>* walk : walks_) walk->visited_ = nullptr;
        count_ = 0;
        last_ = nullptr;
        for (Node* node = std::exchange(first_, nullptr); node;) act(std::exchange(node, node->next));
    }

private:
    friend class ListWalk<Node>;

    Node *first_ = nullptr, *last_ = nullptr;
    std::size_t count_ = 0;
    std::vector<ListWalk<Node>*> walks_;
};

/// Tolerates changes: items after the present one are visited, also those that are added meanwhile.
template <class Node>
class ListWalk final : public Walk {
public:
    ListWalk(LibraryObject& owner, ItemList<Node>& list) : owner_(&owner), list_(&list) {
        list.walks_.push_back(this);
        retain(owner_);
    }
    [[nodiscard]] std::string_view className() const override { return "IEnumVARIANT"; }

    bool next(Heap& heap, Variant& element) override {
        if (!owner_) return false;
        Node* const node = visited_ ? visited_->next : list_->first_;
        if (!node) return false;
        visited_ = node;
        element = copyOf(heap, node->shown());
        return true;
    }

    void releaseMembers(Heap& heap) override {
        LibraryObject* const owner = std::exchange(owner_, nullptr);
        if (!owner) return;
        std::erase(list_->walks_, this);
        release(heap, owner);
    }

private:
    friend class ItemList<Node>;

    LibraryObject* owner_;
    ItemList<Node>* list_;
    Node* visited_ = nullptr; ///< null before the first
};

} // namespace tamarik
