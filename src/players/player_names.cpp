// SPDX-License-Identifier: GPL-3.0-or-later
#include "players/player_names.h"

#include "game/table_state.h"
#include "window/folders.h"
#include "window/form1.h"

#include <fstream>
#include <optional>

namespace {

constexpr std::size_t max_file = 65536;  // bytes that are looked at
constexpr std::size_t max_nome = 255;    // characters of a name that are kept

std::string leggi_file(std::filesystem::path const& file)
{
    std::error_code errore;
    if (!is_regular_file(file, errore))
        return {};
    std::ifstream in(file, std::ios::binary);
    std::string testo(max_file, '\0');
    in.read(testo.data(), static_cast<std::streamsize>(testo.size()));
    testo.resize(static_cast<std::size_t>(in.gcount()));
    return testo;
}

// Takes the next field off the front of the text. None is left at the end of the file.
std::optional<std::string> prossimo_campo(std::string_view& resto)
{
    if (resto.empty())
        return {};
    resto.remove_prefix(std::min(resto.find_first_not_of(' '), resto.size()));
    std::string_view campo;
    if (resto.starts_with('"')) {
        resto.remove_prefix(1);
        campo = resto.substr(0, resto.find('"'));
        resto.remove_prefix(std::min(campo.size() + 1, resto.size()));
        resto.remove_prefix(std::min(resto.find_first_of(",\r\n"), resto.size()));
    } else {
        campo = resto.substr(0, resto.find_first_of(",\r\n"));
        resto.remove_prefix(campo.size());
    }
    resto.remove_prefix(resto.starts_with("\r\n") ? 2 : resto.empty() ? 0 : 1);
    return da_windows_1252(campo.substr(0, max_nome));
}

// Within the code page of the file, so that the table shows the name that will be read back.
std::string maiuscolo(std::string_view utf8)
{
    std::string byte = a_windows_1252(utf8);
    for (char& b : byte) {
        auto const c = static_cast<unsigned char>(b);
        if ((c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7))
            b = static_cast<char>(c - 0x20);
        else if (c == 0x9A || c == 0x9C || c == 0x9E)  // s caron, oe, z caron
            b = static_cast<char>(c - 0x10);
        else if (c == 0xFF)  // y diaeresis
            b = static_cast<char>(0x9F);
    }
    return da_windows_1252(byte);
}

}  // namespace

void Lettura_Players() { leggi_nomi(leggi_file(file_to_read("Players"))); }

void leggi_nomi(std::string_view byte)
{
    auto& t = tavolo;
    t.nomi(0) = "Player1";
    t.nomi(1) = "Player2";
    for (int n = 0; n <= 1; ++n)
        if (auto campo = prossimo_campo(byte))
            t.nomi(n) = *std::move(campo);
}

void Registra_Players()
{
    auto const& t = tavolo;
    auto const file = file_to_write("Players");
    if (file.empty())
        return;
    auto nuovo = file;
    nuovo += ".new";
    std::ofstream out(nuovo, std::ios::binary | std::ios::trunc);
    out << a_windows_1252(t.nomi(0)) << "\r\n" << a_windows_1252(t.nomi(1)) << "\r\n";
    out.close();
    std::error_code errore;
    if (out)
        rename(nuovo, file, errore);
    if (!out || errore)
        remove(nuovo, errore);
}

void Posiziona_Players()
{
    auto const& t = tavolo;
    auto const colore = [](int p) {
        return t.turno == p && t.azione != 7 ? colori::bianco : colori::cornice;
    };
    superficie.font_size(8);
    superficie.text_colour(colore(1));
    superficie.print_at(x_nomi(), y_nome(umano));
    superficie.print_line(t.nomi(0));
    superficie.text_colour(colore(2));
    superficie.print_at(x_nomi(), y_nome(computer));
    superficie.print_line(t.nomi(1));
}

void personalize_players_Click()
{
    auto& t = tavolo;
    superficie.fill_box({0, 0, pagina_nomi.x2, testata_nomi}, colori::giallo_pallido);
    superficie.font_size(8);
    superficie.text_colour(colori::nero);
    superficie.print_at(x_testata, y_testata);
    superficie.print("  Personalize Players");
    superficie.outline_box({0, testata_nomi, pagina_nomi.x2, pagina_nomi.y2}, colori::giallo);

    Lettura_Players();
    superficie.text_colour(colori::bianco);
    Box const campo = control_box(TxtPlayer(1));
    for (t.i = 1; t.i <= 2; ++t.i) {
        Single const y = y_campo_nome + static_cast<Single>(t.i - 1) * (campo.y2 - campo.y1);
        move_to(TxtPlayer(t.i), x_campo_nome, y);
        show(TxtPlayer(t.i));
        set_text(TxtPlayer(t.i), t.nomi(t.i - 1));
        TxtPlayer_Change(t.i);
        superficie.print_at(x_etichetta_nome, y + sotto_etichetta_nome);
        superficie.print(t.i == 1 ? "Player1 (you)" : "Player2");
    }
    for (int n : {1, 0}) {
        move_to(Shape1(n), x_chiusura_nomi, y_chiusura_nomi);
        show(Shape1(n));
        bring_to_front(Shape1(n));
    }
}

void TxtPlayer_Change(int indice) { tavolo.nomi(indice - 1) = maiuscolo(control(TxtPlayer(indice)).text); }

bool togli_pagina_nomi()
{
    if (!control(TxtPlayer(1)).visible)
        return false;
    for (int n = 1; n <= 4; ++n)
        show(TxtPlayer(n), false);
    show(Shape1(0), false);
    show(Shape1(1), false);
    superficie.fill_box(pagina_nomi, colori::tavolo);
    return true;
}

Box area_chiusura_nomi()
{
    Box const forma = control_box(Shape1(1));
    return {x_chiusura_nomi, y_chiusura_nomi, x_chiusura_nomi + forma.x2 - forma.x1,
            y_chiusura_nomi + forma.y2 - forma.y1};
}
