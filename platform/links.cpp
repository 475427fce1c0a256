#include "platform/links.h"

#include "platform/message_box.h"

#include <QDeadlineTimer>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QPointer>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <QWidget>

namespace zeltrona::platform {

namespace {

constexpr int kAnswerTime = 10'000;

void tellAddress(QWidget* parent, const QString& address, const QString& advice) {
    showMessage(parent, advice + QLatin1Char('\n') + address);
}

/// Empty where there is no such program or no desktop, as off screen.
QString desktopOpener() {
    const QString desktop = QGuiApplication::platformName();
    const bool known = desktop == QLatin1String("xcb") || desktop.startsWith(QLatin1String("wayland"));
    return known ? QStandardPaths::findExecutable(QStringLiteral("xdg-open")) : QString();
}

void open(QWidget* parent, const QString& address, const QString& advice) {
    if (const QString opener = desktopOpener(); !opener.isEmpty()) {
        openThrough(opener, parent, address, advice);
    } else if (!QDesktopServices::openUrl(QUrl(address))) {
        tellAddress(parent, address, advice);
    }
}

} // namespace

QString webAddress(const QString& url) {
    return url.startsWith(QLatin1String("http")) ? url : QStringLiteral("http://") + url;
}

QString mailAddress(const QString& address) {
    return address.startsWith(QLatin1String("mailto:")) ? address : QStringLiteral("mailto:") + address;
}

void openWebPage(QWidget* parent, const QString& url) {
    open(parent, webAddress(url), QStringLiteral("Please,visit web page:"));
}

void openMail(QWidget* parent, const QString& address) {
    open(parent, mailAddress(address), QStringLiteral("Please,send email to:"));
}

void openThrough(const QString& opener, QWidget* parent, const QString& address, const QString& advice) {
    // Without an owner: some openers live as long as the browser, and must not be ended with this program.
    auto* process = new QProcess;
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->setStandardInputFile(QProcess::nullDevice());
    const auto answered = [process, owner = QPointer<QWidget>(parent), hadOwner = parent != nullptr, address,
                           advice, inTime = QDeadlineTimer(kAnswerTime)](bool opened) {
        if (!opened && !inTime.hasExpired() && (owner || !hadOwner)) {
            tellAddress(owner, address, advice);
        }
        process->deleteLater();
    };
    QObject::connect(process, &QProcess::finished, process,
                     [answered](int code, QProcess::ExitStatus status) {
                         answered(status == QProcess::NormalExit && code == 0);
                     });
    QObject::connect(process, &QProcess::errorOccurred, process, [answered](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            answered(false);
        }
    });
    process->start(opener, {address});
}

} // namespace zeltrona::platform
