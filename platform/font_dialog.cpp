#include "platform/font_dialog.h"

#include "platform/color_value.h"
#include "platform/font_dialog_window.h"

#include <cmath>

namespace zeltrona::platform {

FontChoice chooseFontDialog(QWidget* owner, const QString& fontName, std::uint8_t charset, bool effects,
                            int tenthsOfPoint) {
    FontDialogWindow window(owner, effects ? FontEffects::Offered : FontEffects::Hidden);
    window.openOn(fontName, tenthsOfPoint == 0 ? 10.0 : tenthsOfPoint / 10.0);
    window.setCharset(charset);

    FontChoice choice;
    choice.cancelled = window.exec() != QDialog::Accepted;
    const QFont font = choice.cancelled ? window.currentFont() : window.selectedFont();
    choice.name = window.chosenFace(font);
    choice.bold = font.weight() > QFont::Normal;
    choice.italic = font.italic();
    choice.size = static_cast<std::int16_t>(std::lrint(font.pointSizeF()));
    choice.underline = font.underline();
    choice.strikeOut = font.strikeOut();
    choice.color = valueOfColor(window.color());
    choice.charset = static_cast<std::uint8_t>(window.charset());
    return choice;
}

} // namespace zeltrona::platform
