#include "Add-in/core/connect/Modules.h"

namespace fernwick {

Modules::Modules(Platform& p, const ModuleOverrides& overrides)
    : platform(p),
      errors(overrides.errors ? *overrides.errors : errorBoxes),
      settings(overrides.settings ? *overrides.settings : settingsDialog),
      compileMsgsClass_(p.classes.RegisterClass(p.app.Title + ".udocCompileMsgs", [this] { return newCompileMsgs(); })),
      zoomWindowClass_(p.classes.RegisterClass(p.app.Title + ".udocZoomWindow", [this] { return newZoomWindow(); })) {}

Modules::~Modules() { release(); }

void Modules::release() {
    connect.releaseSinks();
    (void)basic::attempt([this] { removal.Unload(); });
    (void)basic::attempt([this] { projectManager.dismiss(); });
    for (const auto& document : documents_)
        if (const auto window = document.lock()) window->disconnect();
    (void)basic::attempt([this] { endZoom(); });
}

void Modules::endZoom() {
    zoomSubclassing.release();
    zoom.CloseZoomWin();
    for (const auto& document : zoomDocuments_)
        if (const auto window = document.lock()) window->disconnect();
}

basic::Ref<Object> Modules::newCompileMsgs() {
    const auto document =
        std::make_shared<udocCompileMsgs>(CompileMsgsServices{platform, errors, addIn, install, settings, tools});
    documents_.push_back(document);
    return document;
}

basic::Ref<Object> Modules::newZoomWindow() {
    const auto document =
        std::make_shared<udocZoomWindow>(ZoomWindowServices{platform, errors, addIn, zoom, zoomSubclassing});
    zoomDocuments_.push_back(document);
    document->UserDocument_Initialize();
    return document;
}

basic::Ref<udocCompileMsgs> Modules::compileMsgs() const {
    return documents_.empty() ? nullptr : documents_.back().lock();
}

} // namespace fernwick
