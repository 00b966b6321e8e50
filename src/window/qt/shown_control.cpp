// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/qt/shown_control.h"

#include "human/pointer_input.h"
#include "players/player_names.h"
#include "window/help_pages.h"
#include "window/qt/qt_text.h"
#include "window/qt/text_panel.h"
#include "window/window.h"

#include <algorithm>
#include <cmath>

namespace {

// Text and background both, so that a dark desktop leaves them readable.
void set_colours(QWidget* widget, QColor const& text, QColor const& background)
{
    QPalette colours = widget->palette();
    for (auto role : {QPalette::Text, QPalette::WindowText})
        colours.setColor(role, text);
    for (auto role : {QPalette::Base, QPalette::Window})
        colours.setColor(role, background);
    widget->setPalette(colours);
    widget->setAutoFillBackground(true);
}

void click_closing_area()
{
    Box const area = area_chiusura_nomi();
    Form_MouseDown(1, 0, (area.x1 + area.x2) / 2, (area.y1 + area.y2) / 2);
}

TextPanel* make_panel(Control c, QWidget* table)
{
    QString const text = qt_text(panel_text(c));
    switch (c) {
    case Control::TxtItaliano:
        return new TextPanel(QStringLiteral("Regole"), text, {12, Qt::black, Qt::white, false},
                             TxtItaliano_Click, table);
    case Control::TxtHelp:
        return new TextPanel(QStringLiteral("Aiuto"), text, {12, Qt::black, Qt::white, false}, TxtHelp_Click,
                             table);
    default:
        return new TextPanel(QStringLiteral("Info"), text, {7.8F, Qt::black, QColor(224, 224, 224), true},
                             text4_Click, table);
    }
}

}  // namespace

ShownControl* make_control(Control c, QWidget* table)
{
    switch (c) {
    case Control::TxtItaliano:
    case Control::TxtHelp:
    case Control::Text4: return make_panel(c, table);
    case Control::Shape1_0: return new ClosingShape(QColor(128, 128, 0), table);
    case Control::Shape1_1: return new ClosingShape(QColor(192, 192, 0), table);
    default: return new NameField(c, static_cast<int>(c) - static_cast<int>(TxtPlayer(1)) + 1, table);
    }
}

ClosingShape::ClosingShape(QColor const& colour, QWidget* table) : QWidget(table)
{
    set_colours(this, colour, colour);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

NameField::NameField(Control c, int player, QWidget* table) : QLineEdit(table), first_(player == 1)
{
    setMaxLength(max_lettere);
    setAccessibleName(first_ ? QStringLiteral("Il vostro nome") : QStringLiteral("Il nome del computer"));
    setContextMenuPolicy(Qt::NoContextMenu);
    QFont font(QStringLiteral("MS Sans Serif"));
    font.setHintingPreference(QFont::PreferNoHinting);
    setFont(font);
    set_colours(this, Qt::black, Qt::white);
    connect(this, &QLineEdit::textEdited, this, [c, player](QString const& text) {
        evento([&] {
            set_text(c, text.toStdString());
            TxtPlayer_Change(player);
        });
    });
    connect(this, &QLineEdit::returnPressed, this, [] { evento(click_closing_area); });
}

void NameField::place(QRect box, int)
{
    setGeometry(box);
    QFont f = font();
    int const pixels = std::max(1, static_cast<int>(std::lround(7.8F * pixels_per_point())));
    if (f.pixelSize() == pixels)
        return;
    f.setPixelSize(pixels);
    setFont(f);
}

void NameField::show_text(QString const& text)
{
    if (this->text() != text)
        setText(text);
}

// The name comes into the field after the field has been shown.
void NameField::showEvent(QShowEvent* event)
{
    QLineEdit::showEvent(event);
    if (!first_)
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            setFocus();
            selectAll();
        },
        Qt::QueuedConnection);
}
