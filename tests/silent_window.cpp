// SPDX-License-Identifier: GPL-3.0-or-later
#include "silent_window.h"

#include "audio/device.h"
#include "game/match_loop.h"
#include "game/table_state.h"
#include "human/pointer_input.h"

#include <cmath>

SilentWindow finestra;

void repaint(Box const&) {}
Single text_width(std::string_view testo, Font const& font)
{
    return static_cast<Single>(testo.size()) * text_height(font) * 0.55F;
}
Single text_height(Font const& font) { return points_to_grid(font.punti); }

void start_timer(int millisecondi)
{
    finestra.last_wait = millisecondi;
    finestra.due = finestra.now + millisecondi;
}

void mouse_pointer(Pointer forma)
{
    finestra.pointer = forma;
    finestra.computer_turns += forma == Pointer::hourglass;
}

void show_menu_entry(Menu) {}
void show_control(Control) {}

void message_box(std::string_view testo)
{
    finestra.boxes.emplace_back(testo);
    finestra.in_box();
}
bool ask_yes_no(std::string_view testo)
{
    message_box(testo);
    return finestra.answer_yes;
}

void beep() { ++finestra.beeps; }
Single time_of_day()
{
    return static_cast<Single>(std::fmod(finestra.day_began + finestra.now / 1000, 86400.0));
}
void end_program()
{
    finestra.ended = true;
    runner.stop();
}
void wake_game() {}

namespace {
std::filesystem::path file[2];
void nota(Device d, std::string const& che)
{
    auto const nome = file[static_cast<int>(d)].filename().string();
    finestra.devices.push_back((d == Device::music ? "music " : "effects ") + che +
                               (nome.empty() ? "" : " ") + nome);
}
}  // namespace

void device_file(Device d, std::filesystem::path const& f) { file[static_cast<int>(d)] = f; }
void device_open(Device d) { nota(d, "open"); }
void device_close(Device d) { nota(d, "close"); }
void device_play(Device d) { nota(d, "play"); }
void device_rewind(Device d) { nota(d, "rewind"); }

void avvia_programma(Pixels pixels)
{
    runner.clear();
    finestra = {};
    tavolo = {};
    superficie = {};
    reset_menus();
    reset_form1();
    client_size(pixels);
    Form_Load();
    Form_Resize();
    Form_Activate();
    finestra.devices.clear();
}

bool scatta_timer()
{
    if (!finestra.due)
        return false;
    finestra.now = *finestra.due;
    finestra.due.reset();
    evento(Timer1_Timer);
    runner.resume();
    return true;
}

void fino_all_attesa(std::function<void()> const& after_wait)
{
    runner.resume();
    do
        after_wait();
    while (runner.alive() && scatta_timer());
}

void clic(int tasto, Single x, Single y)
{
    evento([=] { Form_MouseDown(tasto, 0, x, y); });
    runner.resume();
}

void menu(Menu voce)
{
    evento([=] { menu_click(voce); });
    runner.resume();
}
