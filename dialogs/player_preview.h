#pragma once

#include "document/records.h"

#include <QImage>
#include <QString>

namespace zeltrona::dialogs {

using document::Color;

/// Side of a player's preview, in pixels.
inline constexpr int kPreviewSide = 26;

/// A disc of radius 10 with the label in its middle, on the background colour.
QImage circlePreview(const QString& label, Color suit, Color font, Color background);

/// A body coloured by masks: the base drawing, its skin region filled with `skin`, its suit region with
/// `suit`.
QImage composeBody(Color skin, Color suit);

} // namespace zeltrona::dialogs
