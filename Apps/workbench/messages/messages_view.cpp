#include "Apps/workbench/messages/messages_view.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/base/twips.h"
#include "Apps/workbench/messages/message_bar.h"
#include "Apps/workbench/messages/message_list.h"
#include <QAction>
#include <QBoxLayout>
#include <QEvent>
#include <QFrame>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

namespace workbench {

namespace {

using Grid = fernwick::MessageGrid;

/// The minimum time between two updates, as a build may turn Qt's loop at each of its messages.
constexpr int kMillisecondsOfPicture = 16;
constexpr int kStatusPadding = 3, kStatusGap = 5;

QFrame* separator() {
    auto* const line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

} // namespace

MessagesView::MessagesView(basic::Ref<Document> document, Run run)
    : document_(std::move(document)),
      run_(std::move(run)),
      rows_(document_),
      bar_(new MessageBar({[this](int type, bool shown) {
                               shown_.showType(type, shown);
                               draw();
                           },
                           [this](const QString& text) {
                               shown_.showText(text);
                               draw();
                           }})),
      list_(new MessageList),
      statusLine_(new QWidget),
      status_(new QLabel(statusLine_)),
      statusText_(new QLabel(statusLine_)) {
    putTogether();
    addCommands();
    document_->drawWith(&list_->deviceContext());
    watchDocument();
    draw();
}

MessagesView::~MessagesView() {
    list_->selectionModel()->disconnect(this); // the model is destroyed before the list
    document_->drawWith(nullptr);
}

void MessagesView::putTogether() {
    shown_.setSourceModel(&rows_);
    list_->setModel(&shown_);
    list_->setSortingEnabled(true);
    list_->setColumnHidden(Grid::FileNameColumn, true);
    list_->pressed = [this](const QKeyEvent& key) { return pressed(key); };
    list_->resized = [this] { layOut(); };
    list_->fontChanged = [this] {
        document_->drawWith(&list_->deviceContext());
        layOut();
    };
    connect(list_->header(), &QHeaderView::sortIndicatorChanged, this, [this] { layOut(); });
    connect(list_, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) { goTo(index); });
    connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { enableCommands(); });
    bar_->filter().installEventFilter(this);
    bar_->setPictures(rows_.picture(fernwick::ERROR_MSG), rows_.picture(fernwick::WARNING_MSG));
    status_->setObjectName("lblStatus");
    statusText_->setObjectName("lblStatusText");
    for (auto* label : {status_, statusText_}) label->setTextFormat(Qt::PlainText);
    statusText_->setIndent(kStatusGap);

    auto* const parts = new QVBoxLayout(this);
    parts->setContentsMargins(0, 0, 0, 0);
    parts->setSpacing(0);
    parts->addWidget(bar_);
    parts->addWidget(list_);
    parts->addWidget(separator());
    parts->addWidget(statusLine_);
    setFocusProxy(list_);
}

void MessagesView::watchDocument() {
    redraw_.setSingleShot(true);
    connect(&redraw_, &QTimer::timeout, this, [this] { draw(); });
    const auto soon = [this](const auto&...) { drawSoon(); };
    watches_.push_back(document_->added.connect(soon));
    watches_.push_back(document_->cleared.connect(soon));
    watches_.push_back(document_->chosen.connect([this] { showChosen(); }));
    watches_.push_back(document_->lblStatus.watch(soon));
    watches_.push_back(document_->lblStatusText.watch(soon));
}

// ---- drawing --------------------------------------------------------------------------------------------------------

void MessagesView::drawSoon() {
    if (redraw_.isActive()) return;
    const auto since = sinceDrawn_.isValid() ? sinceDrawn_.elapsed() : kMillisecondsOfPicture;
    redraw_.start(int(std::max<qint64>(0, kMillisecondsOfPicture - since)));
}

void MessagesView::draw() {
    redraw_.stop();
    rows_.update();
    bar_->showCounts(rows_.count(fernwick::ERROR_MSG), rows_.count(fernwick::WARNING_MSG), shown_.rowCount(),
                     rows_.rowCount());
    status_->setText(qt(document_->lblStatus()));
    statusText_->setText(isStatusCurrent() ? qt(document_->lblStatusText()) : QString());
    statusText_->setToolTip(statusText_->text());
    layOutStatus();
    enableCommands();
    drawn();
    sinceDrawn_.start();
}

/// The document's shares of the width, but no column narrower than it needs.
void MessagesView::layOut() {
    document_->UserDocument_Resize(list_->viewport()->width() * kTwipsPerPixel,
                                   list_->geometry().bottom() * kTwipsPerPixel, list_->y() * kTwipsPerPixel);
    for (int column = Grid::PictureColumn; column < Grid::MessageColumn; ++column)
        list_->setColumnWidth(column, std::max(document_->msgGrid().columnWidth(Grid::Column(column)) / kTwipsPerPixel,
                                               list_->leastWidth(column)));
    list_->layOutAgain();
    layOutStatus();
}

void MessagesView::layOutStatus() {
    const auto& sizes = document_->statusSizes();
    const int height = statusText_->fontMetrics().height() + 2 * kStatusPadding;
    statusLine_->setFixedHeight(height);
    const int left = sizes.textLeft / kTwipsPerPixel, labelWidth = status_->sizeHint().width();
    status_->setGeometry(left - labelWidth, 0, labelWidth, height);
    statusText_->setGeometry(left, 0, sizes.textWidth / kTwipsPerPixel, height);
}

void MessagesView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layOutStatus();
}

void MessagesView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) layOutStatus();
}

void MessagesView::showChosen() {
    draw(); // the message may have been added just now
    const int row = rows_.rowOf(document_->selectedRow());
    list_->setCurrentIndex(row < 0 ? QModelIndex() : shown_.mapFromSource(rows_.index(row, Grid::TitleColumn)));
}

} // namespace workbench
