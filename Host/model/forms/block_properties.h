#pragma once
// The properties of a form or control, over the lines of its block.
#include "Host/model/forms/designer_state.h"
#include "Host/model/forms/property_source.h"

namespace host {

/// A property without a line has the default of its class. Setting the present value changes nothing. Setting the
/// default removes a line that was added before, but keeps one that was read from the file.
class BlockProperties : public PropertySource {
public:
    BlockProperties(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> block);

    std::vector<std::string> names() const override;
    std::string spelling(const std::string& name) const override;
    vbide::Variant value(const std::string& name) const override;
    void value(const std::string& name, const vbide::Variant& value) override;
    basic::Ref<vbide::Properties> object(const std::string& name) const override;
    ClassProperty details(const std::string& name) const override;
    std::string picture(const std::string& name) const override;
    std::vector<std::string> list(const std::string& name) const override;
    void picture(const std::string& name, const std::string& image) override;
    void list(const std::string& name, const std::vector<std::string>& items) override;

protected:
    /// Returns the state. Error 440 if the block is no longer in the form.
    std::shared_ptr<DesignerState> live() const;
    FormBlock& block() const { return *block_; }
    virtual bool isShown(std::string_view key) const;

private:
    vbide::Variant plainValue(DesignerState& state, const ClassProperty& property) const;
    void plainValue(DesignerState& state, const ClassProperty& property, const vbide::Variant& value);
    ClassProperty describe(DesignerState& state, const std::string& name) const;
    void rename(DesignerState& state, const std::string& newName);
    void checkNameIsFree(DesignerState& state, const std::string& newName) const;

    std::weak_ptr<DesignerState> state_;
    std::shared_ptr<FormBlock> block_;
};

} // namespace host
