#include "document/frame_keys.h"
#include "document/frame_store.h"
#include "document/number_text.h"
#include "document/player_reader.h"
#include "document/text_buffers.h"

#include <optional>

namespace zeltrona::document {

namespace {

std::int16_t readInt16(const PlayFile& play, std::string_view key, std::int32_t fallback) {
    return static_cast<std::int16_t>(play.readInt(kConfigSection, key, fallback));
}

Color readColor(const PlayFile& play, std::string_view key) {
    return play.readInt(kConfigSection, key, 0);
}

/// 1, or 0 for every other value.
std::int16_t readSwitch(const PlayFile& play, std::string_view key) {
    return readInt16(play, key, 0) == 1 ? 1 : 0;
}

std::int16_t readLineWidth(const PlayFile& play) {
    const std::int16_t width = readInt16(play, "line", 1);
    return width == 0 ? std::int16_t{1} : width;
}

} // namespace

void loadConfig(const PlayFile& play, Session& session, FrameRecords& frame) {
    const ReadScope scope(play);
    session.bodyType = readSwitch(play, "bodyType");
    session.colorOff = readColor(play, "colorOff");
    session.colorDef = readColor(play, "colorDef");
    session.colorOffFont = readColor(play, "colorOffFont");
    session.colorDefFont = readColor(play, "colorDefFont");
    session.colorLine = readColor(play, "colorLine");
    session.lineWidth = readLineWidth(play);
    session.court = readInt16(play, "court", 0);
    session.courtColor = readColor(play, "courtColor");
    session.courtTexture = readSwitch(play, "courtTexture");
    session.useTexture = readSwitch(play, "useTexture");
    readSidePlayers(play, 1, "off", session.scratchPlayer, frame.offPlayers);
    readSidePlayers(play, 1, "def", session.scratchPlayer, frame.defPlayers);
}

std::optional<TrappedError> readFontConfig(const PlayFile& play, std::string& fontName,
                                           std::int16_t& charset) {
    const std::string value = readText(play, kConfigSection, kFontKey, TextBuffer::Text);
    const std::size_t nameEnd = value.find(',');
    if (nameEnd == value.npos) {
        return std::nullopt;
    }
    const std::size_t charsetEnd = value.find(',', nameEnd + 1);
    if (charsetEnd != value.npos) {
        const std::string charsetText = value.substr(nameEnd + 1, charsetEnd - nameEnd - 1);
        const std::optional<double> number = numericField(charsetText);
        if (!number) {
            return TrappedError{13, "Type mismatch"};
        }
        charset = roundToInt16(*number);
    }
    fontName = value.substr(0, nameEnd);
    return std::nullopt;
}

WriteResult writeFontConfig(PlayFile& play, std::string_view fontName, std::int16_t charset) {
    const std::string value = std::string(fontName) + "," + std::to_string(charset) + ",";
    return play.writeString(kConfigSection, kFontKey, value);
}

} // namespace zeltrona::document
