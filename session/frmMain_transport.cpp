// Carries the buttons of the transport and the ticks of Timer1 to the playback.
#include "animation/transport.h"
#include "animation/transport_bar.h"
#include "session/frmMain.h"

#include <utility>

namespace zeltrona::session {

void frmMain::connectTransport() {
    const animation::TransportBar& bar = *m_controls.pToolAnim;
    using Click = void (*)(animation::Transport&);
    const std::pair<QAbstractButton*, Click> clicks[] = {
        {bar.cmdAnimFirst, animation::cmdAnimFirst_Click}, {bar.cmdAnimPrev, animation::cmdAnimPrev_Click},
        {bar.cmdAnimPlay, animation::cmdAnimPlay_Click},   {bar.cmdAnimPause, animation::cmdAnimPause_Click},
        {bar.cmdAnimStop, animation::cmdAnimStop_Click},   {bar.cmdAnimNext, animation::cmdAnimNext_Click},
        {bar.cmdAnimLast, animation::cmdAnimLast_Click},   {bar.cmdAnimUp, animation::cmdAnimUp_Click},
        {bar.cmdAnimDown, animation::cmdAnimDown_Click},
    };
    for (const auto& [button, handler] : clicks) {
        connect(button, &QAbstractButton::clicked, this, [this, handler = handler] { handler(m_transport); });
    }
    connect(bar.animCheckLoop, &QAbstractButton::clicked, this, [this] {
        animation::animCheckLoop_Click(m_transport);
        m_transportBridge.showLoop();
    });
    connect(bar.txtAnimSpeed, &QLineEdit::textChanged, this,
            [this] { animation::txtAnimSpeed_Change(m_transport); });
    connect(Timer1, &QTimer::timeout, this, [this] { animation::Timer1_Timer(m_transport); });
}

} // namespace zeltrona::session
