#include "Apps/workbench/designer/tab_order.h"
#include "Apps/workbench/properties/property_reader.h"
#include <algorithm>

namespace workbench {

namespace {

const QColor kBadge("#0a246a");
constexpr double kBadgeHeight = 15, kBadgeMargin = 4;
constexpr auto kTabIndex = "TabIndex";

void paintBadge(QPainter& painter, const QPointF& corner, const QString& number, bool isClicked) {
    const double width = painter.fontMetrics().horizontalAdvance(number) + 2 * kBadgeMargin;
    const QRectF badge(corner, QSizeF(std::max(width, kBadgeHeight), kBadgeHeight));
    painter.setPen(isClicked ? kBadge : QColor(Qt::white));
    painter.setBrush(isClicked ? QColor(Qt::white) : kBadge);
    painter.drawRect(badge);
    painter.drawText(badge, Qt::AlignCenter, number);
}

} // namespace

void TabOrder::follow(const FormPicture& picture) {
    order_.clear();
    for (const auto* drawn : picture.tabOrder())
        if (PropertyReader(drawn->control->Properties()).has(kTabIndex)) order_.push_back(drawn->control);
}

bool TabOrder::isClicked(const Control& control) const {
    return std::find(clicked_.begin(), clicked_.end(), control) != clicked_.end();
}

std::vector<std::pair<TabOrder::Control, DesignChange>> TabOrder::click(const Control& control) {
    if (isClicked(control) || std::erase(order_, control) == 0) return {};
    const auto next = std::min(clicked_.size(), order_.size());
    order_.insert(order_.begin() + std::ptrdiff_t(next), control);
    clicked_.push_back(control);
    std::vector<std::pair<Control, DesignChange>> changes;
    for (std::size_t i = 0; i < order_.size(); ++i)
        if (PropertyReader(order_[i]->Properties()).number(kTabIndex, -1) != int(i))
            changes.push_back({order_[i], {kTabIndex, std::int32_t(i)}});
    return changes;
}

void TabOrder::paint(QPainter& painter, const FormPicture& picture) const {
    auto font = painter.font();
    font.setPixelSize(int(kBadgeHeight) - 4);
    font.setBold(true);
    painter.setFont(font);
    for (const auto& control : order_) {
        const auto* drawn = picture.find(control);
        if (!drawn || drawn->clip.isEmpty()) continue; // outside of its container
        paintBadge(painter, drawn->place.normalized().topLeft(), QString::number(drawn->tabIndex), isClicked(control));
    }
}

} // namespace workbench
