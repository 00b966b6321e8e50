// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/random.h"

#include <array>
#include <bit>
#include <optional>
#include <random>

namespace {

using Semi = std::array<std::uint32_t, 2>;

std::mt19937 generatore;
std::uint32_t azzeramento = 0;

// The last seeding is kept: each hand is shuffled twice in the same instant, and seeding takes longer than drawing.
std::mt19937 seminato;
std::optional<Semi> semi_di_seminato;

}  // namespace

void azzera_caso(Integer numero) { azzeramento = static_cast<std::uint32_t>(numero); }

void semina_caso(Single numero)
{
    Semi const semi{azzeramento, std::bit_cast<std::uint32_t>(numero)};
    if (semi != semi_di_seminato) {
        std::seed_seq tutti(semi.begin(), semi.end());
        seminato.seed(tutti);
        semi_di_seminato = semi;
    }
    generatore = seminato;
}

// 24 bits are all that a Single holds between 0 and 1, so that nothing is rounded up to 1.
Single caso() { return static_cast<Single>(generatore() >> 8) * 0x1p-24F; }

// In double, where quanti * caso() cannot be rounded up to quanti.
int caso_tra(int primo, int quanti) { return static_cast<int>(static_cast<double>(caso()) * quanti) + primo; }
