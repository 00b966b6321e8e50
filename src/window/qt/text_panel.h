// SPDX-License-Identifier: GPL-3.0-or-later
//
// A help panel: text to read, lines as they stand, wrapped only where they are too long. Its colours are its
// own, whatever the desktop's; its name is for who does not see it. A click on it is told, and so are the
// Escape key and a finger that does not scroll; a click on its scroll bar is not.
#pragma once

#include "window/qt/shown_control.h"
#include "window/window.h"

#include <QScrollArea>
#include <functional>

class QLabel;

class TextPanel : public QScrollArea, public ShownControl {
  public:
    struct Look {
        Single punti;
        QColor text, background;
        bool border;
    };
    TextPanel(QString const& name, QString const& text, Look const& look, std::function<void()> click,
              QWidget* parent);

    QWidget& widget() override { return *this; }

    void tell_click() { evento(click_); }

    // Lies in the box, in pixels of the table, and grows down to show its text, at most to `bottom`.
    void place(QRect box, int bottom) override;

  protected:
    void showEvent(QShowEvent*) override { setFocus(); }  // the keyboard scrolls it
    bool viewportEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }

  private:
    QLabel* label_;
    Look look_;
    std::function<void()> click_;
    int scrolled_from_ = 0;  // where the text stood when a finger came down
    bool scrolls_ = false;   // the finger has moved
};
