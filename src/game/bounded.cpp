// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/bounded.h"

#include <cstdio>
#include <cstdlib>

void fuori_limiti(int valore, int minimo, int massimo)
{
    std::fprintf(stderr, "out of bounds: %d is not within %d and %d\n", valore, minimo, massimo);
    prima_di_fermare();
    std::abort();
}
