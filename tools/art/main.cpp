#include "tools/art/catalogue.h"

#include <QDir>
#include <QFile>
#include <QString>

#include <cstdio>

namespace {

bool writeFile(const QString& path, const zeltrona::art::ArtFile& art) {
    if (art.text.isEmpty()) {
        return art.picture.save(path, "PNG");
    }
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(art.text) == art.text.size();
}

} // namespace

/// zeltrona-art FOLDER: draws every picture of the program and writes it to the folder.
int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: zeltrona-art FOLDER\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    if (!folder.mkpath(".")) {
        std::fprintf(stderr, "zeltrona-art: cannot make %s\n", argv[1]);
        return 1;
    }
    for (const zeltrona::art::ArtFile& art : zeltrona::art::drawAll()) {
        if (!writeFile(folder.filePath(QString::fromStdString(art.name)), art)) {
            std::fprintf(stderr, "zeltrona-art: cannot write %s\n", art.name.c_str());
            return 1;
        }
    }
    return 0;
}
