#include "output/whole_pdf.h"

#include <QList>

namespace zeltrona::output {

bool isWholePdf(const QByteArray& bytes) {
    const qsizetype mark = bytes.lastIndexOf("startxref");
    if (!bytes.startsWith("%PDF-") || mark < 0) {
        return false;
    }
    const QList<QByteArray> end = bytes.mid(mark).simplified().split(' ');
    bool isNumber = false;
    const qsizetype table = end.value(1).toLongLong(&isNumber);
    return isNumber && table > 0 && table < mark && end.value(2) == "%%EOF" && bytes.mid(table, 4) == "xref";
}

} // namespace zeltrona::output
