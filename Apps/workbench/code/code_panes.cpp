#include "Apps/workbench/code/code_panes.h"
#include "Apps/workbench/code/split_grip.h"
#include <QMouseEvent>
#include <QTimer>

namespace workbench {

namespace {

/// A double click on it joins the panes.
class JoiningHandle final : public QSplitterHandle {
public:
    explicit JoiningHandle(CodePanes& panes) : QSplitterHandle(Qt::Vertical, &panes), panes_(panes) {}

protected:
    void mouseDoubleClickEvent(QMouseEvent*) override {
        QTimer::singleShot(0, &panes_, [&panes = panes_] { panes.setSplit(false); });
    }

private:
    CodePanes& panes_;
};

} // namespace

CodePanes::CodePanes(Make make) : QSplitter(Qt::Vertical), make_(std::move(make)), main_(make_()), active_(main_) {
    add(*main_);
    addWidget(main_);
    setCollapsible(0, false);
    main_->addScrollBarWidget(new SplitGrip([this](int y) { splitAt(y); }, [this] { setSplit(true); }), Qt::AlignTop);
    // of a pane that was made as small as possible nothing is left
    connect(this, &QSplitter::splitterMoved, this, [this] {
        if (isSplit() && sizes().front() == 0) QTimer::singleShot(0, this, [this] { setSplit(false); });
    });
}

CodePanes::~CodePanes() { removeUpper(); }

QSplitterHandle* CodePanes::createHandle() { return new JoiningHandle(*this); }

void CodePanes::add(CodeInput& pane) {
    for (const auto& act : forEach_) act(pane);
    connect(&pane, &QsciScintilla::SCN_FOCUSIN, this, [this, &pane] { activate(pane); });
}

void CodePanes::activate(CodeInput& pane) {
    if (std::exchange(active_, &pane) != &pane) activated();
}

std::vector<CodeInput*> CodePanes::all() const {
    if (upper_) return {upper_, main_};
    return {main_};
}

void CodePanes::each(std::function<void(CodeInput&)> act) {
    for (auto* pane : all()) act(*pane);
    forEach_.push_back(std::move(act));
}

void CodePanes::setSplit(bool split) {
    if (split == isSplit()) return;
    if (split) return splitAt(height() / 2);
    if (active_ == upper_) {
        int line = 0, column = 0;
        upper_->getCursorPosition(&line, &column);
        main_->setCursorPosition(line, column);
        main_->setFocus();
    }
    activate(*main_);
    removeUpper();
    splitChanged();
}

/// While it shows the text, its destructor would clear the colours of the text.
void CodePanes::removeUpper() {
    if (!upper_) return;
    upper_->disconnect(this);
    upper_->setDocument(QsciDocument());
    delete std::exchange(upper_, nullptr);
}

void CodePanes::splitAt(int y) {
    if (!isSplit()) {
        upper_ = make_();
        upper_->setAccessibleName("Code, upper pane");
        upper_->setDocument(main_->document());
        insertWidget(0, upper_);
        setCollapsible(0, true);
        setCollapsible(1, false);
        upper_->setFirstVisibleLine(main_->firstVisibleLine());
        add(*upper_);
        upper_->show();
        splitChanged();
    }
    setSizes({y, height() - y});
}

void CodePanes::showOtherPane() {
    if (isSplit()) (active_ == main_ ? upper_ : main_)->setFocus();
}

} // namespace workbench
