#pragma once

namespace zeltrona::session {

/// Tells assistive programs what the drawn controls are: the board a graphic, the message line a status bar
/// that says its text. May be called more than once.
void installAccessibleRoles();

} // namespace zeltrona::session
