// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/controls.h"

#include "window/window.h"

#include <array>

namespace {

using Controls = std::array<ControlState, n_controlli>;

constexpr std::size_t posto(Control c) { return static_cast<std::size_t>(c); }

Controls stored_controls()
{
    Controls c;
    auto const size = [&](Control which, Single width, Single height) {
        c[posto(which)].width = width;
        c[posto(which)].height = height;
    };
    size(Control::carta_1, larg_carta_1, alt_carta_1);
    for (int n = 1; n <= 4; ++n)
        size(TxtPlayer(n), 1152, 288);
    for (int n = 0; n <= 1; ++n)
        size(Shape1(n), 1152, 192);
    size(Control::TxtHelp, 5472, 2652);
    size(Control::TxtItaliano, 5472, 2652);
    size(Control::Text4, 2895, 1680);
    return c;
}

Controls controls = stored_controls();
int foreground = 0;  // order of the frontmost control

ControlState& writable(Control c) { return controls[posto(c)]; }

// Bytes of the characters that a name field holds.
std::size_t field_bytes(std::string_view utf8)
{
    int letters = 0;
    for (std::size_t i = 0; i < utf8.size(); ++i)
        if ((static_cast<unsigned char>(utf8[i]) & 0xC0U) != 0x80U && ++letters > max_lettere)
            return i;
    return utf8.size();
}

}  // namespace

ControlState const& control(Control c) { return controls[posto(c)]; }

void show(Control c, bool yes)
{
    if (control(c).visible == yes)
        return;
    writable(c).visible = yes;
    show_control(c);
}

void bring_to_front(Control c)
{
    writable(c).order = ++foreground;
    show_control(c);
}

void move_to(Control c, Single x, Single y)
{
    writable(c).left = x * twips_x();
    writable(c).top = y * twips_y();
    show_control(c);
}

void set_text(Control c, std::string_view text)
{
    writable(c).text = text.substr(0, field_bytes(text));
    show_control(c);
}

Box control_box(Control c)
{
    auto const& s = control(c);
    return {s.left / twips_x(), s.top / twips_y(), (s.left + s.width) / twips_x(),
            (s.top + s.height) / twips_y()};
}

void load_controls()
{
    controls = stored_controls();
    foreground = 0;
}

void scale_controls(Growth growth)
{
    for (ControlState& c : controls) {
        c.height *= growth.y;
        c.top *= growth.y;
        c.width *= growth.x;
        c.left *= growth.x;
    }
    for (int c = 0; c < n_controlli; ++c)
        show_control(static_cast<Control>(c));
}
