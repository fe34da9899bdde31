#pragma once
// The zoom window, drawn from the add-in's document.
#include "Add-in/zoom/udocZoomWindow.h"
#include "Apps/workbench/base/run.h"
#include "Apps/workbench/zoom/desktop_windows.h"
#include "Apps/workbench/zoom/document_window.h"
#include <QPointer>
#include <QWidget>
#include <optional>

class QComboBox;
class QFrame;
class QScrollBar;

namespace workbench {

/// Presents what the document copied from the designer, and passes the user's mouse and keys on as messages.
class ZoomView final : public QWidget, public DocumentWindow {
public:
    using Document = fernwick::udocZoomWindow;

    /// Called with the inner size, in twips.
    using Resized = std::function<void(std::int32_t width, std::int32_t height)>;

    /// `windows` outlives this.
    ZoomView(basic::Ref<Document> document, DesktopWindows& windows, Run run, Resized resized);
    ~ZoomView() override;

    const basic::Ref<Document>& document() const { return document_; }
    /// The designer that is shown; null for none.
    FormCanvas* canvas() const;
    /// How often the picture was drawn.
    int paints() const { return paints_; }
    /// How often the document copied the designer.
    int transfers() const { return transfers_; }
    int clears() const { return clears_; }
    QSize sizeHint() const override { return {270, 260}; }
    QSize minimumSizeHint() const override { return {120, 110}; }

    // ---- DocumentWindow ----
    QWidget& widget() override { return *this; }
    void present(DesignerImage& image, const fernwick::WindowRect& target,
                 const fernwick::WindowRect& source) noexcept override;
    void clear() noexcept override;
    void showCursor(Qt::CursorShape shape) noexcept override { setCursor(shape); }
    std::intptr_t ownProcedure(const fernwick::WindowMessage& message) noexcept override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    /// What the document copied.
    struct Transfer {
        QPointer<DesignerImage> image;
        std::int64_t revision = 0;
        fernwick::WindowRect target, source;
    };

    void buildBand();
    void follow(fernwick::ScrollBar& model, QScrollBar& bar);
    void follow(fernwick::PlacedControl& model, QWidget& widget);
    void listLevels();
    void scroll(QScrollBar& bar, int angle);
    std::optional<QPointF> onDesigner(const fernwick::WindowMessage& message) const;
    std::intptr_t send(unsigned number, std::intptr_t wParam, const QPointF& at);
    bool key(unsigned number, const QKeyEvent& event);
    void lendFocus(bool lent);

    basic::Ref<Document> document_;
    DesktopWindows& windows_;
    Run run_;
    Resized resized_;
    fernwick::Hwnd hwnd_;
    std::optional<Transfer> shown_;
    QFrame* band_;
    QComboBox* level_;
    QScrollBar *horizontal_, *vertical_;
    QWidget *horizontalPlug_, *verticalPlug_;
    std::vector<fernwick::Subscription> watches_;
    int paints_ = 0, transfers_ = 0, clears_ = 0;
};

} // namespace workbench
