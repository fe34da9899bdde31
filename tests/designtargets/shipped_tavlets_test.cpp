#include "Components/DesignTargetAccess/design_target_mgr.h"
#include "tests/designtargets/installed_tree.h"
#include <gtest/gtest.h>
#include <set>
#include <toml++/toml.h>

namespace {

using installed::lower;
using installed::registered;

const std::string kTavletFolder = installed::kRoot + "/tavlets";

std::string textOf(const toml::table& table, const char* key) { return table[key].value_or(std::string{}); }

std::vector<toml::table> tablesOf(const toml::table& table, const char* key) {
    std::vector<toml::table> result;
    if (const auto* array = table[key].as_array())
        for (const auto& item : *array) result.push_back(*item.as_table());
    return result;
}

toml::table library() { return toml::parse_file(kTavletFolder + "/Tavlets.toml"); }

std::map<std::string, toml::table> classes() {
    std::map<std::string, toml::table> result;
    for (const auto& path : installed::filesOf(kTavletFolder + "/classes", ".toml")) {
        toml::table table = toml::parse_file(path.string());
        EXPECT_EQ(textOf(table, "name"), path.stem().string());
        result[textOf(table, "name")] = std::move(table);
    }
    return result;
}

/// Returns the members of the class and its groups.
std::vector<toml::table> membersOf(const toml::table& tavlet, const char* kind) {
    std::vector<toml::table> members;
    for (const auto& name : *tavlet["groups"].as_array())
        for (const auto& group : tablesOf(library(), "groups"))
            if (textOf(group, "name") == *name.value<std::string>())
                for (const auto& member : tablesOf(group, kind)) members.push_back(member);
    for (const auto& member : tablesOf(tavlet, kind)) members.push_back(member);
    return members;
}

bool hasMember(const toml::table& tavlet, const char* kind, const std::string& name) {
    const auto members = membersOf(tavlet, kind);
    return std::any_of(members.begin(), members.end(), [&](const auto& each) { return textOf(each, "name") == name; });
}

std::set<std::string> knownTypes() {
    std::set<std::string> types{"Boolean", "Integer", "Long",   "Single",    "Date",
                                "String",  "Variant", "Object", "OLE_COLOR", "Picture"};
    for (const auto& each : tablesOf(library(), "enums")) types.insert(textOf(each, "name"));
    return types;
}

TEST(ShippedTavlets, AreRegisteredInEveryPlace) {
    const auto keys = registered();
    const auto value = [&](const std::string& key, const std::string& name) {
        const auto found = keys.find(lower(key));
        return found == keys.end() || !found->second.contains(name) ? "(none)" : found->second.at(name);
    };
    for (const auto& [name, tavlet] : classes()) {
        const std::string clsid = textOf(tavlet, "clsid"), progId = textOf(tavlet, "progid");
        EXPECT_EQ(progId, "Tavlets." + name);
        EXPECT_EQ(value("HKEY_CLASSES_ROOT\\CLSID\\" + clsid + "\\ProgID", "@"), progId);
        EXPECT_EQ(value("HKEY_CLASSES_ROOT\\CLSID\\" + clsid + "\\InprocServer32", "@"),
                  "%RootDir%/tavlets/Tavlets.dll");
        EXPECT_EQ(value("HKEY_CLASSES_ROOT\\CLSID\\" + clsid + "\\TypeLib", "@"), textOf(library(), "guid"));
        EXPECT_EQ(value("HKEY_CLASSES_ROOT\\" + progId + "\\CLSID", "@"), clsid);
        EXPECT_EQ(value("HKEY_LOCAL_MACHINE\\SOFTWARE\\Quinloft\\Classes\\" + progId, "name"), progId);
        EXPECT_EQ(value("HKEY_LOCAL_MACHINE\\SOFTWARE\\Quinloft\\Classes\\TavletsCtl." + name, "name"), progId);
    }
}

TEST(ShippedTavlets, AreDescribedIfRegistered) {
    std::set<std::string> described;
    for (const auto& [name, tavlet] : classes()) EXPECT_TRUE(described.insert(lower(textOf(tavlet, "clsid"))).second);
    const std::string prefix = "hkey_classes_root\\clsid\\";
    for (const auto& [key, values] : registered())
        if (key.starts_with(prefix)) { EXPECT_TRUE(described.contains(key.substr(prefix.size(), 38))) << key; }
}

TEST(ShippedTavlets, AreDescribedForEveryTarget) {
    const auto described = classes();
    designtargetaccess::DesignTargetMgr manager{installed::kRoot};
    manager.Initialize();
    for (std::int16_t i = 0; i < manager.Count(); ++i) {
        std::vector<std::string> clsids, progIds, categories;
        manager.GetDesignTargetByIndex(i)->GetSupportedTavlets(clsids, progIds, categories);
        for (std::size_t t = 0; t < clsids.size(); ++t) {
            const auto found = described.find(progIds[t].substr(progIds[t].find('.') + 1));
            ASSERT_NE(found, described.end()) << progIds[t];
            EXPECT_EQ(textOf(found->second, "clsid"), clsids[t]) << progIds[t];
            EXPECT_EQ(textOf(found->second, "category"), categories[t]) << progIds[t];
        }
    }
}

/// The toolbox stops one short of the count of groups, and needs positions from 1 without a gap.
TEST(ShippedTavlets, AreInGroupsShownInTheToolbox) {
    const auto groups = registered().at("hkey_local_machine\\software\\quinloft\\addinprefs\\tavletgroups");
    std::set<std::string> positions;
    for (const auto& [name, position] : groups) positions.insert(position);
    for (std::size_t i = 1; i <= groups.size(); ++i) EXPECT_TRUE(positions.contains(std::to_string(i))) << i;

    const std::string last = std::to_string(groups.size());
    for (const auto& [name, tavlet] : classes()) {
        const std::string category = textOf(tavlet, "category");
        ASSERT_TRUE(groups.contains(lower(category))) << category;
        EXPECT_NE(groups.at(lower(category)), last) << category;
        EXPECT_NE(installed::content(installed::kRoot + "/registry/installation.reg").find("\"" + category + "\"="),
                  std::string::npos)
            << "letter case of " << category;
    }
    EXPECT_NE(groups.at("other"), last);
}

TEST(ShippedTavlets, HaveValidGroupsTypesAndNames) {
    std::set<std::string> groups;
    for (const auto& each : tablesOf(library(), "groups")) groups.insert(textOf(each, "name"));
    const auto types = knownTypes();
    for (const auto& [className, tavlet] : classes()) {
        for (const auto& group : *tavlet["groups"].as_array())
            EXPECT_TRUE(groups.contains(*group.value<std::string>())) << className;
        std::set<std::string> names;
        for (const char* kind : {"properties", "methods", "events"}) {
            for (const auto& member : membersOf(tavlet, kind)) {
                const std::string name = textOf(member, "name");
                if (std::string{kind} != "events") {
                    EXPECT_TRUE(names.insert(lower(name)).second) << className << "." << name;
                }
                for (const auto& parameter : tablesOf(member, "parameters"))
                    EXPECT_TRUE(types.contains(textOf(parameter, "type"))) << className << "." << name;
                if (std::string{kind} == "properties" || !textOf(member, "returns").empty()) {
                    const std::string type = textOf(member, std::string{kind} == "properties" ? "type" : "returns");
                    EXPECT_TRUE(types.contains(type)) << className << "." << name << " As " << type;
                }
            }
        }
    }
}

TEST(ShippedTavlets, HaveTheMembersThatTheFontScanReads) {
    const auto tavlets = classes();
    std::set<std::string> withFont;
    for (const auto& [name, tavlet] : tavlets)
        if (hasMember(tavlet, "properties", "FontName") && hasMember(tavlet, "properties", "FontStyle") &&
            hasMember(tavlet, "properties", "FontSize"))
            withFont.insert(name);
    EXPECT_EQ(withFont, (std::set<std::string>{"QLButton", "QLCheckBox", "QLComboBox", "QLGrid", "QLLabel", "QLListBox",
                                               "QLRadioButton", "QLTextBox"}));
}

TEST(ShippedTavlets, HaveTheDefaultsThatTargetsSet) {
    const auto tavlets = classes();
    designtargetaccess::DesignTargetMgr manager{installed::kRoot};
    manager.Initialize();
    for (std::int16_t i = 0; i < manager.Count(); ++i) {
        const auto target = manager.GetDesignTargetByIndex(i);
        std::vector<std::string> names, values;
        target->GetPropertyDefaults(names, values);
        for (const auto& name : names) {
            const auto point = name.find('.');
            ASSERT_TRUE(tavlets.contains(name.substr(0, point))) << name;
            EXPECT_TRUE(hasMember(tavlets.at(name.substr(0, point)), "properties", name.substr(point + 1))) << name;
        }
        for (const auto& [name, tavlet] : tavlets)
            if (target->IsTabStopOff(name)) { EXPECT_TRUE(hasMember(tavlet, "properties", "TabStop")) << name; }
    }
}

TEST(ShippedLibraries, AreRegisteredBelowVersionTenWithADescription) {
    const std::string prefix = "hkey_classes_root\\typelib\\";
    std::set<std::string> guids;
    for (const auto& [key, values] : registered()) {
        if (!key.starts_with(prefix) || !key.ends_with("\\0\\win32")) continue;
        const std::string path = values.at("@"), guid = key.substr(prefix.size(), 38);
        EXPECT_EQ(key.substr(prefix.size() + 38), "\\1.0\\0\\win32");
        EXPECT_TRUE(path.ends_with(".dll")) << path;
        const std::string description = installed::belowRoot(path.substr(0, path.size() - 4) + ".toml");
        ASSERT_TRUE(installed::leadsSomewhere(installed::kRoot, description)) << description;
        const toml::table table = toml::parse_file(installed::kRoot + "/" + description);
        EXPECT_EQ(lower(textOf(table, "guid")), guid);
        EXPECT_EQ(textOf(table, "version"), "1.0");
        EXPECT_NE(textOf(table, "help"), "");
        EXPECT_EQ(registered().at("hkey_local_machine\\software\\quinloft\\modules\\" + guid).at("@"), path);
        guids.insert(guid);
    }
    EXPECT_EQ(guids.size(), 2u);
}

} // namespace
