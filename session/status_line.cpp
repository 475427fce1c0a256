#include "session/status_line.h"

#include "platform/themed_icon.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>

namespace zeltrona::session {

namespace {

constexpr int kLines = 2;
constexpr int kSide = 12;
constexpr int kAbove = 4;
constexpr int kWarningBar = 4;

/// Wrapped at the width; what two lines cannot hold ends in dots, and the tool tip has it whole.
void paintWrapped(QPainter& painter, const QRect& space, const QString& text) {
    QTextLayout layout(text, painter.font());
    layout.beginLayout();
    int top = space.top();
    for (int number = 1; number <= kLines; ++number) {
        QTextLine line = layout.createLine();
        if (!line.isValid()) {
            break;
        }
        line.setLineWidth(space.width());
        const QString rest = text.mid(line.textStart());
        const bool isLast = number == kLines || line.textStart() + line.textLength() >= text.size();
        const QString shown = isLast ? painter.fontMetrics().elidedText(rest, Qt::ElideRight, space.width())
                                     : rest.left(line.textLength());
        painter.drawText(space.left(), top + painter.fontMetrics().ascent(), shown);
        top += painter.fontMetrics().height();
        if (isLast) {
            break;
        }
    }
    layout.endLayout();
}

} // namespace

StatusLine::StatusLine(QWidget* parent) : QWidget(parent) {}

QString StatusLine::text() const {
    return m_warning.isEmpty() ? m_hint : m_warning + QLatin1Char(' ') + m_hint;
}

void StatusLine::print(const QString& hint) {
    m_hint = hint;
    showText();
}

void StatusLine::setWarning(const QString& warning) {
    m_warning = warning;
    showText();
}

void StatusLine::showText() {
    setToolTip(fontMetrics().horizontalAdvance(text()) > kLines * (width() - 2 * kSide) ? text() : QString());
    setAccessibleDescription(text());
    update();
    emit textChanged(text());
}

QSize StatusLine::sizeHint() const {
    return {0, kLines * fontMetrics().height() + 2 * kAbove};
}

void StatusLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(0, 0, width(), 1, palette().color(QPalette::Mid));
    if (!m_warning.isEmpty()) {
        painter.fillRect(0, 1, kWarningBar, height() - 1, QColor(platform::kAccent));
        QFont strong = font();
        strong.setBold(true);
        painter.setFont(strong);
    }
    painter.setPen(palette().color(QPalette::WindowText));
    const bool fitsOneLine = painter.fontMetrics().horizontalAdvance(text()) <= width() - 2 * kSide;
    QRect space = rect().adjusted(kSide, kAbove, -kSide, -kAbove);
    if (fitsOneLine) {
        space.setTop(space.top() + (space.height() - painter.fontMetrics().height()) / 2);
    }
    paintWrapped(painter, space, text());
}

} // namespace zeltrona::session
