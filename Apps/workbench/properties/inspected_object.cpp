#include "Apps/workbench/properties/inspected_object.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/properties/property_reader.h"
#include "Basic/runtime_error.h"
#include "Host/model/forms/property_source.h"

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
    const vbide::Ref<vbide::Property> name = basic::make<NameOnly>(
        [named] { return named->Name(); }, [named](const std::string& newName) { named->Name(newName); });
    return {{{name}}, [](const auto& property, const auto& change) { change(property.front()); }};
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

/// Properties of the same kind. Those that identify one control are left out.
std::vector<SharedProperty> commonProperties(const std::vector<vbide::Ref<vbide::Properties>>& objects) {
    std::vector<SharedProperty> common;
    for (const auto& first : objects.front()->items()) {
        const auto name = first->Name();
        if (objects.size() > 1 && (name == "Name" || name == "Index")) continue;
        SharedProperty shared{first};
        const auto kind = host::detailsOf(first).kind;
        (void)basic::attempt([&] { // an object without the property ends it
            for (auto other = objects.begin() + 1; other != objects.end(); ++other)
                if (const auto same = (*other)->Item(name); host::detailsOf(same).kind == kind) shared.push_back(same);
        });
        if (shared.size() == objects.size()) common.push_back(std::move(shared));
    }
    return common;
}

} // namespace

InspectedObject inspected(const vbide::Ref<vbide::VBProject>& project) { return nameOf(project); }

InspectedObject inspected(DesignHistory& history, const vbide::Ref<vbide::VBComponent>& component,
                          const InspectedControls& controls) {
    if (!hasDesign(*component)) return nameOf(component);
    std::vector<vbide::Ref<vbide::Properties>> objects;
    for (const auto& control : controls) objects.push_back(control->Properties());
    if (objects.empty()) objects.push_back(component->Properties());
    return {commonProperties(objects), [&history, component](const auto& property, const auto& change) {
                changeAsOneStep(history, component, property, change);
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
