#include "Host/model/forms/block_objects.h"
#include "Basic/case_folding.h"
#include "Host/files/system_error.h"
#include "Host/model/forms/block_resources.h"
#include "Host/model/forms/property_text.h"
#include <array>

namespace host {
namespace {

constexpr std::string_view kFontGuid = "{0BE35203-8F91-11CE-9DE3-00AA004BB851}";
constexpr int kBoldWeight = 700, kNormalWeight = 400, kBoldFrom = 551;

const ClassProperty* fontMember(const ControlClass& members, const std::string& name) {
    return basic::equalNoCase(name, "Bold") ? members.find("Weight") : members.find(name);
}

std::shared_ptr<const ControlClass> fontMembers() {
    ControlClass members;
    members.properties = {
        {"Name", PropertyKind::Text, "\"MS Sans Serif\"", {}}, {"Size", PropertyKind::Single, "8.25", {}},
        {"Charset", PropertyKind::Integer, "0", {}},           {"Weight", PropertyKind::Integer, "400", {}},
        {"Underline", PropertyKind::Boolean, "0", {}},         {"Italic", PropertyKind::Boolean, "0", {}},
        {"Strikethrough", PropertyKind::Boolean, "0", {}}};
    return std::make_shared<const ControlClass>(std::move(members));
}

class FontProperties : public PropertySource {
public:
    FontProperties(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> owner, std::string property)
        : state_(std::move(state)), owner_(std::move(owner)), property_(std::move(property)) {}

    std::vector<std::string> names() const override {
        std::vector<std::string> out;
        for (const auto& member : members_->properties) out.push_back(member.name);
        out.emplace_back("Bold");
        return out;
    }
    std::string spelling(const std::string& name) const override {
        if (basic::equalNoCase(name, "Bold")) return "Bold";
        const auto* member = members_->find(name);
        return member ? member->name : "";
    }
    vbide::Variant value(const std::string& name) const override {
        live();
        const auto* member = fontMember(*members_, name);
        const auto now = memberValue(*member);
        return name == "Bold" ? vbide::Variant(fernwick::asLong(now) >= kBoldFrom) : now;
    }
    void value(const std::string& name, const vbide::Variant& value) override {
        if (name != "Bold") return write(*members_->find(name), value);
        const bool bold = fernwick::asBoolean(value);
        if (bold == std::get<bool>(this->value(name))) return;
        write(*members_->find("Weight"), std::int32_t{bold ? kBoldWeight : kNormalWeight});
    }
    basic::Ref<vbide::Properties> object(const std::string&) const override { return nullptr; }

private:
    std::shared_ptr<DesignerState> live() const { return liveDesigner(state_, *owner_); }
    PropertyValue literalOf(const ClassProperty& member) const {
        const auto font = owner_->properties(property_);
        const auto literal = font ? font->literal(member.name) : std::nullopt;
        return parsePropertyValue(literal ? *literal : member.fallback);
    }
    vbide::Variant memberValue(const ClassProperty& member) const {
        return valueOfLiteral(member, literalOf(member), {});
    }

    void write(const ClassProperty& member, const vbide::Variant& value) {
        const auto state = live();
        const auto before = literalOf(member);
        const auto written = literalOfValue(member, value, before);
        if (valueOfLiteral(member, parsePropertyValue(written.literal), {}) == memberValue(member)) return;
        state->checkText(written.literal);
        state->set(*block(), member.name, written.literal, written.comment);
    }
    /// Returns the font's block. A new one gets all members, as in the designer.
    std::shared_ptr<FormBlock> block() {
        if (auto font = owner_->properties(property_)) return font;
        owner_->remove(property_); // a font in the resource file
        auto font = owner_->addProperties(property_, isBuiltInControl(*owner_) ? std::string_view() : kFontGuid);
        for (const auto& member : members_->properties) {
            const auto literal = parsePropertyValue(member.fallback);
            const auto written = literalOfValue(member, valueOfLiteral(member, literal, {}), literal);
            font->set(member.name, written.literal, written.comment);
        }
        return font;
    }

    std::weak_ptr<DesignerState> state_;
    std::shared_ptr<FormBlock> owner_;
    std::string property_;
    std::shared_ptr<const ControlClass> members_ = fontMembers();
};

class PictureProperties : public PropertySource {
public:
    PictureProperties(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> owner, std::string property)
        : state_(std::move(state)), owner_(std::move(owner)), property_(std::move(property)) {}

    std::vector<std::string> names() const override { return {"Handle"}; }
    std::string spelling(const std::string& name) const override {
        return basic::equalNoCase(name, "Handle") ? "Handle" : "";
    }
    vbide::Variant value(const std::string&) const override { return std::int32_t{hasPicture() ? 1 : 0}; }
    void value(const std::string&, const vbide::Variant&) override {
        throw hostError(basic::kPropertyOrMethodNotSupported);
    }
    basic::Ref<vbide::Properties> object(const std::string&) const override { return nullptr; }

private:
    bool hasPicture() const {
        const auto state = liveDesigner(state_);
        const auto literal = parsePropertyValue(owner_->literal(property_).value_or(""));
        if (literal.kind != PropertyValue::Kind::Resource || !state->hooks.resources) return false;
        const auto file = state->hooks.resources(literal.resource.file);
        return file && !file->picture(literal.resource.offset).value.empty();
    }

    std::weak_ptr<DesignerState> state_;
    std::shared_ptr<FormBlock> owner_;
    std::string property_;
};

class GroupProperties : public PropertySource {
public:
    GroupProperties(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> owner,
                    std::shared_ptr<FormBlock> group)
        : state_(std::move(state)), owner_(std::move(owner)), group_(std::move(group)) {}

    std::vector<std::string> names() const override {
        std::vector<std::string> out;
        group_->eachProperty([&](std::string_view key, std::string_view) { out.emplace_back(key); });
        return out;
    }
    std::string spelling(const std::string& name) const override {
        return group_->literal(name) || group_->properties(name) ? name : "";
    }
    vbide::Variant value(const std::string& name) const override {
        const auto state = liveDesigner(state_, *owner_);
        const ClassProperty property{name, PropertyKind::Unknown, {}, {}};
        const auto literal = parsePropertyValue(group_->literal(name).value_or(""));
        if (literal.kind == PropertyValue::Kind::Resource) return resourceText(*state, property, literal.resource);
        return valueOfLiteral(property, literal, {});
    }
    void value(const std::string&, const vbide::Variant&) override {
        throw hostError(basic::kPropertyOrMethodNotSupported);
    }
    basic::Ref<vbide::Properties> object(const std::string& name) const override {
        const auto inner = group_->properties(name);
        return inner ? groupOf(state_, owner_, inner) : nullptr;
    }

private:
    std::weak_ptr<DesignerState> state_;
    std::shared_ptr<FormBlock> owner_, group_;
};

} // namespace

basic::Ref<vbide::Properties> groupOf(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> owner,
                                      const std::shared_ptr<FormBlock>& group) {
    return propertiesOf(std::make_shared<GroupProperties>(std::move(state), std::move(owner), group));
}

basic::Ref<vbide::Properties> fontOf(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> owner,
                                     std::string property) {
    return propertiesOf(std::make_shared<FontProperties>(std::move(state), std::move(owner), std::move(property)));
}

basic::Ref<vbide::Properties> pictureOf(std::weak_ptr<DesignerState> state, std::shared_ptr<FormBlock> owner,
                                        std::string property) {
    return propertiesOf(std::make_shared<PictureProperties>(std::move(state), std::move(owner), std::move(property)));
}

std::string resourceText(const DesignerState& state, const ClassProperty& property,
                         const ResourceReference& reference) {
    const auto file = state.hooks.resources ? state.hooks.resources(reference.file) : nullptr;
    if (!file) return {};
    const bool shortText = property.kind == PropertyKind::LongText && !reference.isString;
    const auto text = shortText ? file->text(reference.offset) : file->string(reference.offset);
    return state.codePage.decode(text.value);
}

} // namespace host
