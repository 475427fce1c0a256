#include "tools/zpf/check/finding.h"
#include "tools/zpf/commands.h"

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

namespace zeltrona::zpf {
namespace {

QByteArray paper(const char* name) {
    QFile file(QStringLiteral(ZELTRONA_SOURCE_DIR "/packaging/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll().replace("\\-", "-");
}

/// What the shell would offer for the last of these words.
QStringList offered(const QString& words, const QString& folder = QStringLiteral("/")) {
    QProcess shell;
    shell.setWorkingDirectory(folder);
    shell.start(
        QStringLiteral("bash"),
        {QStringLiteral("-c"),
         QStringLiteral(". \"" ZELTRONA_SOURCE_DIR "/packaging/zpf.bash\"; COMP_WORDS=(%1); "
                        "COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _zpf 2>/dev/null; echo \"${COMPREPLY[*]}\"")
             .arg(words)});
    EXPECT_TRUE(shell.waitForFinished());
    return QString::fromUtf8(shell.readAllStandardOutput())
        .simplified()
        .split(QChar::Space, Qt::SkipEmptyParts);
}

TEST(ManualPage, TellsEveryCommandAndOption) {
    const QByteArray page = paper("man/zpf.1.in");
    for (const Command& command : allCommands()) {
        EXPECT_TRUE(page.contains(".B zpf " + QByteArray(command.form.name.data()))) << command.form.name;
        for (const OptionForm& option : command.form.options) {
            EXPECT_TRUE(page.contains("--" + QByteArray(option.name.data()))) << option.name;
        }
    }
}

TEST(ManualPage, TellsEveryKindOfFinding) {
    const QByteArray page = paper("man/zpf.1.in");
    for (int kind = 0; kind <= static_cast<int>(FindingKind::LostCharacter); ++kind) {
        const auto name = findingName(static_cast<FindingKind>(kind));
        EXPECT_TRUE(page.contains(QByteArray(name.data(), static_cast<qsizetype>(name.size())))) << name;
    }
}

TEST(Completion, OffersTheCommands) {
    QStringList names{"help", "--help", "--version"};
    for (const Command& command : allCommands()) {
        names.append(QString::fromLatin1(command.form.name.data()));
    }
    QStringList found = offered("zpf ''");
    found.sort();
    names.sort();
    EXPECT_EQ(found, names);
    EXPECT_EQ(offered("zpf re"), QStringList({"render", "report"}));
    EXPECT_EQ(offered("zpf help re"), QStringList({"render", "report"}));
}

TEST(Completion, OffersTheOptionsOfACommand) {
    for (const Command& command : allCommands()) {
        QStringList names{"--help"};
        for (const OptionForm& option : command.form.options) {
            names.append("--" + QString::fromLatin1(option.name.data()));
        }
        QStringList found = offered("zpf " + QString::fromLatin1(command.form.name.data()) + " -");
        found.sort();
        names.sort();
        EXPECT_EQ(found, names);
    }
}

TEST(Completion, OffersTheValuesOfAnOption) {
    EXPECT_EQ(offered("zpf print --layout ''"), QStringList({"big", "small"}));
    EXPECT_EQ(offered("zpf print --layout = s"), QStringList({"small"}))
        << "as the shell takes the word apart";
    EXPECT_EQ(offered("zpf render -f ''"), QStringList({"png", "bmp"}));
}

TEST(Completion, OffersPlaysAndFolders) {
    EXPECT_EQ(offered("zpf check Horns", ZELTRONA_SOURCE_DIR "/assets/Files"), QStringList("Horns.zpf"));
    EXPECT_EQ(offered("zpf check Fil", ZELTRONA_SOURCE_DIR "/assets"), QStringList("Files"));
    EXPECT_EQ(offered("zpf check READ", ZELTRONA_SOURCE_DIR), QStringList()) << "no other files";
}

} // namespace
} // namespace zeltrona::zpf
