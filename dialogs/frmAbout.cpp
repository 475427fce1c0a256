#include "dialogs/frmAbout.h"

#include "dialogs/form_controls.h"
#include "platform/message_box.h"
#include "platform/program_fonts.h"
#include "platform/spoken_caption.h"
#include "platform/system_info.h"
#include "platform/themed_icon.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace zeltrona::dialogs {

frmAbout::frmAbout(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("About Zeltrona"));
    setAccessibleName(windowTitle());
    setModal(true);
    auto* picture = named(new QLabel, "picIcon", QStringLiteral("Mark of Zeltrona"));
    picture->setPixmap(platform::themedIcon(QStringLiteral("zeltrona"), palette()).pixmap(64, 64));
    auto* title =
        named(new QLabel(QStringLiteral("Zeltrona")), "lblTitle", QStringLiteral("Name of the program"));
    title->setFont(platform::headingFont());
    auto* version =
        named(new QLabel(QStringLiteral("Version %1").arg(QCoreApplication::applicationVersion())),
              "lblVersion", QStringLiteral("Version"));
    auto* what = named(new QLabel(QStringLiteral("The play board for basketball coaches.")), "lblDescription",
                       QStringLiteral("What the program is"));
    auto* system = named(new QPushButton(QStringLiteral("&System Info...")), "cmdSysInfo",
                         QStringLiteral("System information"));
    auto* close = named(new QPushButton(QStringLiteral("OK")), "cmdOK", QStringLiteral("Close"));
    system->setAutoDefault(false);
    close->setDefault(true);
    connect(system, &QPushButton::clicked, this, &frmAbout::StartSysInfo);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
    grid->setSpacing(kGap);
    grid->addWidget(picture, 0, 0, 3, 1, Qt::AlignTop);
    grid->addWidget(title, 0, 1, 1, 2);
    grid->addWidget(version, 1, 1, 1, 2);
    grid->addWidget(what, 2, 1, 1, 2);
    grid->setRowMinimumHeight(3, kEdge);
    grid->addWidget(system, 4, 1);
    grid->addWidget(close, 4, 2);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(kEdge);
    platform::speakCaptions(*this);
}

void frmAbout::StartSysInfo() {
    if (!platform::startSystemInformation()) {
        platform::showMessage(this, QStringLiteral("System Information Is Unavailable At This Time"),
                              platform::Icon::None, platform::Buttons::Ok, QStringLiteral("Zeltrona"));
    }
}

} // namespace zeltrona::dialogs
