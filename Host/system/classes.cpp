#include "Host/system/classes.h"
#include "Host/files/system_error.h"
#include "Host/system/type_description.h"
#include <algorithm>
#include <cctype>

namespace host {
namespace {

/// A CLSID as it is written: "{01234567-89AB-CDEF-0123-456789ABCDEF}".
bool isClassId(const std::string& text) {
    constexpr std::string_view kForm = "{00000000-0000-0000-0000-000000000000}";
    if (text.size() != kForm.size()) return false;
    return std::equal(text.begin(), text.end(), kForm.begin(), [](char c, char form) {
        return form == '0' ? std::isxdigit(static_cast<unsigned char>(c)) != 0 : c == form;
    });
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
    if (!isClassId(text)) return false;
    clsid = text;
    for (auto& c : clsid) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return true;
}

std::string Classes::ProgIDFromCLSID(const std::string& clsid) const {
    return isClassId(clsid) ? defaultValue("CLSID\\" + clsid + "\\ProgID") : "";
}

std::string Classes::CLSIDFromProgID(const std::string& progId) const {
    std::string clsid;
    return CLSIDFromString(defaultValue(progId + "\\CLSID"), clsid) ? clsid : "";
}

std::string Classes::defaultValue(const std::string& key) const {
    std::uint32_t handle = 0, type = 0, length = 0;
    if (registry_.RegOpenKeyEx(fernwick::HKEY_CLASSES_ROOT, key, fernwick::KEY_READ, handle) != 0) return "";
    std::string data;
    if (registry_.RegQueryValueEx(handle, "", type, data, length) == fernwick::ERROR_MORE_DATA) {
        data.resize(length);
        if (registry_.RegQueryValueEx(handle, "", type, data, length) != 0) data.clear();
    }
    registry_.RegCloseKey(handle);
    return type == fernwick::REG_SZ ? data.substr(0, data.find('\0')) : "";
}

basic::Ref<fernwick::TypeLibInfo> Classes::TypeLibInfoFromFile(const std::string& path) const {
    const auto file = path.empty() ? "" : descriptionFileOf(path);
    if (file.empty()) return nullptr;
    TypeDescription described;
    if (basic::attempt([&] { described = readTypeDescriptionHead(file); }).Number != 0) return nullptr;
    return basic::make<fernwick::TypeLibInfo>(fernwick::TypeLibInfo{
        described.name, path, described.guid, described.majorVersion, described.minorVersion, described.help});
}

} // namespace host
