// SPDX-License-Identifier: GPL-3.0-or-later
//
// One thing after the other that can happen to the game, told by a stream of bytes: clicks, most of them
// where they mean something, menu picks, resizes, names, ends of tunes, the close control.
#pragma once

#include "at_the_table.h"

#include "audio/sound_music.h"
#include "game/table_state.h"
#include "human/pointer_input.h"
#include "players/player_names.h"
#include "window/help_pages.h"

template <class Next>  // gives a number from 0 to 255
void random_event(Next&& next)
{
    auto const x = [&] { return static_cast<Single>(next()) * 4 - 40; };
    auto const y = [&] { return static_cast<Single>(next()) * 3.5F - 40; };
    int const what = next() % 24;
    if (what > 15)
        return Form_MouseDown(2, 0, x(), 700);
    if (what > 12)
        return Form_MouseDown(1, 0, x(), 700);
    switch (what) {
    case 0: return menu_click(static_cast<Menu>(next() % n_voci));
    case 1: return menu_click(tavolo.continua ? Menu::menu_continue : Menu::menu_NewGame);
    case 2: client_size({next() * 16, next() * 12}); return Form_Resize();
    case 3:
        set_text(TxtPlayer(1 + next() % 4),
                 std::string(static_cast<std::size_t>(next()) % 9, static_cast<char>(next())));
        return TxtPlayer_Change(1 + next() % 2);
    case 4: return next() == 0 && next() > 100 ? Form_QueryUnload() : MMC1_Done(next() % 3);
    case 5: return Form_MouseMove(0, 0, x(), y());
    case 6: return Form_MouseDown(next() % 5, 0, x(), y());
    case 7: return Form_MouseDown(1, 0, 100, 120);  // where the names page is closed
    case 8:
    case 9:
    case 10: return Form_MouseDown(1, 0, next() % 2 ? 500.0F : 520.0F, 384);
    case 11: return Form_MouseDown(1, 0, 312 + x() / 3, 520);
    default: finestra.answer_yes = next() % 128 == 0; return TxtHelp_Click();
    }
}
