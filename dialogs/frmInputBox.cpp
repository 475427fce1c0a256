#include "dialogs/frmInputBox.h"

#include "dialogs/form_controls.h"
#include "dialogs/play_font.h"
#include "dialogs/text_limits.h"
#include "platform/spoken_caption.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

namespace zeltrona::dialogs {

frmInputBox::frmInputBox(const QString& fontName, std::int16_t charset, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmInputBox"));
    setWindowTitle(QStringLiteral("Zeltrona - Text"));
    setAccessibleName(windowTitle());
    setModal(true);
    m_text = named(new QLineEdit, "Text1", QStringLiteral("Text for the board"));
    auto* done = named(new QPushButton(QStringLiteral("OK")), "Command1", QStringLiteral("Take the text"));
    done->setDefault(true);
    m_text->setMinimumWidth(320);
    showFontOn(*m_text, fontName);
    connect(m_text, &QLineEdit::textChanged, this, [this, charset](const QString& text) {
        if (const QString kept = storableText(text, charset); kept != text) {
            m_text->setText(kept);
        }
    });
    connect(done, &QPushButton::clicked, this, [this] {
        m_typed = m_text->text();
        accept();
    });
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
    row->setSpacing(kGap);
    row->addWidget(m_text);
    row->addWidget(done);
    platform::speakCaptions(*this);
}

} // namespace zeltrona::dialogs
