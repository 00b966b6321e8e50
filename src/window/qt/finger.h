// SPDX-License-Identifier: GPL-3.0-or-later
//
// A finger on the table as clicks: lifted early it is a left one, where it came down; held for the platform's
// time it is a right one at once, and the lift counts no more. A finger that moves further than a drag begins
// with, a second finger, or a message box in between make it nothing.
#pragma once

#include <QPointF>
#include <QTimer>
#include <functional>

class QTouchEvent;

class Finger {
  public:
    using Click = std::function<void(Qt::MouseButton button, QPointF where)>;  // where it came down

    explicit Finger(Click click);
    void touch(QTouchEvent& event);

  private:
    void click(Qt::MouseButton button);

    Click click_;
    QTimer hold_;  // runs as long as the finger can become a click
    QPointF down_;
};
