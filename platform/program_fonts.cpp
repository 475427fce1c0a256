#include "platform/program_fonts.h"

#include <QFontInfo>
#include <QGuiApplication>

#include <algorithm>

namespace zeltrona::platform {

namespace {

/// Faces with the advance widths of Arial, the one to be preferred first.
const QStringList& arialSubstitutes() {
    static const QStringList names{QStringLiteral("Liberation Sans"), QStringLiteral("Arimo")};
    return names;
}

} // namespace

void useProgramFonts() {
    QFont::insertSubstitutions(QStringLiteral("Arial"), arialSubstitutes());
}

bool isArialAvailable() {
    const QString family = QFontInfo(QFont(QStringLiteral("Arial"))).family();
    const auto is = [&](const QString& name) { return family.compare(name, Qt::CaseInsensitive) == 0; };
    return is(QStringLiteral("Arial")) || std::ranges::any_of(arialSubstitutes(), is);
}

QFont headingFont() {
    QFont font = QGuiApplication::font();
    font.setBold(true);
    return font;
}

} // namespace zeltrona::platform
