#include "assets/resources.h"
#include "tools/art/catalogue.h"

#include <QDir>
#include <QFile>
#include <QString>

#include <gtest/gtest.h>
#include <map>

namespace zeltrona::art {

namespace {

class CommittedFiles : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        assets::initResources();
        drawn() = drawAll();
    }

    static std::vector<ArtFile>& drawn() {
        static std::vector<ArtFile> files;
        return files;
    }

    static QString folder() { return QStringLiteral(ZELTRONA_SOURCE_DIR "/assets/art"); }
};

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST_F(CommittedFiles, HaveThePixelsThatTheGeneratorDraws) {
    for (const ArtFile& art : drawn()) {
        if (art.text.isEmpty()) {
            const QImage committed(folder() + '/' + QString::fromStdString(art.name));
            EXPECT_EQ(committed.convertToFormat(QImage::Format_ARGB32),
                      art.picture.convertToFormat(QImage::Format_ARGB32))
                << art.name;
        }
    }
}

TEST_F(CommittedFiles, HaveTheShapesThatTheGeneratorWrites) {
    for (const ArtFile& art : drawn()) {
        if (!art.text.isEmpty()) {
            EXPECT_EQ(contentOf(folder() + '/' + QString::fromStdString(art.name)), art.text) << art.name;
        }
    }
}

TEST_F(CommittedFiles, AreNoMoreThanTheGeneratorMakes) {
    EXPECT_EQ(QDir(folder()).entryList(QDir::Files).size(), static_cast<qsizetype>(drawn().size()));
}

TEST_F(CommittedFiles, AreAllCompiledIn) {
    for (const ArtFile& art : drawn()) {
        const QString name = QString::fromStdString(art.name);
        EXPECT_EQ(contentOf(QStringLiteral(":/art/") + name), contentOf(folder() + '/' + name)) << art.name;
    }
}

TEST_F(CommittedFiles, HaveNamesOfTheirOwn) {
    std::map<std::string, int> seen;
    for (const ArtFile& art : drawn()) {
        EXPECT_EQ(++seen[art.name], 1) << art.name;
    }
}

} // namespace zeltrona::art
