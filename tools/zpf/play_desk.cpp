#include "tools/zpf/play_desk.h"

#include "document/frame_store.h"

#include <QFile>
#include <QFileInfo>

namespace zeltrona::zpf {

PlayDesk::PlayDesk(const QString& path, const render::BoardArt& art)
    : m_play(QFile::encodeName(path).toStdString()), m_board{m_pic, art, [this](const char* text) {
                                                                 m_errors.emplace_back(text);
                                                             }} {
    m_session.playFilePath = m_play.path();
    std::string fontName = "Arial";
    document::readFontConfig(m_play, fontName, m_session.fontCharset);
    document::loadConfig(m_play, m_session, m_records);
    const QSize size = render::boardSizeOf(m_session.court);
    m_pic.resize(size.width(), size.height());
    m_frames = document::countFrames(m_play);
}

const QImage& PlayDesk::drawFrame(std::int16_t frame) {
    output::FrameWalk walk{m_play, m_session, m_records, m_board};
    output::prepareFramePicture(walk, frame);
    return m_pic.image();
}

QString playFault(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists()) {
        return QStringLiteral("no such file");
    }
    if (!info.isFile()) {
        return QStringLiteral("is no file");
    }
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
}

} // namespace zeltrona::zpf
