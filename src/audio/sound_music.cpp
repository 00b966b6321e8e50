// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/sound_music.h"

#include "audio/device.h"
#include "game/table_state.h"
#include "window/menus.h"

namespace {

// The caption of a tune is the name of its file.
void apri_canzone(int indice)
{
    device_close(Device::music);
    device_file(Device::music, caption(canzoni(indice)));
    device_open(Device::music);
}

void nessuna_canzone_segnata()
{
    for (int i = 1; i <= n_canzoni; ++i)
        check(canzoni(i), false);
}

}  // namespace

void avvia_musica()
{
    apri_canzone(1);
    nessuna_canzone_segnata();
    check(Menu::nomusic, false);
    check(Menu::all, true);
    tavolo.n_canzone = n_canzoni;
    MMC1_Done(1);  // as if the last tune had just ended
    device_close(Device::effects);
}

void chiudi_dispositivi()
{
    device_close(Device::music);
    device_close(Device::effects);
}

void Apri_suono(std::string_view nome)
{
    device_close(Device::effects);
    device_file(Device::effects, nome);
    device_open(Device::effects);
}

void suona()
{
    if (!checked(Menu::menu_card_rustle_yes))
        return;
    device_play(Device::effects);
    device_rewind(Device::effects);
}

void MMC1_Done(int NotifyCode)
{
    auto& t = tavolo;
    if (NotifyCode != 1)
        return;
    if (checked(Menu::all)) {
        int const finita = t.n_canzone;
        t.n_canzone = finita % n_canzoni + 1;
        check(canzoni(t.n_canzone == 1 ? n_canzoni : t.n_canzone - 1), false);
        check(canzoni(t.n_canzone), true);
        apri_canzone(t.n_canzone);
    } else {
        device_rewind(Device::music);
    }
    device_play(Device::music);
}

void canzoni_Click(int indice)
{
    nessuna_canzone_segnata();
    check(canzoni(indice), true);
    check(Menu::nomusic, false);
    check(Menu::all, false);
    tavolo.n_canzone = 0;
    apri_canzone(indice);
    device_play(Device::music);
}

void nomusic_Click()
{
    nessuna_canzone_segnata();
    check(Menu::nomusic, true);
    check(Menu::all, false);
    device_close(Device::music);
}

void all_Click()
{
    bool const silenzio = checked(Menu::nomusic) || !device_plays(Device::music);
    if (checked(Menu::all) && !silenzio)
        return;
    int corrente = n_canzoni;
    for (int i = 1; i <= n_canzoni; ++i)
        if (checked(canzoni(i)))
            corrente = i;
    check(Menu::nomusic, false);
    check(Menu::all, true);
    tavolo.n_canzone = corrente;
    if (silenzio)
        MMC1_Done(1);
}

void menu_card_rustle_yes_Click()
{
    check(Menu::menu_card_rustle_no, false);
    check(Menu::menu_card_rustle_yes, true);
}

void menu_card_rustle_no_Click()
{
    check(Menu::menu_card_rustle_no, true);
    check(Menu::menu_card_rustle_yes, false);
}
