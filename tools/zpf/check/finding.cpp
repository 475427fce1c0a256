#include "tools/zpf/check/finding.h"

namespace zeltrona::zpf {

std::string_view findingName(FindingKind kind) {
    switch (kind) {
    case FindingKind::NoFrame:
        return "no-frame";
    case FindingKind::Gap:
        return "gap";
    case FindingKind::NoMark:
        return "no-mark";
    case FindingKind::WrongNumber:
        return "wrong-number";
    case FindingKind::RepeatedSection:
        return "repeated-section";
    case FindingKind::RepeatedKey:
        return "repeated-key";
    case FindingKind::OutsideSection:
        return "outside-section";
    case FindingKind::NoKey:
        return "no-key";
    case FindingKind::UnknownSection:
        return "unknown-section";
    case FindingKind::UnknownKey:
        return "unknown-key";
    case FindingKind::Hole:
        return "hole";
    case FindingKind::SlotHole:
        return "slot-hole";
    case FindingKind::Cut:
        return "cut";
    case FindingKind::NoClosingComma:
        return "no-closing-comma";
    case FindingKind::NotANumber:
        return "not-a-number";
    case FindingKind::MissingField:
        return "missing-field";
    case FindingKind::ExtraField:
        return "extra-field";
    case FindingKind::CommaInText:
        return "comma-in-text";
    case FindingKind::MissingLabel:
        return "missing-label";
    case FindingKind::BadPlace:
        return "bad-place";
    case FindingKind::TeamSize:
        return "team-size";
    case FindingKind::StaleKey:
        return "stale-key";
    case FindingKind::EmptyObject:
        return "empty-object";
    case FindingKind::BadValue:
        return "bad-value";
    case FindingKind::LostCharacter:
        return "lost-character";
    }
    return "unknown";
}

} // namespace zeltrona::zpf
