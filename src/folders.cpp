// SPDX-License-Identifier: GPL-3.0-or-later
#include "folders.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t max_file = 65536;  // bytes of the names that are looked at

bool is_there(fs::path const& p)
{
    std::error_code nessuno;
    return fs::exists(p, nessuno);
}

// Only a folder called music or sounds counts. A folder of programs may hold a program of that name, and does not
// become a portable folder by it.
bool portable(fs::path const& folder)
{
    std::error_code nessuno;
    bool const ours = fs::is_directory(folder / "music", nessuno) ||
                      fs::is_directory(folder / "sounds", nessuno) || is_there(folder / "Players");
    return ours && access(folder.c_str(), W_OK) == 0;
}

// A folder copied by way of another system may hold accented names taken apart into letter and accent.
std::string scomposto(std::string nome)
{
    static constexpr std::string_view o_grave = "\u00F2", o_e_grave = "o\u0300";
    for (auto p = nome.find(o_grave); p != std::string::npos; p = nome.find(o_grave, p + 1))
        nome.replace(p, o_grave.size(), o_e_grave);
    return nome;
}

constexpr std::string_view half_written = "Players.", half_written_end = ".new";

// Games write the names beside each other, so each has a new file of its own.
fs::path new_file(fs::path const& folder)
{
    return folder / (std::string(half_written) + std::to_string(getpid()) + std::string(half_written_end));
}

// Takes away what games have left that were killed while they wrote.
void remove_rests(fs::path const& folder)
{
    std::error_code errore;
    for (fs::directory_iterator at(folder, errore), end; !errore && at != end; at.increment(errore)) {
        std::string const name = at->path().filename().string();
        if (!name.starts_with(half_written) || !name.ends_with(half_written_end))
            continue;
        int const writer = std::atoi(name.c_str() + half_written.size());
        std::error_code nessuno;
        if (writer > 0 && kill(writer, 0) != 0 && errno == ESRCH)
            fs::remove(at->path(), nessuno);
    }
}

}  // namespace

Folders::Folders(fs::path const& executable, fs::path const& user)
{
    if (portable(executable)) {
        di_lettura = {executable};
        di_scrittura = executable;
    } else {
        di_lettura = {user, executable, executable.parent_path() / "share" / "games" / "sollevinodue"};
        di_scrittura = user;
    }
}

fs::path Folders::tune(std::string_view name) const
{
    std::string const nome = "music/" + std::string(name) + ".mid";
    auto const file = to_read(nome);
    return is_there(file) ? file : to_read(scomposto(nome));
}

fs::path Folders::effect(std::string_view name) const
{
    return to_read("sounds/" + std::string(name) + ".wav");
}

std::string Folders::names() const
{
    auto const file = to_read("Players");
    std::error_code errore;
    if (!is_regular_file(file, errore))
        return {};
    std::ifstream in(file, std::ios::binary);
    std::string testo(max_file, '\0');
    in.read(testo.data(), static_cast<std::streamsize>(testo.size()));
    testo.resize(static_cast<std::size_t>(in.gcount()));
    return testo;
}

void Folders::keep_names(std::string_view bytes) const
{
    if (di_scrittura.empty())
        return;
    std::error_code errore;
    fs::create_directories(di_scrittura, errore);
    remove_rests(di_scrittura);
    auto const file = di_scrittura / "Players", nuovo = new_file(di_scrittura);
    std::ofstream out(nuovo, std::ios::binary | std::ios::trunc);
    out << bytes;
    out.close();
    errore.clear();
    if (out)
        rename(nuovo, file, errore);
    if (!out || errore)
        remove(nuovo, errore);
}

fs::path Folders::to_read(fs::path const& name) const
{
    for (auto const& folder : di_lettura)
        if (is_there(folder / name))
            return folder / name;
    return di_scrittura.empty() ? fs::path() : di_scrittura / name;
}
