#include "platform/spoken_caption.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

namespace zeltrona::platform {

namespace {

QString captionOf(const QWidget& control) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
        return button->text().remove(u'&');
    }
    if (const auto* label = qobject_cast<const QLabel*>(&control)) {
        return label->buddy() != nullptr ? label->text().remove(u'&') : label->text();
    }
    if (const auto* group = qobject_cast<const QGroupBox*>(&control)) {
        return group->title().remove(u'&');
    }
    return {};
}

} // namespace

void speakCaption(QWidget& control) {
    const QString caption = captionOf(control);
    if (caption.trimmed().isEmpty()) {
        return;
    }
    if (control.accessibleDescription().isEmpty()) {
        control.setAccessibleDescription(control.accessibleName());
    }
    const bool isSign = caption.size() == 1 && !control.accessibleDescription().isEmpty();
    control.setAccessibleName(isSign ? caption + QStringLiteral(": ") + control.accessibleDescription()
                                     : caption);
}

void speakCaptions(QWidget& form) {
    const auto controls = form.findChildren<QWidget*>();
    for (QWidget* control : controls) {
        if (!control->objectName().startsWith(QLatin1String("qt_"))) {
            speakCaption(*control);
        }
    }
}

} // namespace zeltrona::platform
