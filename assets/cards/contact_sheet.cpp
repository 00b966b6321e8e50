// SPDX-License-Identifier: GPL-3.0-or-later

// A picture of the whole deck on the table, to look at with critical eyes:
//   contact_sheet FILE.png            all 54 at three sizes, and rows of covered cards
//   contact_sheet FILE.png W CARD...  the named cards (11, dorso0) at W pixels width
// COLOURS=grey or COLOURS=deutan in the environment shows it as those see it who can't tell some colours.

#include "card_pictures.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QStringList>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <iostream>

namespace {

QColor const tavolo(0, 112, 0);

QString nome(int codice)
{
    return codice > 52 ? QString("dorso%1").arg(codice - 53)
                       : QString("carta%1").arg(codice, 2, 10, QChar('0'));
}

int alta(int larga) { return static_cast<int>(std::lround(larga * 153.0 / 96)); }

void disegna(QPainter& p, QString const& carta, int x, int y, int larga)
{
    QSvgRenderer(":/cards/" + carta + ".svg").render(&p, QRectF(x, y, larga, alta(larga)));
}

QImage foglio(int larga, int alta)
{
    QImage i(larga, alta, QImage::Format_ARGB32_Premultiplied);
    i.fill(tavolo);
    return i;
}

QImage scelta(QStringList const& carte, int larga)
{
    int const bordo = 10,
              per_riga = std::min<int>(static_cast<int>(carte.size()), std::max(1, 1600 / (larga + bordo)));
    int const righe = (static_cast<int>(carte.size()) + per_riga - 1) / per_riga;
    QImage i = foglio(per_riga * (larga + bordo) + bordo, righe * (alta(larga) + bordo) + bordo);
    QPainter p(&i);
    for (int k = 0; k < carte.size(); ++k) {
        bool numero = false;
        int const codice = carte[k].toInt(&numero);
        disegna(p, numero ? nome(codice) : carte[k], bordo + k % per_riga * (larga + bordo),
                bordo + k / per_riga * (alta(larga) + bordo), larga);
    }
    return i;
}

// The deck as a block of four rows, one a suit, with the backs behind the first two.
void blocco(QPainter& p, int x, int y, int larga, int bordo)
{
    for (int k = 0; k < 54; ++k) {
        int const colonna = k < 52 ? k % 13 : 13, riga = k < 52 ? k / 13 : k - 52;
        disegna(p, nome(k + 1), x + colonna * (larga + bordo), y + riga * (alta(larga) + bordo), larga);
    }
}

QImage tutte()
{
    constexpr int bordo = 8;
    QImage i =
        foglio(bordo + 14 * (200 + bordo), 2 * bordo + 4 * (alta(200) + bordo) + 4 * (alta(96) + bordo));
    QPainter p(&i);
    blocco(p, bordo, bordo, 200, bordo);
    int const sotto = 2 * bordo + 4 * (alta(200) + bordo), accanto = 2 * bordo + 14 * (96 + bordo);
    blocco(p, bordo, sotto, 96, bordo);
    blocco(p, accanto, sotto, 60, bordo);
    // Melds as they lie on a small screen: each card covered but for its left fifth.
    for (int seme = 0; seme < 4; ++seme)
        for (int k = 0; k < 13; ++k)
            disegna(p, nome(13 * seme + k + 1), accanto + seme * 230 + 12 * k,
                    sotto + 4 * (alta(60) + bordo) + bordo, 61);
    return i;
}

void altri_occhi(QImage& i, QByteArray const& colori)
{
    for (int y = 0; y < i.height(); ++y)
        for (int x = 0; x < i.width(); ++x) {
            QRgb const c = i.pixel(x, y);
            auto lineare = [](int v) { return std::pow(v / 255.0, 2.2); };
            auto video = [](double v) {
                return static_cast<int>(std::lround(255 * std::pow(std::clamp(v, 0.0, 1.0), 1 / 2.2)));
            };
            double const r = lineare(qRed(c)), g = lineare(qGreen(c)), b = lineare(qBlue(c));
            if (colori == "grey") {
                int const v = video(0.2126 * r + 0.7152 * g + 0.0722 * b);
                i.setPixel(x, y, qRgb(v, v, v));
            } else {
                i.setPixel(x, y,
                           qRgb(video(0.367 * r + 0.861 * g - 0.228 * b),
                                video(0.280 * r + 0.673 * g + 0.047 * b),
                                video(-0.012 * r + 0.043 * g + 0.969 * b)));
            }
        }
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    init_card_pictures();
    QStringList const a = app.arguments();
    if (a.size() < 2 || a.size() == 3) {
        std::cerr << "contact_sheet FILE.png [WIDTH CARD...]\n";
        return 1;
    }
    QImage i = a.size() == 2 ? tutte() : scelta(a.mid(3), std::max(1, a[2].toInt()));
    if (QByteArray const colori = qgetenv("COLOURS"); !colori.isEmpty())
        altri_occhi(i, colori);
    return i.convertToFormat(QImage::Format_RGB888).save(a[1], "PNG", 0) ? 0 : 1;
}
