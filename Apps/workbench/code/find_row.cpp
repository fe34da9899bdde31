#include "Apps/workbench/code/find_row.h"
#include <QLabel>
#include <algorithm>

namespace workbench {

namespace {

constexpr int kLabelWidth = 62, kFindGap = 6;

QLabel* findLabel(const QString& caption, QWidget* buddy) {
    auto* const label = new QLabel(caption);
    label->setFixedWidth(kLabelWidth);
    label->setBuddy(buddy);
    return label;
}

} // namespace

FindRow::FindRow(const QString& label, QWidget* field, Width width)
    : parts_(new QBoxLayout(QBoxLayout::LeftToRight, this)), field_(new QHBoxLayout), rest_(new QHBoxLayout) {
    parts_->setContentsMargins(0, 0, 0, 0);
    for (auto* layout : {parts_, field_, rest_}) layout->setSpacing(kFindGap);
    const bool grows = width == Width::OfWindow;
    field_->addWidget(findLabel(label, field));
    field_->addWidget(field, grows);
    parts_->addLayout(field_, grows);
    parts_->addLayout(rest_);
    if (!grows) parts_->addStretch(1);
}

QSize FindRow::minimumSizeHint() const {
    const int narrow = std::max(field_->minimumSize().width(), rest_->minimumSize().width());
    return {narrow, QWidget::minimumSizeHint().height()};
}

void FindRow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const bool fits = field_->sizeHint().width() + kFindGap + rest_->minimumSize().width() <= width();
    parts_->setDirection(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    parts_->setAlignment(rest_, fits ? Qt::Alignment() : Qt::AlignLeft);
}

} // namespace workbench
