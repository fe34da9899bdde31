#include "Apps/workbench/zoom/zoom_view.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/base/twips.h"
#include "Apps/workbench/zoom/designer_image.h"
#include <QBoxLayout>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>

namespace workbench {

using namespace fernwick; // the models of controls

namespace {

QRect onWidget(const ControlPlace& place) {
    return {place.Left / kTwipsPerPixel, place.Top / kTwipsPerPixel, place.Width / kTwipsPerPixel,
            place.Height / kTwipsPerPixel};
}

QRectF rectOf(const WindowRect& rect) {
    return {double(rect.left), double(rect.top), double(rect.right - rect.left), double(rect.bottom - rect.top)};
}

/// Covers the corner between two scroll bars.
QWidget* plug(QWidget* parent) {
    auto* const made = new QWidget(parent);
    made->setAutoFillBackground(true);
    return made;
}

} // namespace

ZoomView::ZoomView(basic::Ref<Document> document, DesktopWindows& windows, Run run, Resized resized)
    : document_(std::move(document)),
      windows_(windows),
      run_(std::move(run)),
      resized_(std::move(resized)),
      hwnd_(windows.draw(*document_, *this)),
      band_(new QFrame(this)),
      level_(new QComboBox),
      horizontal_(new QScrollBar(Qt::Horizontal, this)),
      vertical_(new QScrollBar(Qt::Vertical, this)),
      horizontalPlug_(plug(this)),
      verticalPlug_(plug(this)) {
    setObjectName("zoomPicture");
    setAccessibleName("Zoomed form designer");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
    buildBand();
    follow(document_->Frame1, *band_);
    follow(document_->HPlug, *horizontalPlug_);
    follow(document_->VPlug, *verticalPlug_);
    follow(document_->HScroll1, *horizontal_);
    follow(document_->VScroll1, *vertical_);
    // raised by the band, so that it is over the picture's controls
    band_->raise();
}

ZoomView::~ZoomView() { windows_.removeDocument(*document_); }

// ---- the controls ---------------------------------------------------------------------------------------------------

void ZoomView::buildBand() {
    band_->setAutoFillBackground(true);
    auto* const label = new QLabel("&Zoom:");
    label->setBuddy(level_);
    level_->setObjectName("Combo1");
    level_->setAccessibleName("Zoom level");
    level_->setToolTip("How many times the form is enlarged");
    auto* const row = new QHBoxLayout(band_);
    constexpr int kGap = 6;
    row->setContentsMargins(kGap, 0, kGap, 0);
    row->addWidget(label);
    row->addWidget(level_);
    row->addStretch();
    listLevels();
    watches_.push_back(document_->Combo1.changed.connect([this](const auto&) { listLevels(); }));
    connect(level_, &QComboBox::activated, this, [this](int row) { run_([&] { document_->Combo1.ListIndex(row); }); });
}

void ZoomView::listLevels() {
    const auto& model = document_->Combo1;
    const QSignalBlocker ours(level_);
    level_->clear();
    for (int row = 0; row < model.ListCount(); ++row) level_->addItem(qt(model.List(row)));
    level_->setCurrentIndex(model.ListIndex());
}

void ZoomView::follow(PlacedControl& model, QWidget& widget) {
    const auto show = [&] {
        widget.setGeometry(onWidget(model.Place()));
        widget.setVisible(model.Visible());
    };
    watches_.push_back(model.Place.watch([show](const auto&) { show(); }));
    watches_.push_back(model.Visible.watch([show](const auto&) { show(); }));
    show();
}

void ZoomView::follow(ScrollBar& model, QScrollBar& bar) {
    follow(static_cast<PlacedControl&>(model), bar);
    const auto show = [&] {
        const QSignalBlocker ours(bar);
        bar.setRange(model.Min(), model.Max());
        bar.setSingleStep(model.SmallChange());
        bar.setPageStep(model.LargeChange());
        bar.setValue(model.Value());
    };
    show();
    watches_.push_back(model.changed.connect(show));
    connect(&bar, &QScrollBar::valueChanged, this,
            [&](int value) { run_([&] { bar.isSliderDown() ? model.drag(value) : model.Value(value); }); });
    connect(&bar, &QScrollBar::sliderReleased, this, [&] { run_([&] { model.release(); }); });
}

// ---- the picture ----------------------------------------------------------------------------------------------------

void ZoomView::present(DesignerImage& image, const WindowRect& target, const WindowRect& source) noexcept {
    ++transfers_;
    const bool isSame = shown_ && shown_->image == &image && shown_->revision == image.revision() &&
                        shown_->target == target && shown_->source == source;
    if (isSame) return;
    shown_ = Transfer{&image, image.revision(), target, source};
    update();
}

void ZoomView::clear() noexcept {
    ++clears_;
    if (!shown_) return;
    shown_.reset();
    update();
}

/// Each pixel of the designer becomes a square.
void ZoomView::paintEvent(QPaintEvent* event) {
    ++paints_;
    QPainter painter(this);
    const auto back = palette().color(QPalette::Dark);
    if (!shown_ || !shown_->image) return painter.fillRect(event->rect(), back);
    const auto target = rectOf(shown_->target);
    for (const auto& around : event->region() - target.toRect()) painter.fillRect(around, back);
    const auto& picture = shown_->image->pixmap();
    const double ratio = picture.devicePixelRatio();
    const auto source = rectOf(shown_->source);
    painter.drawPixmap(target, picture, QRectF(source.topLeft() * ratio, source.size() * ratio));
}

void ZoomView::resizeEvent(QResizeEvent*) {
    run_([this] { resized_(width() * kTwipsPerPixel, height() * kTwipsPerPixel); });
}

} // namespace workbench
