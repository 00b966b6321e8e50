// SPDX-License-Identifier: GPL-3.0-or-later
//
// Pile and stock. Cards come and go by the procedures here, which keep the counts true and the picture of the
// place that a card leaves or reaches. At the end of every turn that does not end the hand, pile and stock
// together hold 78 cards.
#pragma once

#include "game/card_model.h"
#include "game/places.h"
#include "window/surface.h"

// A picture of a card's size with its corner at that place.
void dipingi(Figura figura, Single x, Single y);

// The face of the pile's top card, or table colour if the pile is empty.
void mostra_pozzo();
// The back of the next stock card. An empty stock keeps its old picture.
void mostra_tallone();

// One card more in slot n_carte(p), which is raised. Found: at least one card there, fewer than 14 in the
// hand.
void prendi_dal_pozzo(int p);
void prendi_dal_tallone(int p);  // leaves the picture of the stock as it is

// The card becomes the pile's top. The hand that gave it is the caller's matter.
void metti_sul_pozzo(Carta carta);
