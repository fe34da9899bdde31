#pragma once
// Menus and toolbars in memory. Each member counts as a call and may fail; changes are recorded in the trace under the
// control's caption or the bar's name.
#include "Add-in/platform/command_bars.h"
#include "trace.h"
#include <functional>

namespace test {

using basic::Ref;

/// Returns a text without accelerators.
inline std::string plain(std::string text) {
    std::erase(text, '&');
    return text;
}

class TracedBar;

class TracedItem : public office::CommandBarControl, public std::enable_shared_from_this<TracedItem> {
public:
    TracedItem(Trace& trace, office::MsoControlType type, int id, std::weak_ptr<TracedBar> parent);

    int Id() const override { return asked(id_); }
    int Index() const override;
    office::MsoControlType Type() const override { return asked(type_); }
    std::string Caption() const override { return asked(caption); }
    void Caption(const std::string& text) override;
    std::string Tag() const override { return asked(tag); }
    void Tag(const std::string& text) override { did("tag " + text), tag = text; }
    std::string ToolTipText() const override { return asked(toolTip); }
    void ToolTipText(const std::string& text) override { did("tip " + text), toolTip = text; }
    bool BeginGroup() const override { return asked(group); }
    void BeginGroup(bool begin) override { did(begin ? "group" : "no group"), group = begin; }
    bool Enabled() const override { return asked(enabled); }
    void Enabled(bool on) override { did(on ? "enabled" : "disabled"), enabled = on; }
    bool Visible() const override { return asked(visible); }
    void Visible(bool on) override { did(on ? "visible" : "hidden"), visible = on; }
    office::MsoButtonStyle Style() const override { return asked(style); }
    void Style(office::MsoButtonStyle s) override { did("style " + std::to_string(s)), style = s; }
    void PasteFace() override { did("face"); }
    Ref<office::CommandBar> Parent() const override;
    Ref<office::CommandBarControls> Controls() override;
    void Delete() override;
    void Execute() override {
        did("executed");
        if (whenExecuted) whenExecuted();
    }

    std::string caption, tag, toolTip;
    bool group = false, enabled = true, visible = true, removed = false;
    office::MsoButtonStyle style = office::msoButtonAutomatic;
    std::shared_ptr<TracedBar> popup;
    std::function<void()> whenExecuted;

private:
    template <class T>
    T asked(T value) const {
        trace_.read();
        if (removed) throw basic::RuntimeError(basic::kAutomationError);
        return value;
    }
    void did(const std::string& what) {
        trace_.effect((caption.empty() ? "?" : plain(caption)) + ": " + what);
        if (removed) throw basic::RuntimeError(basic::kAutomationError);
    }

    Trace& trace_;
    office::MsoControlType type_;
    int id_;
    std::weak_ptr<TracedBar> parent_;
};

class TracedBars;

class TracedBar : public office::CommandBar, public std::enable_shared_from_this<TracedBar> {
public:
    TracedBar(Trace& trace, std::string n) : name(std::move(n)), trace_(trace) {}

    std::string Name() const override { return asked(name); }
    bool Enabled() const override { return asked(enabled); }
    void Enabled(bool on) override { did(on ? "enabled" : "disabled"), enabled = on; }
    bool Visible() const override { return asked(visible); }
    void Visible(bool on) override { did(on ? "visible" : "hidden"), visible = on; }
    int Position() const override { return asked(position); }
    void Position(int p) override { did("position " + std::to_string(p)), position = p; }
    int RowIndex() const override { return asked(row); }
    void RowIndex(int r) override { did("row " + std::to_string(r)), row = r; }
    int Left() const override { return asked(left); }
    void Left(int l) override { did("left " + std::to_string(l)), left = l; }
    int Top() const override { return asked(top); }
    void Top(int t) override { did("top " + std::to_string(t)), top = t; }
    Ref<office::CommandBarControls> Controls() override;
    Ref<office::CommandBarControl> FindControl(int id) override { return find(id); }
    void Delete() override;

    Ref<TracedItem> find(int id) const {
        for (const auto& item : items)
            if (item->Id() == id) return item;
        return nullptr;
    }
    /// Adds one of the host's own controls.
    Ref<TracedItem> addControl(int id, const std::string& caption);
    /// Finds an item by its caption without accelerators; Nothing if there is none.
    Ref<TracedItem> at(const std::string& caption) const {
        for (const auto& item : items)
            if (plain(item->caption) == caption) return item;
        return nullptr;
    }

    std::string name;
    bool enabled = true, visible = false, removed = false;
    int position = 1, row = 1, left = 0, top = 0;
    std::vector<std::shared_ptr<TracedItem>> items;
    TracedBars* bars = nullptr;

private:
    friend class TracedControls;
    template <class T>
    T asked(T value) const {
        trace_.read();
        if (removed) throw basic::RuntimeError(basic::kAutomationError);
        return value;
    }
    void did(const std::string& what) {
        trace_.effectOf(bars ? "bar " : "", name + ": " + what);
        if (removed) throw basic::RuntimeError(basic::kAutomationError);
    }
    Trace& trace_;
};

class TracedControls : public office::CommandBarControls {
public:
    explicit TracedControls(std::shared_ptr<TracedBar> bar) : bar_(std::move(bar)) {}
    int Count() const override { return bar_->asked(int(bar_->items.size())); }
    Ref<office::CommandBarControl> Item(int index) const override {
        bar_->trace_.read();
        if (index < 1 || index > int(bar_->items.size())) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
        return bar_->items[std::size_t(index) - 1];
    }
    Ref<office::CommandBarControl> Item(const std::string& caption) const override {
        bar_->trace_.read();
        if (const auto found = bar_->at(plain(caption))) return found;
        throw basic::RuntimeError(basic::kInvalidProcedureCall);
    }
    std::vector<Ref<office::CommandBarControl>> items() const override {
        bar_->trace_.read();
        return {bar_->items.begin(), bar_->items.end()};
    }
    Ref<office::CommandBarControl> Add(office::MsoControlType type, int before) override {
        bar_->did((type == office::msoControlPopup ? "+ popup" : "+ button") +
                  (before == 0 ? std::string() : " before " + std::to_string(before)));
        auto item = std::make_shared<TracedItem>(bar_->trace_, type, 1, bar_);
        bar_->items.insert(before == 0 ? bar_->items.end() : bar_->items.begin() + before - 1, item);
        return item;
    }

private:
    std::shared_ptr<TracedBar> bar_;
};

class TracedBars : public office::CommandBars {
public:
    explicit TracedBars(Trace& trace) : trace_(trace) {}
    Ref<office::CommandBar> Item(const std::string& name) const override {
        trace_.read();
        if (name == refused) throw basic::RuntimeError(basic::kAutomationError);
        if (const auto bar = named(name)) return bar;
        throw basic::RuntimeError(basic::kInvalidProcedureCall);
    }
    std::vector<Ref<office::CommandBar>> items() const override { return {list.begin(), list.end()}; }
    Ref<office::CommandBar> ActiveMenuBar() const override {
        trace_.read();
        return menuBar;
    }
    Ref<office::CommandBarControl> FindControl(int id) const override {
        trace_.read();
        for (const auto& bar : list)
            if (auto found = bar->find(id)) return found;
        return nullptr;
    }
    Ref<office::CommandBar> Add(const std::string& name, int position, bool menuBar) override {
        if (name == refused) throw basic::RuntimeError(basic::kAutomationError);
        trace_.effect("bar " + name + " at " + std::to_string(position) + (menuBar ? " as menu" : ""));
        return addBar(name);
    }
    std::shared_ptr<TracedBar> named(const std::string& name) const {
        for (const auto& bar : list)
            if (bar->name == name) return bar;
        return nullptr;
    }
    Ref<TracedBar> addBar(const std::string& name) {
        list.push_back(std::make_shared<TracedBar>(trace_, name));
        list.back()->bars = this;
        return list.back();
    }

    std::vector<std::shared_ptr<TracedBar>> list;
    Ref<TracedBar> menuBar;
    /// Name of a bar that the host fails to return or create.
    std::string refused;

private:
    Trace& trace_;
};

inline TracedItem::TracedItem(Trace& trace, office::MsoControlType type, int id, std::weak_ptr<TracedBar> parent)
    : trace_(trace), type_(type), id_(id), parent_(std::move(parent)) {
    if (type == office::msoControlPopup) popup = std::make_shared<TracedBar>(trace, "?");
}
inline int TracedItem::Index() const {
    const auto bar = asked(parent_.lock());
    const auto is = [this](const auto& item) { return item.get() == this; };
    return int(std::find_if(bar->items.begin(), bar->items.end(), is) - bar->items.begin()) + 1;
}
inline void TracedItem::Caption(const std::string& text) {
    did("caption " + text);
    caption = text;
    if (popup) popup->name = plain(text);
}
inline Ref<office::CommandBar> TracedItem::Parent() const { return asked(parent_.lock()); }
inline Ref<office::CommandBarControls> TracedItem::Controls() {
    trace_.read();
    if (!popup) throw basic::RuntimeError(basic::kPropertyOrMethodNotSupported);
    return popup->Controls();
}
inline void TracedItem::Delete() {
    did("deleted");
    removed = true;
    if (const auto bar = parent_.lock()) std::erase_if(bar->items, [this](const auto& i) { return i.get() == this; });
}
inline Ref<office::CommandBarControls> TracedBar::Controls() {
    trace_.read();
    return basic::make<TracedControls>(shared_from_this());
}
inline void TracedBar::Delete() {
    did("deleted");
    removed = true;
    if (bars) std::erase_if(bars->list, [this](const auto& bar) { return bar.get() == this; });
}
inline Ref<TracedItem> TracedBar::addControl(int id, const std::string& caption) {
    const auto item = std::make_shared<TracedItem>(trace_, office::msoControlPopup, id, shared_from_this());
    item->caption = caption;
    item->popup->name = plain(caption);
    items.push_back(item);
    return item;
}

/// The bars of a host that has just started.
inline Ref<TracedBars> hostBars(Trace& trace) {
    const auto bars = basic::make<TracedBars>(trace);
    const auto menuBar = bars->menuBar = bars->addBar("Menu Bar");
    menuBar->addControl(30002, "&File");
    menuBar->addControl(30004, "&View");
    menuBar->addControl(30038, "&Add-Ins");
    const auto file = bars->addBar("File");
    file->addControl(1, "New");
    file->addControl(2, "Open");
    file->addControl(3, "Save");
    file->addControl(4, "Remove");
    return bars;
}

} // namespace test
