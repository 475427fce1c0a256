#include "platform/links.h"

#include "platform/message_box.h"

#include <QDesktopServices>
#include <QUrl>

namespace zeltrona::platform {

namespace {

void open(QWidget* parent, const QString& address, const QString& advice) {
    if (!QDesktopServices::openUrl(QUrl(address))) {
        showMessage(parent, advice + QLatin1Char('\n') + address);
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

} // namespace zeltrona::platform
