#pragma once
// Draws the host's menus and toolbars, whoever put them there.
#include "Apps/workbench/bars/toolbar_docking.h"
#include "Apps/workbench/base/run.h"
#include "Apps/workbench/base/theme.h"
#include "Host/model/bars/bars.h"
#include <QIcon>
#include <QKeySequence>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>
#include <optional>

class QAction;
class QMainWindow;
class QMenu;
class QWidget;

namespace workbench {

/// What the desktop adds to a command of the host's bars.
struct CommandLook {
    QKeySequence key;
    /// Shown if the command has no face in the model.
    QIcon icon;
};

class BarsView {
public:
    using LookOf = std::function<CommandLook(int id)>;

    /// The window and the bars outlive this.
    BarsView(host::Bars& bars, QMainWindow& window, Run run, LookOf lookOf);
    ~BarsView();
    BarsView(const BarsView&) = delete;

    /// Draws the model as it is, without waiting for Qt's loop.
    void draw();
    /// For what moves toolbars without the model, such as restoring the window.
    void placeToolBars() { docking_.placeAnew(); }

private:
    /// What stands for a control as long as the host has it.
    struct Drawn {
        std::unique_ptr<QAction> button;
        std::unique_ptr<QMenu> popup;
        /// The face that its picture shows, and for which theme.
        std::optional<std::pair<std::string, Theme>> looks;
        bool current = false;
    };

    void fill(QWidget& widget, const host::Bar& bar);
    QAction* actionOf(const std::shared_ptr<host::BarControl>& control);
    void make(Drawn& drawn, const std::shared_ptr<host::BarControl>& control);
    void makePopup(Drawn& drawn, const std::shared_ptr<host::BarControl>& control);
    void makeButton(Drawn& drawn, const std::shared_ptr<host::BarControl>& control);
    void showButton(Drawn& drawn, const host::BarControl& control);
    QIcon iconOf(const host::BarControl& control, Theme theme) const;
    void dropGone();

    host::Bars& bars_;
    QMainWindow& window_;
    Run run_;
    LookOf lookOf_;
    ToolBarDocking docking_;
    std::map<std::weak_ptr<host::BarControl>, Drawn, std::owner_less<>> drawn_;
    QTimer redraw_;
    fernwick::Subscription changed_;
};

} // namespace workbench
