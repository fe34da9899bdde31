#include "Apps/workbench/messages/message_bar.h"
#include "Add-in/build/messages/compile_messages.h"
#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace workbench {

namespace {

constexpr int kMostFilterWidth = 320;

QString counted(int count, const char* one, const char* many) {
    return QString("%1 %2").arg(count).arg(count == 1 ? one : many);
}

} // namespace

MessageBar::MessageBar(Callbacks callbacks)
    : callbacks_(std::move(callbacks)),
      errors_(addKind(fernwick::ERROR_MSG, "errors", "Show the errors")),
      warnings_(addKind(fernwick::WARNING_MSG, "warnings", "Show the warnings")),
      filter_(new QLineEdit),
      shown_(new QLabel) {
    filter_->setObjectName("messageFilter");
    filter_->setPlaceholderText("Filter messages");
    filter_->setToolTip("Show only the messages with this text in one of their columns");
    filter_->setAccessibleName("Filter messages");
    filter_->setClearButtonEnabled(true);
    filter_->setMaximumWidth(kMostFilterWidth);
    connect(filter_, &QLineEdit::textChanged, this, [this](const QString& text) { callbacks_.showText(text); });
    shown_->setObjectName("messagesShown");

    auto* const parts = new QHBoxLayout(this);
    parts->setContentsMargins(4, 2, 4, 2);
    parts->addWidget(errors_);
    parts->addWidget(warnings_);
    parts->addSpacing(8);
    parts->addWidget(filter_, 1);
    parts->addWidget(shown_);
    parts->addStretch();
    showCounts(0, 0, 0, 0);
}

QToolButton* MessageBar::addKind(int type, const char* name, const char* toolTip) {
    auto* const button = new QToolButton;
    button->setObjectName(name);
    button->setToolTip(toolTip);
    button->setCheckable(true);
    button->setChecked(true);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(button, &QToolButton::toggled, this, [this, type](bool shown) { callbacks_.showType(type, shown); });
    return button;
}

void MessageBar::setPictures(const QPixmap& error, const QPixmap& warning) {
    errors_->setIcon(error);
    warnings_->setIcon(warning);
}

void MessageBar::showCounts(int errors, int warnings, int shown, int all) {
    errors_->setText(counted(errors, "Error", "Errors"));
    warnings_->setText(counted(warnings, "Warning", "Warnings"));
    shown_->setText(shown == all ? QString() : QString("%1 of %2 shown").arg(shown).arg(all));
}

} // namespace workbench
