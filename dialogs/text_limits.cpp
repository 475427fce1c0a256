#include "dialogs/text_limits.h"

#include "document/code_page.h"
#include "document/user_texts.h"

namespace zeltrona::dialogs {
namespace {

constexpr int kLines = 4;
constexpr int kDescriptionLimit = 255;
constexpr int kNoteLimit = 100;

/// Place of the n-th line break (from 1), or -1.
qsizetype lineBreakAt(const QString& text, int n) {
    qsizetype at = -1;
    for (int found = 0; found < n; ++found) {
        at = text.indexOf(u'\n', at + 1);
        if (at < 0) {
            break;
        }
    }
    return at;
}

qsizetype typedLength(const QString& text) {
    return text.size() + text.count(u'\n');
}

QString tooLong(int limit) {
    return QStringLiteral("max %1 char!").arg(limit);
}

/// Cuts so that the typed length stays below the limit; half a line break does not stay.
QString cutBelow(QString text, int limit) {
    while (typedLength(text) >= limit) {
        text.chop(1);
    }
    if (!text.isEmpty() && text.back().isHighSurrogate()) {
        text.chop(1);
    }
    return text;
}

} // namespace

LimitedText limitDescription(const QString& text) {
    LimitedText result{text, {}};
    if (const qsizetype fourth = lineBreakAt(text, kLines); fourth >= 0) {
        result.text.truncate(fourth);
        result.message = QStringLiteral("max 4 lines!");
    }
    if (typedLength(result.text) >= kDescriptionLimit) {
        result.text = cutBelow(result.text, kDescriptionLimit);
        if (result.message.isEmpty()) {
            result.message = tooLong(kDescriptionLimit);
        }
    }
    return result;
}

LimitedText limitNote(const QString& text) {
    LimitedText result{text, {}};
    while (result.text.endsWith(u'\n')) {
        result.text.chop(1);
    }
    result.text.replace(u'\n', u' ');
    if (result.text.size() >= kNoteLimit) {
        result.text = cutBelow(result.text, kNoteLimit);
        result.message = tooLong(kNoteLimit);
    }
    return result;
}

QString storableText(const QString& text, std::int16_t charset) {
    const document::Encoded bytes = document::fromUtf8(text.toStdString(), charset);
    return bytes.complete ? text : QString::fromStdString(document::toUtf8(bytes.bytes, charset));
}

QString storableDescription(const QString& text, std::int16_t charset) {
    QString kept = storableText(text, charset);
    const QString mark =
        QString::fromStdString(document::toUtf8(std::string(1, document::kBreakMark), charset));
    if (mark.size() == 1 && mark.front() != QChar::ReplacementCharacter) {
        kept.remove(mark);
    }
    return kept;
}

} // namespace zeltrona::dialogs
