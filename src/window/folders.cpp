// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/folders.h"

#include <system_error>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

std::vector<fs::path> di_lettura;  // looked through in this order
fs::path di_scrittura;

bool is_there(fs::path const& p)
{
    std::error_code nessuno;
    return fs::exists(p, nessuno);
}

// A program called music or sounds in a folder of programs makes no portable folder of it.
bool portable(fs::path const& folder)
{
    std::error_code nessuno;
    bool const ours = fs::is_directory(folder / "music", nessuno) ||
                      fs::is_directory(folder / "sounds", nessuno) || is_there(folder / "Players");
    return ours && access(folder.c_str(), W_OK) == 0;
}

}  // namespace

void set_folders(fs::path const& executable, fs::path const& user)
{
    if (portable(executable)) {
        di_lettura = {executable};
        di_scrittura = executable;
    } else {
        di_lettura = {user, executable, executable.parent_path() / "share" / "games" / "sollevinodue"};
        di_scrittura = user;
    }
}

fs::path file_to_read(fs::path const& name)
{
    for (auto const& folder : di_lettura)
        if (is_there(folder / name))
            return folder / name;
    return di_scrittura.empty() ? fs::path() : di_scrittura / name;
}

fs::path file_to_write(fs::path const& name)
{
    if (di_scrittura.empty())
        return {};
    std::error_code nessuno;
    fs::create_directories((di_scrittura / name).parent_path(), nessuno);
    return di_scrittura / name;
}
