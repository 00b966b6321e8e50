// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The two backs, to be laid on the empty card. Both look the same when turned by half.

#include <string>

std::string dorso_losanghe();  // first deck: blue, a lattice of lozenges
std::string dorso_fiamme();    // second deck: red, the zigzag of flame stitch
