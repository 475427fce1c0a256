#include "animation/transport_bar.h"
#include "document/frame_store.h"
#include "document/new_layout.h"
#include "platform/message_box.h"
#include "session/board_view.h"
#include "session/frmMain.h"
#include "session/language.h"
#include "session/sequence_panel.h"
#include "session/status_line.h"
#include "session/tool_box.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>
#include <functional>

namespace zeltrona::session {

namespace {

/// The hourglass, for as long as it lives.
class Hourglass {
public:
    Hourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { QApplication::restoreOverrideCursor(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

constexpr std::int16_t kDefaultCharset = 238;

} // namespace

std::optional<std::int16_t> frmMain::load() {
    const Hourglass hourglass;
    resetSessionAndCounter();
    m_controls.pToolbox->paintToolIcons();
    resetRecords();
    document::loadConfig(m_play, m_session, m_records);
    loadFont();
    layoutWindowForCourt();
    m_controls.pStatus->print(QStringLiteral(" Ready"));
    drawFirstCourt();
    layoutNewPlayers();
    m_surface.refresh();
    resetAnimation();
    if (const auto missing = setMainCaptions()) {
        return missing;
    }
    redrawBoard(0, 0);
    return std::nullopt;
}

void frmMain::resetSessionAndCounter() {
    m_session.hideCharsetMessage = false;
    m_session.showCurves = 0;
    m_session.currFrame = 1;
    showFrameOfCount(1, document::countFrames(m_play));
}

void frmMain::resetRecords() {
    m_records = document::FrameRecords();
}

void frmMain::loadFont() {
    std::string name = "Arial";
    std::int16_t charset = kDefaultCharset;
    if (const auto error = document::readFontConfig(m_play, name, charset)) {
        platform::showTrappedError(this, error->number, QString::fromStdString(error->description));
    }
    m_surface.state.font.charset = charset;
    m_session.fontCharset = charset;
}

void frmMain::layoutWindowForCourt() {
    const QSize size = render::boardSizeOf(m_session.court);
    m_surface.resize(size.width(), size.height());
    m_surface.refresh();
    placeMainControls(*this, m_controls, courtLayoutOf(m_session.court));
}

void frmMain::drawFirstCourt() {
    render::Board target = board();
    render::drawCourt(target, m_session);
}

void frmMain::layoutNewPlayers() {
    if (m_session.newFileFlag) {
        placeAndStoreNewPlayers();
        return;
    }
    document::loadFrame(m_play, m_session, m_records, 1);
    redrawBoard(0, 0);
}

void frmMain::placeAndStoreNewPlayers() {
    document::placeNewPlayers(m_session, m_records);
    render::Board target = board();
    const auto draw = [&](const std::vector<document::PlayerRec>& side, std::int32_t fill, std::int32_t ink) {
        for (const document::PlayerRec& player : side) {
            if (document::isEmptyPlayer(player)) {
                return;
            }
            render::drawPlayers(target, player.x, player.y, fill, player.txt, ink, m_session.fontCharset);
        }
    };
    draw(m_records.offPlayers, m_session.colorOff, m_session.colorOffFont);
    draw(m_records.defPlayers, m_session.colorDef, m_session.colorDefFont);
    document::saveFrame(m_play, m_session, m_records, 1, false);
    m_surface.refresh();
}

void frmMain::resetAnimation() {
    m_session.animLoop = false;
    m_controls.pToolAnim->txtAnimSpeed->setText(QStringLiteral("3"));
}

std::optional<std::int16_t> frmMain::setMainCaptions() {
    struct Caption {
        std::int16_t offset;
        QWidget* owner;
        std::function<void(const QString&)> show;
    };
    SequencePanel& frames = *m_controls.Frame1;
    const auto onButton = [](QPushButton* button) {
        return [button](const QString& text) { button->setText(text); };
    };
    QLabel* curve = m_controls.pToolbox->Label3;
    const std::array captions{
        Caption{22, curve, [curve](const QString& text) { curve->setText(text); }},
        Caption{17, &frames, [&frames](const QString& text) { frames.setTitle(text); }},
        Caption{18, frames.seqSave, onButton(frames.seqSave)},
        Caption{19, frames.seqNew, onButton(frames.seqNew)},
        Caption{20, frames.seqDel, onButton(frames.seqDel)},
        Caption{21, frames.seqNotes, onButton(frames.seqNotes)},
    };
    for (const Caption& caption : captions) {
        const auto text = localText(m_session, caption.offset);
        if (!text) {
            return stringId(m_session, caption.offset);
        }
        caption.show(*text);
        caption.owner->setAccessibleName(*text);
    }
    // Captions of another language may ask for another width.
    frames.fitCaptions();
    placeMainControls(*this, m_controls, courtLayoutOf(m_session.court));
    return std::nullopt;
}

} // namespace zeltrona::session
