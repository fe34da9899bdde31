#pragma once
// The designer windows of a project's forms.
#include "Add-in/project/stored/project_store.h"
#include <vector>

namespace fernwick {

class DesignerWindows {
public:
    explicit DesignerWindows(const ProjectStore& store) : store_(store) {}

    /// Closes them and remembers which were open.
    void closeAll();
    void reopen();

private:
    const ProjectStore& store_;
    std::vector<basic::Ref<vbide::VBComponent>> closed_;
};

} // namespace fernwick
