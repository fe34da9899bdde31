#include "Apps/workbench/zoom/desktop_windows.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/zoom/designer_hook.h"
#include "Apps/workbench/zoom/designer_image.h"
#include "Apps/workbench/zoom/message_words.h"
#include "Basic/runtime_error.h"
#include <QWidget>
#include <algorithm>
#include <cmath>

namespace workbench {

using namespace fernwick; // the names of windows and messages

namespace {

WindowRect wholeRect(const QRectF& place) {
    const auto corner = wholePoint(place.topLeft());
    return {corner.x, corner.y, corner.x + int(std::ceil(place.width())), corner.y + int(std::ceil(place.height()))};
}

QRectF onScreenOf(const QWidget& widget, const QRectF& part) {
    return part.translated(widget.mapToGlobal(QPointF(0, 0)));
}

} // namespace

DesktopWindows::DesktopWindows()
    : procedures_(procedureOf<&DesktopWindows::ownProcedure>(this)),
      mouse_({numbers_, procedures_, [this](Hwnd window, WindowPoint place) { return ClientToScreen(window, place); }}),
      designers_(mouse_, {[this](FormView& view) { activate(view); }, [this](auto shape) { showCursor(shape); }}) {}

DesktopWindows::~DesktopWindows() = default;

void DesktopWindows::attach(QWidget& main, FormWindows& forms) {
    main_ = &main;
    forms_ = &forms;
    closing_ = forms.closing.connect([this](FormView& view) {
        mouse_.closing(numbers_.designerOf(view));
        numbers_.remove(view);
    });
}

void DesktopWindows::detach() {
    mouse_.lose();
    if (forms_)
        for (const auto* view : forms_->views()) numbers_.remove(*view);
    closing_ = {};
    main_ = nullptr;
    forms_ = nullptr;
}

// ---- the windows of documents ---------------------------------------------------------------------------------------

Hwnd DesktopWindows::draw(const Object& document, DocumentWindow& window) {
    numbers_.draw(document, &window);
    return numbers_.documentOf(document);
}

void DesktopWindows::removeDocument(const Object& document) { numbers_.removeDocument(document); }

Hwnd DesktopWindows::WindowOfDocument(const Object& document) const noexcept { return numbers_.documentOf(document); }

// ---- finding windows ------------------------------------------------------------------------------------------------

Hwnd DesktopWindows::MainWindow() const noexcept { return main_ ? numbers_.main() : 0; }

/// Of a designer, from front to back.
std::vector<Hwnd> DesktopWindows::windowsOf(DesignerWindow& designer) const {
    std::vector<Hwnd> windows{designer.surface};
    windows.insert(windows.end(), designer.grips.begin(), designer.grips.end());
    const auto& controls = designer.view->picture().controls;
    for (auto drawn = controls.rbegin(); drawn != controls.rend(); ++drawn)
        if (drawn->container < 0) windows.push_back(numbers_.controlOf(designer, drawn->control));
    return windows;
}

void DesktopWindows::EnumChildWindows(Hwnd parent, const std::function<bool(Hwnd)>& visit) const {
    std::vector<Hwnd> windows;
    const auto add = [&](const std::vector<Hwnd>& more) { windows.insert(windows.end(), more.begin(), more.end()); };
    const auto found = numbers_.find(parent);
    if (found.kind == WindowKind::Designer) {
        add(windowsOf(*found.designer));
    } else if (found.kind == WindowKind::Main && forms_) {
        auto views = forms_->views();
        std::stable_partition(views.begin(), views.end(), [&](auto* view) { return view == forms_->current(); });
        for (auto* view : views) {
            auto& designer = numbers_.designerOf(*view);
            windows.push_back(designer.window);
            add(windowsOf(designer));
        }
        add(numbers_.documents());
    }
    (void)std::all_of(windows.begin(), windows.end(), visit);
}

std::string DesktopWindows::GetWindowText(Hwnd hwnd, int size) const {
    const auto found = numbers_.find(hwnd);
    std::string title;
    if (found.kind == WindowKind::Main && main_) title = text(main_->windowTitle());
    if (found.kind == WindowKind::Designer)
        (void)basic::attempt([&] { title = found.designer->view->component()->DesignerWindow()->Caption(); });
    if (found.kind == WindowKind::Document && found.document)
        title = text(found.document->widget().parentWidget()->windowTitle());
    return title.substr(0, std::size_t(std::max(0, size - 1)));
}

// ---- places ---------------------------------------------------------------------------------------------------------

QRectF DesktopWindows::onScreen(const NumberedWindow& window) const {
    const auto whole = [](const QWidget& widget) { return onScreenOf(widget, widget.rect()); };
    switch (window.kind) {
    case WindowKind::Main: return main_ ? whole(*main_) : QRectF();
    case WindowKind::Designer: return whole(*window.designer->view);
    case WindowKind::Surface: return whole(*window.designer->canvas);
    case WindowKind::Grip:
        return onScreenOf(*window.designer->canvas,
                          QRectF(window.designer->canvas->gripPlace(window.grip) - QPointF(kGripSize, kGripSize) / 2,
                                 QSizeF(kGripSize, kGripSize)));
    case WindowKind::Control: {
        const auto* drawn = window.designer->view->picture().find(window.control);
        const auto& canvas = *window.designer->canvas;
        return drawn ? onScreenOf(canvas, canvas.onCanvas(drawn->place.normalized())) : QRectF();
    }
    case WindowKind::Document: return window.document ? whole(window.document->widget()) : QRectF();
    case WindowKind::None: break;
    }
    return {};
}

WindowRect DesktopWindows::GetWindowRect(Hwnd hwnd) const noexcept { return wholeRect(onScreen(numbers_.find(hwnd))); }

WindowPoint DesktopWindows::ClientToScreen(Hwnd hwnd, WindowPoint place) const noexcept {
    const auto corner = wholePoint(onScreen(numbers_.find(hwnd)).topLeft());
    return {place.x + corner.x, place.y + corner.y};
}

Hwnd DesktopWindows::ChildWindowFromPoint(Hwnd hwnd, WindowPoint place) const noexcept {
    const auto found = numbers_.find(hwnd);
    if (found.kind != WindowKind::Surface) return 0;
    auto& designer = *found.designer;
    const QPointF at(place.x, place.y);
    if (!designer.canvas->rect().contains(QPoint(place.x, place.y))) return 0;
    if (const auto grip = designer.canvas->gripNumberAt(at)) return designer.grips[std::size_t(*grip)];
    const auto& picture = designer.view->picture();
    const auto* drawn = picture.at(designer.canvas->onForm(at));
    while (drawn && drawn->container >= 0) drawn = &picture.controls[std::size_t(drawn->container)];
    return drawn ? numbers_.controlOf(designer, drawn->control) : hwnd;
}

std::intptr_t DesktopWindows::GetWindowInstance(Hwnd hwnd) const noexcept {
    constexpr std::intptr_t kDesktopInstance = 0x10000;
    const auto kind = numbers_.find(hwnd).kind;
    if (kind == WindowKind::None) return 0;
    return kind == WindowKind::Grip ? kDesignerInstance : kDesktopInstance;
}

// ---- messages -------------------------------------------------------------------------------------------------------

std::intptr_t DesktopWindows::ownProcedure(const WindowMessage& message) {
    const auto found = numbers_.find(message.hwnd);
    if (found.kind == WindowKind::Surface) return designers_.surface(*found.designer, message);
    if (found.kind == WindowKind::Grip) return designers_.grip(*found.designer, found.grip, message);
    return found.document ? found.document->ownProcedure(message) : 0;
}

WindowProc DesktopWindows::SetWindowProc(Hwnd hwnd, const WindowProc& procedure) noexcept {
    return numbers_.find(hwnd).kind == WindowKind::None ? WindowProc{} : procedures_.set(hwnd, procedure);
}

std::intptr_t DesktopWindows::CallWindowProc(const WindowProc& procedure, const WindowMessage& message) noexcept {
    return procedures_.call(procedure, message);
}

std::intptr_t DesktopWindows::SendMessage(const WindowMessage& message) noexcept {
    return numbers_.find(message.hwnd).kind == WindowKind::None ? 0 : procedures_.send(message);
}

std::intptr_t DesktopWindows::SetWindowsHookEx(const GetMessageHook& hook) noexcept {
    return procedures_.addHook(hook);
}

void DesktopWindows::UnhookWindowsHookEx(std::intptr_t hook) noexcept { procedures_.removeHook(hook); }

std::intptr_t DesktopWindows::CallNextHookEx(std::intptr_t hook, int code, std::intptr_t wParam,
                                             WindowMessage& message) noexcept {
    return procedures_.callNextHook(hook, code, wParam, message);
}

void DesktopWindows::showCursor(Qt::CursorShape shape) {
    for (const auto number : numbers_.documents()) numbers_.find(number).document->showCursor(shape);
}

/// Selects the component before the press acts, so that events of controls reach its handlers.
void DesktopWindows::activate(FormView& view) { view.callbacks().focused(); }

// ---- pictures -------------------------------------------------------------------------------------------------------

Hdc DesktopWindows::GetDC(Hwnd hwnd) noexcept {
    const auto kind = numbers_.find(hwnd).kind;
    return kind == WindowKind::Surface || kind == WindowKind::Document ? hwnd : 0;
}

void DesktopWindows::StretchBlt(Hdc to, const WindowRect& target, Hdc from, const WindowRect& source,
                                RasterOperation) noexcept {
    const auto from_ = numbers_.find(from), to_ = numbers_.find(to);
    if (from_.kind != WindowKind::Surface || !to_.document) return;
    from_.designer->image->useRatio(to_.document->widget().devicePixelRatioF());
    to_.document->present(*from_.designer->image, target, source);
}

void DesktopWindows::Clear(Hwnd hwnd) noexcept {
    if (auto* const document = numbers_.find(hwnd).document) document->clear();
}

DesignerImage* DesktopWindows::imageOf(Hwnd surface) const {
    const auto found = numbers_.find(surface);
    return found.kind == WindowKind::Surface ? found.designer->image.get() : nullptr;
}

std::unique_ptr<MsgHook> DesktopWindows::CreateMsgHook() {
    return std::make_unique<DesignerHook>([this](Hwnd surface) { return imageOf(surface); });
}

} // namespace workbench
