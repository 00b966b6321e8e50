// SPDX-License-Identifier: GPL-3.0-or-later
#include "card_pictures.h"

#include <QDir>

// The resources lie in a static library, where nothing but this call keeps the linker from dropping them.
void init_card_pictures() { Q_INIT_RESOURCE(cards); }
