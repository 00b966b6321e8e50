// SPDX-License-Identifier: GPL-3.0-or-later
#include "backs.h"

#include "shapes.h"
#include "svg_text.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <sstream>
#include <string_view>
#include <utility>

namespace {

constexpr double xc = larghezza / 2, yc = altezza / 2;

// The panel of a back: 84 by 141, filled with the ground colour before the pattern is drawn, which may run
// over its sides, since the margin is laid over them afterwards.
std::string pannello(std::string_view fondo, std::string_view filo, std::string const& disegno)
{
    std::ostringstream s;
    s << "<path fill='" << fondo << "' d='M5 5H91V148H5Z'/>\n"
      << disegno << "<path fill='@carta' fill-rule='evenodd' d='" << interno
      << "M8.5 6Q6 6 6 8.5V144.5Q6 147 8.5 147H87.5Q90 147 90 144.5V8.5Q90 6 87.5 6Z'/>\n"
      << "<rect x='4.2' y='4.2' width='87.6' height='144.6' rx='3.6' fill='none' stroke='" << filo
      << "' stroke-width='.8'/>\n";
    return s.str();
}

struct Losanga {
    double w, h;  // half diagonals
};

void losanga(std::ostream& s, double x, double y, Losanga l)
{
    s << 'M' << x << ' ' << y - l.h << 'l' << l.w << ' ' << l.h << ' ' << -l.w << ' ' << l.h << ' ' << -l.w
      << ' ' << -l.h << 'z';
}

// What has so many rows above its middle one and turns into itself. Row 0 is the middle, row -1 lies above it.
template <class Riga>
std::string due_meta(int righe, Riga riga)
{
    std::string sopra;
    for (int r = -righe; r < 0; ++r)
        sopra += riga(r);
    return due_teste("meta", sopra) + riga(0);
}

}  // namespace

std::string dorso_losanghe()
{
    constexpr int colonne = 6, righe = 9;
    constexpr double dx = 84.0 / colonne, dy = 141.0 / righe;
    constexpr Losanga piena{6.1, 6.85}, cuore{1.9, 2.15};
    constexpr double tondo = 21.4;  // of the medallion

    // A path for each row: the rasterizer is much slower at one path of everything.
    auto const riga = [&](int r) {
        std::ostringstream campo, cuori;
        for (int c = 1 - colonne; c < colonne; ++c) {
            double const x = c * dx / 2, y = r * dy / 2;
            if ((r + c) % 2 != 0)
                continue;
            losanga(campo, xc + x, yc + y, piena);
            if (std::hypot(x, y) > tondo + cuore.h)
                losanga(cuori, xc + x, yc + y, cuore);
        }
        return "<path fill='@cobalto' d='" + campo.str() + "'/>\n<path fill='@avorio' d='" + cuori.str() +
               "'/>\n";
    };
    std::ostringstream s;
    s << due_meta(righe - 1, riga);

    // The star of the medallion: eight rays, one half of each in the light.
    std::ostringstream chiara, scura;
    for (int k = 0; k < 8; ++k) {
        constexpr double ottavo = std::numbers::pi / 4;
        auto const meta = [&](std::ostream& o, double verso) {
            double const lungo = k % 2 ? 10.5 : 16.5, a = k * ottavo, b = a + verso * ottavo / 2;
            o << 'M' << xc << ' ' << yc << 'L' << xc + lungo * std::cos(a) << ' ' << yc + lungo * std::sin(a)
              << ' ' << xc + 4.2 * std::cos(b) << ' ' << yc + 4.2 * std::sin(b) << 'Z';
        };
        meta(chiara, -1);
        meta(scura, 1);
    }
    s << "<circle cx='48' cy='76.5' r='" << tondo << "' fill='@avorio'/>\n"
      << "<circle cx='48' cy='76.5' r='" << tondo - 1.6 << "' fill='@notte'/>\n"
      << "<path fill='@avorio' d='" << chiara.str() << "'/>\n<path fill='@celeste' d='" << scura.str()
      << "'/>\n";
    return pannello("@notte", "@notte", s.str());
}

std::string dorso_fiamme()
{
    // The corners of a flame line. Every third peak is a tall one, counted from the middle to either side, so
    // that the line turns into itself.
    constexpr double fra_punte = 7, fra_fiamme = 24;
    constexpr int punte = 7, fiamme = 3;
    auto const punta = [](int k) {
        bool const alta = (k < 0 ? -k - 1 : k) % 3 == 0;
        return (k % 2 ? 1 : -1) * (alta ? 7.6 : 4.4);
    };

    // A flame is a broad band with narrower ones upon it. The outermost ones are cut level.
    auto const fascia = [&](std::string_view tinta, double mezza, int r) {
        std::ostringstream s;
        s << "<path fill='" << tinta << "' d='";
        double x = 0, y = 0;
        for (int verso : {1, -1})
            for (int i = -punte; i < punte; ++i) {
                int const k = verso > 0 ? i : -1 - i;
                double const a = xc + (k + .5) * fra_punte;
                double const b = std::max(yc + r * fra_fiamme + punta(k) - verso * mezza, 3.0);
                s << (x > 0 ? 'l' : 'M') << a - x << ' ' << b - y;
                x = a, y = b;
            }
        s << "Z'/>\n";
        return s.str();
    };
    auto const fiamma = [&](int r) {
        return fascia("@rosso", 10, r) + fascia("@corallo", 6, r) + fascia("@avorio", 2, r);
    };
    return pannello("@granata", "@granata", due_meta(fiamme, fiamma));
}
