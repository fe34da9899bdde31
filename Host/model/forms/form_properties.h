#pragma once
// The properties of a form itself.
#include "Host/model/forms/block_properties.h"

namespace host {

/// As for any block, but position, size and scale are those of FormGeometry. Changing Left or Top makes StartUpPosition
/// manual.
class FormProperties : public BlockProperties {
public:
    using BlockProperties::BlockProperties;
    using BlockProperties::value;
    vbide::Variant value(const std::string& name) const override;
    void value(const std::string& name, const vbide::Variant& value) override;

protected:
    bool isShown(std::string_view key) const override;

private:
    void placeManually();
};

} // namespace host
