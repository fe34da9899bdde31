#include "Apps/workbench/options/editor_page.h"
#include "Apps/workbench/options/code_sample.h"
#include "Apps/workbench/options/declared_options.h"
#include <QEvent>
#include <QFontComboBox>
#include <QFormLayout>
#include <QSpinBox>

namespace workbench {

EditorPage::EditorPage()
    : rows_(new QFormLayout(this)),
      fields_(*rows_,
              [this] {
                  showSample();
                  changed();
              }),
      family_(fields_.add("Fo&nt:", kCodeFont)),
      size_(fields_.add("&Size:", kCodeFontSize, "points")),
      tab_(fields_.add("&Tab width:", kTabWidth, "characters")),
      sample_(new CodeSample) {
    fields_.add("Auto &indent", kAutoIndent);
    fields_.add("&Write the ends of blocks", kAutomaticEnds);
    fields_.add("&Procedure separators", kProcedureLines);
    fields_.add("Foldin&g of procedures and blocks", kFolding);
    fields_.add("Names of li&braries in their own case", kLibraryNames);
    fields_.add("Auto list &members", kAutoListMembers);
    fields_.add("Auto &quick info", kAutoQuickInfo);
    fields_.add("Auto s&yntax check", kAutoSyntaxCheck);
    rows_->addRow(sample_);
    showSample();
}

/// Apply may have changed the theme.
void EditorPage::changeEvent(QEvent* event) {
    OptionsPage::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) showSample();
}

void EditorPage::showSample() {
    sample_->showIn(
        {codeFont(family_->currentFont().family(), size_->value()), tab_->value(), storedColours(currentTheme())});
}

} // namespace workbench
