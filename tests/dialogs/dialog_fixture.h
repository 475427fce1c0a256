#pragma once

#include "document/session.h"
#include "tests/document/temporary_play.h"
#include "tests/session/window_harness.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <gtest/gtest.h>

namespace zeltrona::tests {

/// A play on the disk, a session in English, and answers for the modal windows that come up.
class DialogTest : public ::testing::Test {
protected:
    void speakSerbian() {
        session.langIndex = 1;
        session.stringBase = 400;
    }
    /// Replaces what the play holds.
    void begin(std::string_view lines) { play.folder.put(crlf(lines)); }

    TemporaryPlay play;
    document::Session session;
    zeltrona::testing::DialogAnswerer answers;
};

} // namespace zeltrona::tests
