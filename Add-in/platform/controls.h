#pragma once
// The controls used on forms.
#include "Add-in/platform/form.h"

namespace fernwick {

class CommandButton : public Control {
public:
    template <class F>
    CommandButton(F* form, std::string name, std::string caption, void (F::*click)())
        : Control(form, std::move(name)), Caption(this, std::move(caption)) {
        own_ = Click.connect([form, click] { (form->*click)(); });
    }
    /// A button whose handler is in a part of the form.
    template <class P>
    CommandButton(Form* form, std::string name, std::string caption, P* part, void (P::*click)())
        : Control(form, std::move(name)), Caption(this, std::move(caption)) {
        own_ = Click.connect([part, click] { (part->*click)(); });
    }
    Property<std::string> Caption;
    /// Whether Return presses the button (Default), and whether Escape does (Cancel).
    bool Default = false, Cancel = false;
    Event<> Click;
    /// Acts as a user's click does: nothing while the button is hidden or disabled.
    void press() {
        if (Visible() && Enabled()) Click.raise();
    }

private:
    Subscription own_;
};

/// Value is 0 (clear), 1 (ticked) or 2 (grey). Every change raises Click, even one made by code.
class CheckBox : public Control {
public:
    CheckBox(Form* form, std::string name, std::string caption = {})
        : Control(form, std::move(name)), Caption(this, std::move(caption)) {
        own_ = Value.watch([this](int) { Click.raise(); });
    }
    Property<std::string> Caption;
    Property<int> Value{this, 0};
    Event<> Click;

private:
    Subscription own_;
};

class Label : public Control {
public:
    Label(Form* form, std::string name, std::string caption = {})
        : Control(form, std::move(name)), Caption(this, std::move(caption)) {}
    /// A label that can be clicked, such as a link.
    template <class F>
    Label(F* form, std::string name, std::string caption, void (F::*click)())
        : Label(form, std::move(name), std::move(caption)) {
        own_ = Click.connect([form, click] { (form->*click)(); });
    }
    Property<std::string> Caption;
    Event<> Click;

private:
    Subscription own_;
};

/// Value is between Min and Max, which default to percent.
class ProgressBar : public Control {
public:
    using Control::Control;
    Property<float> Min{this, 0.0F}, Max{this, 100.0F};
    Property<float> Value{this, 0.0F};

    /// Resets the bar to count this number of steps.
    void start(std::size_t steps) {
        Min(0);
        Max(float(steps));
        Value(0);
    }
    float percent() const { return Max() > Min() ? (Value() - Min()) / (Max() - Min()) * 100 : 0; }
};

/// In simple-text mode. Setting an equal text notifies no one, so Refresh has a separate event.
class StatusBar : public Control {
public:
    using Control::Control;
    Property<std::string> SimpleText{this};
    Event<> Refreshed;
    void Refresh() { Refreshed.raise(); }
};

class PictureBox : public Control {
public:
    PictureBox(Form* form, std::string name, std::string picture = {}, bool visible = true)
        : Control(form, std::move(name)), Picture(this, std::move(picture)) {
        Visible.design(visible);
    }
    /// Name of the picture for the front end to draw.
    Property<std::string> Picture;
};

/// MSComCtl2.Animation.
class Animation : public Control {
public:
    static constexpr int kForever = -1;
    Animation(Form* form, std::string name, bool visible = false) : Control(form, std::move(name)) {
        Visible.design(visible);
    }
    /// The opened file; "" for none.
    Property<std::string> FileName{this};
    /// Number of repetitions: 0 for none, -1 for endless.
    Property<int> Playing{this, 0};

    void Open(const std::string& path) { FileName(path); }
    void Play(int repeat) { Playing(repeat); }
    void Stop() { Playing(0); }
};

/// Rows with data and one current row. Setting ListIndex raises Click, even from code.
class ListBox : public Control {
public:
    struct Row {
        std::string text;
        long data = 0;
        bool selected = false;
    };
    /// MultiSelect and Style: whether the user chooses one row, selects several, or ticks rows.
    enum class Choice { One, Several, Ticks };
    struct Change {
        enum Kind { Reset, Inserted, Removed, Altered } kind;
        int row;
    };

    explicit ListBox(Form* form, std::string name, Choice choice = Choice::One)
        : Control(form, std::move(name)), choice(choice) {}
    template <class F>
    ListBox(F* form, std::string name, void (F::*click)(), void (F::*dblClick)() = nullptr)
        : ListBox(form, std::move(name)) {
        click_ = Click.connect([form, click] { (form->*click)(); });
        if (dblClick) dblClick_ = DblClick.connect([form, dblClick] { (form->*dblClick)(); });
    }
    const Choice choice;
    Event<Change> changed;
    Event<> Click, DblClick;

    int ListCount() const { return int(rows_.size()); }
    const std::string& List(int i) const { return row(i).text; }
    long ItemData(int i) const { return row(i).data; }
    void ItemData(int i, long data) { row(i).data = data; }
    /// Whether a row is selected or ticked, where the user can do that to several.
    bool Selected(int i) const { return row(i).selected; }
    void Selected(int i, bool selected);
    void List(int i, std::string text);
    /// The row added last; -1 after a removal.
    int NewIndex() const { return newIndex_; }
    void AddItem(std::string text);
    /// Raises no Click, as in VB.
    void RemoveItem(int i);
    void Clear();
    int ListIndex() const { return listIndex_; }
    /// -1 for none; error 380 outside of the list.
    void ListIndex(int i);

private:
    /// Error 381 outside of the list.
    const Row& row(int i) const;
    Row& row(int i) { return const_cast<Row&>(std::as_const(*this).row(i)); }

    std::vector<Row> rows_;
    int listIndex_ = -1, newIndex_ = -1;
    Subscription click_, dblClick_;
};

} // namespace fernwick
