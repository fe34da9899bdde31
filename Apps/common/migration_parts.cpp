#include "Apps/common/migration_parts.h"
#include "Apps/common/file_names.h"
#include "Basic/case_folding.h"
#include "Components/Language/foreign.h"
#include "Components/QLToolkit/parser/form_header.h"
#include "Components/QLToolkit/parser/header_places.h"
#include "Host/files/library_reference.h"
#include "Host/files/path_lookup.h"
#include <algorithm>
#include <cstdlib>
#include <fmt/format.h>

namespace apps {

namespace {

constexpr double kTwipsPerPixel = 15;

constexpr const char* kOtherProject = "Add the modules that are used to this project: devices run one program";
constexpr const char* kUnknownLibrary =
    "Remove it, and write in Basic what is used of it: devices have no libraries of Windows";
constexpr const char* kUnknownControl = "Use a Tavlet: devices have no other controls";
constexpr const char* kDesigner = "Write its data in code: devices have no designers";

std::string descriptionOf(const host::LibraryReference& reference) {
    for (const auto* text : {&reference.description, &reference.path, &reference.guid, &reference.progId})
        if (!text->empty()) return *text;
    return {};
}

std::string insteadOfClass(const std::string& className) {
    const auto* found = language::findClass(className);
    if (found && !found->instead.empty()) return found->instead;
    const auto* library = language::foreignLibrary(className.substr(0, className.find('.')));
    return library && !library->instead.empty() ? library->instead : kUnknownControl;
}

bool holds(const std::vector<std::string>& names, std::string_view name) {
    return std::ranges::any_of(names, [&](const std::string& each) { return basic::equalNoCase(each, name); });
}

/// Forms name the library of their controls with or without Ctl at its end.
bool hasControl(const MigrationDevice& device, const std::string& className) {
    if (holds(device.classes, className)) return true;
    const auto point = className.find('.');
    return point != className.npos && point > 3 && basic::equalNoCase(className.substr(point - 3, 3), "Ctl") &&
           holds(device.classes, className.substr(0, point - 3) + className.substr(point));
}

class Members {
public:
    Members(const CheckedProject& project, const MigrationDevice& device) : project_(project), device_(device) {}

    std::vector<Hindrance> find() {
        for (const auto& member : project_.lines) {
            switch (member.kind) {
            case host::MemberKind::Reference: library(member, host::parseReferenceLine(member.value)); break;
            case host::MemberKind::Object: library(member, host::parseObjectLine(member.value)); break;
            case host::MemberKind::UserControl: component(member, insteadOfClass("VB.UserControl")); break;
            case host::MemberKind::PropertyPage: component(member, insteadOfClass("VB.PropertyPage")); break;
            case host::MemberKind::UserDocument: component(member, insteadOfClass("VB.UserDocument")); break;
            case host::MemberKind::Designer: component(member, kDesigner); break;
            default: break;
            }
        }
        return std::move(found_);
    }

private:
    using Kind = host::LibraryReference::Kind;

    void library(const host::ProjectMember& member, const host::LibraryReference& reference) {
        const bool isProject = reference.kind == Kind::Project || reference.kind == Kind::ControlProject;
        if (!isProject && (isLanguageLibrary(reference.guid) || holds(device_.references, reference.guid))) return;
        const auto* known = language::foreignLibrary(reference.guid);
        const auto* instead = isProject ? kOtherProject : kUnknownLibrary;
        add(HindranceKind::Reference, member, descriptionOf(reference),
            known && !known->instead.empty() ? known->instead : instead);
    }

    void component(const host::ProjectMember& member, const std::string& instead) {
        add(HindranceKind::Component, member, member.value, instead);
    }

    void add(HindranceKind kind, const host::ProjectMember& member, const std::string& name,
             const std::string& instead) {
        found_.push_back(
            {kind, host::absolutePath(project_.path), std::uint32_t(member.line), 1, 0, name, name, instead});
    }

    const CheckedProject& project_;
    const MigrationDevice& device_;
    std::vector<Hindrance> found_;
};

class Controls {
public:
    Controls(const qltoolkit::SourceText& source, const MigrationDevice& device) : source_(source), device_(device) {}

    std::vector<Hindrance> find() {
        const auto form = qltoolkit::readFormHeader(source_);
        if (!form) return {};
        const auto& className = form->className.str();
        if (basic::equalNoCase(className, "VB.MDIForm"))
            add(HindranceKind::Component, *form, {}, form->name.str(), className, insteadOfClass(className));
        if (basic::equalNoCase(className, "VB.Form")) checkSize(*form);
        for (const auto& child : form->children) control(child);
        return std::move(found_);
    }

private:
    void control(const image::Control& control) {
        const auto& className = control.className.str();
        if (!hasControl(device_, className))
            add(HindranceKind::Control, control, {}, fmt::format("{} ({})", control.name.str(), className), className,
                insteadOfClass(className));
        for (const auto& child : control.children) this->control(child);
    }

    void checkSize(const image::Control& form) {
        const double width = number(form, "ClientWidth"), height = number(form, "ClientHeight");
        const bool isWide = device_.width > 0 && width > device_.width;
        const bool isHigh = device_.height > 0 && height > device_.height;
        if (!isWide && !isHigh) return;
        const auto pixels = [](double twips) { return std::int64_t(twips / kTwipsPerPixel); };
        add(HindranceKind::Screen, form, isWide ? "ClientWidth" : "ClientHeight",
            fmt::format("{} ({} x {})", form.name.str(), pixels(width), pixels(height)), form.name.str(),
            fmt::format("Make it at most {} x {} pixels, or divide it into several forms", pixels(device_.width),
                        pixels(device_.height)));
    }

    static double number(const image::Control& form, std::string_view property) {
        for (const auto& each : form.properties)
            if (basic::equalNoCase(each.name.str(), property)) return std::strtod(each.value.str().c_str(), nullptr);
        return 0;
    }

    void add(HindranceKind kind, const image::Control& control, std::string_view property, std::string name,
             std::string subject, std::string instead) {
        const auto place = source_.locate(qltoolkit::placeInHeader(source_, control.name.str(), property));
        found_.push_back({kind, source_.name(), place.line, place.column, 0, std::move(name), std::move(subject),
                          std::move(instead)});
    }

    const qltoolkit::SourceText& source_;
    const MigrationDevice& device_;
    std::vector<Hindrance> found_;
};

} // namespace

MigrationDevice::MigrationDevice(const designtargetaccess::IQLDesignTarget& target, const CheckedProject& project)
    : key(target.Key()) {
    width = std::strtod(target.DefaultFormWidth().c_str(), nullptr) * kTwipsPerPixel;
    height = std::strtod(target.DefaultFormHeight().c_str(), nullptr) * kTwipsPerPixel;
    std::vector<std::string> ids, categories;
    target.GetSupportedTavlets(ids, classes, categories);
    for (const auto& guid : project.libraries)
        if (target.ValidateReference(guid).known()) references.push_back(guid);
}

std::vector<Hindrance> foreignMembers(const CheckedProject& project, const MigrationDevice& device) {
    return Members{project, device}.find();
}

std::vector<Hindrance> foreignControls(const qltoolkit::SourceText& source, const MigrationDevice& device) {
    return Controls{source, device}.find();
}

} // namespace apps
