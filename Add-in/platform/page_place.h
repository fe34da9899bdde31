#pragma once
#include "Add-in/platform/form.h"
#include "Basic/ref.h"
#include <string>
#include <vector>

namespace fernwick {

/// Where a form shows other forms as pages without a window of their own. A page is visible while its form is.
class PagePlace : public Control {
public:
    using Control::Control;
    /// A page was added or removed.
    Event<> changed;

    const std::vector<basic::Ref<Form>>& Pages() const { return pages_; }
    /// SetParent: a page must be loaded and stay so until it is removed.
    void Add(basic::Ref<Form> page) {
        pages_.push_back(std::move(page));
        changed.raise();
    }
    void Clear() {
        pages_.clear();
        changed.raise();
    }

private:
    std::vector<basic::Ref<Form>> pages_;
};

} // namespace fernwick
