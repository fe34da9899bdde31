#include "Apps/workbench/bars/command_icons.h"
#include "Apps/workbench/base/painted_icon.h"
#include "Apps/workbench/code/edit_commands.h"
#include "Host/model/bars/bars.h"
#include <QApplication>
#include <QPolygonF>
#include <QStyle>
#include <array>

namespace workbench {

namespace {

struct CommandIcon {
    int id;
    QStyle::StandardPixmap picture;
};
constexpr std::array kIcons{
    CommandIcon{host::kNewProjectId, QStyle::SP_FileIcon},
    CommandIcon{host::kOpenProjectId, QStyle::SP_DialogOpenButton},
    CommandIcon{host::kSaveProjectId, QStyle::SP_DialogSaveButton},
};

struct CommandKey {
    int id;
    int key;
};
constexpr std::array kKeys{
    CommandKey{host::kNewProjectId, int(Qt::CTRL) | Qt::Key_N},
    CommandKey{host::kOpenProjectId, int(Qt::CTRL) | Qt::Key_O},
    CommandKey{kSaveFileId, int(Qt::CTRL) | Qt::Key_S},
    CommandKey{kExitId, int(Qt::CTRL) | Qt::Key_Q},
    CommandKey{kUndoId, int(Qt::CTRL) | Qt::Key_Z},
    CommandKey{kRedoId, int(Qt::CTRL) | int(Qt::SHIFT) | Qt::Key_Z},
    CommandKey{kCutId, int(Qt::CTRL) | Qt::Key_X},
    CommandKey{kCopyId, int(Qt::CTRL) | Qt::Key_C},
    CommandKey{kPasteId, int(Qt::CTRL) | Qt::Key_V},
    CommandKey{kSelectAllId, int(Qt::CTRL) | Qt::Key_A},
    CommandKey{kFindId, int(Qt::CTRL) | Qt::Key_F},
    CommandKey{kFindNextId, int(Qt::Key_F3)},
    CommandKey{kCutLineId, int(Qt::CTRL) | Qt::Key_Y},
    CommandKey{kFindPreviousId, int(Qt::SHIFT) | Qt::Key_F3},
    CommandKey{kReplaceId, int(Qt::CTRL) | Qt::Key_H},
    CommandKey{kNextProcedureId, int(Qt::CTRL) | Qt::Key_Down},
    CommandKey{kPreviousProcedureId, int(Qt::CTRL) | Qt::Key_Up},
    CommandKey{kGoToLineId, int(Qt::CTRL) | Qt::Key_G},
    CommandKey{kDefinitionId, int(Qt::SHIFT) | Qt::Key_F2},
    CommandKey{kLastPositionId, int(Qt::CTRL) | int(Qt::SHIFT) | Qt::Key_F2},
    CommandKey{kExplorerId, int(Qt::CTRL) | Qt::Key_R},
    CommandKey{kViewCodeId, int(Qt::Key_F7)},
    CommandKey{kViewObjectId, int(Qt::SHIFT) | Qt::Key_F7},
    CommandKey{kPropertiesId, int(Qt::Key_F4)},
    CommandKey{kMessagesId, int(Qt::CTRL) | Qt::Key_M},
    CommandKey{kAddFileId, int(Qt::CTRL) | Qt::Key_D},
    CommandKey{kStartId, int(Qt::Key_F5)},
    CommandKey{kNextWindowId, int(Qt::CTRL) | Qt::Key_F6},
    CommandKey{kPreviousWindowId, int(Qt::CTRL) | int(Qt::SHIFT) | Qt::Key_F6},
    CommandKey{kCloseWindowId, int(Qt::CTRL) | Qt::Key_F4},
    CommandKey{kHelpId, int(Qt::Key_F1)},
};

/// The style's own is black, which a dark theme swallows.
class StartIcon final : public PaintedIcon {
public:
    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(mode == QIcon::Disabled ? "#8f8f8f" : "#3a9c45"));
        const QRectF at(place);
        painter->drawPolygon(QPolygonF{{at.x() + at.width() * 0.2, at.y() + at.height() * 0.1},
                                       {at.x() + at.width() * 0.9, at.y() + at.height() * 0.5},
                                       {at.x() + at.width() * 0.2, at.y() + at.height() * 0.9}});
    }
    QIconEngine* clone() const override { return new StartIcon(*this); }
};

} // namespace

QIcon iconOf(int id) {
    if (id == kStartId) return QIcon(new StartIcon);
    for (const auto& icon : kIcons)
        if (icon.id == id) return QApplication::style()->standardIcon(icon.picture);
    return {};
}

QKeySequence shortcutOf(int id) {
    for (const auto& key : kKeys)
        if (key.id == id) return QKeySequence(key.key);
    return {};
}

} // namespace workbench
