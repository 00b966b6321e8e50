// SPDX-License-Identifier: GPL-3.0-or-later
#include "card_pictures.h"

#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace {

constexpr int dorso = 52;  // 0..51 the faces in the order of their codes, then the two backs
constexpr int tutte = 54;

QString nome(int k)
{
    return k < dorso ? QString(":/cards/carta%1.svg").arg(k + 1, 2, 10, QChar('0'))
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

int distanza(QRgb a, QRgb b)
{
    return std::max(
        {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

int pixel_diversi(QImage const& a, QImage const& b, int larga)
{
    int n = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < larga; ++x)
            n += distanza(a.pixel(x, y), b.pixel(x, y)) > 60;
    return n;
}

// Counts the patches of ink between the columns, and washes them away.
int macchie(QImage i, int da, int a)
{
    QRgb const carta = i.pixel(i.width() / 2, 6);
    auto const inchiostro = [&](int x, int y) {
        return x >= da && x < a && y > 4 && y < i.height() - 4 && distanza(i.pixel(x, y), carta) > 60;
    };
    int n = 0;
    for (int y = 0; y < i.height(); ++y)
        for (int x = da; x < a; ++x) {
            if (!inchiostro(x, y))
                continue;
            ++n;
            std::vector<QPoint> resto{{x, y}};
            while (!resto.empty()) {
                QPoint const p = resto.back();
                resto.pop_back();
                if (!inchiostro(p.x(), p.y()))
                    continue;
                i.setPixel(p, carta);
                for (QPoint const d : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
                    resto.push_back(p + d);
            }
        }
    return n;
}

}  // namespace

TEST(CardPictures, AllAreThereInTheProportionsOfACard)
{
    init_card_pictures();
    for (int k = 0; k < tutte; ++k) {
        QSvgRenderer const r(nome(k));
        ASSERT_TRUE(r.isValid()) << qPrintable(nome(k));
        EXPECT_EQ(r.viewBoxF(), QRectF(0, 0, 96, 153)) << qPrintable(nome(k));
    }
}

TEST(CardPictures, FillTheBoxAndLeaveTheCornersToTheTable)
{
    for (int k = 0; k < tutte; ++k) {
        QImage const i = ritratto(k, 96, 153);
        for (QPoint const p : {QPoint(0, 0), QPoint(95, 0), QPoint(0, 152), QPoint(95, 152)})
            EXPECT_EQ(qAlpha(i.pixel(p)), 0) << qPrintable(nome(k));
        for (QPoint const p : {QPoint(48, 0), QPoint(48, 152), QPoint(0, 76), QPoint(95, 76), QPoint(3, 3)})
            EXPECT_EQ(qAlpha(i.pixel(p)), 255) << qPrintable(nome(k)) << ' ' << p.x() << ' ' << p.y();
    }
}

TEST(CardPictures, ShowAsManyPipsAsTheRankWithoutTouchingOneAnotherOrTheIndex)
{
    for (int k = 0; k < dorso; ++k)
        if (int const numero = k % 13 + 1; numero > 1 && numero <= 10) {
            QImage const i = ritratto(k, 192, 306);
            EXPECT_EQ(macchie(i, 39, 153), numero) << qPrintable(nome(k));
            EXPECT_EQ(macchie(i, 38, 39) + macchie(i, 153, 154), 0) << qPrintable(nome(k));
        }
}

// Melds lie overlapped: on a small screen twelve pixels must tell each card from every other.
TEST(CardPictures, AreToldApartByTheirLeftFifth)
{
    std::vector<QImage> piccole;
    for (int k = 0; k < tutte; ++k)
        piccole.push_back(ritratto(k, 61, 97));
    for (int a = 0; a < tutte; ++a)
        for (int b = 0; b < a; ++b)
            EXPECT_GE(pixel_diversi(piccole[std::size_t(a)], piccole[std::size_t(b)], 12), 12)
                << qPrintable(nome(a)) << ' ' << qPrintable(nome(b));
}
