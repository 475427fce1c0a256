#include "platform/program_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace zeltrona::platform {

namespace {

QString samplesOf(const QString& program) {
    return program + QStringLiteral("/Files");
}

bool takesFiles(const QString& program) {
    const QFileInfo samples(samplesOf(program));
    return samples.exists() ? samples.isWritable() : QFileInfo(program).isWritable();
}

/// Dialogs of the desktop know no other way to lead back to the samples than something in the folder itself.
void linkToSamples(const QString& program, const QString& folder) {
    const QString link = folder + QStringLiteral("/Sample plays");
    if (QFileInfo::exists(samplesOf(program))) {
        QFile::link(samplesOf(program), link);
    }
}

} // namespace

QString programFolder() {
    return QCoreApplication::applicationDirPath();
}

QString playsFolderOf(const QString& program, const QString& documents) {
    if (takesFiles(program)) {
        return samplesOf(program);
    }
    QString own = documents + QStringLiteral("/Zeltrona");
    if (!QFileInfo(own).isDir()) {
        if (!QDir().mkpath(own)) {
            return QDir::homePath();
        }
        linkToSamples(program, own);
    }
    return own;
}

QString playsFolder() {
    return playsFolderOf(programFolder(),
                         QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
}

QString folderToSaveIn(const QString& standing) {
    return QFileInfo(standing).isWritable() ? standing : playsFolder();
}

void beginInOwnPlays() {
    if (!takesFiles(programFolder())) {
        QDir::setCurrent(playsFolder());
    }
}

} // namespace zeltrona::platform
