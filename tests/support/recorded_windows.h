#pragma once
// The windows of a host in memory: procedures, the capture of the mouse, hooks, and a record of what was done to them.
#include "Add-in/platform/host_windows.h"
#include "Basic/runtime_error.h"
#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace test {

using fernwick::Hwnd;
using fernwick::WindowMessage;
using fernwick::WindowPoint;
using fernwick::WindowRect;

/// The parameter of a mouse message.
inline std::intptr_t placeParam(int x, int y) {
    return std::int32_t(std::uint32_t(std::uint16_t(y)) << 16 | std::uint16_t(x));
}
inline WindowPoint placeOf(std::intptr_t lParam) {
    return {std::int16_t(std::uint16_t(lParam)), std::int16_t(std::uint16_t(std::uint32_t(lParam) >> 16))};
}

/// As in a window system, a left press gives the mouse to the window whose own procedure received it, until the release.
/// Each message of the mouse passes the hooks, then the procedure of its window.
class RecordedWindows : public fernwick::HostWindows {
public:
    struct Window {
        Hwnd parent = 0;
        std::string text;
        /// On the screen.
        WindowRect rect;
        std::intptr_t instance = 1;
        bool isAlive = true, hasContent = true;
        fernwick::WindowProc procedure{}, made{};
        const fernwick::Object* document = nullptr;
        std::vector<Hwnd> children{};
    };
    struct Transfer {
        WindowRect target, source;
        Hwnd to, from;
        friend bool operator==(const Transfer&, const Transfer&) = default;
    };

    RecordedWindows() { main = add(0, "Host", {0, 0, 2000, 1500}); }

    // ---- set up ----
    /// Adds a window behind its siblings.
    Hwnd add(Hwnd parent, const std::string& text, const WindowRect& rect, std::intptr_t instance = 1) {
        const Hwnd hwnd = ++last_;
        auto& window = windows[hwnd];
        window.parent = parent;
        window.text = text;
        window.rect = rect;
        window.instance = instance;
        window.procedure = window.made = {this, [](void* self, const WindowMessage& message) noexcept -> std::intptr_t {
                                              return static_cast<RecordedWindows*>(self)->received(message);
                                          }};
        if (parent != 0) windows[parent].children.push_back(hwnd);
        return hwnd;
    }
    void close(Hwnd hwnd) { windows[hwnd].isAlive = false; }
    Window& of(Hwnd hwnd) { return windows.at(hwnd); }
    bool hasOwnProcedure(Hwnd hwnd) { return of(hwnd).procedure == of(hwnd).made; }
    std::size_t hooks() const { return hooks_.size(); }
    Hwnd captured() const { return capture_; }

    // ---- the mouse ----
    void press(WindowPoint screen) { mouse(fernwick::WM_LBUTTONDOWN, screen, fernwick::MK_LBUTTON); }
    void move(WindowPoint screen) {
        mouse(fernwick::WM_MOUSEMOVE, screen, capture_ ? std::intptr_t(fernwick::MK_LBUTTON) : 0);
    }
    void release(WindowPoint screen) { mouse(fernwick::WM_LBUTTONUP, screen, 0); }
    /// Another program takes the mouse; the release never arrives.
    void loseMouse() { capture_ = 0; }
    void mouse(unsigned number, WindowPoint screen, std::intptr_t keys) {
        cursor = screen;
        const Hwnd hwnd = capture_ ? capture_ : under;
        const auto& rect = of(hwnd).rect;
        dispatch({hwnd, number, keys, placeParam(screen.x - rect.left, screen.y - rect.top)});
    }
    /// Delivers a message as the thread's loop does.
    std::intptr_t dispatch(WindowMessage message) {
        if (!hooks_.empty()) call(hooks_.back(), message);
        return SendMessage(message);
    }
    /// Delivers what was posted.
    void deliver() {
        for (auto& message : std::exchange(posted, {})) dispatch(message);
    }

    // ---- HostWindows ----
    Hwnd MainWindow() const noexcept override { return main; }
    void EnumChildWindows(Hwnd parent, const std::function<bool(Hwnd)>& visit) const override {
        if (const auto failed = std::exchange(failEnumeration, 0)) throw basic::RuntimeError(failed);
        if (endsWithZero && !visit(0)) return;
        enumerate(parent, visit);
    }
    std::string GetWindowText(Hwnd hwnd, int size) const override {
        const auto* window = find(hwnd);
        return window ? window->text.substr(0, std::size_t(size - 1)) : std::string();
    }
    WindowRect GetWindowRect(Hwnd hwnd) const noexcept override {
        const auto* window = find(hwnd);
        return window ? window->rect : WindowRect{};
    }
    WindowPoint ClientToScreen(Hwnd hwnd, WindowPoint place) const noexcept override {
        const auto* window = find(hwnd);
        return window ? WindowPoint{place.x + window->rect.left, place.y + window->rect.top} : place;
    }
    Hwnd ChildWindowFromPoint(Hwnd hwnd, WindowPoint place) const noexcept override {
        asked = place;
        const auto* window = find(hwnd);
        if (!window) return 0;
        const WindowPoint screen{place.x + window->rect.left, place.y + window->rect.top};
        for (const auto child : window->children)
            if (const auto* inside = find(child); inside && contains(inside->rect, screen)) return child;
        return contains(window->rect, screen) ? hwnd : 0;
    }
    std::intptr_t GetWindowInstance(Hwnd hwnd) const noexcept override {
        const auto* window = find(hwnd);
        return window ? window->instance : 0;
    }
    fernwick::WindowProc SetWindowProc(Hwnd hwnd, const fernwick::WindowProc& procedure) noexcept override {
        auto* window = find(hwnd);
        if (!window) return {};
        note([&] {
            return "procedure of " + std::to_string(hwnd) +
                   (procedure == window->made || procedure.call == nullptr ? " restored" : " replaced");
        });
        return std::exchange(window->procedure, procedure.call ? procedure : window->made);
    }
    std::intptr_t CallWindowProc(const fernwick::WindowProc& procedure,
                                 const WindowMessage& message) noexcept override {
        if (!find(message.hwnd)) return 0;
        return procedure.call ? procedure.call(procedure.object, message) : received(message);
    }
    std::intptr_t SendMessage(const WindowMessage& message) noexcept override {
        const auto* window = find(message.hwnd);
        return window ? CallWindowProc(window->procedure, message) : 0;
    }
    WindowPoint GetCursorPos() const noexcept override { return cursor; }
    void SetCursorPos(WindowPoint place) noexcept override {
        note([&] { return "cursor to " + text(place); });
        if (capture_ == 0) return;
        const auto& rect = of(capture_).rect;
        if (postsMoves)
            posted.push_back({capture_, fernwick::WM_MOUSEMOVE, fernwick::MK_LBUTTON,
                              placeParam(place.x - rect.left, place.y - rect.top)});
    }
    std::intptr_t SetWindowsHookEx(const fernwick::GetMessageHook& hook) noexcept override {
        hooks_.push_back({++lastHook_, hook});
        note([&] { return "hook " + std::to_string(lastHook_); });
        return lastHook_;
    }
    void UnhookWindowsHookEx(std::intptr_t hook) noexcept override {
        note([&] { return "unhook " + std::to_string(hook); });
        std::erase_if(hooks_, [hook](const auto& set) { return set.first == hook; });
    }
    std::intptr_t CallNextHookEx(std::intptr_t hook, int, std::intptr_t, WindowMessage& message) noexcept override {
        ++nextHooks;
        for (auto set = hooks_.rbegin(); set != hooks_.rend(); ++set)
            if (set->first < hook) return call(*set, message);
        return nextHookResult;
    }
    fernwick::Hdc GetDC(Hwnd hwnd) noexcept override {
        const auto* window = find(hwnd);
        if (!window || !window->hasContent) return 0;
        ++openContexts;
        return hwnd + kContext;
    }
    void ReleaseDC(Hwnd, fernwick::Hdc) noexcept override { --openContexts; }
    void StretchBlt(fernwick::Hdc to, const WindowRect& target, fernwick::Hdc from, const WindowRect& source,
                    fernwick::RasterOperation operation) noexcept override {
        ++transferCount;
        transfer = {target, source, to - kContext, from - kContext};
        rasterOperation = operation;
        note([&] { return "picture " + text(target); });
        if (onTransfer) std::exchange(onTransfer, nullptr)();
    }
    void Clear(Hwnd hwnd) noexcept override {
        ++clears;
        note([&] { return "clear " + std::to_string(hwnd); });
    }
    Hwnd WindowOfDocument(const fernwick::Object& document) const noexcept override {
        for (const auto& [hwnd, window] : windows)
            if (window.isAlive && window.document == &document) return hwnd;
        return 0;
    }
    std::unique_ptr<fernwick::MsgHook> CreateMsgHook() override {
        if (refusesPaintHooks) throw basic::RuntimeError(basic::kCantCreateObject);
        auto hook = std::make_unique<PaintHook>(*this);
        paintHook = hook.get();
        return hook;
    }

    struct PaintHook final : fernwick::MsgHook {
        explicit PaintHook(RecordedWindows& o) : owner(o) {}
        ~PaintHook() override { owner.paintHook = nullptr; }
        void Install(Hwnd target) override {
            owner.note([&] { return "paint hook on " + std::to_string(target); });
            hwnd = target;
        }
        void Uninstall() override {
            owner.note([] { return std::string("paint hook off"); });
            hwnd = 0;
        }
        RecordedWindows& owner;
        Hwnd hwnd = 0;
    };

    static std::string text(WindowPoint place) { return std::to_string(place.x) + "," + std::to_string(place.y); }
    static std::string text(const WindowRect& rect) {
        return text(WindowPoint{rect.left, rect.top}) + "-" + text(WindowPoint{rect.right, rect.bottom});
    }

    Hwnd main = 0;
    /// The window under the pointer.
    Hwnd under = 0;
    std::map<Hwnd, Window> windows;
    WindowPoint cursor;
    /// What was done, in order. Nothing is recorded, and nothing allocated, while `records` is off.
    std::vector<std::string> log;
    bool records = true;
    /// The messages that reached a window's own procedure.
    std::vector<WindowMessage> messages;
    /// Called for these messages, before they are recorded; the result is that of the window.
    std::function<std::intptr_t(const WindowMessage&)> onMessage;
    /// Called once, within the next transfer.
    std::function<void()> onTransfer;
    std::vector<WindowMessage> posted;
    bool postsMoves = true;
    Transfer transfer{};
    fernwick::RasterOperation rasterOperation{};
    int transferCount = 0, clears = 0, openContexts = 0, nextHooks = 0;
    std::intptr_t nextHookResult = 0;
    mutable WindowPoint asked;
    mutable int failEnumeration = 0;
    bool endsWithZero = false, refusesPaintHooks = false;
    PaintHook* paintHook = nullptr;

private:
    using SetHook = std::pair<std::intptr_t, fernwick::GetMessageHook>;
    static constexpr std::intptr_t kContext = 1000;

    const Window* find(Hwnd hwnd) const {
        const auto found = windows.find(hwnd);
        return found != windows.end() && found->second.isAlive ? &found->second : nullptr;
    }
    Window* find(Hwnd hwnd) { return const_cast<Window*>(std::as_const(*this).find(hwnd)); }
    static bool contains(const WindowRect& rect, WindowPoint place) {
        return place.x >= rect.left && place.x < rect.right && place.y >= rect.top && place.y < rect.bottom;
    }
    bool enumerate(Hwnd parent, const std::function<bool(Hwnd)>& visit) const {
        const auto* window = find(parent);
        if (!window) return true;
        for (const auto child : window->children)
            if (find(child) && (!visit(child) || !enumerate(child, visit))) return false;
        return true;
    }
    static std::intptr_t call(const SetHook& set, WindowMessage& message) {
        return set.second.call(set.second.object, 0, 1, message);
    }
    template <class Text>
    void note(const Text& text) {
        if (records) log.push_back(text());
    }
    /// A window's own procedure.
    std::intptr_t received(const WindowMessage& message) {
        if (message.number == fernwick::WM_LBUTTONDOWN) capture_ = message.hwnd;
        if (message.number == fernwick::WM_LBUTTONUP) capture_ = 0;
        const auto result = onMessage ? onMessage(message) : 0;
        if (records) messages.push_back(message);
        return result;
    }

    Hwnd last_ = 0, capture_ = 0;
    std::intptr_t lastHook_ = 0;
    std::vector<SetHook> hooks_;
};

} // namespace test
