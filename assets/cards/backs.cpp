// SPDX-License-Identifier: GPL-3.0-or-later
#include "backs.h"

#include "shapes.h"

#include <sstream>

namespace {

constexpr double margine = 6;  // from the edge of the card to the panel
constexpr double fine_x = larghezza - margine, fine_y = altezza - margine;

}  // namespace

std::string dorso_losanghe()
{
    constexpr int colonne = 8, righe = 12;
    constexpr double w = (larghezza - 2 * margine) / colonne, h = (altezza - 2 * margine) / righe;

    std::ostringstream reticolo, stelle;
    // A line leaves the left side or the top, and ends on the bottom or the right side.
    for (int k = 1 - righe; k < colonne; ++k) {
        int const c0 = std::max(k, 0), r0 = std::max(-k, 0);
        int const n = std::min(colonne - c0, righe - r0);
        reticolo << 'M' << margine + c0 * w << ' ' << margine + r0 * h << 'l' << n * w << ' ' << n * h;
        reticolo << 'M' << fine_x - c0 * w << ' ' << margine + r0 * h << 'l' << -n * w << ' ' << n * h;
    }
    for (int r = 0; r <= 2 * righe; ++r)
        for (int c = r % 2 ? 0 : 1; c <= 2 * colonne; c += 2)
            if (c > 0 && c < 2 * colonne && r > 0 && r < 2 * righe)
                stelle << 'M' << margine + c * w / 2 << ' ' << margine + r * h / 2 - 2.1
                       << "l1.6 2.1-1.6 2.1-1.6-2.1z";

    std::ostringstream s;
    s << "<rect x=\"5\" y=\"5\" width=\"86\" height=\"143\" rx=\"2.5\" fill=\"#1d3a70\"/>\n"
      << "<path fill=\"none\" stroke=\"#7f9ccb\" stroke-width=\"1\" d=\"" << reticolo.str() << "\"/>\n"
      << "<path fill=\"@avorio\" d=\"" << stelle.str() << "\"/>\n";
    return s.str();
}

std::string dorso_scaglie()
{
    constexpr int colonne = 6;
    constexpr double r = (larghezza - 2 * margine) / colonne / 2;

    std::ostringstream scaglie;
    for (double y = margine + r; y < fine_y; y += r)
        for (int c = 0; c < colonne; ++c) {
            double const x = margine + c * 2 * r;
            scaglie << 'M' << x << ' ' << y << 'a' << r << ' ' << r << " 0 0 1 " << 2 * r << " 0";
        }
    std::ostringstream s;
    s << "<rect x=\"5\" y=\"5\" width=\"86\" height=\"143\" rx=\"2.5\" fill=\"#a8242c\"/>\n"
      << "<path fill=\"none\" stroke=\"#ffe9c4\" stroke-width=\"1\" d=\"" << scaglie.str() << "\"/>\n";
    return s.str();
}
