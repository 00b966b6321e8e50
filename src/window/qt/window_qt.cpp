// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/qt/main_window.h"

#include "window/controls.h"
#include "window/qt/accessible_table.h"
#include "window/qt/qt_text.h"
#include "window/qt/surface_painter.h"
#include "window/qt/table_view.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QtMath>

namespace {

// The text alone, on a box wide enough for its title.
struct Question : QMessageBox {
    Question(std::string_view testo, QWidget* parent)
        : QMessageBox(NoIcon, qt_text(nome_programma), qt_text(testo), NoButton, parent)
    {
        if (auto* label = findChild<QLabel*>(QStringLiteral("qt_msgbox_label")))
            label->setMinimumWidth(label->fontMetrics().averageCharWidth() * 36);
    }
};

// Most systems' hourglass moves, and on Wayland a moving pointer ends a program with Qt 6.4 after some
// seconds: its client library reads a callback that it has just freed. So there the game draws one that
// stands still.
QCursor hourglass(QWidget const& window)
{
    if (!QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        return Qt::WaitCursor;
    constexpr int side = 24;
    int const pixels = qCeil(window.devicePixelRatioF());
    QPixmap picture(side * pixels, side * pixels);
    picture.setDevicePixelRatio(pixels);
    picture.fill(Qt::transparent);
    QPainter p(&picture);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Qt::black, 1.5));
    p.setBrush(Qt::white);
    p.drawPolygon(QPolygonF(
        {{6, 4}, {18, 4}, {18, 7}, {13, 12}, {18, 17}, {18, 20}, {6, 20}, {6, 17}, {11, 12}, {6, 7}}));
    p.setBrush(Qt::black);
    p.drawPolygon(QPolygonF({{8, 19}, {12, 15}, {16, 19}}));
    p.drawRect(QRectF(4, 2, 16, 2));
    p.drawRect(QRectF(4, 20, 16, 2));
    p.end();
    return QCursor(picture, side / 2, side / 2);
}

}  // namespace

void repaint(Surface& surface)
{
    if (auto* w = MainWindow::current())
        w->table().repaint_box(surface.changed());
}

Single text_width(std::string_view testo, Font const& font)
{
    double const ems = QFontMetricsF(large_font(font.nome)).horizontalAdvance(qt_text(testo)) / large_pixels;
    auto* const w = MainWindow::current();
    double const width = w ? w->table().width() : static_cast<double>(griglia_x);
    return static_cast<Single>(ems * static_cast<double>(font.punti * pixels_per_point() * griglia_x) /
                               width);
}

Single text_height(Font const& font) { return points_to_grid(font.punti); }

void start_timer(int millisecondi)
{
    if (auto* w = MainWindow::current())
        w->start_timer(millisecondi);
}

void mouse_pointer(Pointer forma)
{
    auto* const w = MainWindow::current();
    if (!w)
        return;
    switch (forma) {
    case Pointer::arrow: return w->table().setCursor(Qt::ArrowCursor);
    case Pointer::up_arrow: return w->table().setCursor(Qt::UpArrowCursor);
    case Pointer::hourglass: return w->table().setCursor(hourglass(*w));
    }
}

void show_menu_entry(Menu voce)
{
    if (auto* w = MainWindow::current())
        w->show_menu_entry(voce);
}

void show_control(Control controllo)
{
    if (auto* w = MainWindow::current())
        w->table().show_control(controllo);
}

Task message_box(std::string_view testo)
{
    auto* const w = MainWindow::current();
    if (!w)
        co_return;
    Question box(testo, w);
    box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    after_step(w->table());  // what led to the box is told first
    box.exec();
    wake_game();  // events that came while the box was open could not resume the game
}

void ask_yes_no(std::string_view testo, void (*if_yes)())
{
    auto* const w = MainWindow::current();
    if (!w)
        return;
    Question box(testo, w);
    auto* const yes = box.addButton(QStringLiteral("&Sì"), QMessageBox::YesRole);
    auto* const no = box.addButton(QStringLiteral("&No"), QMessageBox::NoRole);
    box.setDefaultButton(yes);
    box.setEscapeButton(no);
    box.exec();
    if (box.clickedButton() == yes)
        if_yes();
}

void beep() { QApplication::beep(); }

void end_program()
{
    if (auto* w = MainWindow::current())
        w->end();
}

void wake_game()
{
    if (auto* w = MainWindow::current())
        w->wake_game();
}
