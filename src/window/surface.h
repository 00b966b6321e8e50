// SPDX-License-Identifier: GPL-3.0-or-later
//
// The drawing surface: what has been drawn since the last clear, kept as a short list of marks in grid units
// (1024 by 768 over the client area, origin at the top left, y downward). The window replays the list when it
// must show itself; a test reads from it what the table shows.
#pragma once

#include "game/box.h"
#include "game/card_model.h"

#include <array>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

struct Colore {
    Byte rosso = 0, verde = 0, blu = 0;
    constexpr bool operator==(Colore const&) const = default;
};

namespace colori {
inline constexpr Colore tavolo{0, 112, 0}, cornice{0, 192, 0}, fascia{0, 105, 0};
inline constexpr Colore bianco{255, 255, 255}, blu{0, 0, 255}, nero{0, 0, 0};
inline constexpr Colore giallo{255, 255, 0}, giallo_pallido{255, 255, 192};
}  // namespace colori

// Always bold. The name, a literal, is asked of the system; the size is in points.
struct Font {
    std::string_view nome;
    Single punti = 0;
    bool operator==(Font const&) const = default;
};

// Plain data, so that a list of them closes up quickly.
struct Mark {
    enum class Kind : Byte { fill, outline, line, picture, text };
    Kind kind = Kind::fill;
    Box box{};                 // a text's box runs from the print position over its width and height
    Colore colore{};           // not of a picture
    Figura figura{};           // of a picture
    std::string_view testo{};  // of a text, UTF-8, never empty; gone when the surface is cleared
    Font font{};               // of a text

    // Set by the surface.
    Box reach{};      // where it may leave its pixels: letters overhang their cell
    Byte corner = 0;  // a number for the place of its top left corner; two places may have the same
};

class Surface {
  public:
    Surface();

    // Wipes the surface to the background colour. Print position, font and text colour stay.
    void clear();

    void fill_box(Box box, Colore colore);
    void outline_box(Box box, Colore colore);
    // Level or upright; its thickness runs to the right and downward, at most one unit.
    void line(Single x1, Single y1, Single x2, Single y2, Colore colore);
    void paint_picture(Figura figura, Single x, Single y, Single larghezza, Single altezza);

    void print_at(Single x, Single y);
    void print_x(Single x) { print_x_ = x; }
    void font_name(std::string_view nome) { font_.nome = nome; }
    void font_size(Single punti) { font_.punti = punti; }
    void text_colour(Colore colore) { colore_testo_ = colore; }

    // Text at the print position, on a transparent background. print leaves the position behind the text,
    // print_line at the left edge of the table, one text height down. An empty text draws nothing.
    void print(std::string_view testo);
    void print_line(std::string_view testo);

    Single current_x() const { return print_x_; }
    Single current_y() const { return print_y_; }
    Font const& font() const { return font_; }

    static constexpr Colore background = colori::tavolo;

    // Bottom first. Marks that later ones hide wholly are gone.
    std::vector<Mark> const& marks();

    // Where the surface has changed since this was asked before, in grid units.
    Box changed();

  private:
    using Words = std::set<std::string, std::less<>>;

    void add(Mark&& mark);
    void settle();
    void lay(Mark const& mark);

    // New marks wait until somebody looks: who plays without a screen never does.
    std::vector<Mark> waiting_, marks_;
    std::optional<Box> changed_;
    // How many of the marks have a corner with that number. Most cards are painted where no mark has its corner: this
    // tells so without a walk along the marks.
    std::array<Integer, 256> corners_{};
    // What was printed since the last clear, each text once. The marks only look at it; a copy of the surface shares it.
    std::shared_ptr<Words> words_ = std::make_shared<Words>();
    Font font_;
    Colore colore_testo_;
    Single print_x_ = 0, print_y_ = 0;
};

extern Surface superficie;
