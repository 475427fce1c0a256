#pragma once

#include <QString>

#include <cstdint>

namespace zeltrona::dialogs {

/// What a change of a text box leads to: the text that stays, and the message to show (empty for none).
struct LimitedText {
    QString text;
    QString message;
    friend bool operator==(const LimitedText&, const LimitedText&) = default;
};

/// The description: four lines and fewer than 255 characters, a line break counting two as it is typed as
/// two. The lines are tested first, and one change brings one message at the most.
LimitedText limitDescription(const QString& text);

/// A note: one line of fewer than 100 characters. A line break at its end goes; one inside becomes a blank.
LimitedText limitNote(const QString& text);

/// Characters that the code page lacks stand as '?' at once, so that nobody finds out at the next load.
QString storableText(const QString& text, std::int16_t charset);

/// The same for the description, where the letter whose code stands for a line break is dropped.
QString storableDescription(const QString& text, std::int16_t charset);

} // namespace zeltrona::dialogs
