// SPDX-License-Identifier: GPL-3.0-or-later
#include "silent_window.h"

#include "audio/device.h"
#include "audio/sound_music.h"
#include "game/table_state.h"
#include "game/table_text.h"
#include "game/wait.h"
#include "human/pointer_input.h"
#include "players/names_file.h"
#include "players/player_names.h"
#include "players/windows_1252.h"
#include "spoken/table_news.h"

#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <ostream>
#include <utility>

SilentWindow finestra;

namespace {

spoken::News news;

template <class... Words>
void write_down(Words const&... words)
{
    if (!script)
        return;
    script->precision(std::numeric_limits<Single>::max_digits10);
    char const* between = "";
    ((*script << std::exchange(between, " ") << words), ...);
    *script << '\n';
}

constexpr Box tutto{0, 0, griglia_x, griglia_y};

// To a hundredth.
std::string numero(Single v)
{
    char testo[24];
    return {testo, std::to_chars(testo, std::end(testo), std::round(double{v} * 100) / 100).ptr};
}
std::string coppia(Single x, Single y) { return " " + numero(x) + "," + numero(y); }
std::string scatola(Box const& b) { return coppia(b.x1, b.y1) + coppia(b.x2, b.y2); }
std::string colore(Colore c)
{
    return " " + std::to_string(c.rosso) + "." + std::to_string(c.verde) + "." + std::to_string(c.blu);
}

std::string segno(Mark const& m)
{
    auto const [x, y] = std::pair(m.box.x1, m.box.y1);
    switch (m.kind) {
    case Mark::Kind::fill: return "fill" + scatola(m.box) + colore(m.colore);
    case Mark::Kind::outline: return "outline" + scatola(m.box) + colore(m.colore);
    case Mark::Kind::line: return "line" + scatola(m.box) + colore(m.colore);
    case Mark::Kind::picture:
        return "picture " + (m.figura > 52 ? "back " + std::to_string(m.figura - 53) : nome_carta(m.figura)) +
               (m.box == Box{x, y, x + tavolo.larg_carta, y + tavolo.alt_carta} ? coppia(x, y)
                                                                                : scatola(m.box));
    case Mark::Kind::text: break;
    }
    return "text \"" + std::string(m.testo) + "\"" + coppia(x, y) + " " + std::string(m.font.nome) + " " +
           numero(m.font.punti) + colore(m.colore);
}

template <class... Words>
void nota(Words const&... words)
{
    if (noted)
        (finestra.log.emplace_back() += ... += words);
}

void say_news()
{
    if (finestra.speaks)
        for (auto const& sentence : news.after())
            nota("say ", sentence);
}

std::string nome[2];
std::string_view linea(Device d) { return d == Device::music ? "music " : "effects "; }

}  // namespace

// Comes once for each thing drawn. What has changed holds the newest mark, unless that was a fill of nothing.
void repaint(Surface& surface)
{
    if (!noted)
        return;
    Box const box = surface.changed();
    auto const& marks = surface.marks();
    if (marks.empty() && box == tutto)
        return nota("clear");
    nota(!marks.empty() && box.contains(marks.back().reach) ? segno(marks.back()) : "wipe" + scatola(box));
}

Single text_width(std::string_view testo, Font const& font)
{
    return static_cast<Single>(testo.size()) * text_height(font) * 0.55F;
}
Single text_height(Font const& font) { return points_to_grid(font.punti); }

void start_timer(int millisecondi)
{
    finestra.due = finestra.now + millisecondi;
    if (noted)
        nota("wait ", std::to_string(millisecondi));
}

void mouse_pointer(Pointer forma)
{
    finestra.pointer = forma;
    nota(forma == Pointer::hourglass  ? "pointer hourglass"
         : forma == Pointer::up_arrow ? "pointer up arrow"
                                      : "pointer arrow");
}

void show_menu_entry(Menu voce)
{
    nota("menu ", caption(voce), enabled(voce) ? "" : " off", checked(voce) ? " checked" : "");
}

void show_control(Control c)
{
    static constexpr std::string_view nomi[] = {"carta", "name 1", "name 2", "name 3", "name 4",
                                                "area",  "rim",    "help",   "rules",  "info"};
    auto const& stato = control(c);
    nota("control ", nomi[static_cast<int>(c)], stato.visible ? " shown" : " hidden", scatola(control_box(c)),
         " order ", std::to_string(stato.order), " \"", stato.text, "\"");
}

Task message_box(std::string_view testo)
{
    say_news();  // what led to the box is told first
    nota("box ", testo);
    finestra.boxes.emplace_back(testo);
    finestra.in_box();
    co_return;
}
void ask_yes_no(std::string_view testo, void (*if_yes)())
{
    nota("question ", testo);
    finestra.boxes.emplace_back(testo);
    finestra.in_box();
    if (finestra.answer_yes)
        if_yes();
}

void beep()
{
    ++finestra.beeps;
    nota("beep");
}
Single time_of_day()
{
    return static_cast<Single>(std::fmod(finestra.day_began + finestra.now / 1000, 86400.0));
}
void end_program()
{
    finestra.ended = true;
    nota("end");
    runner.stop();
}
void wake_game() {}

void device_file(Device d, std::string_view n) { nome[static_cast<int>(d)] = n; }
void device_open(Device d) { nota(linea(d), "open ", nome[static_cast<int>(d)]); }
void device_close(Device d) { nota(linea(d), "close"); }
void device_play(Device d) { nota(linea(d), "play"); }
bool device_plays(Device) { return finestra.tune_plays; }
void device_rewind(Device d) { nota(linea(d), "rewind"); }

std::string kept_names() { return finestra.names; }
void keep_names(std::string_view byte)
{
    finestra.names = byte;
    nota("keep names ", da_windows_1252(byte));  // a "?" for each end of a line
}

void avvia_programma(Pixels pixels, double day_began)
{
    runner.clear();
    finestra = {};
    finestra.day_began = day_began;
    news = {};
    tavolo = {};
    superficie = {};
    write_down("open", pixels.width, pixels.height, day_began);
    load_menus();
    for (auto const& entry : menu_tree())
        show_menu_entry(entry.voce);
    client_size(pixels);
    Form_Load();
    Form_Resize();
    Form_Activate();
}

void riprendi()
{
    if (finestra.speaks)
        news.before();
    runner.resume();
    say_news();
}

bool scatta_timer()
{
    if (!finestra.due)
        return false;
    write_down("timer");
    finestra.now = *finestra.due;
    finestra.due.reset();
    evento(Timer1_Timer);
    riprendi();
    return true;
}

void fino_all_attesa(std::function<void()> const& after_wait)
{
    riprendi();
    do
        after_wait();
    while (runner.alive() && scatta_timer());
}

void clic(int tasto, Single x, Single y)
{
    write_down("click", tasto, x, y);
    evento([=] { Form_MouseDown(tasto, 0, x, y); });
    riprendi();
}

void menu(Menu voce)
{
    write_down("menu", static_cast<int>(voce));
    evento([=] { menu_click(voce); });
    riprendi();
}

void muovi(Single x, Single y)
{
    write_down("move", x, y);
    evento([=] { Form_MouseMove(0, 0, x, y); });
}

void brano_finito(int codice)
{
    write_down("tune", codice);
    evento([=] { MMC1_Done(codice); });
}

void misura(Pixels pixels)
{
    write_down("resize", pixels.width, pixels.height);
    client_size(pixels);
    evento(Form_Resize);
}

void scrivi(int campo, std::string_view testo)
{
    write_down("type", campo, testo);
    evento([=] {
        set_text(TxtPlayer(campo), testo);
        TxtPlayer_Change(campo);
    });
}
