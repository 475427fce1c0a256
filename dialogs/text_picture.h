#pragma once

#include "document/play_file.h"
#include "document/session.h"
#include "platform/font_dialog.h"

#include <optional>
#include <string>

class QWidget;

namespace zeltrona::dialogs {

/// What the user typed for the board, in bytes of the chosen character set, and the font chosen for it.
struct TextPictureAnswer {
    std::string text;
    std::string fontName; ///< "Arial" when the dialog gave none
    platform::FontChoice font;
};

/// Notice (unless put off), font dialog, text prompt. Nothing when the user gave up in one of them or typed
/// nothing; otherwise the font is kept in the session and the play.
std::optional<TextPictureAnswer> askTextPicture(QWidget* window, document::PlayFile& play,
                                                document::Session& session);

} // namespace zeltrona::dialogs
