#include "tests/zpf/program_run.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::zpf {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

TEST(CommandLine, HelpTellsTheCommandsAndIsNoFault) {
    for (const char* wish : {"--help", "-h", "help"}) {
        const ProgramRun run({wish});
        EXPECT_EQ(run.code, ExitCode::Done);
        EXPECT_THAT(run.out, HasSubstr("render"));
        EXPECT_THAT(run.err, IsEmpty());
    }
}

TEST(CommandLine, VersionIsTold) {
    const ProgramRun run({"--version"});
    EXPECT_EQ(run.code, ExitCode::Done);
    EXPECT_THAT(run.out, testing::MatchesRegex("zpf [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST(CommandLine, WithoutACommandShowsTheHelpAsAFault) {
    const ProgramRun run({});
    EXPECT_EQ(run.code, ExitCode::Usage);
    EXPECT_THAT(run.out, IsEmpty());
    EXPECT_THAT(run.err, HasSubstr("Usage: zpf"));
}

TEST(CommandLine, HelpOfACommandByItsName) {
    EXPECT_EQ(ProgramRun({"help", "print"}).out, ProgramRun({"print", "--help"}).out);
    EXPECT_EQ(ProgramRun({"help", "dance"}).code, ExitCode::Usage);
}

TEST(CommandLine, UnknownCommandIsNamed) {
    const ProgramRun run({"dance"});
    EXPECT_EQ(run.code, ExitCode::Usage);
    EXPECT_THAT(run.err, HasSubstr("\"dance\""));
}

} // namespace
} // namespace zeltrona::zpf
