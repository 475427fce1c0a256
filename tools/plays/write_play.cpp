#include "tools/plays/write_play.h"

#include "document/code_page.h"
#include "document/frame_store.h"
#include "document/setup_writer.h"
#include "document/user_texts.h"
#include "tools/plays/floor_objects.h"
#include "tools/plays/staging.h"

namespace zeltrona::plays {

using document::WriteResult;

namespace {

constexpr std::int32_t kSkin = rgb(255, 204, 153);

std::string encoded(const std::string& utf8) {
    return document::fromUtf8(utf8, kCharset).bytes;
}

void choose(std::array<document::PlayerSetup, document::kSlotCount>& slots,
            const std::vector<document::PlayerRec>& players, std::int32_t skin) {
    for (std::size_t i = 0; i < players.size(); ++i) {
        slots.at(i) = {true, players[i].txt, skin};
    }
}

document::TeamSetup teamSetupOf(const PlayScript& play, const document::FrameRecords& first) {
    document::TeamSetup setup;
    setup.colorOff = play.look.offence;
    setup.colorDef = play.look.defence;
    setup.colorOffFont = play.look.offenceText;
    setup.colorDefFont = play.look.defenceText;
    setup.colorLine = play.look.line;
    setup.lineWidth = play.look.lineWidth;
    setup.bodies = play.look.bodies;
    const std::int32_t skin = play.look.bodies ? kSkin : 0;
    choose(setup.off, first.offPlayers, skin);
    if (document::hasPlayers(first.defPlayers)) {
        choose(setup.def, first.defPlayers, skin);
    }
    return setup;
}

std::string headOf(const PlayScript& play) {
    std::string head;
    for (const std::string& line : play.heading) {
        head += (head.empty() ? "" : "\r\n") + encoded(line);
    }
    return head;
}

void writeSetup(document::PlayFile& file, const PlayScript& play, const document::FrameRecords& first) {
    document::writePlayHeader(file);
    document::writeTeamConfig(file, teamSetupOf(play, first));
    document::writeTitle(file, encoded(play.title), headOf(play));
    document::writeCourtConfig(
        file, {play.look.court, play.look.floor, play.look.parquet, play.look.whiteLines, true});
}

} // namespace

WriteResult writePlay(const PlayScript& play, const std::string& folder) {
    const std::vector<document::FrameRecords> frames = stage(play);
    document::PlayFile file(folder + "/" + play.file + ".zpf");
    document::WriteBatch batch(file);
    writeSetup(file, play, frames.front());
    document::Session session;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        session.currFrame = static_cast<std::int16_t>(i + 1);
        document::writeNote(file, session.currFrame, encoded(play.frames[i].note));
        document::saveFrame(file, session, frames[i], session.currFrame, false);
    }
    return batch.commit();
}

} // namespace zeltrona::plays
