// SPDX-License-Identifier: GPL-3.0-or-later
#include "app_icon.h"

#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QResource>
#include <QString>

// Bare pixels and not PNG files, since for the first file it reads Qt opens every plugin for pictures it
// finds.
QIcon app_icon()
{
    // The resources lie in a static library, where nothing but this call keeps the linker from dropping them.
    Q_INIT_RESOURCE(icon);
    QIcon icona;
    for (int lato : {16, 22, 24, 32, 48, 64}) {
        QResource const r(QString(":/icon/%1.rgba").arg(lato));
        icona.addPixmap(
            QPixmap::fromImage(QImage(r.data(), lato, lato, QImage::Format_RGBA8888_Premultiplied)));
    }
    return icona;
}
