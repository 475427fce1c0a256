#pragma once

#include "document/play_file.h"
#include "document/session.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace zeltrona::dialogs {

class LimitedEdit;

/// Title and description of the play, empty for a new one. Leaving it by whatever way stores both.
class frmTitle : public QDialog {
    Q_OBJECT

public:
    frmTitle(document::PlayFile& play, document::Session& session, QWidget* parent);

    void done(int result) override;

private:
    void buildControls();
    void fillFromPlay();
    void showFont(const QString& name);

    document::PlayFile& m_play;
    document::Session& m_session;
    QLabel* m_titleLabel = nullptr;
    QLabel* m_descriptionLabel = nullptr;
    QLineEdit* m_title = nullptr;         // Text1
    LimitedEdit* m_description = nullptr; // Text2
    QPushButton* m_font = nullptr;
    QPushButton* m_next = nullptr;
};

} // namespace zeltrona::dialogs
