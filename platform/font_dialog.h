#pragma once

#include <QString>

#include <cstdint>

class QWidget;

namespace zeltrona::platform {

/// What the font dialog gives back.
struct FontChoice {
    QString name;
    bool cancelled = false;
    bool bold = false;
    bool italic = false;
    std::int16_t size = 12; ///< points
    bool underline = false;
    bool strikeOut = false;
    std::int32_t color = 0; ///< 0x00BBGGRR
    std::uint8_t charset = 238;
};

/// Opens FontDialogWindow on the given face and set at `tenthsOfPoint` / 10 points (10 when 0) in black.
/// Without `effects` it offers no colour, underline or strike-out.
FontChoice chooseFontDialog(QWidget* owner, const QString& fontName, std::uint8_t charset, bool effects,
                            int tenthsOfPoint = 120);

} // namespace zeltrona::platform
