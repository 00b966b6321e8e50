// SPDX-License-Identifier: GPL-3.0-or-later
//
// The table: the client area of the window. It shows the surface, holds the controls that lie over it and
// hands the mouse, or a finger, to the game.
#pragma once

#include "window/controls.h"
#include "window/qt/card_pixmaps.h"
#include "window/qt/finger.h"
#include "window/qt/shown_control.h"

#include <QWidget>
#include <array>

class TableView : public QWidget {
  public:
    explicit TableView(QWidget* parent);

    void repaint_box(Box const& box);
    void show_control(Control c);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    // The second press of a double click is a press like any other.
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    void open_table();
    double ratio() const { return devicePixelRatioF(); }
    QSize device_size() const;
    QPointF to_grid(QPointF where) const;
    QRect to_widget(QRect const& device) const;

    void press(Qt::MouseButton button, QPointF where);
    void put_in_order();

    Finger finger_{[this](Qt::MouseButton button, QPointF where) { press(button, where); }};
    CardPixmaps pictures_;
    double pictures_ratio_ = 0;
    std::array<ShownControl*, n_controlli> controls_{};  // made when they are first shown
    bool opening_ = false, open_ = false;
};
