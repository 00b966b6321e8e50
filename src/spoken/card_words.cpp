// SPDX-License-Identifier: GPL-3.0-or-later
#include "spoken/card_words.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<std::string_view, 5> semi{"", "cuori", "quadri", "fiori", "picche"};

// How a rank goes with the words in front of it: its article, "from" and "to".
struct Parole {
    std::string_view articolo, da, a;
};
Parole parole(int valore)
{
    if (valore == 1 || valore == 8)  // asso, otto: the article loses its vowel
        return {"l'", "dall'", "all'"};
    if (valore == 12)
        return {"la ", "dalla ", "alla "};
    return {"il ", "dal ", "al "};
}

bool segue(int sotto, int sopra) { return sopra == sotto + 1 || (sotto == 13 && sopra == 1); }

bool in_scala(std::span<Carta const> carte)
{
    for (std::size_t i = 1; i < carte.size(); ++i)
        if (Seme(carte[i]) != Seme(carte[0]) || !segue(ValCarta(carte[i - 1]), ValCarta(carte[i])))
            return false;
    return carte.size() >= 3;
}

bool in_gruppo(std::span<Carta const> carte)
{
    for (std::size_t i = 1; i < carte.size(); ++i)
        if (ValCarta(carte[i]) != ValCarta(carte[0]) || Seme(carte[i]) == Seme(carte[i - 1]))
            return false;
    return carte.size() >= 3;
}

std::string_view nome_scala(std::size_t lunghezza)
{
    return lunghezza == 14 ? "Sollevinone" : lunghezza >= 7 ? "Sollevino" : "scala";
}

template <class Nome>
std::string elenco(std::span<Carta const> carte, Nome nome)
{
    std::string testo;
    for (Carta const carta : carte)
        testo += std::string(testo.empty() ? "" : ", ") + std::string(nome(carta));
    return testo;
}

// Of several cards of a rank: "d'Assi", "di Donne".
std::string di_molti(int valore)
{
    switch (valore) {
    case 1: return "d'Assi";
    case 11: return "di Fanti";
    case 12: return "di Donne";
    default: return "di " + nome_valore(valore);
    }
}

std::string gruppo_detto(std::span<Carta const> carte)
{
    return std::string(carte.size() == 4 ? "poker " : "tris ") + di_molti(ValCarta(carte[0])) + ": " +
           elenco(carte, [](Carta c) { return nome_seme(Seme(c)); });
}

}  // namespace

std::string nome_valore(int valore)
{
    switch (valore) {
    case 1: return "Asso";
    case 11: return "Fante";
    case 12: return "Donna";
    case 13: return "Re";
    default: return std::to_string(valore);
    }
}

std::string_view nome_seme(int seme) { return semi[static_cast<std::size_t>(seme)]; }

std::string carta_detta(Carta carta)
{
    return nome_valore(ValCarta(carta)) + " di " + std::string(nome_seme(Seme(carta)));
}

std::string carta_con_articolo(Carta carta)
{
    return std::string(parole(ValCarta(carta)).articolo) + carta_detta(carta);
}

std::string calata_detta(std::span<Carta const> carte)
{
    if (in_gruppo(carte))
        return gruppo_detto(carte);
    if (!in_scala(carte))
        return elenco(carte, carta_detta);
    int const prima = ValCarta(carte.front()), ultima = ValCarta(carte.back());
    return std::string(nome_scala(carte.size())) + " di " + std::string(nome_seme(Seme(carte[0]))) + " " +
           std::string(parole(prima).da) + nome_valore(prima) + " " + std::string(parole(ultima).a) +
           nome_valore(ultima);
}

std::string calata_con_articolo(std::span<Carta const> carte)
{
    if (in_gruppo(carte))
        return "un " + gruppo_detto(carte);
    if (!in_scala(carte))
        return elenco(carte, carta_con_articolo);
    auto const nome = nome_scala(carte.size());
    return std::string(nome == "scala" ? "una " : "un ") + std::string(nome) + " di " +
           std::string(nome_seme(Seme(carte[0]))) + ": " +
           elenco(carte, [](Carta c) { return nome_valore(ValCarta(c)); });
}

std::string quante_carte(int n) { return std::to_string(n) + (n == 1 ? " carta" : " carte"); }

std::string maiuscola(std::string testo)
{
    if (!testo.empty() && testo[0] >= 'a' && testo[0] <= 'z')
        testo[0] = static_cast<char>(testo[0] - 'a' + 'A');
    return testo;
}

std::string senza_gridare(std::string testo)
{
    if (std::ranges::any_of(testo, [](char c) { return c >= 'a' && c <= 'z'; }))
        return testo;
    for (char& c : testo)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return testo;
}
