// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where the program's files lie. A portable folder, one that can be written and holds music, sounds or the
// names beside the executable, keeps everything there. Otherwise the game is installed: it reads first from
// the user's own folder, then beside the executable, then from share/games/sollevinodue beside its bin or
// games folder, and writes to the user's own folder only.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

class Folders {
  public:
    // Nothing is found and nothing is kept.
    Folders() = default;

    // The folder of the executable and the user's data folder for this program, which need not exist yet.
    Folders(std::filesystem::path const& executable, std::filesystem::path const& user);

    // The file of a tune or an effect, as the game names it; it may be missing.
    std::filesystem::path tune(std::string_view name) const;
    std::filesystem::path effect(std::string_view name) const;

    // The bytes of the file `Players`, 64 KiB at most. None if there is no such file or it can't be read.
    std::string names() const;

    // Writes that file as a whole new one, whoever else does so at the same time, and takes away what a game
    // has left that was killed in the middle. What can't be written leaves the old one as it was.
    void keep_names(std::string_view bytes) const;

  private:
    // The first file or folder of that name; where it would be written if there is none.
    std::filesystem::path to_read(std::filesystem::path const& name) const;

    std::vector<std::filesystem::path> di_lettura;  // looked through in this order
    std::filesystem::path di_scrittura;
};
