#pragma once
// Classes by name: instances from registered factories, identities from the registry and from description files.
#include "Add-in/platform/classes.h"
#include "Add-in/platform/registry.h"
#include "Basic/case_folding.h"
#include "Host/system/description_heads.h"
#include <map>
#include <utility>
#include <vector>

namespace host {

class Classes : public fernwick::Classes {
public:
    explicit Classes(fernwick::Registry& registry) : registry_(registry) {}

    [[nodiscard]] std::shared_ptr<void> RegisterClass(const std::string& progId, Factory factory) override;
    basic::Ref<fernwick::Object> CreateObject(const std::string& progId) override;

    /// `clsid` receives the text in upper case.
    bool CLSIDFromString(const std::string& text, std::string& clsid) const override;
    std::string ProgIDFromCLSID(const std::string& clsid) const override;
    /// Returns the class of a ProgID, in braces and upper case; "" if it is not registered.
    std::string CLSIDFromProgID(const std::string& progId) const;
    /// Reads the description file next to the registered `path`, which remains the ContainingFile.
    basic::Ref<fernwick::TypeLibInfo> TypeLibInfoFromFile(const std::string& path) const override;

private:
    using Registrations = std::vector<std::pair<std::weak_ptr<void>, Factory>>;

    std::string defaultValue(const std::string& key) const;

    fernwick::Registry& registry_;
    mutable DescriptionHeads heads_;
    std::map<std::string, Registrations, basic::NoCaseLess> factories_;
};

} // namespace host
