// SPDX-License-Identifier: GPL-3.0-or-later
//
// Grid units to pixels. Every edge goes through one rounding, so that two things which touch on the grid
// touch on the screen.
#pragma once

#include "window/form1.h"

#include <QRect>
#include <QSize>
#include <algorithm>
#include <cmath>

class GridScale {
  public:
    explicit GridScale(QSize pixels)
        : x_(pixels.width() / static_cast<double>(griglia_x)),
          y_(pixels.height() / static_cast<double>(griglia_y))
    {
    }
    int x(Single v) const { return static_cast<int>(std::lround(static_cast<double>(v) * x_)); }
    int y(Single v) const { return static_cast<int>(std::lround(static_cast<double>(v) * y_)); }
    QRect rect(Box const& b) const { return {QPoint(x(b.x1), y(b.y1)), QPoint(x(b.x2) - 1, y(b.y2) - 1)}; }
    double height(Box const& b) const { return static_cast<double>(b.y2 - b.y1) * y_; }
    // Of lines and frames: no more than a grid unit, the same on both axes.
    int thickness() const { return std::max(1, static_cast<int>(std::min(x_, y_))); }

  private:
    double x_, y_;
};
