// SPDX-License-Identifier: GPL-3.0-or-later

// Writes the pictures of the deck: make_deck DRAWINGS OUT
// DRAWINGS holds the SVG fragments of the figures and Aces; in OUT carta01.svg .. carta52.svg, dorso0.svg
// and dorso1.svg are left. The same drawings always give the same bytes.
//
// A fragment holds the upper half of a figure in card units. Its fill="@oro" is a colour of shapes.h, and
// its href="#pugno" brings along the suit or the fragment pugno.svg, which bring along what they need.
// A figure ends below in the line of its sash, which hides the seam of the two halves.

#include "backs.h"
#include "shapes.h"
#include "svg_text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {

namespace fs = std::filesystem;

constexpr std::string_view licenza =
    "<!-- SollevinoDue card pictures. SPDX-License-Identifier: GPL-3.0-or-later -->\n";

constexpr double x_indice = 10.3;  // middle of the strip that a covered card shows
constexpr double y_indice = 5.5;
constexpr double y_seme_indice = 36;
constexpr double scala_seme_indice = 0.74;
constexpr double scala_pip = 1.03;
constexpr double scala_asso = 2.7;

Testo usa(std::string_view nome, double x, double y, double scala, bool capovolto = false)
{
    return unisci("<use xlink:href='#", nome, "' transform='translate(", x, ' ', y, ") ",
                  capovolto ? "rotate(180) " : "", "scale(", scala, ")'/>\n");
}

// The drawings, and what other drawings they refer to.
class Disegni {
  public:
    explicit Disegni(fs::path cartella) : cartella_(std::move(cartella)) {}

    Testo leggi(std::string_view nome) const
    {
        std::ifstream f(cartella_ / unisci(nome, ".svg"), std::ios::binary);
        std::ostringstream tutto;
        tutto << f.rdbuf();
        Testo s = tutto.str();
        if (s.empty())
            throw std::runtime_error(unisci("no drawing ", nome));
        for (auto i = s.find("<!--"); i != Testo::npos; i = s.find("<!--"))
            s.erase(i, s.find("-->", i) + 4 - i);
        return s;
    }

    // The definitions that a text refers to and does not hold itself, each after those it needs.
    Testo definizioni(Testo const& testo) const
    {
        std::set<Testo> fatte;
        return definizioni(testo, fatte);
    }

  private:
    Testo definizioni(Testo const& testo, std::set<Testo>& fatte) const
    {
        static constexpr std::string_view chiave = "href=\"#";
        Testo s;
        for (auto i = testo.find(chiave); i != Testo::npos; i = testo.find(chiave, i)) {
            i += chiave.size();
            Testo const nome = testo.substr(i, testo.find('"', i) - i);
            if (testo.find(unisci(" id=\"", nome, '"')) != Testo::npos || !fatte.insert(nome).second)
                continue;
            Testo const d = definizione(nome);
            s += definizioni(d, fatte) + d;
        }
        return s;
    }

    Testo definizione(Testo const& nome) const
    {
        for (Seme const& s : semi)
            if (s.nome == nome)
                return unisci("<path id='", nome, "' d='", s.sagoma, "'/>\n");
        return unisci("<g id='", nome, "'>\n", leggi(nome), "</g>\n");
    }

    fs::path cartella_;
};

Testo con_colori(Testo s)
{
    for (Colore const& c : colori)
        for (auto i = s.find(unisci('@', c.nome)); i != Testo::npos; i = s.find(unisci('@', c.nome)))
            s.replace(i, c.nome.size() + 1, c.valore);
    if (s.find('@') != Testo::npos)
        throw std::runtime_error(unisci("no such colour: ", s.substr(s.find('@'), 20)));
    return s;
}

// The source text writes quotes as apostrophes, for the eye's sake.
Testo con_virgolette(Testo s)
{
    std::replace(s.begin(), s.end(), '\'', '"');
    return s;
}

Testo foglio(Disegni const& disegni, Testo const& contenuto)
{
    Testo const c = con_virgolette(contenuto), d = con_virgolette(disegni.definizioni(c));
    return con_colori(unisci(
        licenza,
        R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" version="1.2")"
        R"( baseProfile="tiny" width="96" height="153" viewBox="0 0 96 153">)",
        '\n', d.empty() ? "" : unisci("<defs>\n", d, "</defs>\n"), c, "</svg>\n"));
}

constexpr std::string_view rettangolo = "x='.5' y='.5' width='95' height='152' rx='5.5'";

Testo base() { return unisci("<rect ", rettangolo, " fill='@carta' stroke='@bordo'/>\n"); }

Testo indice(int numero, Seme const& seme)
{
    Glifo const& g = glifi[static_cast<std::size_t>(numero - 1)];
    Testo const tratti = unisci(
        "<path stroke-width='", peso_asta, "' d='", g.asta, "'/>\n",
        g.grazia.empty() ? "" : unisci("<path stroke-width='", peso_grazia, "' d='", g.grazia, "'/>\n"));
    bool const nove = numero == 9;
    return unisci("<g fill='none' stroke='@", seme.nome, "' transform='translate(", x_indice, ' ',
                  nove ? y_indice + 20 : y_indice, nove ? ") rotate(180)'>\n" : ")'>\n", tratti,
                  "</g>\n<g fill='@", seme.nome, "'>\n",
                  usa(seme.nome, x_indice, y_seme_indice, scala_seme_indice), "</g>\n");
}

Testo carta_numerale(int numero, Seme const& seme)
{
    Testo pip;
    for (Posto const p : posti[static_cast<std::size_t>(numero - 2)])
        pip += usa(seme.nome, x_pip(p), y_pip(p), scala_pip, capovolto(p));
    return unisci(base(), due_teste("indice", indice(numero, seme)), "<g id='pip' fill='@", seme.nome, "'>\n",
                  pip, "</g>\n");
}

// One large pip with a line around it, and the drawing of its ornament upon it.
Testo asso(Disegni const& disegni, Seme const& seme)
{
    auto const pip = [&](std::string_view tinta, double tratto) {
        return unisci("<g stroke='@", tinta, "' stroke-width='", tratto, "'>\n",
                      usa(seme.nome, larghezza / 2, altezza / 2, scala_asso), "</g>\n");
    };
    return unisci(base(), due_teste("indice", indice(1, seme)), "<g fill='@", seme.nome, "'>\n",
                  pip(seme.nome, 3), pip("carta", 2.1),
                  usa(seme.nome, larghezza / 2, altezza / 2, scala_asso), "</g>\n",
                  disegni.leggi(unisci("asso_", seme.nome)));
}

// The frame of a figure is cut out around the two indices. The mat around it hides what a drawing lets
// stand over, so that a figure may run into the frame.
constexpr std::string_view cornice =
    "M21.5 6H86.5Q87 9 90 9.5V103.5H78Q74.5 103.5 74.5 107V147H9.5Q9 144 6 143.5V49.5H18Q21.5 49.5 21.5 46Z";

Testo figura(Disegni const& disegni, Testo const& rango, int numero, Seme const& seme)
{
    constexpr std::string_view penna = " stroke='@nero' stroke-width='.9' stroke-linecap='round'";
    return unisci(base(), "<path fill='@fondo' d='", cornice, "'/>\n",
                  due_teste("meta", disegni.leggi(unisci(rango, '_', seme.nome)), penna), "<g", penna, ">\n",
                  disegni.leggi(unisci("fascia_", seme.nome)), "</g>\n",
                  "<path fill='@carta' fill-rule='evenodd' d='", interno, cornice, "'/>\n<path fill='none'",
                  penna, " d='", cornice, "'/>\n", due_teste("indice", indice(numero, seme)));
}

void scrivi(fs::path const& file, Testo const& testo)
{
    std::ofstream f(file, std::ios::binary);
    f << testo;
    if (!f.flush())
        throw std::runtime_error("cannot write " + file.string());
}

}  // namespace

int main(int argc, char** argv)
try {
    if (argc != 3)
        throw std::runtime_error("make_deck DRAWINGS OUT");
    Disegni const disegni(argv[1]);
    fs::path const uscita(argv[2]);
    fs::create_directories(uscita);

    std::map<int, Testo> const ranghi{{11, "fante"}, {12, "donna"}, {13, "re"}};
    int codice = 0;
    for (Seme const& seme : semi)
        for (int numero = 1; numero <= 13; ++numero) {
            ++codice;
            Testo const carta = numero == 1    ? asso(disegni, seme)
                                : numero <= 10 ? carta_numerale(numero, seme)
                                               : figura(disegni, ranghi.at(numero), numero, seme);
            scrivi(uscita / unisci("carta", codice < 10 ? "0" : "", codice, ".svg"), foglio(disegni, carta));
        }
    scrivi(uscita / "dorso0.svg", foglio(disegni, base() + dorso_losanghe()));
    scrivi(uscita / "dorso1.svg", foglio(disegni, base() + dorso_fiamme()));
} catch (std::exception const& e) {
    std::cerr << e.what() << '\n';
    return 1;
}
