#include "Host/system/classes.h"
#include "Basic/guid.h"
#include "Host/files/system_error.h"
#include "Host/system/classes_key.h"

namespace host {
namespace {

/// A CLSID must have braces.
std::optional<basic::GUID> parseClassId(const std::string& text) {
    return text.starts_with('{') ? basic::parseGuid(text) : std::nullopt;
}

} // namespace

std::shared_ptr<void> Classes::RegisterClass(const std::string& progId, Factory factory) {
    auto& known = factories_[progId];
    std::erase_if(known, [](const auto& one) { return one.first.expired(); });
    std::shared_ptr<void> registration = std::make_shared<char>();
    known.emplace_back(registration, std::move(factory));
    return registration;
}

basic::Ref<fernwick::Object> Classes::CreateObject(const std::string& progId) {
    const auto known = factories_.find(progId);
    auto registrations = known == factories_.end() ? Registrations{} : known->second; // a factory may register more
    while (!registrations.empty() && registrations.back().first.expired()) registrations.pop_back();
    auto made = registrations.empty() ? nullptr : registrations.back().second();
    if (!made)
        throw hostError(basic::kCantCreateObject,
                        std::string(basic::standardDescription(basic::kCantCreateObject)) + ": " + progId);
    return made;
}

bool Classes::CLSIDFromString(const std::string& text, std::string& clsid) const {
    const auto guid = parseClassId(text);
    if (guid) clsid = basic::guidText(*guid);
    return guid.has_value();
}

std::string Classes::ProgIDFromCLSID(const std::string& clsid) const {
    return parseClassId(clsid) ? defaultValue("CLSID\\" + clsid + "\\ProgID") : "";
}

std::string Classes::CLSIDFromProgID(const std::string& progId) const {
    std::string clsid;
    return CLSIDFromString(defaultValue(progId + "\\CLSID"), clsid) ? clsid : "";
}

std::string Classes::defaultValue(const std::string& key) const { return classesText(registry_, key).value_or(""); }

basic::Ref<fernwick::TypeLibInfo> Classes::TypeLibInfoFromFile(const std::string& path) const {
    const auto file = path.empty() ? "" : descriptionFileOf(path);
    if (file.empty()) return nullptr;
    TypeDescription described;
    if (basic::attempt([&] { described = heads_.of(file); }).Number != 0) return nullptr;
    return basic::make<fernwick::TypeLibInfo>(fernwick::TypeLibInfo{
        described.name, path, described.guid, described.majorVersion, described.minorVersion, described.help});
}

} // namespace host
