// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/folders.h"
#include "window/qt/main_window.h"

#include <QApplication>
#include <QStandardPaths>

int main(int, char** argv)
{
    int only_the_name = 1;
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QApplication application(only_the_name, argv);
    prepare_application();
    set_folders(QCoreApplication::applicationDirPath().toStdU16String(),
                QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation).toStdU16String());
    MainWindow window;
    window.open();
    return QApplication::exec();
}
