// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/qt/table_view.h"

#include "game/task.h"
#include "human/pointer_input.h"
#include "window/lifecycle.h"
#include "window/qt/qt_text.h"
#include "window/qt/surface_painter.h"
#include "window/window.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <vector>

namespace {

int button_number(Qt::MouseButtons button)
{
    if (button & Qt::LeftButton)
        return 1;
    if (button & Qt::RightButton)
        return 2;
    return button & Qt::MiddleButton ? 4 : 0;
}

}  // namespace

TableView::TableView(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_AcceptTouchEvents);
    setMouseTracking(true);
    setCursor(Qt::ArrowCursor);
}

QSize TableView::device_size() const { return {qRound(width() * ratio()), qRound(height() * ratio())}; }

QPointF TableView::to_grid(QPointF where) const
{
    return {where.x() * static_cast<double>(griglia_x) / width(),
            where.y() * static_cast<double>(griglia_y) / height()};
}

QRect TableView::to_widget(QRect const& device) const
{
    return QRectF(device.x() / ratio(), device.y() / ratio(), device.width() / ratio(),
                  device.height() / ratio())
        .toAlignedRect();
}

void TableView::repaint_box(Box const& box)
{
    if (opening_)
        return;
    update(to_widget(GridScale(device_size()).rect(box).adjusted(-1, -1, 1, 1)));
}

// The window has its real size when it is first painted, and not for certain before. So the game begins here,
// and the first picture is the opening page.
void TableView::open_table()
{
    opening_ = true;
    evento([this] {
        client_size({width(), height()});
        Form_Resize();
        Form_Activate();
    });
    runner.resume();
    opening_ = false;
    open_ = true;
}

void TableView::paintEvent(QPaintEvent* event)
{
    if (!open_)
        open_table();

    QPainter painter(this);
    painter.scale(1 / ratio(), 1 / ratio());
    // Pictures fall on whole pixels and need no smoothing. If it is asked for all the same, Qt takes the slow way
    // that it has for rotated pictures.
    painter.setRenderHint(QPainter::SmoothPixmapTransform,
                          painter.deviceTransform().type() > QTransform::TxTranslate);
    if (pictures_ratio_ != ratio()) {
        pictures_.clear();
        pictures_ratio_ = ratio();
    }

    SurfacePainter surface(painter, device_size(), ratio(),
                           [this](Figura figura, QSize size) { return pictures_.get(figura, size); });
    surface.background();
    for (Mark const& mark : superficie.marks())
        if (event->region().intersects(to_widget(surface.reach(mark))))
            surface.mark(mark);
}

void TableView::resizeEvent(QResizeEvent*)
{
    pictures_.clear();
    if (!open_ || window()->isMinimized())
        return;
    evento([this] {
        client_size({width(), height()});
        Form_Resize();
    });
}

void TableView::press(Qt::MouseButton button, QPointF where)
{
    QPointF const at = to_grid(where);
    evento([&] {
        Form_MouseDown(button_number(button), 0, static_cast<Single>(at.x()), static_cast<Single>(at.y()));
    });
}

// Qt would make of a finger a left press as soon as it comes down, and never a right one.
bool TableView::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel: finger_.touch(*static_cast<QTouchEvent*>(event)); return true;
    default: return QWidget::event(event);
    }
}

void TableView::mousePressEvent(QMouseEvent* event) { press(event->button(), event->position()); }

void TableView::mouseMoveEvent(QMouseEvent* event)
{
    QPointF const at = to_grid(event->position());
    evento([&] {
        Form_MouseMove(button_number(event->buttons()), 0, static_cast<Single>(at.x()),
                       static_cast<Single>(at.y()));
    });
}

void TableView::show_control(Control c)
{
    if (c == Control::carta_1)
        return;
    ShownControl*& shown = controls_[static_cast<std::size_t>(c)];
    auto const& state = control(c);
    if (!shown && !state.visible)
        return;
    if (!shown)
        shown = make_control(c, this);
    shown->place(GridScale(size()).rect(control_box(c)), height());
    shown->show_text(qt_text(state.text));
    shown->widget().setVisible(state.visible);
    if (state.visible)
        put_in_order();
}

void TableView::put_in_order()
{
    std::vector<Control> shown;
    for (int c = 0; c < n_controlli; ++c)
        if (controls_[static_cast<std::size_t>(c)] && control(static_cast<Control>(c)).visible)
            shown.push_back(static_cast<Control>(c));
    std::ranges::stable_sort(shown, {}, [](Control c) { return control(c).order; });
    for (Control c : shown)
        controls_[static_cast<std::size_t>(c)]->widget().raise();
}
