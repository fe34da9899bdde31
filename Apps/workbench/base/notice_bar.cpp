#include "Apps/workbench/base/notice_bar.h"
#include <QAccessible>
#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

namespace workbench {

namespace {

constexpr int kMillisecondsWithoutOffers = 10000;
constexpr int kMargin = 4, kSideMargin = 8;

} // namespace

NoticeBar::NoticeBar()
    : text_(new QLabel),
      parts_(new QBoxLayout(QBoxLayout::LeftToRight)),
      offers_(new QHBoxLayout),
      close_(new QToolButton) {
    setObjectName("notice");
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    text_->setObjectName("noticeText");
    text_->setForegroundRole(QPalette::ToolTipText);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    close_->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close_->setToolTip("Close");
    close_->setAccessibleName("Close");
    close_->setAutoRaise(true);
    connect(close_, &QToolButton::clicked, this, &QWidget::hide);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(kSideMargin, kMargin, kMargin, kMargin);
    parts_->addWidget(text_, 1);
    parts_->addLayout(offers_);
    row->addLayout(parts_, 1);
    row->addWidget(close_, 0, Qt::AlignTop);
    over_.setSingleShot(true);
    connect(&over_, &QTimer::timeout, this, &QWidget::hide);
    hide();
}

void NoticeBar::showText(const QString& text, const std::vector<Offer>& offers) {
    while (auto* const old = offers_->takeAt(0)) {
        old->widget()->deleteLater();
        delete old;
    }
    for (const auto& offer : offers) {
        auto* const button = new QPushButton(offer.text);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, act = offer.act] {
            hide();
            act();
        });
        offers_->addWidget(button);
    }
    text_->setText(text);
    arrange();
    setAccessibleName(text);
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    over_.stop();
    if (offers.empty()) over_.start(kMillisecondsWithoutOffers);
}

void NoticeBar::arrange() {
    const int room = width() - kSideMargin - kMargin - close_->sizeHint().width() - layout()->spacing();
    const int needed = text_->fontMetrics().horizontalAdvance(text_->text()) + parts_->spacing();
    const bool fits = offers_->isEmpty() || needed + offers_->sizeHint().width() <= room;
    parts_->setDirection(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    parts_->setAlignment(offers_, fits ? Qt::AlignVCenter : Qt::AlignLeft);
}

void NoticeBar::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    arrange();
}

} // namespace workbench
