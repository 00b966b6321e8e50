// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the game asks of whoever keeps the file of the names: the program on a disk, a page in its browser,
// the tests in a string. Both return at once and report nothing.
#pragma once

#include <string>
#include <string_view>

// The bytes kept last. None if there are none or they can't be had; they may be anything.
std::string kept_names();

// Keeps these bytes in place of the old ones. If that fails the old ones stay whole.
void keep_names(std::string_view byte);
