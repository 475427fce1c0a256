#pragma once

#include "document/object_removal.h"
#include "document/records.h"

#include <cstdint>
#include <optional>
#include <string>

namespace zeltrona::editor {

using document::Color;

/// What the text tool brings back: the text, never empty, and its font. Both texts are bytes in the code page
/// of `charset`, which becomes that of the play.
struct TextAnswer {
    std::string text;
    std::string fontName; ///< may be empty
    std::int16_t fontSize = 8;
    Color color = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    std::int16_t charset = 238;
};

/// Icon codes of a message.
enum class MessageIcon { Information, Critical };

/// What editing asks of its surroundings. The main window answers with the platform's faces, a test with a
/// script.
class EditorHost {
public:
    virtual ~EditorHost() = default;

    virtual void redrawBoard(float pointerX, float pointerY) = 0;
    virtual void setTimerEnabled(bool enabled) = 0;
    virtual void showStatus(const std::string& utf8) = 0;
    /// String table text of session.stringBase + offset, UTF-8; empty when the table lacks it.
    virtual std::string localText(std::int16_t offset) = 0;
    virtual void message(const std::string& utf8, MessageIcon icon) = 0;

    /// The colour dialog of the board. With cancelIsError a cancel gives nothing; without it, the colour the
    /// dialog held.
    virtual std::optional<Color> askColor(bool cancelIsError) = 0;
    /// Notice, font dialog, text prompt, in this order; nothing when the user gave up.
    virtual std::optional<TextAnswer> askText() = 0;
    /// Keeps the font in the play for the next text.
    virtual void storeFont(const std::string& name, std::int16_t charset) = 0;

    virtual bool curveChecked() = 0;
    virtual void paintToolButton(int index, bool down) = 0;
    /// Opens at the pointer.
    virtual void openPopUpMenu() = 0;
    /// Moves the pose panel to the place on the board and shows it.
    virtual void openBodyPanel(float x, float y) = 0;
    virtual void closeBodyPanel() = 0;

    /// Measures with the board's font as it stands.
    virtual int textWidth(const std::string& text) = 0;
    virtual int textHeight(const std::string& text) = 0;
    virtual int boardWidth() = 0;
    virtual int boardHeight() = 0;

    /// Takes the object from the records and its keys from the play, then stores the frame: one replacement
    /// of the file.
    virtual void removeObject(document::ObjectClass kind, std::size_t index) = 0;
};

} // namespace zeltrona::editor
