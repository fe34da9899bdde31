#pragma once
// Classes by ProgID and CLSID, and the type information of their libraries.
#include "Add-in/platform/object.h"
#include "Basic/ref.h"
#include <functional>
#include <memory>
#include <string>

namespace fernwick {

/// TypeLibInfo: the description of a type library.
struct TypeLibInfo {
    std::string Name;
    /// The library's file.
    std::string ContainingFile;
    /// In braces.
    std::string Guid;
    int MajorVersion = 0;
    int MinorVersion = 0;
    /// Description; may be empty.
    std::string HelpString;
};

class Classes {
public:
    virtual ~Classes() = default;

    using Factory = std::function<basic::Ref<Object>()>;
    /// Makes the ProgID creatable as long as the returned object lives. The latest registration takes effect.
    [[nodiscard]] virtual std::shared_ptr<void> RegisterClass(const std::string& progId, Factory factory) = 0;
    /// Error 429 for a class that can't be created.
    virtual basic::Ref<Object> CreateObject(const std::string& progId) = 0;

    /// CLSIDFromString: False for a text that is not a CLSID in braces.
    virtual bool CLSIDFromString(const std::string& text, std::string& clsid) const = 0;
    /// "" for a class that is not registered.
    virtual std::string ProgIDFromCLSID(const std::string& clsid) const = 0;
    /// TLIApplication.TypeLibInfoFromFile. Nothing when the file holds no type information.
    virtual basic::Ref<TypeLibInfo> TypeLibInfoFromFile(const std::string& path) const = 0;
};

} // namespace fernwick
