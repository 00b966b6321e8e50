// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Pieces of a drawing as text. Quotes are written as apostrophes until the drawing is put together.

#include <sstream>
#include <string>
#include <string_view>

using Testo = std::string;

template <class... A>
Testo unisci(A const&... a)
{
    std::ostringstream s;
    (s << ... << a);
    return s.str();
}

// The upper half of a card under that name, and below it the same turned by half.
inline Testo due_teste(std::string_view nome, Testo const& meta, std::string_view stile = "")
{
    return unisci("<g id='", nome, "'", stile, ">\n", meta, "</g>\n<use xlink:href='#", nome,
                  "' transform='rotate(180 48 76.5)'/>\n");
}
