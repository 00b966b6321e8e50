// SPDX-License-Identifier: GPL-3.0-or-later
//
// The code page of the names. What it can't hold becomes "?", and so does every control character.
#pragma once

#include <string>
#include <string_view>

std::string da_windows_1252(std::string_view byte);
std::string a_windows_1252(std::string_view utf8);  // broken UTF-8 gives "?" for each byte

// In capitals, within the code page.
std::string maiuscolo(std::string_view utf8);
