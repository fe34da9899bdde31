#pragma once
// The list of the messages.
#include "Add-in/platform/device_context.h"
#include <QTreeView>
#include <functional>

namespace workbench {

class MessageList final : public QTreeView {
public:
    MessageList();

    /// Measures text in the list's font.
    const fernwick::DeviceContext& deviceContext() const { return texts_; }
    /// Handles a key; false leaves it to the list.
    std::function<bool(const QKeyEvent&)> pressed = [](const QKeyEvent&) { return false; };
    /// The font changed, and with it the size of texts.
    std::function<void()> fontChanged = [] {};
    /// The list was resized.
    std::function<void()> resized = [] {};
    /// The width that a column needs for its header and for the numbers of lines and errors; 0 for one without a header.
    int leastWidth(int column) const;
    /// Measures the heights of the rows again.
    void layOutAgain() { scheduleDelayedItemsLayout(); }

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Texts final : public fernwick::DeviceContext {
    public:
        explicit Texts(const QWidget& list) : list_(list) {}
        fernwick::TextExtent GetTextExtentPoint32(const std::string& text) const noexcept override;

    private:
        const QWidget& list_;
    };

    Texts texts_{*this};
};

} // namespace workbench
