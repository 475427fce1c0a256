#include "assets/resources.h"
#include "platform/program_fonts.h"
#include "tools/zpf/command.h"

#include <QGuiApplication>

#include <iostream>
#include <unistd.h>
#include <vector>

using namespace zeltrona;

namespace {

/// The toolkit's own talk of its surroundings is nothing to a script; what goes wrong with a play the
/// commands tell.
void dropChatter(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        std::cerr << "zpf: " << text.toStdString() << '\n';
    }
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string_view> words(argv + 1, argv + argc);
    qInstallMessageHandler(dropChatter);
    qputenv("QT_QPA_PLATFORM", "offscreen"); // pictures need fonts and no screen
    int argumentCount = 1;                   // the toolkit has no options here
    const QGuiApplication application(argumentCount, argv);
    assets::initResources();
    platform::useProgramFonts();
    zpf::ExitCode code = zpf::runCommandLine(words, {std::cout, std::cerr, ::isatty(STDERR_FILENO) != 0});
    if (!std::cout.flush()) {
        std::cerr << "zpf: the output cannot be written\n";
        code = zpf::ExitCode::Failed;
    }
    return static_cast<int>(code);
}
