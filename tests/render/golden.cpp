#include "tests/render/golden.h"

#include <QDir>

namespace zeltrona::render {

namespace {

QImage differenceOf(const QImage& actual, const QImage& expected) {
    QImage difference(actual.size(), QImage::Format_RGB32);
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            const bool isSame = expected.valid(x, y) && actual.pixel(x, y) == expected.pixel(x, y);
            difference.setPixel(x, y, isSame ? qRgb(255, 255, 255) : qRgb(255, 0, 0));
        }
    }
    return difference;
}

void leavePictures(const QImage& actual, const QImage& expected, const QString& name) {
    const QDir folder(QStringLiteral(ZELTRONA_BINARY_DIR "/golden"));
    folder.mkpath(QStringLiteral("."));
    actual.save(folder.filePath(name + QStringLiteral("_actual.png")));
    expected.save(folder.filePath(name + QStringLiteral("_expected.png")));
    differenceOf(actual, expected).save(folder.filePath(name + QStringLiteral("_difference.png")));
}

} // namespace

testing::AssertionResult looksLikeGolden(const QImage& actual, const char* name) {
    const QDir folder(QStringLiteral(ZELTRONA_SOURCE_DIR "/tests/render/golden"));
    const QString path = folder.filePath(QString::fromLatin1(name) + QStringLiteral(".png"));
    const QImage plain = actual.convertToFormat(QImage::Format_RGB32);
    if (qEnvironmentVariable("ZELTRONA_REWRITE_GOLDEN") == QStringLiteral("1")) {
        folder.mkpath(QStringLiteral("."));
        return plain.save(path) ? testing::AssertionSuccess()
                                : testing::AssertionFailure() << "can't write " << path.toStdString();
    }
    const QImage expected = QImage(path).convertToFormat(QImage::Format_RGB32);
    if (expected == plain) {
        return testing::AssertionSuccess();
    }
    leavePictures(plain, expected, QString::fromLatin1(name));
    return testing::AssertionFailure()
           << name << " differs; see the pictures in " ZELTRONA_BINARY_DIR "/golden";
}

} // namespace zeltrona::render
