// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/form1.h"

#include "audio/sound_music.h"
#include "game/match_loop.h"
#include "game/table_state.h"
#include "window/window.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// The reference window, in twips.
constexpr Single esterno_x = 15432, esterno_y = 12360;
constexpr Single interno_x = 15360, interno_y = 11688;
constexpr Single twip_punto = 20;

// What a card takes of its picture control.
constexpr Single riduzione = 86.0F / 100;

using Controlli = std::array<ControlState, n_controlli>;

constexpr std::size_t posto(Control c) { return static_cast<std::size_t>(c); }

// The controls as stored, hidden and at the top left corner.
Controlli stored_controls()
{
    Controlli c;
    auto const size = [&](Control quale, Single larghezza, Single altezza) {
        c[posto(quale)].width = larghezza;
        c[posto(quale)].height = altezza;
    };
    size(Control::carta_1, 1152, 1836);
    for (int n = 1; n <= 4; ++n)
        size(TxtPlayer(n), 1152, 288);
    for (int n = 0; n <= 1; ++n)
        size(Shape1(n), 1152, 192);
    size(Control::TxtHelp, 5472, 2652);
    size(Control::TxtItaliano, 5472, 2652);
    size(Control::Text4, 2895, 1680);
    return c;
}

struct Form1 {
    Controlli controlli = stored_controls();
    int primo_piano = 0;      // order of the frontmost control
    Pixels pixel{1024, 779};  // client area
    bool attivata = false;
    double twip_x = 0, twip_y = 0;                       // outer twips to a pixel of the client area
    double pixel_punto = 0;                              // 0 until twips have been chosen
    Single larg_prec = esterno_x, alt_prec = esterno_y;  // outer size at the last resize, twips
};
Form1 form;

// Sets twips to a pixel and pixels to a point so that a card is as large as the layout allows, no wider and
// no taller than in the reference window, and keeps the shape of its picture.
void choose_twips()
{
    ControlState const carta = stored_controls()[posto(Control::carta_1)];
    double const larg =
        double{carta.width} * griglia_x / interno_x * riduzione;  // of the largest card, grid units
    double const alt = double{carta.height} * griglia_y / interno_y * riduzione;

    double const ux = form.pixel.width / double{griglia_x};  // pixels to a grid unit
    double const uy = form.pixel.height / double{griglia_y};
    double const k = std::min(larg * ux / carta.width, alt * uy / carta.height);
    double const sx = k * carta.width / (larg * ux);
    double const sy = k * carta.height / (alt * uy);

    form.twip_x = esterno_x * sx / form.pixel.width;
    form.twip_y = esterno_y * sy / form.pixel.height;
    form.pixel_punto = twip_punto * std::min(form.pixel.width / (double{interno_x} * sx),
                                             form.pixel.height / (double{interno_y} * sy));
}

Single whole_twips(int pixel, double twip)
{
    return static_cast<Single>(std::max(1L, std::lround(pixel * twip)));
}

// Twips to a grid unit, at the size of the last resize.
Single unità_x() { return interno_x * (form.larg_prec / esterno_x) / griglia_x; }
Single unità_y() { return interno_y * (form.alt_prec / esterno_y) / griglia_y; }

void set_scale()
{
    tavolo.scala_x = form.larg_prec / esterno_x;
    tavolo.scala_y = form.alt_prec / esterno_y;
}

ControlState& writable(Control c) { return form.controlli[posto(c)]; }

}  // namespace

ControlState const& control(Control c) { return form.controlli[posto(c)]; }

void show(Control c, bool sì)
{
    if (control(c).visible == sì)
        return;
    writable(c).visible = sì;
    show_control(c);
}

void bring_to_front(Control c)
{
    writable(c).order = ++form.primo_piano;
    show_control(c);
}

void move_to(Control c, Single x, Single y)
{
    writable(c).left = x * unità_x();
    writable(c).top = y * unità_y();
    show_control(c);
}

void set_text(Control c, std::string_view text)
{
    writable(c).text = text;
    show_control(c);
}

Box control_box(Control c)
{
    auto const& s = control(c);
    return {s.left / unità_x(), s.top / unità_y(), (s.left + s.width) / unità_x(),
            (s.top + s.height) / unità_y()};
}

Single points_to_grid(Single punti)
{
    return punti * pixels_per_point() * griglia_y / static_cast<Single>(form.pixel.height);
}

Single pixels_per_point()
{
    if (form.pixel_punto == 0)
        choose_twips();
    return static_cast<Single>(form.pixel_punto);
}

void client_size(Pixels pixels) { form.pixel = {std::max(pixels.width, 1), std::max(pixels.height, 1)}; }

void Form_Load()
{
    form.larg_prec = esterno_x;
    form.alt_prec = esterno_y;
    for (Control c : {Control::TxtItaliano, Control::TxtHelp}) {
        show(c, false);
        move_to(c, 0, 0);
    }
    avvia_musica();
    move_to(Control::Text4, 0, 0);
}

void Form_Resize()
{
    if (!form.attivata)
        choose_twips();
    Single const larghezza = whole_twips(form.pixel.width, form.twip_x);
    Single const altezza = whole_twips(form.pixel.height, form.twip_y);
    Single const per_x = larghezza / form.larg_prec;
    Single const per_y = altezza / form.alt_prec;

    for (ControlState& c : form.controlli) {
        if (altezza != form.alt_prec) {
            c.height *= per_y;
            c.top *= per_y;
        }
        if (larghezza != form.larg_prec) {
            c.width *= per_x;
            c.left *= per_x;
        }
    }
    form.larg_prec = larghezza;
    form.alt_prec = altezza;
    set_scale();
    for (int c = 0; c < n_controlli; ++c)
        show_control(static_cast<Control>(c));
}

void Form_Activate()
{
    form.attivata = true;
    set_scale();
    auto& t = tavolo;
    t.centro_x = griglia_x / 2;
    t.centro_y = griglia_y / 2;
    Box const carta = control_box(Control::carta_1);
    t.larg_carta = (carta.x2 - carta.x1) * t.scala_x * riduzione;
    t.alt_carta = (carta.y2 - carta.y1) * t.scala_y * riduzione;
    runner.start(Main());
}

void Form_QueryUnload()
{
    Form_Unload();
    end_program();
}

void Form_Unload() { chiudi_dispositivi(); }

void reset_form1() { form = {}; }
