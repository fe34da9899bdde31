#pragma once
// Properties in memory that record what is set.
#include "tests/support/traced_project.h"

namespace test {

class RecordedProperties : public vbide::Properties {
public:
    int Count() const override { return int(values.size()); }
    Ref<vbide::Property> Item(const std::string& name) const override {
        return basic::make<One>(const_cast<RecordedProperties&>(*this), name);
    }
    std::vector<Ref<vbide::Property>> items() const override { return {}; }

    std::map<std::string, fernwick::Variant> values;
    /// Names and values, in the order in which they were set.
    std::vector<std::pair<std::string, fernwick::Variant>> set;

private:
    class One : public vbide::Property {
    public:
        One(RecordedProperties& owner, std::string name) : owner_(owner), name_(std::move(name)) {}
        std::string Name() const override { return name_; }
        fernwick::Variant Value() const override {
            const auto value = owner_.values.find(name_);
            if (value == owner_.values.end()) throw notHere(9);
            return value->second;
        }
        void Value(const fernwick::Variant& value) override {
            owner_.set.emplace_back(name_, value);
            owner_.values[name_] = value;
        }
        Ref<vbide::Properties> ObjectValue() const override { return nullptr; }

    private:
        RecordedProperties& owner_;
        std::string name_;
    };
};

} // namespace test
