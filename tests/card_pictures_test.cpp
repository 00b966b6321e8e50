// SPDX-License-Identifier: GPL-3.0-or-later
#include "card_pictures.h"

#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <span>
#include <vector>

namespace {

// The faces in the order of their codes from 1, and behind them the two backs.
constexpr int asso = 1, dorso = 53, tutte = 54;

QString nome(int k)
{
    return k < dorso ? QString(":/cards/carta%1.svg").arg(k, 2, 10, QChar('0'))
                     : QString(":/cards/dorso%1.svg").arg(k - dorso);
}

QImage ritratto(int k, int larga, int alta)
{
    init_card_pictures();
    QImage i(larga, alta, QImage::Format_ARGB32_Premultiplied);
    i.fill(Qt::transparent);
    QPainter p(&i);
    QSvgRenderer(nome(k)).render(&p, QRectF(0, 0, larga, alta));
    return i;
}

bool diversi(QColor a, QColor b)
{
    return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                     std::abs(a.blue() - b.blue())}) > 60;
}

// Washes away the patch of ink around a point between the indices. False if there is none.
bool lava(QImage& i, int x, int y)
{
    QColor const carta = i.pixelColor(96, 6);
    if (x < 39 || x > 152 || y < 5 || y > 301 || !diversi(i.pixelColor(x, y), carta))
        return false;
    i.setPixelColor(x, y, carta);
    return lava(i, x + 1, y) + lava(i, x - 1, y) + lava(i, x, y + 1) + lava(i, x, y - 1) >= 0;
}

}  // namespace

TEST(CardPictures, FillTheBoxOfACardAndShowAsManyPipsAsTheRank)
{
    for (int k = asso; k <= tutte; ++k) {
        QImage i = ritratto(k, 192, 306);
        EXPECT_EQ(QSvgRenderer(nome(k)).viewBoxF(), QRectF(0, 0, 96, 153)) << k;
        for (int p : {0, 1, 2, 3, 4, 5, 6, 7, 8})
            EXPECT_EQ(i.pixelColor(p % 3 * 191 / 2, p / 3 * 305 / 2).alpha(), p % 2 || p == 4 ? 255 : 0) << k;
        int const numero = k < dorso ? (k - asso) % 13 + 1 : 0;
        int pip = 0;
        for (int p = 0; p < 192 * 306; ++p)
            pip += lava(i, p % 192, p / 192);
        EXPECT_TRUE(numero < 2 || numero > 10 || pip == numero) << k << ' ' << pip;
    }
}

// Melds lie overlapped: on a small screen twelve pixels must tell each card from every other.
TEST(CardPictures, AreToldApartByTheirLeftFifth)
{
    std::vector<QImage> quinti;
    for (int a = asso; a <= tutte; ++a) {
        quinti.push_back(ritratto(a, 61, 97).copy(0, 0, 12, 97));
        for (QImage const& altro : std::span(quinti).first(quinti.size() - 1)) {
            int n = 0;
            for (int p = 0; p < 12 * 97; ++p)
                n += diversi(altro.pixelColor(p % 12, p / 12), quinti.back().pixelColor(p % 12, p / 12));
            EXPECT_GE(n, 12) << qPrintable(nome(a));
        }
    }
}
