// SPDX-License-Identifier: GPL-3.0-or-later
#include "players/player_names.h"

#include "game/table_state.h"
#include "players/names_file.h"
#include "players/windows_1252.h"
#include "window/controls.h"
#include "window/window.h"

#include <optional>

namespace {

constexpr std::size_t max_nome = 255;  // characters of a name that are kept

// Takes the next field off the front of the text. None is left at the end of the file.
std::optional<std::string> prossimo_campo(std::string_view& resto)
{
    resto.remove_prefix(std::min(resto.find_first_not_of(' '), resto.size()));
    if (resto.empty())
        return {};
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

}  // namespace

void Lettura_Players() { leggi_nomi(kept_names()); }

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
    keep_names(a_windows_1252(t.nomi(0)) + "\r\n" + a_windows_1252(t.nomi(1)) + "\r\n");
}

void Posiziona_Players()
{
    auto const& t = tavolo;
    auto const colore = [](int p) {
        return t.turno == p && t.azione != azioni::taglia ? colori::bianco : colori::cornice;
    };
    superficie.font_size(8);
    superficie.text_colour(colore(umano));
    superficie.print_at(x_nomi(), y_nome(umano));
    superficie.print_line(t.nomi(0));
    superficie.text_colour(colore(computer));
    superficie.print_at(x_nomi(), y_nome(computer));
    superficie.print_line(t.nomi(1));
}

void togli_nomi()
{
    for (int p : {umano, computer})
        superficie.fill_box({x_nomi(), y_nome(p), griglia_x, y_nome(p) + text_height(superficie.font())},
                            colori::tavolo);
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
