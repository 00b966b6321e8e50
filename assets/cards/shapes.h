// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What the deck is made of, each thing written once: colours, suits, index glyphs, places of the pips.
// Lengths are in card units: a card is 96 wide and 153 high, y goes down.

#include <array>
#include <string_view>
#include <vector>

inline constexpr double larghezza = 96;
inline constexpr double altezza = 153;

// The card within its outline, to lay a mat over what runs out of a frame.
inline constexpr std::string_view interno = "M6 1H90Q95 1 95 6V147Q95 152 90 152H6Q1 152 1 147V6Q1 1 6 1Z";

struct Colore {
    std::string_view nome;  // how drawings call it: fill="@rosso"
    std::string_view valore;
};

// No name begins with another one.
inline constexpr std::array colori{
    Colore{"cuori", "#ba1029"},    // the suits: two reds and two blacks that also differ in lightness
    Colore{"quadri", "#e4461b"},   //
    Colore{"fiori", "#284255"},    //
    Colore{"picche", "#0b0b12"},   //
    Colore{"carta", "#fffdf4"},    // the face of a card
    Colore{"bordo", "#4a4a4a"},    // its edge
    Colore{"fondo", "#f7ebcd"},    // the ground behind a court figure
    Colore{"nero", "#17161f"},     // ink
    Colore{"rosso", "#b81d2c"},    //
    Colore{"arancio", "#e2622a"},  //
    Colore{"blu", "#274a78"},      //
    Colore{"celeste", "#8fb0c9"},  //
    Colore{"oro", "#e6ab34"},      //
    Colore{"labbra", "#c9705c"},   // of the men
    Colore{"bruno", "#7a4a28"},    //
    Colore{"avorio", "#fff8e6"},   //
    Colore{"grigio", "#c9c6bd"},   // steel, grey hair
    Colore{"carne", "#f8dcbd"},    // skin, and the half of a face that lies in the shade
    Colore{"ombra", "#e3b48c"},    //
    Colore{"notte", "#16295a"},    // the blue back
    Colore{"cobalto", "#34599c"},  //
    Colore{"granata", "#8c1526"},  // the red back
    Colore{"corallo", "#e58f6c"},  //
};

// A suit's shape around (0, 0), about 19 wide and 20 high, standing upright.
struct Seme {
    std::string_view nome;  // also the name of its colour
    std::string_view sagoma;
};

inline constexpr std::array semi{
    Seme{"cuori", "M0 10C-1.6 6.4-9.4 2-9.4-4.3-9.4-7.6-7.2-9.8-4.6-9.8-2.4-9.8-.7-8.4 0-6.2"
                  ".7-8.4 2.4-9.8 4.6-9.8 7.2-9.8 9.4-7.6 9.4-4.3 9.4 2 1.6 6.4 0 10Z"},
    Seme{"quadri", "M0-10.8C2-6.8 5.4-2.8 9 0 5.4 2.8 2 6.8 0 10.8-2 6.8-5.4 2.8-9 0-5.4-2.8-2-6.8 0-10.8Z"},
    Seme{"fiori", "M-1.03 1.5A4.5 4.5 0 1 1-3.28-1.91 4.5 4.5 0 1 1 3.28-1.91 4.5 4.5 0 1 1 1.03 1.5"
                  "C1.3 5.6 2.6 8.2 4.6 10H-4.6C-2.6 8.2-1.3 5.6-1.03 1.5Z"},
    Seme{"picche", "M0-10.4C1.8-6.2 9.2-2.4 9.2 2.8 9.2 5.6 7.2 7.2 5 7.2 3.2 7.2 1.7 6.2 1 4.4"
                   "1.3 6.8 2.5 8.8 4.4 10H-4.4C-2.5 8.8-1.3 6.8-1 4.4-1.7 6.2-3.2 7.2-5 7.2"
                   "-7.2 7.2-9.2 5.6-9.2 2.8-9.2-2.4-1.8-6.2 0-10.4Z"},
};

// Index glyphs are strokes: `asta` of full weight, `grazia` the slab serifs. x is 0 in the middle of the
// index, y goes from 0 to 20, the ink reaches from -8.5 to 8.5 at most.
struct Glifo {
    std::string_view asta;
    std::string_view grazia = "";
};

inline constexpr double peso_asta = 3.5;
inline constexpr double peso_grazia = 2.3;

inline constexpr std::string_view sei =
    "M4.9 4.4C4 2.7 2.4 1.75.5 1.75-3.7 1.75-5.6 5.6-5.6 11-5.6 15.8-3.6 18.25 0 18.25 3.4 18.25 5.6 16.1"
    " 5.6 13 5.6 10 3.4 8 .3 8-2.8 8-5.2 10-5.5 12.8";

inline constexpr std::array<Glifo, 13> glifi{{
    {"M-5.2 18.85L-.2 1.2H.2L5.2 18.85M-3.4 12.8H3.4", "M-8.2 18.85H-2.2M2.2 18.85H8.2"},
    {"M-5.3 6.6C-5.3 3.5-3 1.75 0 1.75 3.2 1.75 5.2 3.6 5.2 6.4 5.2 10.2-2.6 13.2-5 18.25H6.4"},
    {"M-5.1 5.2C-4.4 2.9-2.4 1.75 0 1.75 2.9 1.75 4.9 3.2 4.9 5.5 4.9 8 2.7 9.4-1.4 9.4 3 9.4 5.5 10.9"
     " 5.5 13.8 5.5 16.6 3.2 18.25 0 18.25-2.9 18.25-5 16.9-5.6 14.4"},
    {"M2.8 20V2.6H2.4L-5 13.8H7.4"},
    {"M5.2 1.75H-3.6L-4.3 9.8C-3.2 8.7-1.7 8.1 0 8.1 3.4 8.1 5.6 10 5.6 13 5.6 16.2 3.2 18.25-.2 18.25"
     "-2.8 18.25-4.8 17.1-5.5 14.8"},
    {sei},
    {"M-6.3 1.75H5.4C1.6 7.2-1.2 13-1.5 20", "M-6 0V5.4"},
    {"M0 9.4C-2.9 9.4-4.8 7.8-4.8 5.5-4.8 3.2-2.9 1.75 0 1.75 2.9 1.75 4.8 3.2 4.8 5.5 4.8 7.8 2.9 9.4 0"
     " 9.4-3.3 9.4-5.5 11.1-5.5 13.8-5.5 16.5-3.2 18.25 0 18.25 3.2 18.25 5.5 16.5 5.5 13.8 5.5 11.1 3.3 9.4"
     " 0 9.4Z"},
    {sei},  // upside down
    {"M-5.1 20V0M3.1 1.75C.5 1.75-.6 4.6-.6 10S.5 18.25 3.1 18.25 6.8 15.4 6.8 10 5.7 1.75 3.1 1.75Z",
     "M-7.5 5.2L-4.8 1.6"},
    {"M3.2 1V13.4C3.2 16.6 1.4 18.25-1.2 18.25-3.9 18.25-5.4 16.7-5.5 13.6", "M-1.8 1.15H7.4"},
    {"M-.4 1.75C-4 1.75-5.9 4.8-5.9 9.9S-4 18.05-.4 18.05 5.1 15 5.1 9.9 3.2 1.75-.4 1.75Z"
     "M.4 13.2L6.6 19.2"},
    {"M-4.6 1V19M5.4 1.15L-4 11.8M-1 8.6L5.8 18.85", "M-8 1.15H-1.6M2 1.15H8.2M-8 18.85H-1.6M2.6 18.85H8.5"},
}};

// The place of a pip: column -1, 0, 1, and twelfths of the way from the top row to the bottom row.
struct Posto {
    int colonna;
    int riga;
};

// The columns stay clear of the strip of the index on either side.
inline constexpr double tra_colonne = 17.6;
inline constexpr double prima_riga = 22.5;
inline constexpr double tra_dodicesimi = (altezza - 2 * prima_riga) / 12;

constexpr double x_pip(Posto p) { return larghezza / 2 + tra_colonne * p.colonna; }
constexpr double y_pip(Posto p) { return prima_riga + tra_dodicesimi * p.riga; }
constexpr bool capovolto(Posto p) { return p.riga > 6; }

// From the Two to the Ten.
inline std::vector<std::vector<Posto>> const posti{
    {{0, 0}, {0, 12}},
    {{0, 0}, {0, 6}, {0, 12}},
    {{-1, 0}, {1, 0}, {-1, 12}, {1, 12}},
    {{-1, 0}, {1, 0}, {0, 6}, {-1, 12}, {1, 12}},
    {{-1, 0}, {1, 0}, {-1, 6}, {1, 6}, {-1, 12}, {1, 12}},
    {{-1, 0}, {1, 0}, {0, 3}, {-1, 6}, {1, 6}, {-1, 12}, {1, 12}},
    {{-1, 0}, {1, 0}, {0, 3}, {-1, 6}, {1, 6}, {0, 9}, {-1, 12}, {1, 12}},
    {{-1, 0}, {1, 0}, {-1, 4}, {1, 4}, {0, 6}, {-1, 8}, {1, 8}, {-1, 12}, {1, 12}},
    {{-1, 0}, {1, 0}, {0, 2}, {-1, 4}, {1, 4}, {-1, 8}, {1, 8}, {0, 10}, {-1, 12}, {1, 12}},
};
