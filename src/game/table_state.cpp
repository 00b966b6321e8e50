// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/table_state.h"

TableState tavolo;
