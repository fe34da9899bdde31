#include "Apps/workbench/properties/colour_popup.h"
#include "Apps/workbench/properties/form_colours.h"
#include <QBoxLayout>
#include <QHeaderView>
#include <QListWidget>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTabWidget>
#include <QTableWidget>

namespace workbench {

namespace {

constexpr int kCell = 31, kSwatch = 23, kSystemSwatch = 16;

/// Draws a swatch, and a ring around the current one.
class SwatchDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const auto swatch = QStyle::alignedRect(option.direction, Qt::AlignCenter, {kSwatch, kSwatch}, option.rect);
        painter->drawPixmap(swatch, colourSwatch(index.data(Qt::UserRole).toInt(), swatch.size()));
        if (!(option.state & QStyle::State_HasFocus)) return;
        painter->setPen(QPen(option.palette.highlight().color(), 2));
        painter->drawRect(swatch.adjusted(-2, -2, 2, 2));
    }
};

} // namespace

ColourPopup::ColourPopup(QWidget* parent, std::int32_t now, Chosen chosen)
    : ValuePopup(parent),
      chosen_(std::move(chosen)),
      pages_(new QTabWidget),
      palette_(new QTableWidget(kPaletteColours / kPaletteColumns, kPaletteColumns)),
      system_(new QListWidget) {
    setObjectName("colourPopup");
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(pages_);
    pages_->addTab(palette_, "Palette");
    pages_->addTab(system_, "System");
    fillPalette(now);
    fillSystemColours(now);
    const bool isSystem = system_->currentRow() >= 0;
    pages_->setCurrentIndex(isSystem ? 1 : 0);
    setFocusProxy(isSystem ? static_cast<QWidget*>(system_) : palette_);
}

void ColourPopup::fillPalette(std::int32_t now) {
    palette_->setObjectName("palette");
    palette_->setAccessibleName("Palette");
    palette_->setItemDelegate(new SwatchDelegate(palette_));
    palette_->setSelectionMode(QAbstractItemView::NoSelection);
    palette_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    palette_->setTabKeyNavigation(false);
    palette_->setShowGrid(false);
    palette_->setFrameShape(QFrame::NoFrame);
    for (auto* header : {palette_->horizontalHeader(), palette_->verticalHeader()}) {
        header->hide();
        header->setMinimumSectionSize(kCell);
        header->setDefaultSectionSize(kCell);
    }
    palette_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    palette_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    palette_->setFixedSize(kCell * palette_->columnCount(), kCell * palette_->rowCount());
    int place = 0;
    for (const auto colour : paletteColours()) {
        auto* const item = new QTableWidgetItem;
        item->setData(Qt::UserRole, colour);
        item->setToolTip(formColourText(colour));
        item->setData(Qt::AccessibleTextRole, formColourText(colour));
        palette_->setItem(place / kPaletteColumns, place % kPaletteColumns, item);
        if (colour == now || place == 0) palette_->setCurrentItem(item);
        ++place;
    }
    const auto take = [this](const QTableWidgetItem* item) { choose(item->data(Qt::UserRole).toInt()); };
    connect(palette_, &QTableWidget::itemClicked, this, take);
    connect(palette_, &QTableWidget::itemActivated, this, take);
}

void ColourPopup::fillSystemColours(std::int32_t now) {
    system_->setObjectName("systemColours");
    system_->setAccessibleName("System colours");
    system_->setIconSize({kSystemSwatch, kSystemSwatch});
    system_->setFrameShape(QFrame::NoFrame);
    for (const auto& colour : workbench::systemColours()) {
        auto* const item = new QListWidgetItem(colourSwatch(colour.value, system_->iconSize()), colour.name, system_);
        item->setData(Qt::UserRole, colour.value);
        if (colour.value == now) system_->setCurrentItem(item);
    }
    const auto take = [this](const QListWidgetItem* item) { choose(item->data(Qt::UserRole).toInt()); };
    connect(system_, &QListWidget::itemClicked, this, take);
    connect(system_, &QListWidget::itemActivated, this, take);
}

/// A click may activate an item too.
void ColourPopup::choose(std::int32_t colour) {
    if (const auto chosen = std::exchange(chosen_, nullptr)) {
        close();
        chosen(colour);
    }
}

} // namespace workbench
