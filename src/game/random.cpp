// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/random.h"

#include <bit>
#include <random>

namespace {
std::mt19937 generatore;
std::uint32_t azzeramento = 0;
}  // namespace

void azzera_caso(Integer numero) { azzeramento = static_cast<std::uint32_t>(numero); }

void semina_caso(Single numero)
{
    std::seed_seq semi{azzeramento, std::bit_cast<std::uint32_t>(numero)};
    generatore.seed(semi);
}

// 24 bits are all that a Single holds between 0 and 1, so that nothing is rounded up to 1.
Single caso() { return static_cast<Single>(generatore() >> 8) * 0x1p-24F; }

// In double, where quanti * caso() cannot be rounded up to quanti.
int caso_tra(int primo, int quanti) { return static_cast<int>(static_cast<double>(caso()) * quanti) + primo; }
