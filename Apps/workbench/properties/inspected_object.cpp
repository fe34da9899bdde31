#include "Apps/workbench/properties/inspected_object.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/properties/property_reader.h"
#include "Basic/runtime_error.h"

namespace workbench {

namespace {

/// The only property of an object that has no others.
class NameOnly final : public vbide::Property {
public:
    NameOnly(std::function<std::string()> get, std::function<void(const std::string&)> set)
        : get_(std::move(get)), set_(std::move(set)) {}
    std::string Name() const override { return "Name"; }
    vbide::Variant Value() const override { return get_(); }
    void Value(const vbide::Variant& value) override { set_(fernwick::asText(value)); }
    basic::Ref<vbide::Properties> ObjectValue() const override { throw basic::RuntimeError(basic::kObjectRequired); }

private:
    std::function<std::string()> get_;
    std::function<void(const std::string&)> set_;
};

template <class Named>
InspectedObject nameOf(const vbide::Ref<Named>& named) {
    return {{basic::make<NameOnly>([named] { return named->Name(); },
                                   [named](const std::string& name) { named->Name(name); })},
            [](const auto& property, const auto& value) { property->Value(value); }};
}

QString classOf(vbide::vbext_ComponentType type) {
    switch (type) {
    case vbide::vbext_ct_VBForm: return "Form";
    case vbide::vbext_ct_VBMDIForm: return "MDIForm";
    case vbide::vbext_ct_ClassModule: return "ClassModule";
    case vbide::vbext_ct_UserControl: return "UserControl";
    case vbide::vbext_ct_PropPage: return "PropertyPage";
    case vbide::vbext_ct_DocObject: return "UserDocument";
    default: return "Module";
    }
}

} // namespace

InspectedObject inspected(const vbide::Ref<vbide::VBProject>& project) { return nameOf(project); }

InspectedObject inspected(DesignHistory& history, const vbide::Ref<vbide::VBComponent>& component,
                          const vbide::Ref<vbide::VBControl>& control) {
    if (!hasDesign(*component)) return nameOf(component);
    const auto properties = control ? control->Properties() : component->Properties();
    return {properties->items(), [&history, component, properties](const auto& property, const auto& value) {
                history.set(component, properties, {{property->Name(), value}});
            }};
}

QString titleOf(const vbide::VBComponent& component) { return qt(component.Name()) + " " + classOf(component.Type()); }

QString titleOf(const vbide::VBControl& control) {
    const PropertyReader read(control.Properties());
    const int index = read.number("Index", -1);
    const auto name = index < 0 ? read.text("Name") : QString("%1(%2)").arg(read.text("Name")).arg(index);
    return name + " " + qt(control.ClassName());
}

bool hasDesign(vbide::VBComponent& component) {
    bool has = false;
    (void)basic::attempt([&] { has = bool(component.Designer()); });
    return has;
}

} // namespace workbench
