#include "Add-in/core/connect/Modules.h"

namespace fernwick {

Modules::Modules(Platform& p)
    : platform(p),
      compileMsgsClass_(
          p.classes.RegisterClass(p.app.Title + ".udocCompileMsgs", [this] { return newCompileMsgs(); })) {}

Modules::~Modules() {
    for (const auto& document : documents_)
        if (const auto window = document.lock()) window->letGo();
}

basic::Ref<Object> Modules::newCompileMsgs() {
    const auto document =
        std::make_shared<udocCompileMsgs>(CompileMsgsServices{platform, errors, addIn, install, commands, tools});
    documents_.push_back(document);
    return document;
}

basic::Ref<udocCompileMsgs> Modules::compileMsgs() const {
    return documents_.empty() ? nullptr : documents_.back().lock();
}

basic::Ref<vbide::IDTExtensibility> asAddIn(const std::shared_ptr<Modules>& modules) {
    return std::shared_ptr<vbide::IDTExtensibility>(modules, &modules->connect);
}

} // namespace fernwick
