#include "dialogs/limited_edit.h"

#include "platform/message_box.h"

#include <QKeyEvent>

#include <algorithm>

namespace zeltrona::dialogs {

LimitedEdit::LimitedEdit(Rule rule, QWidget* parent) : QPlainTextEdit(parent), m_rule(std::move(rule)) {
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &LimitedEdit::applyRule);
}

void LimitedEdit::applyRule() {
    if (m_applying) {
        return;
    }
    const LimitedText kept = m_rule(toPlainText());
    if (kept.text != toPlainText()) {
        m_applying = true;
        const int place = textCursor().position();
        setPlainText(kept.text);
        QTextCursor cursor = textCursor();
        cursor.setPosition(std::min(place, static_cast<int>(kept.text.size())));
        setTextCursor(cursor);
        m_applying = false;
    }
    if (!kept.message.isEmpty()) {
        platform::showMessage(window(), kept.message);
    }
}

void LimitedEdit::keyPressEvent(QKeyEvent* event) {
    // A soft line break would be a character of its own in the text; every break here is a plain one.
    if (event->matches(QKeySequence::InsertLineSeparator)) {
        insertPlainText(QStringLiteral("\n"));
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

} // namespace zeltrona::dialogs
