// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/qt/finger.h"

#include <QApplication>
#include <QStyleHints>
#include <QTouchEvent>

Finger::Finger(Click click) : click_(std::move(click))
{
    hold_.setSingleShot(true);
    hold_.callOnTimeout([this] { this->click(Qt::RightButton); });
}

void Finger::touch(QTouchEvent& event)
{
    QPointF const at = event.point(0).position();
    bool const one = event.pointCount() == 1;
    if (event.type() == QEvent::TouchBegin && one) {
        down_ = at;
        hold_.start(QGuiApplication::styleHints()->mousePressAndHoldInterval());
        return;
    }
    bool const near = (at - down_).manhattanLength() < QApplication::startDragDistance();
    if (event.type() == QEvent::TouchUpdate && one && near)
        return;
    bool const lifted = event.type() == QEvent::TouchEnd && one && near && hold_.isActive();
    hold_.stop();
    if (lifted)
        click(Qt::LeftButton);
}

void Finger::click(Qt::MouseButton button)
{
    if (!QApplication::activeModalWidget())
        click_(button, down_);
}
