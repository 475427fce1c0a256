#pragma once

#include "document/play_file.h"
#include "document/session.h"

#include <QWidget>

class QButtonGroup;
class QLabel;
class QPushButton;
class QRadioButton;

namespace zeltrona::dialogs {

class TeamCard;

/// First window of a new play: who plays, in which colours, and the pen of the lines. Nothing is written
/// before Next.
class frmConfig : public QWidget {
    Q_OBJECT

public:
    frmConfig(document::PlayFile& play, const document::Session& session, QWidget* parent = nullptr);

    /// Id of a caption that the language lacks, where nothing traps; 0 when all are there.
    std::int16_t missingCaption() const { return m_missingCaption; }

signals:
    /// The keys are written; the court window follows.
    void nextStep();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void checkArialFont();
    QWidget* buildLines();
    QWidget* buildFoot();
    void chooseFirstPlayers();
    std::int16_t setTeamCaptions();
    void drawLinePreview();
    void optBodyType_Click(int index);
    void Command6_Click();
    bool validateTeams();
    bool writeTeamConfig();

    document::PlayFile& m_play;
    const document::Session& m_session;
    std::int16_t m_missingCaption = 0;
    document::Color m_newLineColor = 0;
    std::int32_t m_newLineWidth = 1;
    bool m_bodies = false;

    TeamCard* m_offence = nullptr;
    TeamCard* m_defence = nullptr;
    QWidget* m_lines = nullptr;         // Frame3
    QLabel* m_sample = nullptr;         // Picture3
    QPushButton* m_lineColor = nullptr; // Command5
    QPushButton* m_next = nullptr;      // Command6
};

} // namespace zeltrona::dialogs
