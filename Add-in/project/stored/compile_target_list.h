#pragma once
// The compile targets that a project stores, from index 1.
#include "Add-in/core/array.h"
#include "Add-in/project/stored/device_keys.h"
#include "Add-in/project/stored/project_store.h"
#include "Basic/case_folding.h"

namespace fernwick {

class CompileTargetList {
public:
    explicit CompileTargetList(ProjectStore& store) : store_(store) {}

    std::int32_t count() const;
    /// Without a stored count the list is unchanged. An entry that is not a number reads as "".
    void get(Array<std::string>& list) const;
    /// Stores the entries from 1 to the upper bound.
    void set(const Array<std::string>& list);
    bool contains(const std::string& name) const;
    static bool owns(std::string_view key) {
        return basic::equalNoCase(key, "NumCompileTargets") || isNumberedKey(key, "CompileTarget");
    }

private:
    ProjectStore& store_;
};

} // namespace fernwick
