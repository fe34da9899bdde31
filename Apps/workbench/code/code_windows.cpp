#include "Apps/workbench/code/code_windows.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/editing/code_lines.h"
#include "Apps/workbench/editing/rest.h"
#include "Apps/workbench/editing/scintilla.h"
#include "Basic/runtime_error.h"
#include <QSettings>
#include <algorithm>

namespace workbench {

namespace {
constexpr auto kZoomKey = "code/zoom";
} // namespace

CodeWindows::CodeWindows(host::Host& host, CodeEditor::Refused refused)
    : host_(host), refused_(std::move(refused)), names_(host), zoom_(QSettings().value(kZoomKey).toInt()) {
    setObjectName("codeWindows");
    setDocumentMode(true);
    setTabsClosable(true);
    setMovable(true);
    connect(this, &QTabWidget::tabCloseRequested, this, [this](int index) { widget(index)->deleteLater(); });
    refresh_.setSingleShot(true);
    connect(&refresh_, &QTimer::timeout, this, [this] { refresh(); });

    watches_.push_back(host.panes.shown.connect([this](auto component) { open(component); }));
    watches_.push_back(host.panes.selectionSet.connect([this](auto component) {
        if (auto* editor = editorOf(component)) editor->showSelection();
    }));
    watches_.push_back(host.panes.codeChanged.connect([this](auto component) { changed(component); }));
    const auto soon = [this](const auto&...) { refresh_.start(0); };
    const auto store = [this](const auto& project, const auto&...) {
        (void)basic::attempt([&] { storeMarks(project); }); // no reason to stop saving or closing
    };
    watches_.push_back(host.Events()->VBProjectsEvents()->ItemRemoved.connect(store));
    watches_.push_back(host.Events()->FileControlEvents(nullptr)->AfterWriteFile.connect(store));
    watches_.push_back(host.Events()->VBProjectsEvents()->ItemRemoved.connect(soon));
    watches_.push_back(host.Events()->VBProjectsEvents()->ItemActivated.connect(soon));
    watches_.push_back(host.Events()->FileControlEvents(nullptr)->AfterWriteFile.connect(soon));
}

/// Whether a component differs from its file is found out by comparing all of it: not at each key.
void CodeWindows::changed(const vbide::Ref<vbide::VBComponent>& component) {
    auto* const editor = editorOf(component);
    if (editor) editor->codeChanged();
    edited_ = true;
    const bool isMarked = editor && tabText(indexOf(editor)).endsWith('*');
    if (!isMarked)
        refresh_.start(0);
    else if (!refresh_.isActive() || refresh_.interval() > 0)
        refresh_.start(kMillisecondsOfRest);
}

void CodeWindows::open(const vbide::Ref<vbide::VBComponent>& component) {
    auto* editor = editorOf(component);
    if (!editor) {
        editor = new CodeEditor(component, {names_, ownMarks_}, refused_);
        editor->marginClicked = [this, editor](int line) { marginClicked(*editor, line); };
        editor->panes().splitChanged = [this] { splitChanged(); };
        editor->panes().each([this](CodeInput& pane) { prepare(pane); });
        made(*editor);
        addTab(editor, qt(component->Name()));
        editor->showSelection();
        markEditor(*editor);
        refresh_.start(0);
    }
    setCurrentWidget(editor);
    editor->setFocus();
}

void CodeWindows::prepare(CodeInput& pane) {
    pane.zoomTo(zoom_);
    for (const auto& key : leftKeys_) leaveKey(pane, key);
    connect(&pane, &QsciScintilla::SCN_ZOOM, this,
            [this, &pane] { zoomTo(int(pane.SendScintilla(QsciScintilla::SCI_GETZOOM))); });
}

void CodeWindows::showPlace(const CodePlace& place) {
    place.component->CodeModule()->CodePane()->Show();
    if (auto* const editor = editorOf(place.component)) editor->select(place);
}

void CodeWindows::step(int by) {
    if (count() > 0) setCurrentIndex((currentIndex() + by + count()) % count());
    if (auto* shown = currentWidget()) shown->setFocus();
}

void CodeWindows::closeCurrent() {
    if (count() > 0) Q_EMIT tabCloseRequested(currentIndex());
}

void CodeWindows::closeAll() {
    for (int index = count() - 1; index >= 0; --index) Q_EMIT tabCloseRequested(index);
}

std::vector<CodeEditor*> CodeWindows::editors() const {
    std::vector<CodeEditor*> all;
    for (int i = 0; i < count(); ++i)
        if (auto* editor = dynamic_cast<CodeEditor*>(widget(i))) all.push_back(editor);
    return all;
}

CodeEditor* CodeWindows::editorOf(const vbide::Ref<vbide::VBComponent>& component) const {
    for (auto* editor : editors())
        if (editor->component() == component) return editor;
    return nullptr;
}

CodeEditor* CodeWindows::current() const { return dynamic_cast<CodeEditor*>(currentWidget()); }

void CodeWindows::mark(MarksByComponent marks) {
    marks_ = std::move(marks);
    for (auto* editor : editors()) markEditor(*editor);
}

void CodeWindows::markEditor(CodeEditor& editor) {
    std::vector<LineMark> marks;
    (void)basic::attempt([&] { // a removed component has no marks
        const bool ofActive = editor.component()->Collection() == host_.ActiveVBProject()->VBComponents();
        const auto found = marks_.find(editor.component()->Name());
        if (ofActive && found != marks_.end()) marks = found->second;
    });
    editor.marks().show(marks);
}

ComponentMarks CodeWindows::ownMarksOf(const vbide::Ref<vbide::VBComponent>& component) {
    if (auto* const editor = editorOf(component)) return editor->ownMarks().placed();
    return ownMarks_->of(component);
}

void CodeWindows::clearMarks(const vbide::Ref<vbide::VBProject>& project,
                             std::vector<PlacedMark> ComponentMarks::*kind) {
    for (const auto& component : project->VBComponents()->items()) {
        auto marks = ownMarksOf(component);
        (marks.*kind).clear();
        ownMarks_->keep(component, marks);
        if (auto* const editor = editorOf(component)) editor->ownMarks().show(marks);
    }
}

void CodeWindows::storeMarks(const vbide::Ref<vbide::VBProject>& project) {
    for (auto* editor : editors()) editor->keepMarks();
    ownMarks_->store(project);
}

void CodeWindows::showLook() {
    const auto look = storedCodeLook(currentTheme());
    for (auto* editor : editors()) editor->showIn(look);
}

void CodeWindows::leaveKeys(const QList<QKeySequence>& keys) {
    leftKeys_ = keys;
    for (auto* editor : editors())
        for (auto* pane : editor->panes().all())
            for (const auto& key : keys) leaveKey(*pane, key);
}

void CodeWindows::zoomBy(int points) { zoomTo(zoom_ + points); }

void CodeWindows::resetZoom() { zoomTo(0); }

void CodeWindows::zoomTo(int points) {
    constexpr int kSmallest = -6, kLargest = 20;
    const int wanted = std::clamp(points, kSmallest, kLargest);
    if (std::exchange(zoom_, wanted) == wanted) return;
    QSettings().setValue(kZoomKey, zoom_);
    for (auto* editor : editors()) editor->zoomTo(zoom_);
}

void CodeWindows::refresh() {
    for (auto* editor : editors()) {
        const auto removed = basic::attempt([&] {
            const auto& component = editor->component();
            setTabText(indexOf(editor), qt(component->Name()) + (component->IsDirty() ? " *" : ""));
            setTabToolTip(indexOf(editor), qt(component->FileNames(1)));
        });
        if (removed.Number != 0) delete editor;
    }
    if (std::exchange(edited_, false)) refreshed();
}

} // namespace workbench
