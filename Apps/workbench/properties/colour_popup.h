#pragma once
// The window in which a colour is chosen.
#include "Apps/workbench/properties/value_popup.h"
#include <cstdint>
#include <functional>

class QListWidget;
class QTableWidget;
class QTabWidget;

namespace workbench {

/// A page with the palette and one with the system colours.
class ColourPopup final : public ValuePopup {
public:
    using Chosen = std::function<void(std::int32_t)>;

    ColourPopup(QWidget* parent, std::int32_t now, Chosen chosen);

    QTableWidget& palette() { return *palette_; }
    QListWidget& systemColours() { return *system_; }
    QTabWidget& pages() { return *pages_; }

private:
    void fillPalette(std::int32_t now);
    void fillSystemColours(std::int32_t now);
    void choose(std::int32_t colour);

    Chosen chosen_;
    QTabWidget* pages_;
    QTableWidget* palette_;
    QListWidget* system_;
};

} // namespace workbench
