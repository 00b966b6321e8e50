// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any text is read as a table or refused; a table that was read shows itself as a text that reads back the
// same.
#include "game/table_text.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    if (leggi_tavolo({reinterpret_cast<char const*>(data), size})) {
        std::string const shown = mostra_tutto();
        if (!leggi_tavolo(shown) || mostra_tutto() != shown)
            std::abort();
    }
    return 0;
}
