#include "session/sequence_panel.h"

#include "platform/themed_icon.h"
#include "session/control_names.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace zeltrona::session {

namespace {

constexpr int kButtonSides = 14;

QPushButton* commandButton(QWidget* parent, const char* name, const char* accessible, const char* tip) {
    QPushButton* button = named(new QPushButton(parent), name, accessible);
    button->setToolTip(QString::fromLatin1(tip));
    return button;
}

QToolButton* arrowButton(QWidget* parent, const char* name, const char* accessible) {
    QToolButton* button = named(new QToolButton(parent), name, accessible);
    button->setToolTip(QString::fromLatin1(accessible));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

} // namespace

SequencePanel::SequencePanel(QWidget* parent) : QGroupBox(parent) {
    named(this, "Frame1", "Sequence");
    cmdSeqNoDown = arrowButton(this, "cmdSeqNoDown", "Previous frame");
    txtSeq = named(new QLineEdit(this), "txtSeq", "Frame shown");
    txtSeq->setToolTip(QStringLiteral("Frame shown, and number of frames"));
    txtSeq->setReadOnly(true);
    txtSeq->setAlignment(Qt::AlignCenter);
    txtSeq->setFixedWidth(txtSeq->fontMetrics().horizontalAdvance(QStringLiteral("100 of 100")) + 14);
    cmdSeqNoUp = arrowButton(this, "cmdSeqNoUp", "Next frame");
    seqSave = commandButton(this, "seqSave", "Save", "Save the frame shown");
    seqNew = commandButton(this, "seqNew", "New", "Save, then add a frame at the end");
    seqDel = commandButton(this, "seqDel", "Delete", "Delete the frame shown");
    seqNotes = commandButton(this, "seqNotes", "Notes", "Notes of the frame shown");

    auto* row = new QHBoxLayout(this);
    // With more air the panel would push the transport down on a whole court.
    row->setContentsMargins(8, 0, 8, 1);
    row->setSpacing(4);
    row->addWidget(cmdSeqNoDown);
    row->addWidget(txtSeq);
    row->addWidget(cmdSeqNoUp);
    row->addStretch();
    for (QPushButton* button : {seqSave, seqNew, seqDel, seqNotes}) {
        row->addWidget(button);
    }
    fitCaptions();
    showIcons();
}

// The style's own least width of a button is made for longer words, and four of them would not fit.
void SequencePanel::fitCaptions() {
    for (QPushButton* button : {seqSave, seqNew, seqDel, seqNotes}) {
        const int text = button->fontMetrics().horizontalAdvance(button->text());
        button->setFixedWidth(text + text / 5 + kButtonSides);
    }
}

void SequencePanel::showIcons() {
    cmdSeqNoDown->setIcon(platform::themedIcon(QStringLiteral("seq_down"), palette()));
    cmdSeqNoUp->setIcon(platform::themedIcon(QStringLiteral("seq_up"), palette()));
}

void SequencePanel::changeEvent(QEvent* event) {
    QGroupBox::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && cmdSeqNoUp != nullptr) {
        showIcons();
    }
}

} // namespace zeltrona::session
