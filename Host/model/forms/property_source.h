#pragma once
// Properties by name over anything that has named values: a form, a control, a font, a picture.
#include "Add-in/platform/host_project.h"
#include "Host/model/forms/control_class.h"
#include <memory>
#include <string>
#include <vector>

namespace host {

/// What a Properties collection stands on. Names match without regard to case.
class PropertySource {
public:
    PropertySource() = default;
    PropertySource(const PropertySource&) = delete;
    PropertySource& operator=(const PropertySource&) = delete;
    virtual ~PropertySource() = default;

    virtual std::vector<std::string> names() const = 0;
    /// The name as the object spells it, "" for one that it does not have.
    virtual std::string spelling(const std::string& name) const = 0;
    virtual vbide::Variant value(const std::string& name) const = 0;
    virtual void value(const std::string& name, const vbide::Variant& value) = 0;
    /// The members of an object value; Nothing where the value is no object.
    virtual basic::Ref<vbide::Properties> object(const std::string& name) const = 0;

    /// What a value of the property may be.
    virtual ClassProperty details(const std::string& name) const;
    /// The image file of a picture, "" where there is none.
    virtual std::string picture(const std::string& name) const;
    /// The items of a list that stands in the resource file.
    virtual std::vector<std::string> list(const std::string& name) const;
};

// ---- for front ends that show properties: what lies behind a property of this host -------------------------------------
ClassProperty detailsOf(const basic::Ref<vbide::Property>& property);
std::string imageOf(const basic::Ref<vbide::Property>& property);
std::vector<std::string> itemsOf(const basic::Ref<vbide::Property>& property);

/// The collection over a source. Item raises error 9 for a name that the object does not have.
basic::Ref<vbide::Properties> propertiesOf(std::shared_ptr<PropertySource> source);

} // namespace host
