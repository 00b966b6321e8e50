// SPDX-License-Identifier: GPL-3.0-or-later
//
// The two names: their file, their place on the table and the page on which they are changed. The file
// `Players` is Windows-1252 text, a name a line, read as a list of fields: a comma ends a field, blanks in
// front are skipped, double quotes keep a field together. Nothing is reported: what can't be read leaves the
// defaults, what can't be written leaves the file as it was.
#pragma once

#include "window/surface.h"

#include <string>
#include <string_view>

// Sets nomi to Player1 and Player2 and reads over them what was kept.
void Lettura_Players();

// The same from the bytes of a file, whatever they are.
void leggi_nomi(std::string_view byte);

// Gives nomi to be kept, a line each.
void Registra_Players();

// Prints both names, that of the player on turn in white. Leaves size 8 and the second name's colour.
void Posiziona_Players();

// Wipes both names from the table, whatever they were when they were printed.
void togli_nomi();

// Opens the names page. Disturbs i.
void personalize_players_Click();

// The text of field 1 or 2 has changed: the name is the text in capitals.
void TxtPlayer_Change(int indice);

// Takes the page from the table without writing anything; its place gets the table colour. False, and nothing
// changed, if it was not open.
bool togli_pagina_nomi();

// Where a click closes the page, in grid units. The edges do not count.
Box area_chiusura_nomi();
