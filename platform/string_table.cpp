#include "platform/string_table.h"

#include <QFile>

namespace zeltrona::platform {

namespace {

std::map<std::int16_t, QString> loadTable() {
    QFile file(QStringLiteral(":/strings/strings.txt"));
    return file.open(QIODevice::ReadOnly) ? parseStringTable(file.readAll())
                                          : std::map<std::int16_t, QString>{};
}

} // namespace

std::map<std::int16_t, QString> parseStringTable(const QByteArray& utf8) {
    std::map<std::int16_t, QString> table;
    const auto lines = utf8.split('\n');
    for (const QByteArray& line : lines) {
        const auto tab = line.indexOf('\t');
        bool isNumber = false;
        const short id = line.left(tab).toShort(&isNumber);
        if (tab > 0 && isNumber) {
            table.emplace(id, QString::fromUtf8(line.mid(tab + 1)));
        }
    }
    return table;
}

std::optional<QString> lookUpString(std::int16_t id) {
    static const auto table = loadTable();
    const auto found = table.find(id);
    return found == table.end() ? std::nullopt : std::optional(found->second);
}

QString missingStringText(std::int16_t id) {
    return QStringLiteral("Resource with identifier '%1' not found").arg(id);
}

} // namespace zeltrona::platform
