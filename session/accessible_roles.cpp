#include "session/accessible_roles.h"

#include "session/board_view.h"
#include "session/status_line.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace zeltrona::session {

namespace {

QAccessibleInterface* rolesFactory(const QString&, QObject* object) {
    if (auto* board = qobject_cast<BoardView*>(object)) {
        return new QAccessibleWidget(board, QAccessible::Graphic);
    }
    if (auto* line = qobject_cast<StatusLine*>(object)) {
        return new QAccessibleWidget(line, QAccessible::StatusBar);
    }
    return nullptr;
}

} // namespace

void installAccessibleRoles() {
    static const bool done = [] {
        QAccessible::installFactory(rolesFactory);
        return true;
    }();
    static_cast<void>(done);
}

} // namespace zeltrona::session
