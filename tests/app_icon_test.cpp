// SPDX-License-Identifier: GPL-3.0-or-later
#include "app_icon.h"

#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <gtest/gtest.h>

namespace {

QImage ritratto(int lato)
{
    return app_icon().pixmap(QSize(lato, lato), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
}

}  // namespace

TEST(AppIcon, HasAPictureOfItsOwnForEachSizeOfAWindow)
{
    QList<QSize> misure;
    for (int lato : {16, 22, 24, 32, 48, 64}) {
        misure << QSize(lato, lato);
        QImage const i = ritratto(lato);
        ASSERT_EQ(i.size(), misure.back());
        EXPECT_LT(qAlpha(i.pixel(0, 0)), 64) << lato;
        EXPECT_LT(qAlpha(i.pixel(lato - 1, lato - 1)), 64) << lato;
        QColor const cuore = i.pixelColor(lato / 2, lato / 2);
        EXPECT_GT(cuore.red(), 4 * cuore.green()) << lato;
    }
    EXPECT_EQ(app_icon().availableSizes(), misure);
}

TEST(AppIcon, TheSidesOfTheAceLieOnWholePixelsWhenSmall)
{
    struct {
        int lato, sinistra, destra, sopra, sotto;
    } const righe[]{{16, 4, 12, 2, 14}, {22, 5, 17, 2, 20}, {24, 6, 18, 3, 21}, {32, 8, 24, 4, 28}};
    for (auto const& [lato, sinistra, destra, sopra, sotto] : righe) {
        QImage const i = ritratto(lato);
        QRgb const carta = qRgb(0xff, 0xfd, 0xf4), panno = i.pixel(lato / 2, 0);
        for (QPoint const p : {QPoint(sinistra, sopra), QPoint(destra - 1, sopra),
                               QPoint(sinistra, sotto - 1), QPoint(destra - 1, sotto - 1)})
            EXPECT_EQ(i.pixel(p), carta) << lato << ": " << p.x() << ' ' << p.y();
        for (QPoint const p : {QPoint(sinistra - 1, sopra), QPoint(destra, sopra),
                               QPoint(sinistra, sopra - 1), QPoint(sinistra, sotto)})
            EXPECT_EQ(i.pixel(p), panno) << lato << ": " << p.x() << ' ' << p.y();
    }
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QGuiApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
