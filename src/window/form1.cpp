// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/form1.h"

#include <algorithm>
#include <cmath>

namespace {

// The reference window, in twips.
constexpr Single esterno_x = 15432, esterno_y = 12360;
constexpr Single interno_x = 15360, interno_y = 11688;
constexpr Single twip_punto = 20;

struct Measures {
    bool fixed = false;                                  // twips to a pixel
    double twip_x = 0, twip_y = 0;                       // outer twips to a pixel of the client area
    double pixel_punto = 0;                              // 0 until twips have been chosen
    Single larg_prec = esterno_x, alt_prec = esterno_y;  // outer size at the last resize, twips
};
Measures measures;
Pixels client{1024, 779};

// Sets twips to a pixel and pixels to a point so that a card is as large as the layout allows, no wider and
// no taller than in the reference window, and keeps the shape of its picture.
void choose_twips()
{
    // of the largest card, grid units
    double const larg = double{larg_carta_1} * griglia_x / interno_x * riduzione_carta;
    double const alt = double{alt_carta_1} * griglia_y / interno_y * riduzione_carta;

    double const ux = client.width / double{griglia_x};  // pixels to a grid unit
    double const uy = client.height / double{griglia_y};
    double const k = std::min(larg * ux / larg_carta_1, alt * uy / alt_carta_1);
    double const sx = k * larg_carta_1 / (larg * ux);
    double const sy = k * alt_carta_1 / (alt * uy);

    measures.twip_x = esterno_x * sx / client.width;
    measures.twip_y = esterno_y * sy / client.height;
    measures.pixel_punto = twip_punto * std::min(client.width / (double{interno_x} * sx),
                                                 client.height / (double{interno_y} * sy));
}

Single whole_twips(int pixel, double twip)
{
    return static_cast<Single>(std::max(1L, std::lround(pixel * twip)));
}

}  // namespace

Single twips_x() { return interno_x * (measures.larg_prec / esterno_x) / griglia_x; }
Single twips_y() { return interno_y * (measures.alt_prec / esterno_y) / griglia_y; }

Single points_to_grid(Single punti)
{
    return punti * pixels_per_point() * griglia_y / static_cast<Single>(client.height);
}

Single pixels_per_point()
{
    if (measures.pixel_punto == 0)
        choose_twips();
    return static_cast<Single>(measures.pixel_punto);
}

void client_size(Pixels pixels) { client = {std::max(pixels.width, 1), std::max(pixels.height, 1)}; }

void load_measures() { measures = {}; }

Growth measure_window()
{
    if (!measures.fixed)
        choose_twips();
    Single const larghezza = whole_twips(client.width, measures.twip_x);
    Single const altezza = whole_twips(client.height, measures.twip_y);
    Growth const growth{larghezza / measures.larg_prec, altezza / measures.alt_prec};
    measures.larg_prec = larghezza;
    measures.alt_prec = altezza;
    tavolo.scala_x = larghezza / esterno_x;
    tavolo.scala_y = altezza / esterno_y;
    return growth;
}

void fix_twips() { measures.fixed = true; }
