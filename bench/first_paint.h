// SPDX-License-Identifier: GPL-3.0-or-later
//
// Ends the program when the widget has been painted and tells how long that took since the moment that the
// driver wrote into argv[1] (nanoseconds of the steady clock).
#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>

class FirstPaint : public QObject {
  public:
    FirstPaint(QWidget* widget, char const* began, std::function<bool()> painted_enough)
        : began_(std::atoll(began)), painted_enough_(std::move(painted_enough))
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, this, [this] {
                if (!painted_enough_())
                    return;
                auto const now = std::chrono::steady_clock::now().time_since_epoch();
                auto const ns = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count() - began_;
                std::printf("%.3f\n", static_cast<double>(ns) / 1e6);
                std::fflush(stdout);
                std::_Exit(0);
            });
        return false;
    }

  private:
    long long began_;
    std::function<bool()> painted_enough_;
};
