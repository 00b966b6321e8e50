// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/menus.h"

#include "window/window.h"

#include <array>

namespace {

constexpr std::size_t posto(Menu voce) { return static_cast<std::size_t>(voce); }

constexpr std::array<MenuEntry, n_voci> albero{{
    {Menu::menu_game, 1, false, "&Partita"},
    {Menu::menu_NewGame, 2, false, "Nuova partita"},
    {Menu::menu_continue, 2, false, "Continua"},
    {Menu::personalize_players, 2, false, "&Nomi dei giocatori"},
    {Menu::istruzioni, 1, false, "&Regole"},
    {Menu::opzioni, 1, false, "&Opzioni"},
    {Menu::play_rate, 2, false, "Velocità gioco"},
    {velocità(1), 3, true, "Bassa"},
    {velocità(2), 3, true, "Media"},
    {velocità(3), 3, true, "Alta"},
    {Menu::menu_sounds, 1, false, "&Suoni"},
    {Menu::menu_card_rustle, 2, false, "Fruscio delle carte"},
    {Menu::menu_card_rustle_yes, 3, true, "Si"},
    {Menu::menu_card_rustle_no, 3, true, "No"},
    {Menu::menu_music, 1, false, "&Musica"},
    {Menu::nomusic, 2, true, "Nessuna"},
    {Menu::all, 2, true, "MODO SEQUENZIALE"},
    {canzoni(1), 2, true, "Adagio sostenuto"},
    {canzoni(2), 2, true, "Allegretto"},
    {canzoni(3), 2, true, "Arabesque"},
    {canzoni(4), 2, true, "Boccherini-minuetto"},
    {canzoni(5), 2, true, "BWV 772"},
    {canzoni(6), 2, true, "BWV 773"},
    {canzoni(7), 2, true, "BWV 774"},
    {canzoni(8), 2, true, "BWV 775"},
    {canzoni(9), 2, true, "BWV776"},
    {canzoni(10), 2, true, "Fastlane"},
    {canzoni(11), 2, true, "Mascagni-preludio"},
    {canzoni(12), 2, true, "Monteverdi-balletto"},
    {canzoni(13), 2, true, "Per Elisa"},
    {canzoni(14), 2, true, "Rondò a capriccio"},
    {canzoni(15), 2, true, "Rossini-Guglielmo Tell"},
    {canzoni(16), 2, true, "Verdi-Aida"},
    {canzoni(17), 2, true, "Vivaldi-Concerto in C"},
    {Menu::menu_about, 1, false, "&Info"},
    {Menu::menu_help, 1, false, "&Help"},
    {Menu::esci, 1, false, "&Esci"},
}};

constexpr bool in_order()
{
    for (std::size_t i = 0; i < albero.size(); ++i)
        if (posto(albero[i].voce) != i)
            return false;
    return true;
}
static_assert(in_order());

struct EntryState {
    bool enabled = true;
    bool checked = false;
};
using EntryStates = std::array<EntryState, n_voci>;

EntryStates states_at_start()
{
    EntryStates s;
    s[posto(velocità(1))].checked = true;
    s[posto(Menu::menu_card_rustle_yes)].checked = true;
    return s;
}
EntryStates stato = states_at_start();

}  // namespace

std::span<MenuEntry const> menu_tree() { return albero; }
std::string_view caption(Menu voce) { return albero[posto(voce)].caption; }
bool enabled(Menu voce) { return stato[posto(voce)].enabled; }
bool checked(Menu voce) { return stato[posto(voce)].checked; }

void enable(Menu voce, bool yes)
{
    stato[posto(voce)].enabled = yes;
    show_menu_entry(voce);
}

void check(Menu voce, bool yes)
{
    stato[posto(voce)].checked = yes;
    show_menu_entry(voce);
}

void load_menus() { stato = states_at_start(); }
