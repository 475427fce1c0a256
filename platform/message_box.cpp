#include "platform/message_box.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace zeltrona::platform {

namespace {

QMessageBox::Icon toolkitIcon(Icon icon) {
    switch (icon) {
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::Critical:
        return QMessageBox::Critical;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

} // namespace

Answer showMessage(QWidget* parent, const QString& text, Icon icon, Buttons buttons, const QString& title) {
    const auto choice = buttons == Buttons::YesNo ? QMessageBox::Yes | QMessageBox::No
                                                  : QMessageBox::StandardButtons(QMessageBox::Ok);
    // On the heap: when the window goes while the question is open, it takes the box with it.
    const QPointer<QMessageBox> box = new QMessageBox(toolkitIcon(icon), title, text, choice, parent);
    box->setObjectName(QStringLiteral("messageBox"));
    box->setAccessibleName(title);
    // A text of ours is never markup, and a file name in it may look like some.
    box->setTextFormat(Qt::PlainText);
    const int pressed = box->exec();
    delete box;
    if (buttons == Buttons::Ok) {
        return Answer::Ok;
    }
    return pressed == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

void showTrappedError(QWidget* parent, int number, const QString& description) {
    const QString text =
        QStringLiteral("Error: \nError Number:%1\nDescription:%2").arg(QString::number(number), description);
    showMessage(parent, text, Icon::Critical, Buttons::Ok, QStringLiteral("Error"));
}

void showRunTimeError(QWidget* parent, int number, const QString& description) {
    showMessage(parent,
                QStringLiteral("Run-time error '%1':\n\n%2").arg(QString::number(number), description),
                Icon::Critical);
}

} // namespace zeltrona::platform
