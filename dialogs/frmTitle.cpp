#include "dialogs/frmTitle.h"

#include "dialogs/captions.h"
#include "dialogs/form_controls.h"
#include "dialogs/limited_edit.h"
#include "dialogs/play_font.h"
#include "document/code_page.h"
#include "document/user_texts.h"
#include "platform/spoken_caption.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zeltrona::dialogs {

frmTitle::frmTitle(document::PlayFile& play, document::Session& session, QWidget* parent)
    : QDialog(parent), m_play(play), m_session(session) {
    setObjectName(QStringLiteral("frmTitle"));
    setWindowTitle(QStringLiteral("Zeltrona - Title"));
    setAccessibleName(windowTitle());
    setModal(true);
    buildControls();
    showCaptions(session, {{15, [this](const QString& text) { m_titleLabel->setText(text); }},
                           {16, [this](const QString& text) { m_descriptionLabel->setText(text); }},
                           {3, [this](const QString& text) { m_next->setText(text); }}});
    platform::speakCaptions(*this);
    const PlayFont font = readPlayFont(this, play);
    m_session.fontCharset = font.charset;
    showFont(font.name);
    fillFromPlay();
    resize(minimumSizeHint());
}

void frmTitle::buildControls() {
    m_titleLabel = named(new QLabel, "Label1", QStringLiteral("Title of the play"));
    m_descriptionLabel = named(new QLabel, "Label2", QStringLiteral("Description of the play"));
    m_title = named(new QLineEdit, "Text1", QStringLiteral("Title"));
    m_description = named(new LimitedEdit([this](const QString& text) {
                              return limitDescription(storableDescription(text, m_session.fontCharset));
                          }),
                          "Text2", QStringLiteral("Description, four lines at the most"));
    m_font = named(new QPushButton(QStringLiteral("&Font...")), "cmdFont", QStringLiteral("Choose the font"));
    m_next = named(new QPushButton, "Command1", QStringLiteral("Next"));
    m_titleLabel->setBuddy(m_title);
    m_descriptionLabel->setBuddy(m_description);
    m_font->setAutoDefault(false);
    m_next->setDefault(true);
    m_description->setMinimumSize(440, m_description->fontMetrics().lineSpacing() * 5 + 16);

    connect(m_title, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (const QString kept = storableText(text, m_session.fontCharset); kept != text) {
            m_title->setText(kept);
        }
    });
    connect(m_font, &QPushButton::clicked, this, [this] {
        cmdFont_Click(this, m_play, m_session, [this](const PlayFont& font) { showFont(font.name); });
    });
    connect(m_next, &QPushButton::clicked, this, &QDialog::accept);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
    grid->setSpacing(kGap);
    grid->addWidget(m_titleLabel, 0, 0);
    grid->addWidget(m_title, 0, 1);
    grid->addWidget(m_descriptionLabel, 1, 0, Qt::AlignTop);
    grid->addWidget(m_description, 1, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_font);
    buttons->addStretch();
    buttons->addWidget(m_next);
    grid->setRowMinimumHeight(2, kEdge - kGap);
    grid->addLayout(buttons, 3, 0, 1, 2);
    grid->setRowStretch(1, 1);
}

void frmTitle::fillFromPlay() {
    const std::int16_t charset = m_session.fontCharset;
    m_title->setText(QString::fromStdString(document::toUtf8(document::readTitle(m_play), charset)));
    std::string head = document::toUtf8(document::withLineBreaks(document::readHead(m_play)), charset);
    m_description->setPlainText(QString::fromStdString(head).remove(u'\r'));
}

void frmTitle::showFont(const QString& name) {
    showFontOn(*m_title, name);
    showFontOn(*m_description, name);
    // Another code page may lack what the boxes hold.
    m_title->setText(storableText(m_title->text(), m_session.fontCharset));
    m_description->applyRule();
}

void frmTitle::done(int result) {
    const std::int16_t charset = m_session.fontCharset;
    QString description = m_description->toPlainText();
    description.replace(u'\n', QStringLiteral("\r\n"));
    document::writeTitle(m_play, document::fromUtf8(m_title->text().toStdString(), charset).bytes,
                         document::fromUtf8(description.toStdString(), charset).bytes);
    QDialog::done(result);
}

} // namespace zeltrona::dialogs
