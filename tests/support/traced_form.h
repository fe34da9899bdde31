#pragma once
// A form designer in memory. Each member counts as a call and may fail.
#include "tests/support/traced_project.h"

namespace test {

/// Properties by exact name; a value may be an object with its own properties.
class TracedProperties : public vbide::Properties {
public:
    explicit TracedProperties(Trace& trace) : trace_(trace) {}
    int Count() const override { return int(values.size()); }
    Ref<vbide::Property> Item(const std::string& name) const override {
        trace_.read();
        if (values.count(name) == 0 && objects.count(name) == 0) throw notHere(9);
        return basic::make<One>(const_cast<TracedProperties&>(*this), name);
    }
    std::vector<Ref<vbide::Property>> items() const override { return {}; }

    std::map<std::string, fernwick::Variant> values;
    std::map<std::string, Ref<TracedProperties>> objects;

private:
    class One : public vbide::Property {
    public:
        One(TracedProperties& owner, std::string name) : owner_(owner), name_(std::move(name)) {}
        std::string Name() const override { return name_; }
        fernwick::Variant Value() const override {
            owner_.trace_.read();
            return owner_.values.at(name_);
        }
        void Value(const fernwick::Variant& value) override {
            owner_.trace_.effect(name_ + "=" + fernwick::asText(value));
            owner_.values[name_] = value;
        }
        Ref<vbide::Properties> ObjectValue() const override { return owner_.objects.at(name_); }

    private:
        TracedProperties& owner_;
        std::string name_;
    };
    Trace& trace_;
};

class TracedFormControl : public vbide::VBControl {
public:
    TracedFormControl(Trace& trace, std::string c, const std::string& name)
        : className(std::move(c)), properties(basic::make<TracedProperties>(trace)), trace_(trace) {
        properties->values["Name"] = name;
    }
    std::string ClassName() const override {
        trace_.read();
        return className;
    }
    std::string ProgId() const override {
        if (removed) throw notHere(440);
        return library + "." + className;
    }
    Ref<vbide::Properties> Properties() const override { return properties; }
    std::vector<Ref<VBControl>> ContainedVBControls() const override { return {}; }

    std::string className, library = "TavletsCtl";
    bool removed = false;
    Ref<TracedProperties> properties;

private:
    Trace& trace_;
};

class TracedDesigner : public vbide::VBForm {
public:
    explicit TracedDesigner(Trace& trace) : trace_(trace), list_(basic::make<List>(*this)) {}
    Ref<vbide::VBControls> VBControls() const override { return list_; }
    std::vector<Ref<vbide::VBControl>> ContainedVBControls() const override { return {}; }

    /// A control with a font.
    Ref<TracedFormControl> add(const std::string& className, const std::string& font, int style, int size) {
        const auto name = className + std::to_string(controls.size() + 1);
        controls.push_back(basic::make<TracedFormControl>(trace_, className, name));
        auto& values = controls.back()->properties->values;
        values["FontName"] = font;
        values["FontStyle"] = std::int32_t{style};
        values["FontSize"] = std::int32_t{size};
        return controls.back();
    }
    std::vector<Ref<TracedFormControl>> controls;

private:
    class List : public vbide::VBControls {
    public:
        explicit List(TracedDesigner& designer) : designer_(designer) {}
        int Count() const override { return int(designer_.controls.size()); }
        Ref<vbide::VBControl> Item(int) const override { throw notHere(9); }
        Ref<vbide::VBControl> Item(const std::string&) const override { throw notHere(9); }
        std::vector<Ref<vbide::VBControl>> items() const override {
            designer_.trace_.read();
            return {designer_.controls.begin(), designer_.controls.end()};
        }
        Ref<vbide::VBControl> Add(const std::string&) override { throw notHere(5); }
        void Remove(const Ref<vbide::VBControl>& control) override {
            designer_.trace_.effect("remove control " + control->ClassName());
            std::erase_if(designer_.controls, [&](const auto& c) { return Ref<vbide::VBControl>(c) == control; });
        }

    private:
        TracedDesigner& designer_;
    };
    Trace& trace_;
    Ref<List> list_;
};

/// Properties of a form that devices accept unchanged.
inline Ref<TracedProperties> formProperties(Trace& trace) {
    auto form = basic::make<TracedProperties>(trace);
    form->values = {{"ScaleMode", 3}, {"StartupPosition", 2}, {"BorderStyle", 1}};
    form->objects["Picture"] = basic::make<TracedProperties>(trace);
    form->objects["Picture"]->values["Handle"] = 0;
    return form;
}

} // namespace test
