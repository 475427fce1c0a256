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
    document::loadConfig(m_desk.play, m_desk.session, m_desk.records);
    loadFont();
    layoutWindowForCourt();
    m_controls.pStatus->print(QStringLiteral(" Ready"));
    drawFirstCourt();
    showSaveState();
    layoutNewPlayers();
    m_desk.surface.refresh();
    resetAnimation();
    if (const auto missing = setMainCaptions()) {
        return missing;
    }
    redrawBoard(0, 0);
    return std::nullopt;
}

void frmMain::resetSessionAndCounter() {
    m_desk.session.hideCharsetMessage = false;
    m_desk.session.showCurves = 0;
    m_desk.session.currFrame = 1;
    showFrameOfCount(1, document::countFrames(m_desk.play));
}

void frmMain::resetRecords() {
    m_desk.editor = editor::EditorState();
    m_desk.records = document::FrameRecords();
}

void frmMain::loadFont() {
    std::string name = "Arial";
    std::int16_t charset = kDefaultCharset;
    if (const auto error = document::readFontConfig(m_desk.play, name, charset)) {
        platform::showTrappedError(this, error->number, QString::fromStdString(error->description));
    }
    m_desk.surface.state.font.charset = charset;
    m_desk.session.fontCharset = charset;
}

void frmMain::layoutWindowForCourt() {
    const QSize size = render::boardSizeOf(m_desk.session.court);
    m_desk.surface.resize(size.width(), size.height());
    m_desk.surface.refresh();
    placeMainControls(*this, m_controls, courtLayoutOf(m_desk.session.court));
}

void frmMain::drawFirstCourt() {
    render::drawCourt(m_board, m_desk.session);
}

void frmMain::layoutNewPlayers() {
    if (m_desk.session.newFileFlag) {
        placeAndStoreNewPlayers();
        return;
    }
    document::loadFrame(m_desk.play, m_desk.session, m_desk.records, 1);
    redrawBoard(0, 0);
}

void frmMain::placeAndStoreNewPlayers() {
    document::placeNewPlayers(m_desk.session, m_desk.records);
    const auto draw = [&](const std::vector<document::PlayerRec>& side, std::int32_t fill, std::int32_t ink) {
        for (const document::PlayerRec& player : side) {
            if (document::isEmptyPlayer(player)) {
                return;
            }
            render::drawPlayers(m_board, player.x, player.y, fill, player.txt, ink,
                                m_desk.session.fontCharset);
        }
    };
    draw(m_desk.records.offPlayers, m_desk.session.colorOff, m_desk.session.colorOffFont);
    draw(m_desk.records.defPlayers, m_desk.session.colorDef, m_desk.session.colorDefFont);
    document::saveFrame(m_desk.play, m_desk.session, m_desk.records, 1, false);
    m_desk.surface.refresh();
}

void frmMain::resetAnimation() {
    m_desk.session.animLoop = false;
    m_transportBridge.showLoop();
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
        const auto text = localText(m_desk.session, caption.offset);
        if (!text) {
            return stringId(m_desk.session, caption.offset);
        }
        caption.show(*text);
        caption.owner->setAccessibleName(*text);
    }
    // Captions of another language may ask for another width.
    frames.fitCaptions();
    placeMainControls(*this, m_controls, courtLayoutOf(m_desk.session.court));
    return std::nullopt;
}

} // namespace zeltrona::session
