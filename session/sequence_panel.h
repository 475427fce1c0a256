#pragma once

#include <QGroupBox>

class QLineEdit;
class QPushButton;
class QToolButton;

namespace zeltrona::session {

/// `Frame1` of the main window: where the shown frame stands in the play, and what can be done with it.
class SequencePanel : public QGroupBox {
    Q_OBJECT

public:
    explicit SequencePanel(QWidget* parent);

    /// To be called after the captions have changed: the buttons ask for what these need, with a fifth to
    /// spare.
    void fitCaptions();

    QToolButton* cmdSeqNoDown = nullptr;
    QLineEdit* txtSeq = nullptr;
    QToolButton* cmdSeqNoUp = nullptr;
    QPushButton* seqSave = nullptr;
    QPushButton* seqNew = nullptr;
    QPushButton* seqDel = nullptr;
    QPushButton* seqNotes = nullptr;

protected:
    void changeEvent(QEvent* event) override;

private:
    void showIcons();
};

} // namespace zeltrona::session
