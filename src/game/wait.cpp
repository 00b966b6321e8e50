// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/wait.h"

#include "game/table_state.h"
#include "window/window.h"

Task ritardo(Single tempo)
{
    auto& t = tavolo;
    t.tempo_scaduto = false;
    start_timer(static_cast<int>(tempo * 6500 / t.velocita));
    while (!t.tempo_scaduto)
        co_await eventi();
}

void Timer1_Timer() { tavolo.tempo_scaduto = true; }
