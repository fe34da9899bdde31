#include "Apps/workbench/properties/description_pane.h"
#include "Apps/workbench/properties/property_descriptions.h"
#include <QBoxLayout>
#include <QLabel>

namespace workbench {

DescriptionPane::DescriptionPane() : name_(new QLabel), text_(new QLabel) {
    setObjectName("propertyDescription");
    setFrameShape(QFrame::StyledPanel);
    auto bold = name_->font();
    bold.setBold(true);
    name_->setFont(bold);
    name_->setObjectName("describedProperty");
    text_->setObjectName("description");
    text_->setWordWrap(true);
    text_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    // a long text does not prevent the pane from being made smaller
    name_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    text_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    name_->setTextFormat(Qt::PlainText);
    text_->setTextFormat(Qt::PlainText);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(2);
    layout->addWidget(name_);
    layout->addWidget(text_, 1);
}

void DescriptionPane::describe(const QString& property, const host::ClassProperty& details) {
    name_->setText(property);
    text_->setText(descriptionOf(property, details));
}

void DescriptionPane::clear() {
    name_->clear();
    text_->clear();
}

} // namespace workbench
