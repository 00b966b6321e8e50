// SPDX-License-Identifier: GPL-3.0-or-later
//
// The controls over the table as widgets, one class a kind: text panels, name fields and the shapes of the
// closing area. The record of controls.h owns place, visibility and text; a widget shows them and tells what
// a person does.
#pragma once

#include "window/controls.h"

#include <QLineEdit>
#include <QWidget>

class ShownControl {
  public:
    virtual ~ShownControl() = default;

    virtual QWidget& widget() = 0;

    // Lies in the box, in pixels of the table, whose lower edge is at bottom.
    virtual void place(QRect box, int bottom) = 0;

    // Only a name field has a text of its own.
    virtual void show_text(QString const&) {}
};

// A widget of the kind that the control is; the table owns it. Not carta_1.
ShownControl* make_control(Control c, QWidget* table);

// One of the two shapes of the closing area. Clicks go to the table below.
class ClosingShape : public QWidget, public ShownControl {
  public:
    ClosingShape(QColor const& colour, QWidget* table);
    QWidget& widget() override { return *this; }
    void place(QRect box, int) override { setGeometry(box); }
};

// The field of player 1 or 2. Enter does what a click in the closing area does.
class NameField : public QLineEdit, public ShownControl {
  public:
    NameField(Control c, int player, QWidget* table);
    QWidget& widget() override { return *this; }
    void place(QRect box, int) override;
    void show_text(QString const& text) override;

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    bool first_;  // it has the keyboard when the page opens
};
