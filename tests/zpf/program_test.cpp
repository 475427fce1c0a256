#include "tests/zpf/command_fixture.h"

#include <QProcess>

namespace zeltrona::zpf {
namespace {

/// The built program itself, with what a shell would see of it.
class Program : public CommandTest {
protected:
    QProcess process;

    void start(const QString& command) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"}) {
            environment.remove(name);
        }
        environment.insert("ZPF", ZELTRONA_BINARY_DIR "/bin/zpf");
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(path("."));
        process.start("/bin/sh", {"-c", command});
        ASSERT_TRUE(process.waitForFinished(60000));
    }
    QByteArray out() { return process.readAllStandardOutput(); }
    QByteArray err() { return process.readAllStandardError(); }
};

TEST_F(Program, DrawsWithoutADisplayAndSaysNothing) {
    writePlay("horns.zpf");
    start("\"$ZPF\" render horns.zpf -o out && ls out");
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_EQ(err(), "");
    EXPECT_EQ(out(), "horns-1.png\nhorns-2.png\n");
}

TEST_F(Program, StatusTellsWhatHappened) {
    writePlay("horns.zpf");
    write("faulty.zpf", QByteArray(kConfig) + kFrames + "Ball1=1,2,\r\n");
    start("\"$ZPF\" check horns.zpf; echo $?; \"$ZPF\" check -q faulty.zpf; echo $?;"
          "\"$ZPF\" check --dance horns.zpf; echo $?; \"$ZPF\" check missing.zpf; echo $?");
    EXPECT_EQ(out(), "0\n1\n2\n3\n");
}

TEST_F(Program, NamesOfFilesAreTakenAsTheyAre) {
    write(QString::fromUtf8("-\xC5\xA1ut i pas.zpf"), QByteArray(kConfig) + kFrames);
    start("\"$ZPF\" render -o out -n 1 -- -*.zpf && ls out");
    EXPECT_EQ(out(), "-\xC5\xA1ut i pas-1.png\n");
}

TEST_F(Program, OutputThatCannotBeWrittenIsAFailure) {
    writePlay("horns.zpf");
    start("\"$ZPF\" info horns.zpf >/dev/full; echo $?");
    EXPECT_EQ(out(), "3\n");
    EXPECT_EQ(err(), "zpf: the output cannot be written\n");
}

TEST_F(Program, DoesNotTouchThePlay) {
    const QByteArray before = QByteArray(kConfig) + kFrames;
    writePlay("horns.zpf");
    start("chmod a-w horns.zpf; for c in info check render report print; do \"$ZPF\" $c horns.zpf >/dev/null "
          "|| exit 9;"
          "done");
    EXPECT_EQ(process.exitCode(), 0) << err().toStdString();
    EXPECT_EQ(read("horns.zpf"), before);
}

} // namespace
} // namespace zeltrona::zpf
