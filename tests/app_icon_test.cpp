// SPDX-License-Identifier: GPL-3.0-or-later
#include "app_icon.h"

#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <gtest/gtest.h>

#include <array>

// The ace stands upright in the middle; when it is small its sides lie on whole pixels.
TEST(AppIcon, HasAPictureOfItsOwnForEachSizeOfAWindow)
{
    int argc = 0;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication const app(argc, nullptr);
    for (auto const& [lato, x, y] :
         {std::array{16, 4, 2}, {22, 5, 2}, {24, 6, 3}, {32, 8, 4}, {48, 0, 0}, {64, 0, 0}}) {
        ASSERT_TRUE(app_icon().availableSizes().contains(QSize(lato, lato))) << lato;
        QImage const i = app_icon().pixmap(QSize(lato, lato), 1.0).toImage();
        QColor const cuore = i.pixelColor(lato / 2, lato / 2), carta(0xff, 0xfd, 0xf4);
        EXPECT_GT(cuore.red(), 4 * cuore.green()) << lato;
        EXPECT_LT(i.pixelColor(0, 0).alpha(), 64) << lato;
        for (QPoint const p : {QPoint(x, y), QPoint(lato - 1 - x, lato - 1 - y)})
            EXPECT_TRUE(x == 0 || i.pixelColor(p) == carta) << lato;
        for (QPoint const p : {QPoint(x - 1, y), QPoint(x, y - 1), QPoint(lato - x, y), QPoint(x, lato - y)})
            EXPECT_TRUE(x == 0 || i.pixelColor(p) != carta) << lato;
    }
}
