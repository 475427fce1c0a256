#include "output/board_picture.h"

#include <QFile>

#include <cstdio>

namespace zeltrona::output {
namespace {

bool writeBitmap(const QImage& picture, const QString& path) {
    QFile file(path);
    // The alpha channel of the retained image means nothing, and most readers want 24 bits.
    return file.open(QIODevice::WriteOnly) && picture.convertToFormat(QImage::Format_RGB32).save(&file, "BMP")
           && file.flush() && file.error() == QFileDevice::NoError;
}

} // namespace

bool saveBitmap(const QImage& picture, const QString& path) {
    const QString beside = path + u'~';
    if (writeBitmap(picture, beside)
        && std::rename(QFile::encodeName(beside).constData(), QFile::encodeName(path).constData()) == 0) {
        return true;
    }
    QFile::remove(beside);
    return false;
}

} // namespace zeltrona::output
