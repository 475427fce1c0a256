#pragma once

#include "dialogs/court_preview.h"
#include "document/play_file.h"
#include "document/session.h"

#include <QWidget>

class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace zeltrona::dialogs {

/// Second window of a new play: court, line colour, background, title. Nothing is written before Next but
/// what the title window stores itself.
class frmConfig1 : public QWidget {
    Q_OBJECT

public:
    frmConfig1(document::PlayFile& play, document::Session& session, QWidget* parent = nullptr);

    /// Id of a caption that the language lacks, where nothing traps; 0 when all are there.
    std::int16_t missingCaption() const { return m_missingCaption; }

signals:
    /// The keys are written and session.newFileFlag is set; the main window follows.
    void nextStep();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* buildPreview();
    QWidget* buildStepping();
    QWidget* buildBackground();
    QWidget* buildPlayfield();
    QWidget* buildHeadline();
    std::int16_t setCourtCaptions();
    void showCourtPreview();
    void stepTo(int court);
    void optBG_Click(int index);
    void Command9_Click();
    void Command5_Click();

    document::PlayFile& m_play;
    document::Session& m_session;
    std::int16_t m_missingCaption = 0;
    CourtChoice m_choice; // newCourt, newCourtColor and the two options
    bool m_titleEdited = false;

    QLabel* m_picture = nullptr;          // Picture1
    QGroupBox* m_courtFrame = nullptr;    // Frame1
    QGroupBox* m_lineFrame = nullptr;     // Frame2
    QGroupBox* m_groundFrame = nullptr;   // Frame4
    QGroupBox* m_headlineFrame = nullptr; // Frame5
    QRadioButton* m_colorGround = nullptr;
    QRadioButton* m_textureGround = nullptr;
    QRadioButton* m_whiteLines = nullptr;
    QRadioButton* m_blackLines = nullptr;
    QPushButton* m_edit = nullptr; // Command9
    QPushButton* m_next = nullptr; // Command5
};

} // namespace zeltrona::dialogs
