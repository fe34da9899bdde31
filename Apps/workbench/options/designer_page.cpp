#include "Apps/workbench/options/designer_page.h"
#include "Apps/workbench/base/twips.h"
#include "Apps/workbench/options/declared_options.h"
#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QSpinBox>

namespace workbench {

DesignerPage::DesignerPage()
    : rows_(new QFormLayout(this)),
      fields_(*rows_,
              [this] {
                  showTwips();
                  changed();
              }),
      pixels_(fields_.add("&Grid size:", kGridPixels, "pixels")),
      twips_(new QLabel) {
    twips_->setObjectName("gridTwips");
    rows_->addRow(QString(), twips_);
    fields_.add("Sho&w the grid", kGridVisible);
    fields_.add("Align controls to the g&rid", kGridSnaps);
    showTwips();
}

void DesignerPage::showTwips() { twips_->setText(QString("%1 twips").arg(pixels_->value() * kTwipsPerPixel)); }

} // namespace workbench
