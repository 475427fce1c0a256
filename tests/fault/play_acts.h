#pragma once

#include "document/frame_records.h"
#include "document/play_file.h"
#include "document/session.h"

#include <array>
#include <cstdint>
#include <ostream>
#include <string>

namespace zeltrona::tests {

/// A small whole play of three frames to begin with.
std::string firstPlay();

/// One act of a user on the play: act number `number` of an endless row of saves, new frames, deletions of
/// frames and of objects, notes and titles. What it does follows from the number and from the play alone, so
/// that the row can be taken up again at any act and leads to the same bytes.
struct PlayAct {
    int number = 0;
    std::int16_t count = 0;
    document::Session session;
    document::FrameRecords records;
};
/// Shows the frame that the act begins with, as the user sees it before acting.
PlayAct prepareAct(const document::PlayFile& play, int number);
document::WriteResult performAct(document::PlayFile& play, PlayAct& act, const std::string& programFolder);
/// Both.
document::WriteResult doAct(document::PlayFile& play, int number, const std::string& programFolder);

/// One of each kind of act, by the name that a test goes by.
struct NamedAct {
    const char* name;
    int number;
    friend std::ostream& operator<<(std::ostream& out, const NamedAct& act) { return out << act.name; }
};
inline constexpr std::array kStoringActs = {NamedAct{"ANewFrame", 6}, NamedAct{"ADeletedFrame", 7},
                                            NamedAct{"ANote", 8},     NamedAct{"ARemovedBall", 9},
                                            NamedAct{"ATitle", 10},   NamedAct{"ASavedFrame", 11}};

} // namespace zeltrona::tests
