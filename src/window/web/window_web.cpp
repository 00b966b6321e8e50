// SPDX-License-Identifier: GPL-3.0-or-later
//
// The game as a module of a page: what the page may call, and window.h, device.h and names_file.h handed on
// to it. The page calls from its own event loop, never from within a call of the module, but for `marks` and
// `newest_mark`.
#include "audio/device.h"
#include "audio/sound_music.h"
#include "game/table_text.h"
#include "game/wait.h"
#include "human/pointer_input.h"
#include "players/names_file.h"
#include "players/player_names.h"
#include "spoken/table_news.h"
#include "window/help_pages.h"
#include "window/lifecycle.h"
#include "window/menu_clicks.h"
#include "window/web/page.h"
#include "window/window.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::size_t longest_file = 65536;  // bytes of the names that are looked at

std::array<char, 256> letters;  // a text that the page hands in
void (*after_yes)() = nullptr;  // the question that is open
bool message_is_open = false;
spoken::News news;

int rgb(Colore c) { return c.rosso << 16 | c.verde << 8 | c.blu; }

void give(Mark const& m)
{
    auto const& [x1, y1, x2, y2] = m.box;
    if (m.kind == Mark::Kind::text)
        page_mark_text(x1, y1, rgb(m.colore), m.testo.data(), m.testo.size(), m.font.nome.data(),
                       m.font.nome.size(), m.font.punti);
    else
        page_mark(static_cast<int>(m.kind), x1, y1, x2, y2, rgb(m.colore), m.figura);
}

void give(std::string_view text) { page_text(text.data(), text.size()); }

}  // namespace

// ---- What the page calls. Sizes are in CSS pixels.

FOR_PAGE(load) void load(int width, int height)
{
    load_menus();
    for (auto const& e : menu_tree())
        show_menu_entry(e.voce);
    client_size({width, height});
    evento([] {
        Form_Load();
        Form_Resize();
        Form_Activate();
    });
}

FOR_PAGE(resize) void resize(int width, int height)
{
    client_size({width, height});
    evento(Form_Resize);
}

// The game goes on, if nothing is open above it, and what has happened is said.
FOR_PAGE(resume) void resume()
{
    if (eventi_aperti > 0)
        return;
    news.before();
    runner.resume();
    for (auto const& sentence : news.after())
        page_say(sentence.data(), sentence.size());
}

// The whole surface, bottom first, mark by mark; the newest mark alone, if all of it lies in that box.
FOR_PAGE(marks) void marks()
{
    std::ranges::for_each(superficie.marks(), [](Mark const& m) { give(m); });
}
FOR_PAGE(newest_mark) void newest_mark(float x1, float y1, float x2, float y2)
{
    auto const& all = superficie.marks();
    if (!all.empty() && Box{x1, y1, x2, y2}.contains(all.back().reach))
        give(all.back());
}

// The table in words, thing by thing.
FOR_PAGE(things) void things()
{
    for (auto const& [place, role, name, box, left, right, selectable, selected, group] :
         spoken::table_words())
        page_thing(static_cast<int>(place.kind), place.index, static_cast<int>(role), left, right, selectable,
                   selected, static_cast<int>(group.kind), group.index, box.x1, box.y1, box.x2, box.y2,
                   name.data(), name.size());
}

// The entries, in menu order, each with its caption.
FOR_PAGE(menu_captions) void menu_captions()
{
    for (auto const& e : menu_tree())
        page_entry_caption(static_cast<int>(e.voce), e.level, e.checkable, e.caption.data(),
                           e.caption.size());
}
FOR_PAGE(panel_words) void panel_words(int panel) { give(panel_text(static_cast<Control>(panel))); }
FOR_PAGE(table_words) void table_words() { give(mostra_tutto()); }
FOR_PAGE(pixels_to_a_point) float pixels_to_a_point() { return pixels_per_point(); }

FOR_PAGE(mouse_down) void mouse_down(int button, float x, float y)
{
    evento([=] { Form_MouseDown(button, 0, x, y); });
}
FOR_PAGE(mouse_move) void mouse_move(int button, float x, float y)
{
    evento([=] { Form_MouseMove(button, 0, x, y); });
}
FOR_PAGE(menu_pick) void menu_pick(int entry)
{
    evento([=] { menu_click(static_cast<Menu>(entry)); });
}
FOR_PAGE(timer_fires) void timer_fires() { evento(Timer1_Timer); }
FOR_PAGE(music_done) void music_done(int code)
{
    evento([=] { MMC1_Done(code); });
}
FOR_PAGE(panel_click) void panel_click(int panel)
{
    evento([=] {
        switch (static_cast<Control>(panel)) {
        case Control::TxtItaliano: return TxtItaliano_Click();
        case Control::TxtHelp: return TxtHelp_Click();
        default: return text4_Click();
        }
    });
}

// Where the page puts the text of name field n before it tells its length in bytes.
FOR_PAGE(letters_room) char* letters_room() { return letters.data(); }
FOR_PAGE(name_typed) void name_typed(int n, unsigned long length)
{
    std::string_view const text(letters.data(), std::min(length, letters.size()));
    evento([=] {
        set_text(TxtPlayer(n), text);
        TxtPlayer_Change(n);
    });
}

// The open box has been answered; a message only with yes.
FOR_PAGE(answer) void answer(int yes)
{
    if (message_is_open) {
        message_is_open = false;
        return wake_game();
    }
    if (yes)
        after_yes();
    if (--eventi_aperti == 0)
        wake_game();
}

// ---- window.h

void repaint(Surface& surface)
{
    Box const box = surface.changed();
    page_repaint(box.x1, box.y1, box.x2, box.y2);
}

Single text_width(std::string_view testo, Font const& font)
{
    return page_text_width(testo.data(), testo.size(), font.nome.data(), font.nome.size(), font.punti,
                           text_height(font));
}
Single text_height(Font const& font) { return points_to_grid(font.punti); }

void start_timer(int millisecondi) { page_timer(millisecondi); }
void mouse_pointer(Pointer forma) { page_pointer(static_cast<int>(forma)); }

void show_menu_entry(Menu voce) { page_entry(static_cast<int>(voce), enabled(voce), checked(voce)); }

void show_control(Control c)
{
    auto const& stato = control(c);
    auto const [x1, y1, x2, y2] = control_box(c);
    page_control(static_cast<int>(c), stato.visible, x1, y1, x2, y2, stato.order, stato.text.data(),
                 stato.text.size());
}

Task message_box(std::string_view testo)
{
    message_is_open = true;
    page_box(false, testo.data(), testo.size());
    while (message_is_open)
        co_await eventi();
}

// The handler that asks stays open, so that nothing wakes the game.
void ask_yes_no(std::string_view testo, void (*yes)())
{
    after_yes = yes;
    ++eventi_aperti;
    page_box(true, testo.data(), testo.size());
}

void beep() { page_beep(); }
Single time_of_day() { return page_time_of_day(); }
void end_program()
{
    runner.stop();
    page_end();
}
void wake_game() { page_wake(); }

// ---- device.h and names_file.h

namespace {
void command(Device d, int what, std::string_view name = {})
{
    page_device(static_cast<int>(d), what, name.data(), name.size());
}
}  // namespace

void device_file(Device d, std::string_view name) { command(d, 0, name); }
void device_open(Device d) { command(d, 1); }
void device_close(Device d) { command(d, 2); }
void device_play(Device d) { command(d, 3); }
bool device_plays(Device d) { return page_device_plays(static_cast<int>(d)) != 0; }
void device_rewind(Device d) { command(d, 4); }

std::string kept_names()
{
    std::string bytes(longest_file, '\0');
    bytes.resize(std::min<std::size_t>(page_names(bytes.data(), bytes.size()), bytes.size()));
    return bytes;
}
void keep_names(std::string_view byte) { page_keep_names(byte.data(), byte.size()); }
