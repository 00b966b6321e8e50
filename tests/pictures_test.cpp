// SPDX-License-Identifier: GPL-3.0-or-later
//
// A handful of tables as pictures, compared with those in tests/pictures. scripts/scenes draws them anew. The panels of
// text are not among them, since every version of Qt has its own space between two lines.
#include "real_window.h"

#include "at_the_table.h"
#include "game/piles.h"
#include "game/table_state.h"
#include "scoring/hand_scoring.h"
#include "window/qt/main_window.h"
#include "window/qt/table_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>

namespace {

constexpr Pixels common{1366, 708}, large{1920, 1020}, huge{3840, 2100};  // screens less title and menu bar

std::string const hand =
    "mano2 2H 3S KD 5C 9D QC AS 7D 4H 10C 8S 6H JD mano 7D' 10D 2D' 6S QS 2D 5S 8S' 2C QC' 5C' "
    "QH 3S' pozzo AC tallone KC' 9H 2S";
std::string const row =
    "mano2 2H 3S mano AC 9S calate AS 2S 3S 4S 5S 6S | 10H 10D 10C 10S | JC QC KC | 8H 8D 8C | "
    "2D 3D 4D 5D | calate2 QH QD QS | 6H 7H 8H' 9H 10H' JH QH' KH' AH' | 3C 4C 5C | pozzo 9D tallone 7C";

void opening(Pixels size)
{
    avvia_programma(size);
    dipingi(dorsov(0), tavolo.centro_x - tavolo.larg_carta / 2, tavolo.centro_y - tavolo.alt_carta / 2);
}

void games(Pixels size)
{
    in_scena(size, "mano2 8H 3S KC mano AC 9S calate 5H 6H 7H | calate2 QH QD QS |");
    tavolo.n_carte(1) = 0;
    tavolo.n_game = 20;
    for (int g = 1; g < 20; ++g)
        for (int p : {1, 2}) {
            tavolo.punti(p, g) =
                (g * 37 + p * 85) % 23 == 5 ? -200 : (g * 45 + p * 30) % 210 + (g == 7 ? 650 : 0);
            tavolo.penali(p, g) = (g + p) % 2 ? 0 : g * 25 % 90;
            tavolo.totale(p) += tavolo.punti(p, g) - tavolo.penali(p, g);
        }
    superficie.font_name("Arial");
    superficie.font_size(8);
    scopro_carte();
    runner.start(risultato());
    wake_game();
    while (runner.alive())
        fino_all_attesa();
}

struct Scene {
    char const* name;
    std::vector<Pixels> sizes;
    std::function<void(Pixels)> draw;
};

std::vector<Scene> const scenes = {
    {"opening", {common, large}, opening},
    {"dealt", {common, large, huge}, [](Pixels s) { in_scena(s, hand); }},
    {"middle", {common, large, huge}, [](Pixels s) { in_scena(s, a_meta_mano); }},
    {"row", {common, large}, [](Pixels s) { in_scena(s, row); }},
    {"games", {common, large, huge}, games},
    {"names",
     {common, large},
     [](Pixels s) {
         opening(s);
         menu(Menu::personalize_players);
     }},
};

// What another version of Qt draws differently are single pixels at the edges of letters: two that hang together
// between 6.4 and 6.8. The stroke of a letter in another colour has more than twelve.
constexpr int shade = 64, letter_edge = 8;

// Pixels that hang together and differ by more than a shade.
struct Patch {
    int pixels = 0;
    QRect box;
};

bool differ(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))}) > shade;
}

// The largest of them, of two pictures of one size.
Patch difference(QImage const& kept, QImage now)
{
    Patch largest;
    for (int k = 0; k < now.width() * now.height(); ++k) {
        Patch patch;
        std::vector<QPoint> reached{{k % now.width(), k / now.width()}};
        while (!reached.empty()) {
            QPoint const at = reached.back();
            reached.pop_back();
            if (!now.rect().contains(at) || !differ(kept.pixel(at), now.pixel(at)))
                continue;
            now.setPixel(at, kept.pixel(at));
            ++patch.pixels;
            patch.box |= QRect(at, QSize(1, 1));
            for (int next = 0; next < 9; ++next)
                reached.push_back(at + QPoint(next % 3 - 1, next / 3 - 1));
        }
        if (patch.pixels > largest.pixels)
            largest = patch;
    }
    return largest;
}

}  // namespace

TEST(Pictures, LookAsTheyDid)
{
    bool const write = qEnvironmentVariableIsSet("SOLLEVINO_WRITE_PICTURES");
    for (auto const& [name, sizes, draw] : scenes)
        for (Pixels const size : sizes) {
            draw(size);
            settle();
            QImage const now = real_window().table().grab().toImage().convertToFormat(QImage::Format_RGB32);
            auto const file =
                QStringLiteral(TESTS_FOLDER "/pictures/%1-%2.png").arg(QLatin1String(name)).arg(size.width);
            if (write) {
                ASSERT_TRUE(now.save(file, nullptr, 0));
                continue;
            }
            QImage const kept = QImage(file).convertToFormat(QImage::Format_RGB32);
            ASSERT_EQ(kept.size(), now.size()) << file.toStdString();
            auto const [pixels, box] = difference(kept, now);
            EXPECT_LE(pixels, letter_edge) << file.toStdString() << " at " << box.x() << ',' << box.y()
                                           << ", " << box.width() << " by " << box.height();
        }
}
