// SPDX-License-Identifier: GPL-3.0-or-later
#include "computer/discard_decision.h"

#include "audio/sound_music.h"
#include "computer/hand_reading.h"
#include "game/piles.h"
#include "game/random.h"
#include "game/shuffle.h"
#include "game/table_state.h"

#include <algorithm>
#include <cstdlib>

namespace {

enum class Dove { inizio, fine, ovunque };

// A pattern of a row and where it must stand; the card is the one at its "*".
struct Isolamento {
    std::string_view disegno;
    Dove dove;
};

// In the order in which they are tried: Ace and King with three free ranks beside them, then the card with
// the most free ranks on both sides.
constexpr Isolamento isolamenti[] = {
    {"*_____", Dove::inizio},         {"*____", Dove::inizio},        {"*___", Dove::inizio},
    {"_____*", Dove::fine},           {"____*", Dove::fine},          {"___*", Dove::fine},
    {"______*______", Dove::ovunque}, {"_____*_____", Dove::ovunque}, {"____*____", Dove::ovunque},
    {"___*___", Dove::ovunque},       {"__*__", Dove::ovunque},       {"_*_", Dove::ovunque},
};

// The held suit with the fewest ranks in hand, by its index; of equal ones the first.
int seme_piu_corto()
{
    auto const& mappa = tavolo.mappa(computer);
    int migliore = 0;
    std::ptrdiff_t piu_vuoti = 0;
    for (int s = 0; s < 4; ++s) {
        auto const mappa_seme = mappa.riga(s);
        if (mappa_seme == niente_del_seme)
            continue;
        auto const vuoti = std::ranges::count(mappa_seme, '_');
        if (vuoti > piu_vuoti) {
            piu_vuoti = vuoti;
            migliore = s;
        }
    }
    return migliore;
}

// Rank of the most isolated card of a row, or 0.
int valore_isolato(std::string_view riga)
{
    for (auto const& [disegno, dove] : isolamenti) {
        std::size_t posto = std::string_view::npos;
        if (dove == Dove::inizio)
            posto = riga.starts_with(disegno) ? 0 : posto;
        else if (dove == Dove::fine)
            posto = riga.ends_with(disegno) ? riga.size() - disegno.size() : posto;
        else
            posto = riga.find(disegno);
        if (posto != std::string_view::npos)
            return static_cast<int>(posto + disegno.find('*')) + 1;
    }
    return 0;
}

// Slot of the first of two copies of a card that lie side by side, or 0.
int slot_gemella()
{
    auto const& t = tavolo;
    for (int s = 1; s < t.n_carte(computer); ++s)
        if (std::abs(t.mano(computer, s + 1) - t.mano(computer, s)) == 52)
            return s;
    return 0;
}

}  // namespace

int scelgo_scarto()
{
    auto const& t = tavolo;
    int const seme = seme_piu_corto();
    if (int const valore = valore_isolato(t.mappa(computer).riga(seme)))
        return slot_di(computer, codice(seme, valore));
    if (int const slot = slot_gemella())
        return slot;
    return caso_tra(1, t.n_carte(computer));
}

Task scarto_carta()
{
    auto& t = tavolo;
    int const slot = scelgo_scarto();
    suona();
    metti_sul_pozzo(t.mano(computer, slot));
    t.mano(computer, slot) = 0;
    co_await rimescola_se_finito();
}
