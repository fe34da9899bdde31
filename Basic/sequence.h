#pragma once
// A sequence with fast insertion in the middle, for Collection.
#include <cstddef>
#include <cstdint>
#include <utility>

namespace basic {

/// A sequence in which insertion, removal and lookup by position take logarithmic time and values do not move in
/// memory. It is a treap: a tree ordered by position in which the random rank of each node is above that of its
/// children, so that it stays balanced for any order of calls.
template <class T>
class Sequence {
public:
    class Node {
    public:
        T value;

    private:
        friend class Sequence;
        Node(T v, std::uint32_t r) : value(std::move(v)), rank(r) {}
        std::uint32_t rank;
        std::size_t size = 1; // of the subtree, including this node
        Node* parent = nullptr;
        Node* left = nullptr;
        Node* right = nullptr;
    };

    Sequence() = default;
    Sequence(const Sequence&) = delete;
    Sequence& operator=(const Sequence&) = delete;
    ~Sequence() { clear(); }

    std::size_t size() const noexcept { return sizeOf(root_); }

    /// The node at a position from 0 to size() - 1.
    Node* at(std::size_t place) const noexcept {
        Node* node = root_;
        while (place != sizeOf(node->left)) {
            const bool left = place < sizeOf(node->left);
            if (!left) place -= sizeOf(node->left) + 1;
            node = left ? node->left : node->right;
        }
        return node;
    }

    std::size_t placeOf(const Node* node) const noexcept {
        std::size_t place = sizeOf(node->left);
        for (; node->parent; node = node->parent) {
            if (node == node->parent->right) place += sizeOf(node->parent->left) + 1;
        }
        return place;
    }

    /// Inserts a node at a position from 0 to size().
    Node* insert(std::size_t place, T value) {
        Node* const node = new Node(std::move(value), drawRank());
        Node** slot = &root_;
        while (*slot) {
            node->parent = *slot;
            ++node->parent->size;
            const bool left = place <= sizeOf(node->parent->left);
            if (!left) place -= sizeOf(node->parent->left) + 1;
            slot = left ? &node->parent->left : &node->parent->right;
        }
        *slot = node;
        while (node->parent && node->parent->rank < node->rank) rotateUp(node);
        return node;
    }

    void erase(Node* node) noexcept {
        while (node->left && node->right) rotateUp(node->left->rank > node->right->rank ? node->left : node->right);
        Node* const child = node->left ? node->left : node->right;
        if (child) child->parent = node->parent;
        slotOf(node) = child;
        for (Node* above = node->parent; above; above = above->parent) --above->size;
        delete node;
    }

    /// Empties the sequence before destroying the values, so that their destructors may access it.
    void clear() noexcept {
        Node* node = std::exchange(root_, nullptr);
        while (node) {
            if (node->left)
                node = std::exchange(node->left, nullptr);
            else if (node->right)
                node = std::exchange(node->right, nullptr);
            else
                delete std::exchange(node, node->parent);
        }
    }

    Node* first() const noexcept { return leftmost(root_); }

    /// The next node, or null.
    Node* next(const Node* node) const noexcept {
        if (node->right) return leftmost(node->right);
        while (node->parent && node == node->parent->right) node = node->parent;
        return node->parent;
    }

private:
    static std::size_t sizeOf(const Node* node) noexcept { return node ? node->size : 0; }

    static Node* leftmost(Node* node) noexcept {
        while (node && node->left) node = node->left;
        return node;
    }

    /// The pointer that owns this node.
    Node*& slotOf(Node* node) noexcept {
        if (!node->parent) return root_;
        return node == node->parent->left ? node->parent->left : node->parent->right;
    }

    /// Rotates a node above its parent.
    void rotateUp(Node* node) noexcept {
        Node* const parent = node->parent;
        const bool left = node == parent->left;
        Node*& inner = left ? node->right : node->left;
        slotOf(parent) = node;
        node->parent = parent->parent;
        (left ? parent->left : parent->right) = inner;
        if (inner) inner->parent = parent;
        inner = parent;
        parent->parent = node;
        node->size = parent->size;
        parent->size = sizeOf(parent->left) + sizeOf(parent->right) + 1;
    }

    std::uint32_t drawRank() noexcept {
        rankState_ = rankState_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<std::uint32_t>(rankState_ >> 32);
    }

    Node* root_ = nullptr;
    std::uint64_t rankState_ = 1;
};

} // namespace basic
