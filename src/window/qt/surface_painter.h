// SPDX-License-Identifier: GPL-3.0-or-later
//
// Draws the marks of a surface in device pixels.
#pragma once

#include "window/qt/grid_scale.h"
#include "window/surface.h"

#include <QFont>
#include <QPainter>
#include <QPixmap>
#include <functional>

// The font of that name, bold, in a size in which its letters are drawn and measured for all: under a scale
// they keep their widths at every size.
inline constexpr int large_pixels = 160;
QFont const& large_font(std::string_view name);

class SurfacePainter {
  public:
    // Gives the picture in exactly that size.
    using Pictures = std::function<QPixmap(Figura, QSize)>;

    // The painter counts in device pixels, size is that of the whole table, ratio is device pixels to a
    // device-independent one.
    SurfacePainter(QPainter& painter, QSize size, double ratio, Pictures pictures);

    void background();
    void mark(Mark const& mark);
    // Where a mark may leave its pixels.
    QRect reach(Mark const& mark) const { return scale_.rect(mark.reach); }

  private:
    void text(Mark const& mark);

    QPainter& painter_;
    QSize size_;
    GridScale scale_;
    double point_;  // in pixels
    Pictures pictures_;
};
