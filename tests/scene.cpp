// SPDX-License-Identifier: GPL-3.0-or-later
#include "scene.h"

#include "at_the_table.h"

#include "audio/sound_music.h"
#include "game/table_check.h"
#include "game/table_state.h"
#include "human/pointer_input.h"
#include "players/player_names.h"
#include "players/windows_1252.h"
#include "scoring/hand_scoring.h"
#include "spoken/table_words.h"
#include "window/help_pages.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <sstream>
#include <utility>

namespace {

bool time_stands = false;
std::vector<std::string> heard;  // beginnings of the lines that are told; none: all

std::vector<std::string> words_of(std::string const& text)
{
    std::istringstream words(text);
    return {std::istream_iterator<std::string>(words), {}};
}

// With \xHH for any byte.
std::string bytes_of(std::string_view text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text.substr(i, 2) == "\\x") {
            bytes += static_cast<char>(std::stoi(std::string(text.substr(i + 2, 2)), nullptr, 16));
            i += 3;
        } else {
            bytes += text[i];
        }
    return bytes;
}

std::string with_the_rest(std::string text)
{
    auto const rest = text.find("...");
    if (rest == std::string::npos)
        return text;
    std::string cards;
    auto const named = words_of(text);
    for (int card = 1; card <= carte_mazzo; ++card)
        if (std::ranges::count(named, nome_carta(card)) == 0)
            cards += (cards.empty() ? "" : " ") + nome_carta(card);
    return text.replace(rest, 3, cards);
}

// Whether the cards are complete is looked at only if they are so from the start.
void table(std::string const& text)
{
    in_scena({1024, 779}, with_the_rest(text));
    tavolo.pescato = text.find("pescato 1") != std::string::npos;
    if (!tavolo_coerente())
        tavolo.valore_scelta(1) = 1;
    finestra.log.clear();
}

// The cards of the running hand become these.
void hand(std::string const& text)
{
    Partita const match = tavolo;
    Turno const turn = tavolo;
    if (!leggi_tavolo(with_the_rest(text)))
        finestra.log.push_back("no table");
    static_cast<Partita&>(tavolo) = match;
    static_cast<Turno&>(tavolo) = turn;
    tavolo.valore_scelta(1) = 1;
}

void deck(std::vector<std::string> const& cards)
{
    for (std::size_t i = 1; i < cards.size(); ++i) {
        auto& mazzo = tavolo.mazzo;
        int const n = static_cast<int>(i);
        std::iter_swap(&mazzo(n), std::find(&mazzo(1), &mazzo(carte_mazzo), carta_da(cards[i])));
    }
}

std::string menus()
{
    std::string text;
    for (auto const& [entry, level, checkable, caption] : menu_tree())
        text += std::string(std::size_t{4} * level, ' ') + std::string(caption) +
                (enabled(entry) ? "" : " off") + (checkable ? checked(entry) ? " (checked)" : " ()" : "") +
                '\n';
    return text;
}

std::string names() { return tavolo.nomi(0) + '/' + tavolo.nomi(1) + '\n'; }

// Of a card in grid units, of the window against the reference, of a point in pixels.
std::string measures()
{
    auto const& t = tavolo;
    std::ostringstream text;
    text << "card " << t.larg_carta << ' ' << t.alt_carta << " window " << t.scala_x << ' ' << t.scala_y
         << " point " << pixels_per_point() << " middle " << t.centro_x << ' ' << t.centro_y << '\n';
    return text.str();
}

std::string panel(int n)
{
    auto const text = panel_text(std::array{Control::TxtItaliano, Control::TxtHelp, Control::Text4}.at(
        static_cast<std::size_t>(n - 1)));
    std::string told;
    std::istringstream lines{std::string(text)};
    for (std::string line; std::getline(lines, line);)
        told += "    | " + line + '\n';
    return told;
}

void time(std::string const& how)
{
    time_stands = !how.starts_with("goes");
    for (int n = time_stands && how != "stops" ? std::stoi(how) : 0; n > 0; --n)
        scatta_timer();
}

// The table in words: lists further left, what clicks do behind each.
std::string items()
{
    std::string text;
    for (auto const& item : spoken::table_words())
        text += (item.group == spoken::Place{} ? "    " : "      ") + item.name +
                (item.selected ? ", scelta" : "") + (item.left ? " [left]" : "") +
                (item.right ? " [right]" : "") + '\n';
    return text;
}

// What happens, and what it tells of itself.
std::string happens(std::string const& line)
{
    auto const words = words_of(line);
    auto const word = [&](std::size_t i) { return i < words.size() ? words[i] : ""; };
    auto const real = [&](std::size_t i) { return word(i).empty() ? 0 : std::stof(word(i)); };
    auto const whole = [&](std::size_t i) { return static_cast<int>(real(i)); };
    auto const rest = words.size() > 1 ? line.substr(line.find(' ') + 1) : "";
    static constexpr void (*panel_clicks[])() = {TxtItaliano_Click, TxtHelp_Click, text4_Click};
    std::string told;
    std::map<std::string_view, std::function<void()>> const all = {
        {"open",
         [&] {
             avvia_programma(whole(1) ? Pixels{whole(1), whole(2)} : Pixels{1024, 779});
         }},
        {"table", [&] { table(rest); }},
        {"hand", [&] { hand(rest); }},
        {"deck", [&] { deck(words); }},
        {"cut", [&] { clic(1, 512, 384); }},
        {"draw", [&] { rest == "pile" ? pesca_pozzo() : pesca_tallone(); }},
        {"select", [&] { scegli(rest); }},
        {"lay", [&] { clic_calate(x_calate(std::max(whole(1), 1))); }},
        {"discard", [&] { scarta(rest); }},
        {"click", [&] { clic(word(1) == "left"    ? 1
                             : word(1) == "right" ? 2
                                                  : 4,
                             real(2), real(3)); }},
        {"move", [&] { muovi(real(1), real(2)); }},
        {"menu", [&] { menu(std::ranges::find(menu_tree(), rest, &MenuEntry::caption)->voce); }},
        {"panel", [&] { panel_clicks[whole(1) - 1](); }},
        {"type", [&] { scrivi(whole(1), word(2)), told = names(); }},
        {"resize",
         [&] {
             misura({whole(1), whole(2)});
         }},
        {"tune", [&] { rest == "fails" ? void(finestra.tune_plays = false) : brano_finito(whole(1)); }},
        {"answer", [&] { finestra.answer_yes = rest == "yes"; }},
        {"close", [&] { Form_QueryUnload(); }},
        {"time", [&] { time(rest); }},
        {"listen", [&] { heard.assign(words.begin() + 1, words.end()); }},
        {"worth",
         [&] { told = leggi_tavolo("calate " + rest) ? std::to_string(valore_calate(1)) + '\n' : "?\n"; }},
        {"file", [&] { leggi_nomi(bytes_of(rest)), told = names(); }},
        {"capitals", [&] { told = maiuscolo(bytes_of(rest)) + '\n'; }},
        {"check",
         [&] { told = leggi_tavolo(with_the_rest(rest)) ? "\"" + guasto_tavolo() + "\"\n" : "no table\n"; }},
        {"mailbox", [&] { told = std::to_string(int{tavolo.azione}) + '\n'; }},
        {"look", [&] { told = mostra() + '\n'; }},
        {"speak", [&] { finestra.speaks = true; }},
        {"items", [&] { told = items(); }},
        {"menus", [&] { told = menus(); }},
        {"measures", [&] { told = measures(); }},
        {"read", [&] { told = panel(whole(1)); }},
    };
    auto const what = all.find(words[0]);
    if (what == all.end())
        return "nothing that can happen\n";
    evento(what->second);
    riprendi();
    if (!time_stands)
        fino_all_attesa();
    return told;
}

}  // namespace

std::string racconta(std::string_view copione)
{
    time_stands = false;
    heard.clear();
    finestra.log.clear();
    std::istringstream lines{std::string(copione)};
    std::string told;
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty() && line[0] != '#' && !line.starts_with("> "))
            continue;
        told += line + '\n';
        if (line.starts_with("> "))
            told += happens(line.substr(2));
        for (auto const& note : std::exchange(finestra.log, {}))
            if (heard.empty() ||
                std::ranges::any_of(heard, [&](auto const& word) { return note.starts_with(word); }))
                told += note + '\n';
    }
    return told;
}
