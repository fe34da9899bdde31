// SaveSetting and its relatives.
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/values/encoding.h"
#include <optional>

namespace tamarik {

using image::BaseType;

namespace {

Settings& settingsOf(Session& session) { return *session.surroundings.settings; }

TextBlock* getSetting(Session& session, std::u16string_view application, std::u16string_view section,
                      std::u16string_view key, const Variant& usual) {
    const auto value = settingsOf(session).find(toUtf8(application), toUtf8(section), toUtf8(key));
    if (value) return madeOfUtf8(session, *value);
    return usual.isMissing() ? nullptr : textIn(session, usual);
}

void saveSetting(Session& session, std::u16string_view application, std::u16string_view section,
                 std::u16string_view key, std::u16string_view value) {
    requireArgument(!application.empty() && !section.empty() && !key.empty());
    settingsOf(session).store(toUtf8(application), toUtf8(section), toUtf8(key), toUtf8(value));
}

std::optional<std::string> nameIn(Session& session, const Variant& v) {
    return v.isMissing() ? std::nullopt : std::optional(utf8Of(session, v));
}

void deleteSetting(Session& session, std::u16string_view application, const Variant& section, const Variant& key) {
    const auto sectionName = nameIn(session, section), keyName = nameIn(session, key);
    requireArgument(sectionName || !keyName);
    requireArgument(settingsOf(session).remove(toUtf8(application), sectionName, keyName));
}

/// An array with two columns, names and values; Empty if there are none.
Variant getAllSettings(Session& session, std::u16string_view application, std::u16string_view section) {
    const auto all = settingsOf(session).all(toUtf8(application), toUtf8(section));
    if (all.empty()) return {};
    const Bounds bounds[]{{0, static_cast<std::int32_t>(all.size()) - 1}, {0, 1}};
    HeldBlock<ArrayBlock> array(session.heap, makeArray(session.heap, {{BaseType::Text}}, bounds));
    for (std::size_t i = 0; i < all.size(); ++i) {
        array->as<Slot>()[i].text = madeOfUtf8(session, all[i].first);
        array->as<Slot>()[all.size() + i].text = madeOfUtf8(session, all[i].second);
    }
    return ofArray(array.take());
}

} // namespace

void addSettings(Natives& natives) {
    natives.add("GetSetting", native<&getSetting>());
    natives.add("SaveSetting", native<&saveSetting>());
    natives.add("DeleteSetting", native<&deleteSetting>());
    natives.add("GetAllSettings", native<&getAllSettings>());
}

} // namespace tamarik
