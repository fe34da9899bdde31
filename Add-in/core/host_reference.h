#pragma once
#include "Add-in/platform/host.h"
#include <memory>

namespace fernwick {

/// The host as the add-in refers to it. The host owns the add-in, so the reference is weak: it becomes Nothing when the
/// host is destroyed.
class HostReference {
public:
    HostReference& operator=(const basic::Ref<vbide::VBE>& host) {
        host_ = host.shared();
        return *this;
    }
    operator basic::Ref<vbide::VBE>() const { return host_.lock(); }
    explicit operator bool() const { return !host_.expired(); }
    /// Error 91 for Nothing. The host is held to the end of the full expression.
    std::shared_ptr<vbide::VBE> operator->() const { return basic::Ref<vbide::VBE>(*this).operator->(); }

private:
    std::weak_ptr<vbide::VBE> host_;
};

} // namespace fernwick
