#include "dialogs/text_picture.h"

#include "dialogs/frmInputBox.h"
#include "dialogs/frmTxtMsg.h"
#include "dialogs/play_font.h"
#include "document/code_page.h"

namespace zeltrona::dialogs {

std::optional<TextPictureAnswer> askTextPicture(QWidget* window, document::PlayFile& play,
                                                document::Session& session) {
    const PlayFont now = readPlayFont(window, play);
    if (!session.hideCharsetMessage) {
        frmTxtMsg(session, window).exec();
    }
    const platform::FontChoice choice =
        platform::chooseFontDialog(window, now.name, static_cast<std::uint8_t>(now.charset), true, 120);
    if (choice.cancelled) {
        return std::nullopt;
    }
    frmInputBox prompt(choice.name, choice.charset, window);
    prompt.exec();
    const QString typed = prompt.typedText();
    if (typed.isEmpty()) {
        return std::nullopt;
    }
    TextPictureAnswer answer;
    answer.text = document::fromUtf8(typed.toStdString(), choice.charset).bytes;
    const std::string face = choice.name.isEmpty() ? "Arial" : choice.name.toStdString();
    answer.fontName = document::fromUtf8(face, choice.charset).bytes;
    answer.font = choice;
    keepPlayFont(play, session, choice);
    return answer;
}

} // namespace zeltrona::dialogs
