// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/device_worker.h"
#include "start.h"
#include "window/qt/main_window.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <new>
#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

// Whoever starts the program may have closed the standard streams. The next file to be opened, the connection to the
// screen for instance, would then take the number of one of them, and messages would be written into it. So the
// program opens them first.
void keep_standard_streams()
{
#ifdef Q_OS_UNIX
    int file = open("/dev/null", O_RDWR);
    while (file >= 0 && file <= STDERR_FILENO)
        file = open("/dev/null", O_RDWR);
    close(file);
#endif
}

// Qt reports a missing display as a fatal message and aborts, which leaves a core file. The program prints the
// message and ends with a status instead.
void say(QtMsgType type, QMessageLogContext const& context, QString const& text)
{
    std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
    if (type == QtFatalMsg)
        std::_Exit(EXIT_FAILURE);
}

void no_memory()
{
    std::fputs("SollevinoDue: memoria esaurita.\n", stderr);
    std::_Exit(EXIT_FAILURE);
}

}  // namespace

int main(int, char** argv)
{
    keep_standard_streams();
    std::set_new_handler(no_memory);
    qInstallMessageHandler(say);

    int only_the_name = 1;
    prepare_application();
    QApplication application(only_the_name, argv);
    MainWindow window;
    start_game(window);
    int const status = QApplication::exec();
    stop_devices();
    return status;
}
