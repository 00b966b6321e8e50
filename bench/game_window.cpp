// SPDX-License-Identifier: GPL-3.0-or-later
//
// The game as main() starts it, until its opening page has been painted.
#include "first_paint.h"
#include "start.h"
#include "window/qt/main_window.h"
#include "window/qt/table_view.h"
#include "window/surface.h"

int main(int argc, char** argv)
{
    if (argc < 2)
        return 2;
    prepare_application();
    int one = 1;
    QApplication application(one, argv);
    MainWindow window;
    FirstPaint const hook(&window.table(), argv[1], [] { return !superficie.marks().empty(); });
    start_game(window);
    return QApplication::exec();
}
