#include "dialogs/frmTxtMsg.h"

#include "dialogs/captions.h"
#include "dialogs/form_controls.h"
#include "platform/spoken_caption.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace zeltrona::dialogs {

frmTxtMsg::frmTxtMsg(document::Session& session, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmTxtMsg"));
    setWindowTitle(QStringLiteral("Zeltrona"));
    setAccessibleName(QStringLiteral("Notice about character sets"));
    setModal(true);
    auto* notice = named(new QLabel, "Label1", QStringLiteral("Notice about character sets"));
    auto* quiet = named(new QCheckBox, "Check1", QStringLiteral("Do not show this notice again"));
    auto* button = named(new QPushButton, "OKButton", QStringLiteral("Go on"));
    notice->setWordWrap(true);
    notice->setMinimumWidth(380);
    button->setDefault(true);
    button->setFocus();
    showCaptions(session, {{33, [notice](const QString& text) { notice->setText(text); }},
                           {34, [quiet](const QString& text) { quiet->setText(text); }},
                           {3, [button](const QString& text) { button->setText(text); }}});
    connect(quiet, &QCheckBox::toggled, this, [&session](bool checked) {
        if (checked) {
            session.hideCharsetMessage = true;
        }
    });
    connect(button, &QPushButton::clicked, this, &QDialog::accept);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
    grid->setSpacing(kEdge);
    grid->addWidget(notice, 0, 0, 1, 2);
    grid->addWidget(quiet, 1, 0);
    grid->addWidget(button, 1, 1, Qt::AlignRight);
    grid->setColumnStretch(0, 1);
    platform::speakCaptions(*this);
}

} // namespace zeltrona::dialogs
