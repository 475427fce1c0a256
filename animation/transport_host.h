#pragma once

#include "animation/run_time_error.h"

#include <string>
#include <string_view>

namespace zeltrona::animation {

/// What the transport asks of its surroundings: the main window answers with its controls, a test with a
/// record.
class TransportHost {
public:
    virtual ~TransportHost() = default;

    /// Caption of animlblFrameCurr, as "2/5".
    virtual void showCounter(std::string_view caption) = 0;
    /// Paints the working set on the board, one finished picture.
    virtual void drawAnimationStep() = 0;

    /// Of the full screen; asked only while session.fullScreenOpen.
    virtual void updateFrameCurr(std::string_view caption) = 0;
    virtual void updatePic() = 0;

    /// The click of the button that steps the board one frame down.
    virtual void cmdSeqNoDown_Click() = 0;

    /// Text of txtAnimSpeed, the only store of the speed. Setting another text runs txtAnimSpeed_Change.
    virtual std::string speedText() const = 0;
    virtual void setSpeedText(std::string_view text) = 0;

    /// Repaints the board from the records of the shown frame.
    virtual void redrawBoard() = 0;
    /// The box of an error that nothing traps. The timer is off and the board redrawn when it is asked for.
    virtual void showRunTimeError(const RunTimeError& error) = 0;
};

} // namespace zeltrona::animation
