#include "tests/session/open_play.h"

#include "document/frame_store.h"
#include "document/play_file.h"
#include "render/redraw.h"
#include "session/file_names.h"
#include "tests/session/window_harness.h"

#include <QFile>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace zeltrona::testing {

namespace {

std::string replaced(std::string text, const std::string& before, const std::string& after) {
    const auto place = text.find(before);
    EXPECT_NE(place, std::string::npos) << before;
    return text.replace(place, before.size(), after);
}

} // namespace

const render::BoardArt& boardArt() {
    static const render::BoardArt art = render::loadBoardArt();
    return art;
}

std::string threeFramePlay() {
    return "[Config]\r\ncolorOff=16711680\r\ncolorDef=255\r\ncolorOffFont=16777215\r\ncolorDefFont="
           "16777215\r\n"
           "colorLine=0\r\nline=1\r\nfont=Arial,238,\r\ntxtOff0=1\r\nskinOff0=0\r\ntxtOff1=2\r\nskinOff1="
           "0\r\n"
           "txtDef0=A\r\nskinDef0=0\r\ncourt=1\r\ncourtColor=13434879\r\ncourtTexture=0\r\nuseTexture=0\r\n"
           "txtTitle=\r\ntxtHead=\r\nNotes1=\r\nNotes2=\r\nNotes3=\r\n"
           "[Frame1]\r\nframe=1\r\noff0=100,100\r\noff1=200,40\r\ndef0=150,200\r\n"
           "Ball0=128,92.5,\r\nTriangle0=255,60,70,\r\n"
           "[Frame2]\r\nframe=2\r\noff0=140,120\r\noff1=40,200\r\ndef0=300,96\r\nBall0=140,100,\r\n"
           "off1curve=40,200,55.5,196,71,188.25,\r\n"
           "[Frame3]\r\nframe=3\r\noff0=10,20\r\noff1=71,188\r\ndef0=200,150\r\nBall0=50,60,\r\n";
}

std::string playOnCourt(int court) {
    return replaced(threeFramePlay(), "court=1", "court=" + std::to_string(court));
}

std::string playWithBodies() {
    return replaced(threeFramePlay(), "[Config]\r\n", "[Config]\r\nbodyType=1\r\n");
}

QImage expectedBoard(const std::string& path, std::int16_t frame, std::int16_t showCurves) {
    const document::PlayFile play(path);
    document::Session session;
    document::FrameRecords records;
    document::loadConfig(play, session, records);
    session.currFrame = frame;
    session.showCurves = showCurves;
    document::loadFrame(play, session, records, frame);
    const QSize size = render::boardSizeOf(session.court);
    render::BoardSurface surface(size.width(), size.height());
    render::Board board{surface, boardArt(), {}};
    render::redrawBoard(board, {session, records, -1}, 0, 0);
    return surface.image();
}

OpenPlay::OpenPlay(const std::string& bytes, int language) {
    writeBytes(bytes);
    session::chooseLanguage(m_session, language);
    m_session.playFilePath = session::toPath(path());
    m_window = new session::frmMain(m_session, boardArt());
    EXPECT_FALSE(m_window->load().has_value());
    m_window->show();
    settle();
}

OpenPlay::~OpenPlay() {
    if (m_window) {
        m_window->close();
    }
    settle();
}

std::string OpenPlay::bytes() const {
    QFile file(path());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().toStdString();
}

void OpenPlay::writeBytes(const std::string& bytes) const {
    QFile file(path());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

std::string OpenPlay::key(const std::string& section, const std::string& name) const {
    return document::PlayFile(session::toPath(path())).readWhole(section, name, "(none)");
}

std::string OpenPlay::txtSeq() {
    return control<QLineEdit>(*m_window, QStringLiteral("txtSeq")).text().toStdString();
}

std::string OpenPlay::status() {
    return control<QWidget>(*m_window, QStringLiteral("pStatus")).property("text").toString().toStdString();
}

QImage OpenPlay::board() {
    return pic().grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QWidget& OpenPlay::pic() {
    return control<QWidget>(*m_window, QStringLiteral("pic"));
}

void OpenPlay::pickTool(int index) {
    click(*m_window, QStringLiteral("Picture1_%1").arg(index));
}

std::string OpenPlay::tag(int tool) {
    return control<QWidget>(*m_window, QStringLiteral("Picture1_%1").arg(tool))
        .property("Tag")
        .toString()
        .toStdString();
}

} // namespace zeltrona::testing
