// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/device.h"
#include "start.h"
#include "window/qt/main_window.h"

#include <QApplication>

int main(int, char** argv)
{
    int only_the_name = 1;
    prepare_application();
    QApplication application(only_the_name, argv);
    MainWindow window;
    start_game(window);
    int const status = QApplication::exec();
    stop_devices();
    return status;
}
