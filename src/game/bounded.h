// SPDX-License-Identifier: GPL-3.0-or-later
//
// Numbers and arrays that know their bounds. A checked build stops at the first value or index outside
// them and says which; a player's build does not look.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

using Integer = std::int16_t;
using Byte = std::uint8_t;
using Single = float;

#ifdef SOLLEVINO_CHECKED
inline constexpr bool controllato = true;
#else
inline constexpr bool controllato = false;
#endif

// Prints the value and its bounds on stderr, then what prima_di_fermare has to say, and aborts.
[[noreturn]] void fuori_limiti(int valore, int minimo, int massimo);

// Says on stderr what may help to find the fault; the check of the table prints the table.
inline void (*prima_di_fermare)() = [] {};

constexpr void controlla_limiti(int valore, int minimo, int massimo)
{
    if constexpr (controllato)
        if (valore < minimo || valore > massimo)
            fuori_limiti(valore, minimo, massimo);
}

// A whole number from minimo to massimo, kept in T. It reads as an int and takes any int within its bounds.
template <class T, int minimo, int massimo>
class Numero {
  public:
    constexpr Numero() = default;
    constexpr Numero(int valore) : valore_(static_cast<T>(valore))
    {
        controlla_limiti(valore, minimo, massimo);
    }
    template <class U, int a, int b>
    constexpr Numero(Numero<U, a, b> altro) : Numero(static_cast<int>(altro))
    {
    }

    constexpr operator int() const { return valore_; }
    constexpr Numero& operator+=(int di) { return *this = Numero(valore_ + di); }
    constexpr Numero& operator-=(int di) { return *this = Numero(valore_ - di); }
    constexpr Numero& operator++() { return *this += 1; }
    constexpr Numero& operator--() { return *this -= 1; }

  private:
    T valore_ = 0;
};

// Entries 0 to ultima, addressed with round brackets as everywhere in the game.
template <class T, int ultima>
class Serie {
  public:
    constexpr T& operator()(int i) { return voci_[posto(i)]; }
    constexpr T const& operator()(int i) const { return voci_[posto(i)]; }
    constexpr bool operator==(Serie const&) const = default;

  private:
    static constexpr std::size_t posto(int i)
    {
        controlla_limiti(i, 0, ultima);
        return static_cast<std::size_t>(i);
    }
    std::array<T, static_cast<std::size_t>(ultima) + 1> voci_{};
};

// A row for each player (0 to 2, row 0 unused), entries 0 to ultima in each.
template <class T, int ultima>
class Tabella {
  public:
    constexpr T& operator()(int giocatore, int i) { return righe_(giocatore)(i); }
    constexpr T const& operator()(int giocatore, int i) const { return righe_(giocatore)(i); }
    constexpr bool operator==(Tabella const&) const = default;

  private:
    Serie<Serie<T, ultima>, 2> righe_{};
};
