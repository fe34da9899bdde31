#pragma once
#include "Add-in/platform/form.h"
#include <string>
#include <vector>

namespace fernwick {

/// MSComctlLib.TreeView, whose nodes are known by their keys.
class TreeView : public Control {
public:
    struct Node {
        /// The key of the node above it; "" for a root.
        std::string Parent;
        std::string Key, Text;
        bool Expanded = false;
    };

    template <class F>
    TreeView(F* form, std::string name, void (F::*nodeClick)(const std::string& key)) : Control(form, std::move(name)) {
        own_ = NodeClick.connect([form, nodeClick](const std::string& key) { (form->*nodeClick)(key); });
    }
    Event<> NodesChanged, SelectionChanged;
    /// Raised for the user's choices only, after SelectedItem was set.
    Event<const std::string&> NodeClick;

    /// A node is after the one above it.
    const std::vector<Node>& Nodes() const { return nodes_; }
    /// Error 35602 for a key that exists, 35601 for a parent that does not.
    void Add(const std::string& parent, const std::string& key, std::string text);
    void Clear();
    /// These raise error 35601 for a key that does not exist.
    void Text(const std::string& key, std::string text);
    void Expanded(const std::string& key, bool expanded);
    void SelectedItem(const std::string& key);
    /// The key of the selected node; "" for none.
    const std::string& SelectedItem() const { return selected_; }
    /// Selects a node as the user does. Nothing happens for the selected one.
    void choose(const std::string& key);

private:
    bool has(const std::string& key) const;
    Node& node(const std::string& key);

    std::vector<Node> nodes_;
    std::string selected_;
    Subscription own_;
};

} // namespace fernwick
