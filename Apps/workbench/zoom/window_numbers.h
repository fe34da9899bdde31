#pragma once
// The numbers of the desktop's windows.
#include "Add-in/platform/host_project.h"
#include "Apps/workbench/zoom/document_window.h"
#include <array>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace workbench {

class DesignerImage;
class FormCanvas;
class FormView;

inline constexpr int kGripCount = 8;

/// A designer: its window, the surface with the whole canvas, and what lies on the surface.
struct DesignerWindow {
    FormView* view = nullptr;
    FormCanvas* canvas = nullptr;
    fernwick::Hwnd window = 0, surface = 0;
    std::array<fernwick::Hwnd, kGripCount> grips{};
    /// Of the controls that lie directly on the form. Each is kept, so that no other one gets its address.
    std::vector<std::pair<vbide::Ref<vbide::VBControl>, fernwick::Hwnd>> controls;
    std::unique_ptr<DesignerImage> image;
};

enum class WindowKind { None, Main, Designer, Surface, Grip, Control, Document };

struct NumberedWindow {
    WindowKind kind = WindowKind::None;
    DesignerWindow* designer = nullptr;
    int grip = 0; ///< from 0
    vbide::Ref<vbide::VBControl> control{};
    DocumentWindow* document = nullptr; ///< null while the document is not drawn
};

/// Numbers are never used twice. A designer keeps its numbers as long as its view lives.
class WindowNumbers {
public:
    WindowNumbers();
    ~WindowNumbers();

    fernwick::Hwnd main() const { return main_; }
    /// Nothing for a number whose window does not exist any more.
    NumberedWindow find(fernwick::Hwnd number) const;
    DesignerWindow& designerOf(FormView& view);
    void remove(const FormView& view);
    fernwick::Hwnd controlOf(DesignerWindow& designer, const vbide::Ref<vbide::VBControl>& control);
    /// A document has a number from its creation, even before it is drawn.
    fernwick::Hwnd documentOf(const fernwick::Object& document);
    void draw(const fernwick::Object& document, DocumentWindow* window);
    void removeDocument(const fernwick::Object& document);
    /// The documents that are drawn.
    std::vector<fernwick::Hwnd> documents() const;

private:
    fernwick::Hwnd add(const NumberedWindow& window);

    fernwick::Hwnd last_ = 0;
    std::map<fernwick::Hwnd, NumberedWindow> windows_;
    std::map<const FormView*, std::unique_ptr<DesignerWindow>> designers_;
    std::map<const void*, fernwick::Hwnd> documents_;
    fernwick::Hwnd main_;
};

} // namespace workbench
