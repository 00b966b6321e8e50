// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/qt/card_pixmaps.h"

#include "card_pictures.h"

#include <QPainter>
#include <QSvgRenderer>

namespace {

constexpr int max_bytes = 128 << 20;  // twice all pictures on the largest screens

QString picture_path(Figura figura)
{
    if (figura > 52)
        return QStringLiteral(":/cards/dorso%1.svg").arg(figura - 53);
    return QStringLiteral(":/cards/carta%1.svg").arg(static_cast<int>(figura), 2, 10, QLatin1Char('0'));
}

}  // namespace

CardPixmaps::CardPixmaps() : pixmaps_(max_bytes) { init_card_pictures(); }

QPixmap CardPixmaps::get(Figura figura, QSize size)
{
    Key const key{figura, size};
    if (QPixmap const* known = pixmaps_.object(key))
        return *known;

    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer(picture_path(figura)).render(&painter);
    painter.end();
    pixmaps_.insert(key, new QPixmap(pixmap), qsizetype{4} * size.width() * size.height());
    return pixmap;
}
