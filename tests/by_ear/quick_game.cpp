// SPDX-License-Identifier: GPL-3.0-or-later
//
// The game as main() starts it, its waits shortened to a fiftieth, for who plays it from outside.
#include "start.h"
#include "window/qt/main_window.h"

#include <QApplication>

int main(int argc, char** argv)
{
    prepare_application();
    QApplication application(argc, argv);
    MainWindow window;
    window.set_time_factor(0.02);
    start_game(window);
    return QApplication::exec();
}
