#pragma once
// The values of properties that are records of the form's resource file.
#include "Add-in/platform/variant.h"
#include "Host/files/property_value.h"
#include "Host/model/forms/designer_state.h"
#include "Host/model/forms/property_text.h"
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// True for the controls of the language itself, whose records differ from those of other libraries.
bool isBuiltInControl(const FormBlock& block);

/// Appends the record of a text that a line cannot hold: several lines, or more than the designer writes into a line.
/// Nothing for any other value.
std::optional<WrittenValue> textInResources(const DesignerState& state, const FormBlock& block,
                                            const ClassProperty& property, const vbide::Variant& value);

/// Sets the image file of a picture; "" removes its line.
void setPicture(DesignerState& state, FormBlock& block, const std::string& property, const std::string& image);

/// Sets the items of List or ItemData. The other one follows, as both have the same number of items. Without items both
/// lines are removed. Errors as PropertySource::list.
void setList(DesignerState& state, FormBlock& block, const std::string& property,
             const std::vector<std::string>& items);
/// The items of List or ItemData.
std::vector<std::string> listOf(const DesignerState& state, const FormBlock& block, const std::string& property);

/// The record that a property refers to, as bytes to append to another form's file; "" if there is none or its layout is
/// not known.
std::string recordOf(const DesignerState& state, const FormBlock& block, std::string_view property,
                     const ResourceReference& reference);

/// True for List and ItemData.
bool isList(const std::string& property);

} // namespace host
