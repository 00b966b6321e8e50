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

// The uppermost rows of a picture of that size.
QPixmap drawn(Figura figura, QSize size, int rows)
{
    QPixmap pixmap(size.width(), rows);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer(picture_path(figura)).render(&painter, QRectF({0, 0}, size));
    return pixmap;
}

// A back turns into itself: half of it is drawn, and turned for the other half.
QPixmap drawn_back(Figura figura, QSize size)
{
    QPixmap const upper = drawn(figura, size, (size.height() + 1) / 2);
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.drawPixmap(0, 0, upper);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(0, size.height() - upper.height(), upper.toImage().mirrored(true, true));
    return pixmap;
}

}  // namespace

CardPixmaps::CardPixmaps() : pixmaps_(max_bytes) { init_card_pictures(); }

QPixmap CardPixmaps::get(Figura figura, QSize size)
{
    Key const key{figura, size};
    if (QPixmap const* known = pixmaps_.object(key))
        return *known;

    QPixmap pixmap = figura > 52 ? drawn_back(figura, size) : drawn(figura, size, size.height());
    pixmaps_.insert(key, new QPixmap(pixmap), qsizetype{4} * size.width() * size.height());
    return pixmap;
}
