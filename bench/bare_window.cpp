// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a start-up is compared with: a Qt window with a menu bar and nothing else, as large as the game's from the
// beginning. Without a window manager showMaximized alone would leave it small.
#include "first_paint.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>

int main(int argc, char** argv)
{
    if (argc < 2)
        return 2;
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    int one = 1;
    QApplication application(one, argv);
    QMainWindow window;
    for (char const* menu : {"&Uno", "&Due", "&Tre"})
        window.menuBar()->addMenu(QString::fromLatin1(menu))->addAction(QStringLiteral("Voce"));
    auto* const centre = new QWidget(&window);
    window.setCentralWidget(centre);
    FirstPaint const hook(centre, argv[1], [] { return true; });
    window.resize(window.screen()->availableGeometry().size());
    window.showMaximized();
    return QApplication::exec();
}
