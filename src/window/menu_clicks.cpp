// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/menu_clicks.h"

#include "audio/sound_music.h"
#include "game/table_state.h"
#include "players/player_names.h"
#include "window/help_pages.h"
#include "window/lifecycle.h"
#include "window/window.h"

namespace {

// Place of an entry in a menu array, from 1; 0 if it is none of its n entries.
constexpr int index_in(Menu voce, Menu prima, int n)
{
    int const i = static_cast<int>(voce) - static_cast<int>(prima) + 1;
    return i >= 1 && i <= n ? i : 0;
}

void esci_davvero()
{
    superficie.clear();
    Form_Unload();
    end_program();
}

}  // namespace

void menu_click(Menu voce)
{
    if (!enabled(voce))
        return;
    if (int const i = index_in(voce, velocità(1), n_velocità)) {
        if (enabled(Menu::play_rate))
            velocità_Click(i);
        return;
    }
    if (int const i = index_in(voce, canzoni(1), n_canzoni))
        return canzoni_Click(i);

    switch (voce) {
    case Menu::menu_NewGame: return menu_NewGame_Click();
    case Menu::menu_continue: return menu_continue_Click();
    case Menu::personalize_players: return personalize_players_Click();
    case Menu::istruzioni: return istruzioni_Click();
    case Menu::menu_card_rustle_yes: return menu_card_rustle_yes_Click();
    case Menu::menu_card_rustle_no: return menu_card_rustle_no_Click();
    case Menu::nomusic: return nomusic_Click();
    case Menu::all: return all_Click();
    case Menu::menu_about: return menu_about_Click();
    case Menu::menu_help: return menu_help_Click();
    case Menu::esci: return esci_Click();
    default: return;
    }
}

void menu_NewGame_Click() { tavolo.nuova_partita = true; }
void menu_continue_Click() { tavolo.continua = true; }

void velocità_Click(int indice)
{
    auto& t = tavolo;
    for (t.i = 1; t.i <= n_velocità; ++t.i)
        check(velocità(t.i), false);
    t.velocita = static_cast<Single>(indice) * 0.5F;
    check(velocità(indice), true);
}

void esci_Click() { ask_yes_no("Uscire da Sollevino?", esci_davvero); }
