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

// One word behind the word of a group. False if it does not belong there or has no room.
bool aggiungi(TableState& t, std::string_view gruppo, std::string_view parola)
{
    int const p = gruppo.ends_with('2') ? computer : umano;
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

// The words that stand in front of a number, in the order in which they are shown.
struct ParolaNumero {
    std::string_view parola;
    int minimo, massimo;
    int (*leggi)(TableState const&);
    void (*scrivi)(TableState&, int);
};
constexpr std::array<ParolaNumero, 7> numeri{{
    {"turno", 0, 2, [](auto const& t) -> int { return t.turno; }, [](auto& t, int n) { t.turno = n; }},
    {"cartaro", 0, 2, [](auto const& t) -> int { return t.cartaro; }, [](auto& t, int n) { t.cartaro = n; }},
    {"game", 0, righe_gioco, [](auto const& t) -> int { return t.n_game; },
     [](auto& t, int n) { t.n_game = n; }},
    {"azione", 0, azioni::ignora, [](auto const& t) -> int { return t.azione; },
     [](auto& t, int n) { t.azione = n; }},
    {"pescato", 0, 1, [](auto const& t) -> int { return t.pescato; },
     [](auto& t, int n) { t.pescato = n != 0; }},
    {"totale", -32767, 32767, [](auto const& t) -> int { return t.totale(umano); },
     [](auto& t, int n) { t.totale(umano) = n; }},
    {"totale2", -32767, 32767, [](auto const& t) -> int { return t.totale(computer); },
     [](auto& t, int n) { t.totale(computer) = n; }},
}};

// The number in that text. False if it is none or out of the word's bounds.
bool scrivi_numero(TableState& t, ParolaNumero const& parola, std::string_view testo)
{
    int n = 0;
    auto const* const fine = testo.data() + testo.size();
    auto const [letto, errore] = std::from_chars(testo.data(), fine, n);
    if (errore != std::errc() || letto != fine || n < parola.minimo || n > parola.massimo)
        return false;
    parola.scrivi(t, n);
    return true;
}

constexpr std::array<std::string_view, 6> gruppi = {"mano", "mano2", "calate", "calate2", "pozzo", "tallone"};

// Moves the stock from the front of mazzo, where it was read, to its end.
void tallone_in_fondo(TableState& t)
{
    int const quante = t.cima_tallone;
    for (int i = quante; i >= 1; --i) {
        int const carta = t.mazzo(i);
        t.mazzo(i) = 0;
        t.mazzo(carte_mazzo - quante + i) = carta;
    }
    t.cima_tallone = tallone_vuoto - quante;
}

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
    for (int p : {umano, computer})
        gruppo(p == umano ? "mano" : "mano2", 1, t.n_carte(p), [p](int s) {
            return (t.mano(p, s) > scelta ? "*" : "") + nome_carta(senza_scelta(t.mano(p, s)));
        });
    for (int p : {umano, computer})
        gruppo(p == umano ? "calate" : "calate2", 1, t.n_calate(p), [p](int i) {
            return t.calate(p, i) == segnacalata ? std::string("|") : nome_carta(t.calate(p, i));
        });
    gruppo("pozzo", 0, t.n_pozzo - 1, [](int i) { return nome_carta(t.pozzo(i)); });
    if (t.cima_tallone > 0)
        gruppo("tallone", t.cima_tallone, carte_mazzo, [](int i) { return nome_carta(t.mazzo(i)); });
    return testo;
}

std::string mostra_tutto()
{
    std::string testo = mostra();
    for (auto const& numero : numeri)
        testo.append(" ").append(numero.parola).append(" ").append(std::to_string(numero.leggi(tavolo)));
    return testo;
}

bool leggi_tavolo(std::string_view testo)
{
    TableState nuovo = tavolo;
    static_cast<Smazzata&>(nuovo) = {};
    static_cast<Tavola&>(nuovo) = {};
    static_cast<Turno&>(nuovo) = {};
    static_cast<Partita&>(nuovo) = {};
    nuovo.mappa(umano).vuota();
    nuovo.mappa(computer).vuota();

    std::istringstream parole{std::string(testo)};
    std::string gruppo, parola;
    while (parole >> parola) {
        auto const numero = std::ranges::find(numeri, parola, &ParolaNumero::parola);
        if (std::ranges::find(gruppi, parola) != gruppi.end()) {
            gruppo = parola;
        } else if (numero != numeri.end()) {
            std::string valore;
            parole >> valore;
            if (!scrivi_numero(nuovo, *numero, valore))
                return false;
        } else if (!aggiungi(nuovo, gruppo, parola)) {
            return false;
        }
    }
    if (!lista_chiusa(nuovo, umano) || !lista_chiusa(nuovo, computer))
        return false;
    tallone_in_fondo(nuovo);
    tavolo = nuovo;
    return true;
}
