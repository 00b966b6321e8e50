// SPDX-License-Identifier: GPL-3.0-or-later
//
// The two voices of the game, music and card sounds. The music mode and the card sound are held by the check
// marks of the menu and nowhere else. No operation of a device is tested: without files or hardware the game
// plays the same.
#pragma once

#include <string_view>

// Closes the devices and starts the first tune, in sequential mode.
void avvia_musica();
void chiudi_dispositivi();

// Makes the effect ("carta", "Notify") the one that suona() plays.
void Apri_suono(std::string_view nome);

// Plays the effect from its beginning, unless the menu says no.
void suona();

// A command of the music device has ended. Code 1: the tune has played to its end. In sequential mode the
// next one follows, otherwise the same one begins again. Any other code is ignored.
void MMC1_Done(int NotifyCode);

void canzoni_Click(int indice);  // that tune over and over, 1 to 17
void nomusic_Click();            // silence
// Back to sequential mode, behind the tune that plays; the next tune begins at once if none can be heard.
void all_Click();
void menu_card_rustle_yes_Click();
void menu_card_rustle_no_Click();
