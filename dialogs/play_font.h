#pragma once

#include "document/play_file.h"
#include "document/session.h"
#include "platform/font_dialog.h"

#include <QString>

#include <cstdint>
#include <functional>

class QWidget;

namespace zeltrona::dialogs {

/// The font that the play's key `font` names; the three text windows share it.
struct PlayFont {
    QString name = QStringLiteral("Arial");
    std::int16_t charset = 238;
};

/// Reads the key; an error inside is told by the box of a trapped error and leaves the defaults.
PlayFont readPlayFont(QWidget* window, const document::PlayFile& play);

/// Takes the chosen face and set over: session.fontCharset and the key `font`. An empty name becomes "Arial".
void keepPlayFont(document::PlayFile& play, document::Session& session, const platform::FontChoice& choice);

/// Puts the face on a text box; its size stays.
void showFontOn(QWidget& box, const QString& name);

/// The Font command of the title and notes windows: notice, dialog at 12 points, and unless cancelled the
/// font is kept and `put` is called with it.
void cmdFont_Click(QWidget* window, document::PlayFile& play, document::Session& session,
                   const std::function<void(const PlayFont&)>& put);

} // namespace zeltrona::dialogs
