#pragma once

#include <QKeySequence>

#include <functional>
#include <map>
#include <string_view>

class QAction;
class QMainWindow;
class QMenu;
class QWidget;

namespace zeltrona::session {

/// What each menu entry does, by its interface name. An entry without a handler is there, and disabled.
using MenuHandlers = std::map<std::string_view, std::function<void()>>;

/// Fills the window's menu bar. Every entry is a QAction, and every menu a QMenu with its action, under its
/// interface name.
void buildMainMenu(QMainWindow& window, const MenuHandlers& handlers);

/// `mnuPopUp`, the menu of a right press on the empty board.
QMenu* buildPopUpMenu(QWidget& window, const MenuHandlers& handlers);

} // namespace zeltrona::session
