#include "tools/zpf/play_desk.h"

#include "document/frame_store.h"
#include "tools/zpf/play_facts.h"

namespace zeltrona::zpf {

PlayDesk::PlayDesk(const std::string& path, const render::BoardArt& art)
    : m_play(path),
      m_board{m_pic, art, [this](const char* text) { m_errors.emplace_back(text); }},
      m_walk{m_play, m_session, m_records, m_board} {
    m_session.playFilePath = m_play.path();
    m_session.fontCharset = charsetOf(m_play);
    document::loadConfig(m_play, m_session, m_records);
    const QSize size = render::boardSizeOf(m_session.court);
    m_pic.resize(size.width(), size.height());
    m_pic.state.font.charset = m_session.fontCharset;
    m_frames = reachableFrames(m_play);
}

} // namespace zeltrona::zpf
