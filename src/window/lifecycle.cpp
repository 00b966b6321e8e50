// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/lifecycle.h"

#include "audio/sound_music.h"
#include "game/match_loop.h"
#include "game/table_state.h"
#include "window/controls.h"
#include "window/menus.h"
#include "window/window.h"

void Form_Load()
{
    load_measures();
    load_controls();
    load_menus();
    for (Control c : {Control::TxtItaliano, Control::TxtHelp}) {
        show(c, false);
        move_to(c, 0, 0);
    }
    avvia_musica();
    move_to(Control::Text4, 0, 0);
}

void Form_Resize() { scale_controls(measure_window()); }

void Form_Activate()
{
    fix_twips();
    auto& t = tavolo;
    t.centro_x = griglia_x / 2;
    t.centro_y = griglia_y / 2;
    Box const carta = control_box(Control::carta_1);
    t.larg_carta = (carta.x2 - carta.x1) * t.scala_x * riduzione_carta;
    t.alt_carta = (carta.y2 - carta.y1) * t.scala_y * riduzione_carta;
    runner.start(Main());
}

void Form_QueryUnload()
{
    Form_Unload();
    end_program();
}

void Form_Unload() { chiudi_dispositivi(); }
