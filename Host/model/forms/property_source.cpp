#include "Host/model/forms/property_source.h"
#include "Host/files/system_error.h"
#include <utility>

namespace host {
namespace {

class PropertyModel : public vbide::Property {
public:
    PropertyModel(std::shared_ptr<PropertySource> source, std::string name)
        : source_(std::move(source)), name_(std::move(name)) {}
    std::string Name() const override { return name_; }
    vbide::Variant Value() const override { return source_->value(name_); }
    void Value(const vbide::Variant& value) override { source_->value(name_, value); }
    basic::Ref<vbide::Properties> ObjectValue() const override {
        auto members = source_->object(name_);
        if (!members) throw hostError(basic::kObjectRequired);
        return members;
    }

    PropertySource& source() const { return *source_; }

private:
    std::shared_ptr<PropertySource> source_;
    std::string name_;
};

class PropertiesModel : public vbide::Properties {
public:
    explicit PropertiesModel(std::shared_ptr<PropertySource> source) : source_(std::move(source)) {}
    int Count() const override { return int(source_->names().size()); }
    basic::Ref<vbide::Property> Item(const std::string& name) const override {
        auto spelling = source_->spelling(name);
        if (spelling.empty()) throw hostError(basic::kSubscriptOutOfRange, "There is no property \"" + name + "\".");
        return basic::make<PropertyModel>(source_, std::move(spelling));
    }
    std::vector<basic::Ref<vbide::Property>> items() const override {
        std::vector<basic::Ref<vbide::Property>> out;
        for (auto& name : source_->names()) out.push_back(basic::make<PropertyModel>(source_, std::move(name)));
        return out;
    }

private:
    std::shared_ptr<PropertySource> source_;
};

/// Calls `ask` for a property of this host; returns an empty answer for any other property.
template <class Answer>
Answer askSource(const basic::Ref<vbide::Property>& property, Answer (PropertySource::*ask)(const std::string&) const) {
    const auto model = basic::cast<PropertyModel>(property);
    return model ? (model->source().*ask)(model->Name()) : Answer{};
}

const PropertyModel& modelOf(const basic::Ref<vbide::Property>& property) {
    const auto model = basic::cast<PropertyModel>(property);
    if (!model) throw hostError(basic::kPropertyOrMethodNotSupported);
    return *model;
}

} // namespace

ClassProperty PropertySource::details(const std::string& name) const {
    ClassProperty property;
    property.name = name;
    return property;
}

std::string PropertySource::picture(const std::string&) const { return {}; }

std::vector<std::string> PropertySource::list(const std::string&) const { return {}; }

void PropertySource::picture(const std::string&, const std::string&) {
    throw hostError(basic::kPropertyOrMethodNotSupported);
}

void PropertySource::list(const std::string&, const std::vector<std::string>&) {
    throw hostError(basic::kPropertyOrMethodNotSupported);
}

ClassProperty detailsOf(const basic::Ref<vbide::Property>& property) {
    return askSource(property, &PropertySource::details);
}

std::string imageOf(const basic::Ref<vbide::Property>& property) {
    return askSource<std::string>(property, &PropertySource::picture);
}

std::vector<std::string> itemsOf(const basic::Ref<vbide::Property>& property) {
    return askSource<std::vector<std::string>>(property, &PropertySource::list);
}

void setImage(const basic::Ref<vbide::Property>& property, const std::string& image) {
    const auto& model = modelOf(property);
    model.source().picture(model.Name(), image);
}

void setItems(const basic::Ref<vbide::Property>& property, const std::vector<std::string>& items) {
    const auto& model = modelOf(property);
    model.source().list(model.Name(), items);
}

basic::Ref<vbide::Properties> propertiesOf(std::shared_ptr<PropertySource> source) {
    return basic::make<PropertiesModel>(std::move(source));
}

} // namespace host
