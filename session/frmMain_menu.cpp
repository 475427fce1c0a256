// What the menu entries do. Those that walk the frames of the play bring the board back to the frame it
// showed.
#include "dialogs/frmAbout.h"
#include "dialogs/frmHelp.h"
#include "dialogs/frmTitle.h"
#include "document/frame_store.h"
#include "document/vendor.h"
#include "output/frame_walk.h"
#include "output/frmDrawPreview.h"
#include "output/picture_export.h"
#include "output/preview_page.h"
#include "output/print_play.h"
#include "output/web_report.h"
#include "platform/board_clipboard.h"
#include "platform/links.h"
#include "platform/program_folder.h"
#include "session/frmMain.h"
#include "session/status_line.h"
#include "session/tool_box.h"

namespace zeltrona::session {

namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;
/// The preview's largest picture of a page is half as large again as the page.
constexpr double kPreviewPixelsPerPoint = 1.5 * kPixelsPerPoint;

QImage imgLogoExport() {
    return QImage(QStringLiteral(":/art/logo_export.png"));
}

QString toText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

MenuHandlers frmMain::menuHandlers() {
    using output::PrintMode;
    return {
        {"mnuFileNew", [this] { emit leftForSelection(); }},
        {"mnuFileOpen", [this] { emit leftForSelection(); }},
        {"mnuFileExportPictures", [this] { mnuFileExportPictures_Click(); }},
        {"mnuFileExportWeb", [this] { mnuFileExportWeb_Click(); }},
        {"mnuFilePrintBig", [this] { printWithMode(PrintMode::BigPictures); }},
        {"mnuFilePrintSmall", [this] { printWithMode(PrintMode::SmallPictures); }},
        {"mnuFilePrinPreviewSmallPictures", [this] { previewWithMode(PrintMode::SmallPictures); }},
        {"mnuFilePrinPreviewBigPictures", [this] { previewWithMode(PrintMode::BigPictures); }},
        {"mnuFileExit", [this] { close(); }},
        {"mnuEditCopy", [this] { mnuEditCopy_Click(); }},
        {"mnuEditTitle", [this] { mnuEditTitle_Click(); }},
        {"mnuViewToolBox", [this] { m_controls.pToolbox->show(); }},
        {"mnuViewFullScreenAnimation", [this] { m_transportBridge.openFullScreen(); }},
        {"mnuHelpHelpTopic", [this] { mnuHelpHelpTopic_Click(); }},
        {"mnuHelpZtemail", [this] { platform::openMail(this, toText(document::kSalesAddress)); }},
        {"mnuHelpZtHome", [this] { platform::openWebPage(this, toText(document::kWebAddress)); }},
        {"mnuHelpAbout", [this] { mnuHelpAbout_Click(); }},
        {"mnuPopUpCopy", [this] { mnuEditCopy_Click(); }},
        {"mnuPopUpHelp", [this] { mnuHelpHelpTopic_Click(); }},
    };
}

void frmMain::mnuEditCopy_Click() {
    platform::copyPicture(m_desk.surface.image());
}

void frmMain::mnuEditTitle_Click() {
    dialogs::frmTitle(m_desk.play, m_desk.session, this).exec();
    redrawBoard(0, 0);
}

// Stays open beside the board, so that a road can be followed step by step.
void frmMain::mnuHelpHelpTopic_Click() {
    auto* help = findChild<dialogs::frmHelp*>();
    if (help == nullptr) {
        help = new dialogs::frmHelp(platform::programFolder() + QStringLiteral("/ZP.hlp"), this);
        help->setAttribute(Qt::WA_DeleteOnClose);
    }
    help->show();
    help->raise();
    help->activateWindow();
}

void frmMain::mnuHelpAbout_Click() {
    dialogs::frmAbout(this).exec();
}

void frmMain::mnuFileExportPictures_Click() {
    walkFrames([this](output::FrameWalk& walk) { output::exportPictures(walk, this, m_desk.CommonDialog1); });
}

void frmMain::mnuFileExportWeb_Click() {
    walkFrames([this](output::FrameWalk& walk) {
        output::exportWebReport(walk, this, m_desk.CommonDialog1, imgLogoExport());
    });
}

void frmMain::printWithMode(output::PrintMode mode) {
    walkFrames(
        [this, mode](output::FrameWalk& walk) { output::printPlay(walk, this, mode, imgLogoExport()); });
}

void frmMain::previewWithMode(output::PrintMode mode) {
    bool printAfterwards = false;
    walkFrames([&](output::FrameWalk& walk) {
        output::PreviewSource source;
        source.PageCtn = [&] {
            return output::PageCtn(document::countFrames(m_desk.play), mode, m_desk.session.court);
        };
        source.makePrintPreviewPage = [&](std::int16_t page) {
            return output::makePrintPreviewPage(walk, mode, page, kPreviewPixelsPerPoint, font(),
                                                imgLogoExport());
        };
        source.pageSize = (output::printerPageSize() * kPixelsPerPoint).toSize();
        output::frmDrawPreview preview(source, this);
        preview.exec();
        printAfterwards = preview.printFromPreview();
    });
    if (printAfterwards) {
        printWithMode(mode);
    }
}

void frmMain::walkFrames(const std::function<void(output::FrameWalk&)>& work) {
    const std::int16_t shown = m_desk.session.currFrame;
    const QString hint = m_controls.pStatus->hint();
    output::FrameWalk walk{m_desk.play,
                           m_desk.session,
                           m_desk.records,
                           m_board,
                           m_desk.editor.editLineIndex,
                           [this](int frame, int frames) { showProgress(frame, frames); }};
    work(walk);
    m_controls.pStatus->print(hint);
    m_desk.session.currFrame = static_cast<std::int16_t>(shown - 1);
    cmdSeqNoUp_Click();
    if (m_desk.session.currFrame < 1) { // A file without any frame has nothing to step up to.
        m_desk.session.currFrame = shown;
        showFrameOfCount(shown, 0);
    }
}

// Painted at once: the walk holds the thread, and no event is worked off in between.
void frmMain::showProgress(int frame, int frames) {
    m_controls.pStatus->print(QStringLiteral("Frame %1 of %2").arg(frame).arg(frames));
    m_controls.pStatus->repaint();
}

} // namespace zeltrona::session
