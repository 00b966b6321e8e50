// SPDX-License-Identifier: GPL-3.0-or-later
//
// A stream of events on the silent window. The table stays whole at every wait.
#include "random_events.h"

#include "game/table_check.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::uint8_t const* const end = data + size;
    auto const byte = [&] { return data < end ? *data++ : 0; };
    avvia_programma();
    finestra.day_began = byte() * 256 + byte();
    runner.resume();
    while (data < end && !finestra.ended) {
        // The virtual clock is free: most of the time the game goes on until it waits for somebody.
        if (byte() % 8 == 0)
            scatta_timer();
        else
            fino_all_attesa();
        evento([&] { random_event(byte); });
        runner.resume();
        if (!tavolo_coerente())
            std::abort();
    }
    return 0;
}
