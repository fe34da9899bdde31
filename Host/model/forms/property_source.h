#pragma once
// Properties collections over any object with named values: a form, a control, a font, a picture.
#include "Add-in/platform/host_project.h"
#include "Host/model/forms/control_class.h"
#include <memory>
#include <string>
#include <vector>

namespace host {

/// The values of a Properties collection. Names are matched ignoring case.
class PropertySource {
public:
    PropertySource() = default;
    PropertySource(const PropertySource&) = delete;
    PropertySource& operator=(const PropertySource&) = delete;
    virtual ~PropertySource() = default;

    virtual std::vector<std::string> names() const = 0;
    /// Returns the proper spelling of a name; "" if there is no such property.
    virtual std::string spelling(const std::string& name) const = 0;
    virtual vbide::Variant value(const std::string& name) const = 0;
    virtual void value(const std::string& name, const vbide::Variant& value) = 0;
    /// Returns the members of an object value; Nothing if the value is not an object.
    virtual basic::Ref<vbide::Properties> object(const std::string& name) const = 0;

    /// Describes the property and its possible values.
    virtual ClassProperty details(const std::string& name) const;
    /// Returns the image file of a picture, "" for none.
    virtual std::string picture(const std::string& name) const;
    /// Returns the items of a list in the resource file.
    virtual std::vector<std::string> list(const std::string& name) const;

    /// Sets the image file of a picture; "" removes it. Error 438 if the property is not a picture.
    virtual void picture(const std::string& name, const std::string& image);
    /// Sets the items of a list in the resource file. Errors: 438 not such a list; 380 an item that is too long, too
    /// many items, or an item of ItemData that is not a number; 5 a character that the code page lacks.
    virtual void list(const std::string& name, const std::vector<std::string>& items);
};

// ---- for front ends that show properties; empty for properties of other hosts ---------------------------------------
ClassProperty detailsOf(const basic::Ref<vbide::Property>& property);
std::string imageOf(const basic::Ref<vbide::Property>& property);
std::vector<std::string> itemsOf(const basic::Ref<vbide::Property>& property);
/// As PropertySource::picture and list. Error 438 for properties of other hosts.
void setImage(const basic::Ref<vbide::Property>& property, const std::string& image);
void setItems(const basic::Ref<vbide::Property>& property, const std::vector<std::string>& items);

/// Returns a collection over a source. Item raises error 9 for an unknown name.
basic::Ref<vbide::Properties> propertiesOf(std::shared_ptr<PropertySource> source);

} // namespace host
