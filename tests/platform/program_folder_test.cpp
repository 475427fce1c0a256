#include "platform/program_folder.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace zeltrona::platform {
namespace {

TEST(ProgramFolder, IsWhereTheProgramLies) {
    EXPECT_EQ(programFolder(), QFileInfo(QCoreApplication::applicationFilePath()).path());
    EXPECT_FALSE(programFolder().endsWith(QLatin1Char('/')));
}

TEST(ProgramFolder, PlaysLieInFilesOfIt) {
    EXPECT_EQ(playsFolder(), programFolder() + QStringLiteral("/Files"));
}

} // namespace
} // namespace zeltrona::platform
