#include "Apps/workbench/editing/fold_levels.h"
#include "Apps/workbench/editing/block_text.h"
#include "Apps/workbench/editing/margins.h"
#include "Apps/workbench/editing/scintilla.h"
#include <algorithm>

namespace workbench {

namespace {

using Sci = QsciScintillaBase;
constexpr int kLowest = Sci::SC_FOLDLEVELBASE, kLevelBits = Sci::SC_FOLDLEVELNUMBERMASK, kNextShift = 16;
constexpr int kDeepest = 100;
constexpr int kFoldMarginWidth = 14;

int levelOf(const QsciScintilla& text, int line) { return int(text.SendScintilla(Sci::SCI_GETFOLDLEVEL, line)); }

/// The level after a line, in the bits that Scintilla leaves to its users.
int levelAfter(const QsciScintilla& text, int line) {
    const int next = line < 0 ? 0 : (levelOf(text, line) >> kNextShift) & kLevelBits;
    return next == 0 ? kLowest : next;
}

int levelAfter(const BlockLine& blocks, int level) {
    if (blocks.endsProcedure()) return kLowest;
    const int ends = int(blocks.ends.size()), opens = int(blocks.opens.size());
    return std::clamp(level - ends + opens, kLowest, kLowest + kDeepest);
}

} // namespace

FoldLevels::FoldLevels(QsciScintilla& text) : text_(text) {
    soon_.setSingleShot(true);
    soon_.setInterval(0);
    QObject::connect(&soon_, &QTimer::timeout, &text, [this] { run(); });
}

/// A procedure cannot be inside anything, so that an unfinished block ends at the next one.
bool FoldLevels::set(int line) {
    const auto blocks = BlockText(text_).at(line);
    const int level = blocks.beginsProcedure() ? kLowest : levelAfter(text_, line - 1);
    const int next = levelAfter(blocks, level);
    const int header = next > level ? Sci::SC_FOLDLEVELHEADERFLAG : 0;
    const int whole = level | (next << kNextShift) | header;
    if (levelOf(text_, line) == whole) return false;
    text_.SendScintilla(Sci::SCI_SETFOLDLEVEL, (unsigned long)line, long(whole));
    return true;
}

void FoldLevels::update(int line, int linesAdded) {
    const int first = BlockText(text_).firstOf(line), last = line + std::max(0, linesAdded) + 1;
    const bool isPending = from_ <= to_;
    if (isPending && to_ > line) to_ += linesAdded;
    from_ = isPending ? std::min(from_, first) : first;
    to_ = isPending ? std::max(to_, last) : last;
    run();
}

void FoldLevels::updateAll() {
    from_ = 0;
    to_ = text_.lines() - 1;
    run();
}

void FoldLevels::run() {
    constexpr int kMostAtOnce = 300;
    const int lines = text_.lines();
    for (int count = 0; from_ < lines; ++from_, ++count) {
        if (count == kMostAtOnce) return soon_.start();
        if (!set(from_) && from_ > to_) break;
        to_ = std::max(to_, from_);
    }
    to_ = from_ - 1;
}

void showFolding(QsciScintilla& text, bool shown) {
    if (!shown) unfoldAll(text);
    text.setMarginType(kFoldMargin, QsciScintilla::SymbolMargin);
    text.setMarginMarkerMask(kFoldMargin, int(Sci::SC_MASK_FOLDERS));
    text.setMarginSensitivity(kFoldMargin, true);
    text.setMarginWidth(kFoldMargin, shown ? kFoldMarginWidth : 0);
    text.SendScintilla(Sci::SCI_SETFOLDFLAGS, (unsigned long)Sci::SC_FOLDFLAG_LINEAFTER_CONTRACTED);
    text.SendScintilla(
        Sci::SCI_SETAUTOMATICFOLD,
        (unsigned long)(Sci::SC_AUTOMATICFOLD_SHOW | Sci::SC_AUTOMATICFOLD_CLICK | Sci::SC_AUTOMATICFOLD_CHANGE));
    const std::pair<int, int> marks[] = {
        {Sci::SC_MARKNUM_FOLDEROPEN, Sci::SC_MARK_BOXMINUS},
        {Sci::SC_MARKNUM_FOLDER, Sci::SC_MARK_BOXPLUS},
        {Sci::SC_MARKNUM_FOLDERSUB, Sci::SC_MARK_VLINE},
        {Sci::SC_MARKNUM_FOLDERTAIL, Sci::SC_MARK_LCORNER},
        {Sci::SC_MARKNUM_FOLDEREND, Sci::SC_MARK_BOXPLUSCONNECTED},
        {Sci::SC_MARKNUM_FOLDEROPENMID, Sci::SC_MARK_BOXMINUSCONNECTED},
        {Sci::SC_MARKNUM_FOLDERMIDTAIL, Sci::SC_MARK_TCORNER},
    };
    for (const auto& [number, shape] : marks)
        text.SendScintilla(Sci::SCI_MARKERDEFINE, (unsigned long)number, long(shape));
}

void toggleFold(QsciScintilla& text) {
    int line = 0, column = 0;
    text.getCursorPosition(&line, &column);
    if ((levelOf(text, line) & Sci::SC_FOLDLEVELHEADERFLAG) == 0)
        line = int(text.SendScintilla(Sci::SCI_GETFOLDPARENT, line));
    if (line < 0) return;
    const bool moves = text.SendScintilla(Sci::SCI_GETFOLDEXPANDED, line) != 0;
    text.SendScintilla(Sci::SCI_TOGGLEFOLD, line);
    if (moves) text.setCursorPosition(line, 0);
}

void foldProcedures(QsciScintilla& text) {
    int line = 0, column = 0;
    text.getCursorPosition(&line, &column);
    text.SendScintilla(Sci::SCI_FOLDALL, (unsigned long)Sci::SC_FOLDACTION_CONTRACT);
    if (text.SendScintilla(Sci::SCI_GETLINEVISIBLE, line) != 0) return;
    while (line > 0 && text.SendScintilla(Sci::SCI_GETLINEVISIBLE, line) == 0) --line;
    text.setCursorPosition(line, 0);
}

void unfoldAll(QsciScintilla& text) { text.SendScintilla(Sci::SCI_FOLDALL, (unsigned long)Sci::SC_FOLDACTION_EXPAND); }

} // namespace workbench
