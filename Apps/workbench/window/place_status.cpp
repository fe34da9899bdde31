#include "Apps/workbench/window/place_status.h"
#include "Apps/workbench/code/code_windows.h"
#include "Apps/workbench/designer/design_desk.h"
#include "Apps/workbench/designer/selected_place.h"
#include "Apps/workbench/editing/scintilla.h"
#include <QLabel>
#include <QStatusBar>

namespace workbench {

namespace {

QLabel* addField(QStatusBar& bar, const char* name, const char* tip) {
    auto* const field = new QLabel;
    field->setObjectName(name);
    field->setToolTip(tip);
    field->setContentsMargins(8, 0, 8, 0);
    bar.addPermanentWidget(field);
    return field;
}

/// A number without needless decimals.
QString shown(double length) {
    constexpr int kDigits = 7;
    return QString::number(length, 'g', kDigits);
}

} // namespace

PlaceStatus::PlaceStatus(QStatusBar& bar, CodeWindows& code, DesignDesk& design)
    : code_(code),
      design_(design),
      place_(addField(bar, "statusPlace", "Position")),
      size_(addField(bar, "statusSize", "Width and height, in the units of the container; of a form in twips")) {
    connect(&code, &QTabWidget::currentChanged, this, [this] { follow(); });
    selection_ = design.selectionChanged.connect([this] { show(); });
    drag_ = design.placeChanged.connect([this] { show(); });
}

void PlaceStatus::follow() {
    caret_ = {};
    if (auto* const editor = code_.current()) caret_ = editor->cursorMoved.connect([this] { show(); });
    show();
}

void PlaceStatus::show() {
    if (const auto* editor = code_.current()) {
        int line = 0, column = 0;
        editor->scintilla().getCursorPosition(&line, &column);
        place_->setToolTip("Line and column");
        return showTexts(QString("Ln %1, Col %2").arg(line + 1).arg(column + 1), {});
    }
    const auto* const form = design_.forms().current();
    const auto place = form ? placeOfSelection(*form) : std::nullopt;
    if (!place) return showTexts({}, {});
    place_->setToolTip("Left and top, in the units of the container; of a form in twips");
    const auto corner = QString("%1, %2").arg(shown(place->left), shown(place->top));
    const auto size = QString("%1 x %2").arg(shown(place->width), shown(place->height));
    showTexts(corner, place->hasSize ? size : QString());
}

void PlaceStatus::showTexts(const QString& place, const QString& size) {
    place_->setText(place);
    size_->setText(size);
}

} // namespace workbench
