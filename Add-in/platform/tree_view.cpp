#include "Add-in/platform/tree_view.h"
#include <algorithm>

namespace fernwick {

namespace {

constexpr int kElementNotFound = 35601, kKeyNotUnique = 35602;

} // namespace

bool TreeView::has(const std::string& key) const {
    return std::any_of(nodes_.begin(), nodes_.end(), [&key](const Node& node) { return node.Key == key; });
}

TreeView::Node& TreeView::node(const std::string& key) {
    for (auto& node : nodes_)
        if (node.Key == key) return node;
    throw basic::RuntimeError(kElementNotFound, "Element not found");
}

void TreeView::Add(const std::string& parent, const std::string& key, std::string text) {
    if (has(key)) throw basic::RuntimeError(kKeyNotUnique, "Key is not unique in collection");
    if (!parent.empty()) node(parent);
    nodes_.push_back({parent, key, std::move(text)});
    NodesChanged.raise();
}

void TreeView::Clear() {
    nodes_.clear();
    selected_.clear();
    NodesChanged.raise();
}

void TreeView::Text(const std::string& key, std::string text) {
    node(key).Text = std::move(text);
    NodesChanged.raise();
}

void TreeView::Expanded(const std::string& key, bool expanded) {
    node(key).Expanded = expanded;
    NodesChanged.raise();
}

void TreeView::SelectedItem(const std::string& key) {
    selected_ = node(key).Key;
    SelectionChanged.raise();
}

void TreeView::choose(const std::string& key) {
    if (key == selected_) return;
    SelectedItem(key);
    NodeClick.raise(key);
}

} // namespace fernwick
