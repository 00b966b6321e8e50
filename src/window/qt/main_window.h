// SPDX-License-Identifier: GPL-3.0-or-later
//
// The real window: menu bar and table, and what the game asks of a window system beyond drawing. At most one
// exists; without one the procedures of window.h do nothing.
#pragma once

#include "window/menus.h"
#include "window/window.h"

#include <QMainWindow>
#include <QTimer>
#include <array>

class TableView;

class MainWindow : public QMainWindow {
  public:
    MainWindow();
    ~MainWindow() override;

    static MainWindow* current();

    // Maximised. The game begins when the table has been painted once.
    void open();
    // Real time to game time of the waits; 1 from the start.
    void set_time_factor(double factor) { time_factor_ = factor; }

    TableView& table() { return *table_; }
    QAction& entry(Menu voce) { return *entries_[static_cast<std::size_t>(voce)]; }

    void show_menu_entry(Menu voce);
    void start_timer(int milliseconds);
    void wake_game();
    void end();

    // The game is about to go on; it goes on when the timer fires.
    bool busy() const { return wake_posted_; }
    bool waiting() const { return timer_.isActive(); }

  protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void make_menus();
    void light_continue();

    std::array<QAction*, n_voci> entries_{};
    TableView* table_;
    QTimer timer_;
    double time_factor_ = 1;
    bool wake_posted_ = false;
    bool restored_ = false;  // the window has been smaller than the screen once
};

// Before the application: how the program is called, where its menus are and which fonts stand for the
// game's.
void prepare_application();
