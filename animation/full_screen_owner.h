#pragma once

#include <QImage>
#include <QString>

namespace zeltrona::animation {

/// What the full screen asks of the main window: its buttons only forward, the playback stays there.
class FullScreenOwner {
public:
    virtual ~FullScreenOwner() = default;

    virtual void cmdAnimFirst_Click() = 0;
    virtual void cmdAnimPrev_Click() = 0;
    virtual void cmdAnimPlay_Click() = 0;
    virtual void cmdAnimPause_Click() = 0;
    virtual void cmdAnimStop_Click() = 0;
    virtual void cmdAnimNext_Click() = 0;
    virtual void cmdAnimLast_Click() = 0;
    virtual void cmdAnimUp_Click() = 0;
    virtual void cmdAnimDown_Click() = 0;
    virtual void animCheckLoop_Click() = 0;

    /// Sets the text of the main window's txtAnimSpeed, which runs its change event.
    virtual void setAnimSpeedText(const QString& text) = 0;

    /// The finished picture of the main board.
    virtual const QImage& boardImage() const = 0;
};

} // namespace zeltrona::animation
