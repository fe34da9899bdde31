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

NoticeBar::NoticeBar() : text_(new QLabel), offers_(new QHBoxLayout) {
    setObjectName("notice");
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    text_->setObjectName("noticeText");
    text_->setForegroundRole(QPalette::ToolTipText);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    auto* const close = new QToolButton;
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setToolTip("Close");
    close->setAccessibleName("Close");
    close->setAutoRaise(true);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(kSideMargin, kMargin, kMargin, kMargin);
    row->addWidget(text_, 1);
    row->addLayout(offers_);
    row->addWidget(close);
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
    setAccessibleName(text);
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    over_.stop();
    if (offers.empty()) over_.start(kMillisecondsWithoutOffers);
}

} // namespace workbench
