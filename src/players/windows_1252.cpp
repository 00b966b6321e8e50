// SPDX-License-Identifier: GPL-3.0-or-later
#include "players/windows_1252.h"

#include <algorithm>
#include <array>

namespace {

// Code points of the bytes 0x80 to 0x9F; 0 where the code page has none. All others are their own.
constexpr std::array<char32_t, 32> alti = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
};

constexpr char32_t sconosciuto = '?';

char32_t punto_codice(unsigned char byte)
{
    if (byte >= 0x80 && byte < 0xA0)
        return alti[byte - 0x80U] ? alti[byte - 0x80U] : sconosciuto;
    return byte < 0x20 || byte == 0x7F ? sconosciuto : byte;
}

char byte_di(char32_t c)
{
    if ((c >= 0x20 && c < 0x7F) || (c >= 0xA0 && c <= 0xFF))
        return static_cast<char>(static_cast<unsigned char>(c));
    auto const p = std::ranges::find(alti, c);
    return c == 0 || p == alti.end()
               ? '?'
               : static_cast<char>(static_cast<unsigned char>(0x80 + (p - alti.begin())));
}

void aggiungi_utf8(std::string& testo, char32_t c)  // c below 0x10000
{
    auto const metti = [&testo](char32_t b) { testo += static_cast<char>(static_cast<unsigned char>(b)); };
    if (c < 0x80) {
        metti(c);
    } else if (c < 0x800) {
        metti(0xC0 | (c >> 6));
        metti(0x80 | (c & 0x3F));
    } else {
        metti(0xE0 | (c >> 12));
        metti(0x80 | ((c >> 6) & 0x3F));
        metti(0x80 | (c & 0x3F));
    }
}

}  // namespace

std::string da_windows_1252(std::string_view byte)
{
    std::string testo;
    for (char const b : byte)
        aggiungi_utf8(testo, punto_codice(static_cast<unsigned char>(b)));
    return testo;
}

std::string a_windows_1252(std::string_view utf8)
{
    std::string byte;
    for (std::size_t i = 0; i < utf8.size();) {
        auto const primo = static_cast<unsigned char>(utf8[i]);
        std::size_t const lung = primo < 0x80    ? 1
                                 : primo >= 0xF0 ? 4
                                 : primo >= 0xE0 ? 3
                                 : primo >= 0xC2 ? 2
                                                 : 0;
        char32_t c = lung == 1 ? primo : primo & (0x7FU >> lung);
        std::size_t letti = 1;
        while (letti < lung && i + letti < utf8.size() &&
               (static_cast<unsigned char>(utf8[i + letti]) & 0xC0U) == 0x80)
            c = (c << 6) | (static_cast<unsigned char>(utf8[i + letti++]) & 0x3FU);
        bool const intero = lung != 0 && letti == lung;
        byte += intero ? byte_di(c) : '?';
        i += intero ? lung : 1;
    }
    return byte;
}

std::string maiuscolo(std::string_view utf8)
{
    std::string byte = a_windows_1252(utf8);
    for (char& b : byte) {
        auto const c = static_cast<unsigned char>(b);
        if ((c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7))
            b = static_cast<char>(c - 0x20);
        else if (c == 0x9A || c == 0x9C || c == 0x9E)  // s caron, oe, z caron
            b = static_cast<char>(c - 0x10);
        else if (c == 0xFF)  // y diaeresis
            b = static_cast<char>(0x9F);
    }
    return da_windows_1252(byte);
}
