#pragma once

#include "document/play_file.h"
#include "document/session.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace zeltrona::dialogs {

class LimitedEdit;

/// The note of the shown frame. Leaving it by whatever way stores it.
class frmNotes : public QDialog {
    Q_OBJECT

public:
    frmNotes(document::PlayFile& play, document::Session& session, QWidget* parent);

    void done(int result) override;

private:
    void buildControls();
    void setNotesCaptions();
    void showFont(const QString& name);

    document::PlayFile& m_play;
    document::Session& m_session;
    QLabel* m_label = nullptr;     // Label2
    LimitedEdit* m_note = nullptr; // Text2
    QPushButton* m_font = nullptr;
    QPushButton* m_next = nullptr;
};

} // namespace zeltrona::dialogs
