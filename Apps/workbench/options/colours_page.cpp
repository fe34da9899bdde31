#include "Apps/workbench/options/colours_page.h"
#include "Apps/workbench/options/code_sample.h"
#include "Apps/workbench/options/contrast.h"
#include "Apps/workbench/options/declared_options.h"
#include <QColorDialog>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>

namespace workbench {

namespace {

constexpr int kColumns = 3, kSwatchWidth = 28, kSwatchHeight = 16;

QIcon swatch(const QColor& colour) {
    QPixmap picture(kSwatchWidth, kSwatchHeight);
    picture.fill(colour);
    QPainter painter(&picture);
    painter.setPen(edgeColour(currentTheme()));
    painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
    return picture;
}

/// Names what is hard to read on the background; empty if nothing is.
QString hardToRead(const CodeColours& colours) {
    QStringList names;
    for (const auto& colour : kCodeColours)
        if (colour.paper && contrast(colours.*colour.part, colours.*colour.paper) < kReadableContrast)
            names << QString(colour.label).toLower();
    return names.isEmpty() ? QString() : QString("Hard to read on their background: %1.").arg(names.join(", "));
}

} // namespace

ColoursPage::ColoursPage()
    : ask([this](const QColor& current, const QString& title) {
          return QColorDialog::getColor(current, this, title, QColorDialog::DontUseNativeDialog);
      }),
      rows_(new QFormLayout(this)),
      fields_(*rows_, [this] { changed(); }),
      of_(new QComboBox),
      contrast_(new QLabel),
      sample_(new CodeSample) {
    fields_.add("T&heme:", kThemeOption, {"Same as the desktop", "Light", "Dark"});
    of_->setObjectName("coloursOf");
    of_->addItems({"Light theme", "Dark theme"});
    of_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    of_->setCurrentIndex(currentTheme() == Theme::Light ? 0 : 1);
    rows_->addRow("Code &in the:", of_);
    addButtons(*rows_);
    contrast_->setObjectName("contrast");
    contrast_->setWordWrap(true);
    rows_->addRow(contrast_);
    rows_->addRow(sample_);
    connect(of_, &QComboBox::currentIndexChanged, this, [this] { showColours(); });
}

Theme ColoursPage::shownTheme() const { return of_->currentIndex() == 0 ? Theme::Light : Theme::Dark; }

void ColoursPage::addButtons(QFormLayout& rows) {
    auto* const grid = new QGridLayout;
    for (const auto& colour : kCodeColours) {
        auto* const button = new QToolButton;
        button->setText(colour.label);
        button->setObjectName(colour.name);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->setIconSize({kSwatchWidth, kSwatchHeight});
        connect(button, &QToolButton::clicked, this, [this, &colour] { choose(colour); });
        const int at = int(buttons_.size());
        grid->addWidget(button, at / kColumns, at % kColumns);
        buttons_.push_back(button);
    }
    rows.addRow(grid);
}

void ColoursPage::choose(const CodeColour& colour) {
    auto& part = colours_[shownTheme()].*colour.part;
    const auto chosen = ask(part, colour.label);
    if (!chosen.isValid() || chosen == part) return;
    part = chosen;
    showColours();
    changed();
}

void ColoursPage::showColours() {
    const auto& colours = colours_[shownTheme()];
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        const auto& colour = colours.*kCodeColours[i].part;
        buttons_[i]->setIcon(swatch(colour));
        buttons_[i]->setToolTip(colour.name());
        buttons_[i]->setAccessibleDescription(colour.name());
    }
    contrast_->setText(hardToRead(colours));
    sample_->showIn({codeFont(kCodeFont.stored(), kCodeFontSize.stored()), kTabWidth.stored(), colours});
}

void ColoursPage::showStored() {
    for (const auto theme : {Theme::Light, Theme::Dark}) colours_[theme] = storedColours(theme);
    fields_.showStored();
    showColours();
}

void ColoursPage::showUsual() {
    for (const auto theme : {Theme::Light, Theme::Dark}) colours_[theme] = codeColours(theme);
    fields_.showUsual();
    showColours();
}

void ColoursPage::store() const {
    fields_.store();
    for (const auto& [theme, colours] : colours_)
        for (const auto& colour : kCodeColours) colour.option(theme).store(colours.*colour.part);
}

} // namespace workbench
