// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/table_text.h"

#include "game/table_state.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <sstream>

namespace {

constexpr std::array<std::string_view, 14> valori = {"",  "A", "2", "3",  "4", "5", "6",
                                                     "7", "8", "9", "10", "J", "Q", "K"};
constexpr std::string_view semi = " HDCS";

bool numero(std::string_view parola, int massimo, int& valore)
{
    auto const [fine, errore] = std::from_chars(parola.data(), parola.data() + parola.size(), valore);
    return errore == std::errc() && fine == parola.data() + parola.size() && valore >= -massimo &&
           valore <= massimo;
}

// One word behind the word of a group. False if it does not belong there or has no room.
bool aggiungi(TableState& t, std::string_view gruppo, std::string_view parola)
{
    int const p = gruppo.ends_with('2') ? 2 : 1;
    if (gruppo == "calate" || gruppo == "calate2") {
        int const carta = parola == "|" ? segnacalata : carta_da(parola);
        if (carta == 0 || t.n_calate(p) == max_calate)
            return false;
        t.calate(p, ++t.n_calate(p)) = carta;
        return true;
    }
    if (gruppo == "mano" || gruppo == "mano2") {
        bool const scelta_qui = parola.starts_with('*');
        int const carta = carta_da(parola.substr(scelta_qui ? 1 : 0));
        if (carta == 0 || t.n_carte(p) == max_mano)
            return false;
        t.mano(p, ++t.n_carte(p)) = carta + (scelta_qui ? scelta : 0);
        t.mappa(p).segna(carta);
        return true;
    }
    if (gruppo == "pozzo") {
        int const carta = carta_da(parola);
        if (carta == 0 || t.n_pozzo == max_pozzo)
            return false;
        t.pozzo(t.n_pozzo) = carta;
        ++t.n_pozzo;
        return true;
    }
    // The stock is read into the front of mazzo; it goes to its end when it is complete.
    int const carta = carta_da(parola);
    if (gruppo != "tallone" || carta == 0 || t.cima_tallone == max_pozzo)
        return false;
    t.mazzo(++t.cima_tallone) = carta;
    return true;
}

// A number word. False if it is none of them or the number is out of bounds.
bool numero_di(TableState& t, std::string_view parola, std::string_view testo)
{
    int n = 0;
    int const massimo = parola == "turno" || parola == "cartaro" ? 2
                        : parola == "game"                       ? righe_gioco
                        : parola == "azione"                     ? 15
                        : parola == "pescato"                    ? 1
                                                                 : 32767;
    if (!numero(testo, massimo, n) || (massimo != 32767 && n < 0))
        return false;
    if (parola == "turno")
        t.turno = n;
    else if (parola == "cartaro")
        t.cartaro = n;
    else if (parola == "game")
        t.n_game = n;
    else if (parola == "azione")
        t.azione = n;
    else if (parola == "pescato")
        t.pescato = n != 0;
    else
        t.totale(parola == "totale" ? 1 : 2) = n;
    return true;
}

constexpr std::array<std::string_view, 6> gruppi = {"mano", "mano2", "calate", "calate2", "pozzo", "tallone"};
constexpr std::array<std::string_view, 7> numeri = {"turno",   "cartaro", "game",   "azione",
                                                    "pescato", "totale",  "totale2"};

bool lista_chiusa(TableState const& t, int p)
{
    return t.n_calate(p) == 0 || t.calate(p, t.n_calate(p)) == segnacalata;
}

}  // namespace

std::string nome_carta(int carta)
{
    if (carta < 1 || carta > carte_mazzo)
        return "?";
    return std::string(valori[static_cast<std::size_t>(ValCarta(carta))]) +
           semi[static_cast<std::size_t>(Seme(carta))] + (carta > 52 ? "'" : "");
}

int carta_da(std::string_view nome)
{
    bool const secondo = nome.ends_with('\'');
    if (secondo)
        nome.remove_suffix(1);
    if (nome.size() < 2)
        return 0;
    auto const seme = semi.find(nome.back(), 1);
    auto const valore = std::ranges::find(valori, nome.substr(0, nome.size() - 1));
    if (seme == std::string_view::npos || valore == valori.end())
        return 0;
    return static_cast<int>(seme - 1) * 13 + static_cast<int>(valore - valori.begin()) + (secondo ? 52 : 0);
}

std::string mostra()
{
    auto const& t = tavolo;
    std::string testo;
    auto const gruppo = [&testo](std::string_view nome, int da, int a, auto voce) {
        if (da > a)
            return;
        testo += (testo.empty() ? "" : " ") + std::string(nome);
        for (int i = da; i <= a; ++i)
            testo += " " + voce(i);
    };
    for (int p = 1; p <= 2; ++p)
        gruppo(p == 1 ? "mano" : "mano2", 1, t.n_carte(p), [p](int s) {
            return (t.mano(p, s) > scelta ? "*" : "") + nome_carta(senza_scelta(t.mano(p, s)));
        });
    for (int p = 1; p <= 2; ++p)
        gruppo(p == 1 ? "calate" : "calate2", 1, t.n_calate(p), [p](int i) {
            return t.calate(p, i) == segnacalata ? std::string("|") : nome_carta(t.calate(p, i));
        });
    gruppo("pozzo", 0, t.n_pozzo - 1, [](int i) { return nome_carta(t.pozzo(i)); });
    if (t.cima_tallone > 0)
        gruppo("tallone", t.cima_tallone, carte_mazzo, [](int i) { return nome_carta(t.mazzo(i)); });
    return testo;
}

std::string mostra_tutto()
{
    auto const& t = tavolo;
    std::array<int, numeri.size()> const valori_numeri = {t.turno,   t.cartaro,   t.n_game,   t.azione,
                                                          t.pescato, t.totale(1), t.totale(2)};
    std::string testo = mostra();
    for (std::size_t i = 0; i < numeri.size(); ++i)
        testo.append(" ").append(numeri[i]).append(" ").append(std::to_string(valori_numeri[i]));
    return testo;
}

bool leggi_tavolo(std::string_view testo)
{
    TableState nuovo = tavolo;
    static_cast<Smazzata&>(nuovo) = {};
    static_cast<Tavola&>(nuovo) = {};
    static_cast<Turno&>(nuovo) = {};
    static_cast<Partita&>(nuovo) = {};
    nuovo.mappa(1).vuota();
    nuovo.mappa(2).vuota();

    std::istringstream parole{std::string(testo)};
    std::string gruppo, parola;
    while (parole >> parola) {
        if (std::ranges::find(gruppi, parola) != gruppi.end()) {
            gruppo = parola;
        } else if (std::ranges::find(numeri, parola) != numeri.end()) {
            std::string valore;
            parole >> valore;
            if (!numero_di(nuovo, parola, valore))
                return false;
        } else if (!aggiungi(nuovo, gruppo, parola)) {
            return false;
        }
    }
    if (!lista_chiusa(nuovo, 1) || !lista_chiusa(nuovo, 2))
        return false;
    int const tallone = nuovo.cima_tallone;
    for (int i = tallone; i >= 1; --i) {
        int const carta = nuovo.mazzo(i);
        nuovo.mazzo(i) = 0;
        nuovo.mazzo(carte_mazzo - tallone + i) = carta;
    }
    nuovo.cima_tallone = carte_mazzo - tallone + 1;
    tavolo = nuovo;
    return true;
}
