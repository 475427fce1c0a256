#pragma once

#include "tests/zpf/program_run.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::zpf {

inline constexpr const char* kConfig =
    "[Config]\r\ncolorOff=255\r\ncolorOffFont=16777215\r\ntxtOff0=4\r\nline=2\r\n"
    "court=1\r\ncourtColor=16777215\r\n";
inline constexpr const char* kFrames =
    "[Frame1]\r\nframe=1\r\noff0=100,200\r\n[Frame2]\r\nframe=2\r\noff0=200,100\r\n";

/// A folder of its own with plays in it.
class CommandTest : public testing::Test {
protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString write(const QString& name, const QByteArray& bytes) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    QString writePlay(const QString& name) const { return write(name, QByteArray(kConfig) + kFrames); }
    QByteArray read(const QString& name) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll();
    }

private:
    QTemporaryDir m_folder;
};

} // namespace zeltrona::zpf
