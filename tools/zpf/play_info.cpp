#include "tools/zpf/play_info.h"

#include "document/code_page.h"
#include "document/frame_records.h"
#include "document/frame_store.h"
#include "document/user_texts.h"
#include "tools/zpf/play_facts.h"

#include <algorithm>

namespace zeltrona::zpf {
namespace {

using document::FrameRecords;

template<class Record> std::size_t countOf(const std::vector<Record>& records, bool there) {
    return there ? records.size() : 0;
}

FrameInfo countFrame(const FrameRecords& frame) {
    FrameInfo info;
    info.offence = countOf(frame.offPlayers, document::hasPlayers(frame.offPlayers));
    info.defence = countOf(frame.defPlayers, document::hasPlayers(frame.defPlayers));
    info.balls = countOf(frame.balls, document::hasBalls(frame.balls));
    for (const auto* paths : {&frame.offPaths, &frame.defPaths, &frame.ballPaths}) {
        info.paths += countOf(*paths, document::hasPaths(*paths));
    }
    info.lines = countOf(frame.lines, document::hasLines(frame.lines));
    info.triangles = countOf(frame.triangles, document::hasTriangles(frame.triangles));
    info.shadows = countOf(frame.shadows, document::hasShadows(frame.shadows));
    info.texts = countOf(frame.txtPics, document::hasTxtPics(frame.txtPics));
    return info;
}

std::vector<std::string> labelsOf(const std::vector<document::PlayerRec>& players, std::int16_t charset) {
    std::vector<std::string> labels;
    if (document::hasPlayers(players)) {
        for (const document::PlayerRec& player : players) {
            labels.push_back(document::toUtf8(player.txt, charset));
        }
    }
    return labels;
}

std::vector<std::string> splitAtMarks(std::string_view stored, std::int16_t charset) {
    std::vector<std::string> lines;
    while (!stored.empty()) {
        const std::size_t end = std::min(stored.find(document::kBreakMark), stored.size());
        lines.push_back(document::toUtf8(stored.substr(0, end), charset));
        stored.remove_prefix(std::min(end + 1, stored.size()));
    }
    return lines;
}

} // namespace

PlayInfo readPlayInfo(const document::PlayFile& play) {
    const document::ReadScope scope(play);
    PlayInfo info;
    document::Session session;
    FrameRecords records;
    std::string font = "Arial";
    document::readFontConfig(play, font, info.charset);
    document::loadConfig(play, session, records);
    info.font = document::toUtf8(font, info.charset);
    info.title = document::toUtf8(document::readTitle(play), info.charset);
    info.heading = splitAtMarks(document::readHead(play), info.charset);
    info.court = session.court;
    info.bodies = session.bodyType == 1;
    info.offence = labelsOf(records.offPlayers, info.charset);
    info.defence = labelsOf(records.defPlayers, info.charset);
    const std::int16_t frames = reachableFrames(play);
    for (std::int32_t frame = 1; frame <= frames; ++frame) {
        const auto number = static_cast<std::int16_t>(frame);
        document::loadFrame(play, session, records, number);
        info.frames.push_back(countFrame(records));
        info.frames.back().note = document::toUtf8(document::readNote(play, number), info.charset);
    }
    return info;
}

} // namespace zeltrona::zpf
