// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Makes the pictures of the deck known to Qt: afterwards `:/cards/carta01.svg` .. `:/cards/carta52.svg`,
// `:/cards/dorso0.svg` (first deck) and `:/cards/dorso1.svg` (second deck) can be opened.
// To be called once before the first picture is drawn; calling it again does no harm.
// A picture has the proportions 96:153, fills the box it is drawn into and is transparent outside its rounded
// corners. It is drawn fastest into a box of exactly these proportions, a height of 153/96 widths not rounded
// to pixels: only then does the painter take its short way with thin lines.
void init_card_pictures();
