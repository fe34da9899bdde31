#pragma once
// The properties of a form or control over the lines of its block.
#include "Host/model/forms/designer_state.h"
#include "Host/model/forms/property_source.h"

namespace host {

/// A property that stands in no line has the value that its class gives it. A value that is set to what it is
/// already changes nothing; a line that was added here goes again when it would say what its absence says.
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

protected:
    /// The state, after a check that the block still stands in the form (error 440).
    std::shared_ptr<DesignerState> live() const;
    FormBlock& block() const { return *block_; }
    virtual bool isShown(std::string_view key) const;

private:
    vbide::Variant plainValue(DesignerState& state, const ClassProperty& property) const;
    void plainValue(DesignerState& state, const ClassProperty& property, const vbide::Variant& value);
    ClassProperty describe(DesignerState& state, const std::string& name) const;
    /// The record that a property refers to: its file, null for none, and its place there.
    std::pair<std::shared_ptr<const ResourceFile>, std::size_t> record(const std::string& name) const;
    void rename(DesignerState& state, const std::string& newName);
    void checkNameIsFree(DesignerState& state, const std::string& newName) const;

    std::weak_ptr<DesignerState> state_;
    std::shared_ptr<FormBlock> block_;
};

} // namespace host
