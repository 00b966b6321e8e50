// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where the program's files lie. A portable folder, one that can be written and holds music, sounds or the
// names beside the executable, keeps everything there. Otherwise the game is installed: it reads first from
// the user's own folder, then beside the executable, then from share/games/sollevinodue beside its bin or
// games folder, and writes to the user's own folder only.
#pragma once

#include <filesystem>

// Once at the start, with the folder of the executable and the user's data folder for this program, which
// need not exist yet. Before that no file is found and none is written.
void set_folders(std::filesystem::path const& executable, std::filesystem::path const& user);

// The first file or folder of that name, relative; where a file of that name would be written if there is
// none.
std::filesystem::path file_to_read(std::filesystem::path const& name);

// Where a file of that name is written; the folder is made if it can be. Empty if folders have not been set.
std::filesystem::path file_to_write(std::filesystem::path const& name);
