#include "Components/DesignTargetAccess/design_target.h"
#include <algorithm>
#include <cctype>

namespace designtargetaccess {
namespace {

/// Ignores case, as the language does in names and GUIDs do in digits.
bool sameIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

std::string_view withoutBraces(std::string_view guid) {
    const bool braced = guid.size() >= 2 && guid.front() == '{' && guid.back() == '}';
    return braced ? guid.substr(1, guid.size() - 2) : guid;
}

bool sameGuid(std::string_view a, std::string_view b) { return sameIgnoringCase(withoutBraces(a), withoutBraces(b)); }

bool holdsReference(const std::vector<TargetReference>& list, const std::string& nameOrGuid) {
    return std::any_of(list.begin(), list.end(), [&](const TargetReference& each) {
        return sameIgnoringCase(each.name, nameOrGuid) || sameGuid(each.guid, nameOrGuid);
    });
}

} // namespace

DesignTarget::DesignTarget(TargetData data, std::string root) : data_(std::move(data)), root_(std::move(root)) {}

bool DesignTarget::GetOption(const std::string& name, std::string& value) const {
    const auto found = data_.options.find(name);
    if (found == data_.options.end()) return false;
    value = found->second;
    return true;
}

void DesignTarget::GetSupportedTavlets(std::vector<std::string>& clsids, std::vector<std::string>& progIds,
                                       std::vector<std::string>& categories) const {
    clsids.clear();
    progIds.clear();
    categories.clear();
    for (const TargetTavlet& tavlet : data_.tavlets) {
        clsids.push_back(tavlet.clsid);
        progIds.push_back(tavlet.progId);
        categories.push_back(tavlet.category);
    }
}

std::int32_t DesignTarget::NumSupportedTavlets() const { return static_cast<std::int32_t>(data_.tavlets.size()); }

void DesignTarget::GetSupportedReferences(std::vector<std::string>& guids) const {
    guids.clear();
    for (const TargetReference& reference : data_.required) guids.push_back(reference.guid);
}

std::int32_t DesignTarget::NumSupportedReferences() const { return static_cast<std::int32_t>(data_.required.size()); }

ReferenceValidity DesignTarget::ValidateReference(const std::string& reference) const {
    const bool required = holdsReference(data_.required, reference);
    return {required || holdsReference(data_.accepted, reference), required};
}

bool DesignTarget::FindModule(const std::string& moduleId) const {
    return std::any_of(data_.modules.begin(), data_.modules.end(),
                       [&](const std::string& each) { return sameGuid(each, moduleId); });
}

bool DesignTarget::IsTabStopOff(const std::string& className) const {
    return std::any_of(data_.tabStopOff.begin(), data_.tabStopOff.end(),
                       [&](const std::string& each) { return sameIgnoringCase(each, className); });
}

void DesignTarget::GetPropertyDefaults(std::vector<std::string>& names, std::vector<std::string>& values) const {
    names.clear();
    values.clear();
    for (const auto& [name, value] : data_.tavletDefaults) {
        names.push_back(name);
        values.push_back(value);
    }
}

std::int32_t DesignTarget::NumPropertyDefaults() const {
    return static_cast<std::int32_t>(data_.tavletDefaults.size());
}

std::string DesignTarget::templatePath(const std::string& relative) const {
    return relative.empty() ? std::string{} : root_ + '/' + relative;
}

} // namespace designtargetaccess
