#include "dialogs/frmNotes.h"

#include "dialogs/captions.h"
#include "dialogs/form_controls.h"
#include "dialogs/limited_edit.h"
#include "dialogs/play_font.h"
#include "document/code_page.h"
#include "document/user_texts.h"
#include "platform/spoken_caption.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zeltrona::dialogs {

frmNotes::frmNotes(document::PlayFile& play, document::Session& session, QWidget* parent)
    : QDialog(parent), m_play(play), m_session(session) {
    setObjectName(QStringLiteral("frmNotes"));
    setWindowTitle(QStringLiteral("Zeltrona - Notes"));
    setAccessibleName(windowTitle());
    setModal(true);
    buildControls();
    setNotesCaptions();
    platform::speakCaptions(*this);
    const PlayFont font = readPlayFont(this, play);
    m_session.fontCharset = font.charset;
    showFont(font.name);
    m_note->setPlainText(
        QString::fromStdString(document::toUtf8(document::readNote(play, session.currFrame), font.charset)));
    resize(minimumSizeHint());
}

void frmNotes::buildControls() {
    m_label = named(new QLabel, "Label2", QStringLiteral("Note of the shown frame"));
    m_note = named(new LimitedEdit([this](const QString& text) {
                       return limitNote(storableText(text, m_session.fontCharset));
                   }),
                   "Text2", QStringLiteral("Note, a single line"));
    m_font = named(new QPushButton(QStringLiteral("&Font...")), "cmdFont", QStringLiteral("Choose the font"));
    m_next = named(new QPushButton, "Command1", QStringLiteral("Next"));
    m_label->setBuddy(m_note);
    m_font->setAutoDefault(false);
    m_next->setDefault(true);
    m_note->setMinimumSize(400, m_note->fontMetrics().lineSpacing() * 3 + 16);

    connect(m_font, &QPushButton::clicked, this, [this] {
        cmdFont_Click(this, m_play, m_session, [this](const PlayFont& font) { showFont(font.name); });
    });
    connect(m_next, &QPushButton::clicked, this, &QDialog::accept);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
    column->setSpacing(kGap);
    column->addWidget(m_label);
    column->addWidget(m_note);
    column->addSpacing(kEdge - kGap);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_font);
    buttons->addStretch();
    buttons->addWidget(m_next);
    column->addLayout(buttons);
}

void frmNotes::setNotesCaptions() {
    showCaptions(m_session, {{3, [this](const QString& text) { m_next->setText(text); }},
                             {21, [this](const QString& text) { m_label->setText(text); }}});
}

void frmNotes::showFont(const QString& name) {
    showFontOn(*m_note, name);
    m_note->applyRule();
}

void frmNotes::done(int result) {
    document::writeNote(m_play, m_session.currFrame,
                        document::fromUtf8(m_note->toPlainText().toStdString(), m_session.fontCharset).bytes);
    QDialog::done(result);
}

} // namespace zeltrona::dialogs
