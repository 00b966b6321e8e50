// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/surface.h"

#include "game/places.h"
#include "window/window.h"

#include <algorithm>
#include <utility>

Surface superficie;

namespace {

constexpr Box tutto{0, 0, griglia_x, griglia_y};
constexpr std::size_t most_waiting = 2000;  // a hand without a look at it

Box with_corners_in_order(Box b)
{
    return {std::min(b.x1, b.x2), std::min(b.y1, b.y2), std::max(b.x1, b.x2), std::max(b.y1, b.y2)};
}

// Not even their edges touch. Cards lie in rows, so most boxes are told apart by their heights.
bool apart(Box const& a, Box const& b) { return a.y2 < b.y1 || b.y2 < a.y1 || a.x2 < b.x1 || b.x2 < a.x1; }

bool meet(Box const& a, Box const& b) { return a.x1 < b.x2 && b.x1 < a.x2 && a.y1 < b.y2 && b.y1 < a.y2; }

Box both(Box const& a, Box const& b)
{
    return {std::min(a.x1, b.x1), std::min(a.y1, b.y1), std::max(a.x2, b.x2), std::max(a.y2, b.y2)};
}

Box reach(Mark const& m)
{
    Box b = m.box;
    if (m.kind == Mark::Kind::line) {
        b.x2 = std::max(b.x2, b.x1 + 1);
        b.y2 = std::max(b.y2, b.y1 + 1);
    }
    if (m.kind == Mark::Kind::text) {
        Single const margin = b.y2 - b.y1;
        b = {b.x1 - margin, b.y1 - margin, b.x2 + margin, b.y2 + margin};
    }
    return b;
}

// Nothing of the older mark can be seen below the new fill.
bool covers(Mark const& fill, Mark const& below)
{
    return fill.box.contains(below.kind == Mark::Kind::text ? below.box : below.reach);
}

// The new mark, no fill, paints the older one again. The corners of a card are transparent, so a picture hides another
// picture only if both have the same place and size. Of all marks at most one is repeated.
bool repeats(Mark const& above, Mark const& below)
{
    if (above.box.x1 != below.box.x1 || above.box.y1 != below.box.y1 || above.kind != below.kind)
        return false;
    if (above.kind == Mark::Kind::text)
        return above.testo == below.testo && above.font == below.font;
    return above.box == below.box;
}

Byte corner(Mark const& m)
{
    auto const x = static_cast<unsigned>(static_cast<int>(m.box.x1));
    auto const y = static_cast<unsigned>(static_cast<int>(m.box.y1));
    return static_cast<Byte>(x * 7 + y * 31);
}

}  // namespace

Surface::Surface() : font_{"MS Sans Serif", 7.8F} {}

std::vector<Mark> const& Surface::marks()
{
    settle();
    return marks_;
}

Box Surface::changed()
{
    settle();
    return std::exchange(changed_, {}).value_or(Box{});
}

void Surface::clear()
{
    waiting_.clear();
    marks_.clear();
    corners_ = {};
    words_ = std::make_shared<Words>();
    changed_ = tutto;
    repaint(*this);
}

void Surface::fill_box(Box box, Colore colore)
{
    add({.kind = Mark::Kind::fill, .box = box, .colore = colore});
}

void Surface::outline_box(Box box, Colore colore)
{
    add({.kind = Mark::Kind::outline, .box = box, .colore = colore});
}

void Surface::line(Single x1, Single y1, Single x2, Single y2, Colore colore)
{
    add({.kind = Mark::Kind::line, .box = {x1, y1, x2, y2}, .colore = colore});
}

void Surface::paint_picture(Figura figura, Single x, Single y, Single larghezza, Single altezza)
{
    add({.kind = Mark::Kind::picture, .box = {x, y, x + larghezza, y + altezza}, .figura = figura});
}

void Surface::print_at(Single x, Single y)
{
    print_x_ = x;
    print_y_ = y;
}

void Surface::print(std::string_view testo)
{
    if (testo.empty())
        return;
    auto words = words_->find(testo);
    if (words == words_->end())
        words = words_->emplace(testo).first;
    Single const larghezza = text_width(testo, font_);
    add({.kind = Mark::Kind::text,
         .box = {print_x_, print_y_, print_x_ + larghezza, print_y_ + text_height(font_)},
         .colore = colore_testo_,
         .testo = *words,
         .font = font_});
    print_x_ += larghezza;
}

void Surface::print_line(std::string_view testo)
{
    print(testo);
    print_at(0, print_y_ + text_height(font_));
}

void Surface::add(Mark&& mark)
{
    mark.box = with_corners_in_order(mark.box);
    mark.reach = reach(mark);
    mark.corner = corner(mark);
    waiting_.push_back(mark);
    if (waiting_.size() == most_waiting)
        settle();
    repaint(*this);
}

void Surface::settle()
{
    for (Mark const& mark : waiting_)
        lay(mark);
    waiting_.clear();
}

void Surface::lay(Mark const& mark)
{
    Box changed = mark.reach;

    auto const going = [&](Mark const& older) {
        changed = both(changed, older.reach);
        --corners_[older.corner];
    };

    bool invisible = mark.kind == Mark::Kind::fill && mark.colore == background;
    if (mark.kind == Mark::Kind::fill) {
        std::erase_if(marks_, [&](Mark const& older) {
            if (apart(mark.box, older.reach))
                return false;
            bool const hidden = covers(mark, older);
            if (hidden)
                going(older);
            else if (meet(mark.box, older.reach))
                invisible = false;
            return hidden;
        });
    } else if (corners_[mark.corner] > 0) {
        auto const older = std::ranges::find_if(
            marks_, [&](Mark const& m) { return m.corner == mark.corner && repeats(mark, m); });
        if (older != marks_.end()) {
            going(*older);
            marks_.erase(older);
        }
    }

    if (!invisible) {
        ++corners_[mark.corner];
        marks_.push_back(mark);
    }
    changed_ = changed_ ? both(*changed_, changed) : changed;
}
