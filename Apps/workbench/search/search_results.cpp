#include "Apps/workbench/search/search_results.h"
#include "Apps/workbench/base/component_project.h"
#include "Apps/workbench/editing/rest.h"
#include "Apps/workbench/search/result_list.h"
#include "Apps/workbench/search/search_texts.h"
#include "Basic/runtime_error.h"
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <algorithm>
#include <utility>

namespace workbench {

namespace {
constexpr int kMostLines = 10'000;
} // namespace

SearchResults::SearchResults(host::Host& host, CodeWindows& code, Run run)
    : code_(code),
      summary_(new QLabel),
      progress_(new QProgressBar),
      stop_(new QPushButton("Stop")),
      list_(new ResultList([this, run](const CodePlace& place) { run([&] { code_.showPlace(place); }); })),
      run_({[this](auto matches, int searched, int all) { found(std::move(matches), searched, all); },
            [this] { ended(search_texts::kFound); }}) {
    summary_->setObjectName("searchSummary");
    summary_->setTextFormat(Qt::PlainText);
    stop_->setObjectName("stopSearch");
    stop_->setToolTip("Esc");
    progress_->setAccessibleName("Modules searched");
    auto* const top = new QHBoxLayout;
    top->addWidget(summary_, 1);
    top->addWidget(progress_);
    top->addWidget(stop_);
    auto* const rows = new QVBoxLayout(this);
    constexpr int kMargin = 4;
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows->addLayout(top);
    rows->addWidget(list_);
    setFocusProxy(list_);
    for (QWidget* part : {static_cast<QWidget*>(progress_), static_cast<QWidget*>(stop_)}) part->hide();
    connect(stop_, &QPushButton::clicked, this, [this] { stop(); });
    rest_.setSingleShot(true);
    rest_.setInterval(kMillisecondsOfRest);
    connect(&rest_, &QTimer::timeout, this, [this] { updateChanged(); });
    watches_.push_back(host.panes.codeChanged.connect([this](const auto& component) {
        if (list_->count() == 0) return;
        changed_.insert(component.shared());
        rest_.start();
    }));
    watches_.push_back(host.Events()->VBProjectsEvents()->ItemRemoved.connect([this](const auto& project) {
        stop();
        list_->remove([&](const auto& component) { return projectOf(component) == project; });
    }));
}

void SearchResults::search(const CodePattern& pattern, const QString& what, std::vector<Stretch> where) {
    begin({what, search_texts::kSearching, search_texts::kStopped}, [this] { run_.stop(); });
    run_.start(pattern, std::move(where));
}

void SearchResults::begin(Summary summary, std::function<void()> stop) {
    if (isSearching()) stopRun_();
    texts_ = std::move(summary);
    stopRun_ = std::move(stop);
    list_->removeAll();
    changed_.clear();
    progress_->setRange(0, 1);
    progress_->setValue(0);
    progress_->show();
    stop_->show();
    showSummary(texts_.running);
}

void SearchResults::found(std::vector<Match> matches, int searched, int all) {
    const auto room = std::size_t(kMostLines - list_->count());
    const bool isFull = matches.size() > room;
    if (isFull) matches.resize(room);
    if (!matches.empty()) list_->add(std::move(matches));
    progress_->setRange(0, std::max(all, 1));
    progress_->setValue(searched);
    showSummary(texts_.running);
    if (!isFull) return;
    stopRun_();
    ended(search_texts::kTooMany);
}

void SearchResults::ended(const char* text) {
    if (!std::exchange(stopRun_, nullptr)) return; // there were too many
    progress_->hide();
    stop_->hide();
    showSummary(text);
}

/// A text to find may contain %2, and not all summaries have all numbers.
void SearchResults::showSummary(const char* text) {
    const auto summary = QString(text);
    const auto count = QString::number(list_->count()), modules = QString::number(list_->modules());
    summary_->setText(summary.contains("%3")   ? summary.arg(texts_.what, count, modules)
                      : summary.contains("%2") ? summary.arg(texts_.what, count)
                                               : summary.arg(texts_.what));
}

void SearchResults::stop() {
    if (!isSearching()) return;
    stopRun_();
    ended(texts_.stopped);
}

void SearchResults::updateChanged() {
    for (const auto& changed : std::exchange(changed_, {}))
        if (const auto component = changed.lock())
            (void)basic::attempt([&] { list_->update(ResultList::Component(component)); }); // it may be removed
}

void SearchResults::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && isSearching()) return stop();
    QWidget::keyPressEvent(event);
}

} // namespace workbench
