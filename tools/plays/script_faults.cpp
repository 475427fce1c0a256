#include "document/code_page.h"
#include "tools/plays/floor_objects.h"
#include "tools/plays/moments.h"
#include "tools/plays/write_play.h"

namespace zeltrona::plays {

namespace {

constexpr std::size_t kMaxPlayers = 12;
constexpr std::size_t kMaxHeadingLines = 4;
constexpr std::size_t kMaxHeading = 254;
constexpr std::size_t kMaxNote = 99;
constexpr std::size_t kMaxName = 2;

std::size_t bytesOf(const std::string& utf8) {
    return document::fromUtf8(utf8, kCharset).bytes.size();
}

bool isEncodable(const std::string& utf8) {
    return document::fromUtf8(utf8, kCharset).complete;
}

std::string teamFault(const std::vector<std::string>& names, std::size_t players) {
    if ((!names.empty() && names.size() != players) || players > kMaxPlayers) {
        return "the names do not fit the team";
    }
    for (const std::string& name : names) {
        if (name.empty() || name == "0" || bytesOf(name) > kMaxName || !isEncodable(name)) {
            return "the name '" + name + "' does not fit a player";
        }
    }
    return {};
}

std::string headingFault(const PlayScript& play) {
    std::size_t length = 0;
    for (const std::string& line : play.heading) {
        length += bytesOf(line) + 1;
        if (!isEncodable(line)) {
            return "the heading has letters that the character set lacks";
        }
    }
    if (play.title.empty() || !isEncodable(play.title)) {
        return "the title is missing or has letters that the character set lacks";
    }
    const bool fits = play.heading.size() <= kMaxHeadingLines && length <= kMaxHeading;
    return fits ? std::string() : "the heading is too long";
}

std::string frameFault(const Frame& frame, const Moment& now) {
    if (frame.note.empty() || bytesOf(frame.note) > kMaxNote || !isEncodable(frame.note)) {
        return "the note '" + frame.note + "' does not fit";
    }
    for (const Label& label : frame.labels) {
        if (label.text.find(',') != std::string::npos || !isEncodable(label.text)) {
            return "the text '" + label.text + "' does not fit the board";
        }
    }
    for (const Move& move : frame.moves) {
        const bool needsBall =
            move.verb == Verb::Pass || move.verb == Verb::Dribble || move.verb == Verb::Shoot;
        if (needsBall && !ballHeldBy(now, move.who)) {
            return std::to_string(move.who.number) + " has no ball in '" + frame.note + "'";
        }
    }
    return {};
}

} // namespace

std::string faultOf(const PlayScript& play) {
    const std::vector<Moment> moments = momentsOf(play);
    for (const std::string& fault :
         {teamFault(play.offenceNames, moments[0].offence.size()),
          teamFault(play.defenceNames, moments[0].defence.size()), headingFault(play)}) {
        if (!fault.empty()) {
            return fault;
        }
    }
    for (std::size_t i = 0; i < play.frames.size(); ++i) {
        std::string fault = frameFault(play.frames[i], moments[i]);
        if (!fault.empty()) {
            return fault;
        }
    }
    return {};
}

} // namespace zeltrona::plays
