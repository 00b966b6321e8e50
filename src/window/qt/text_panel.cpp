// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/qt/text_panel.h"

#include "window/form1.h"
#include "window/qt/surface_painter.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QShortcut>
#include <QTouchEvent>

TextPanel::TextPanel(QString const& name, QString const& text, Look const& look, std::function<void()> click,
                     QWidget* parent)
    : QScrollArea(parent), label_(new QLabel(text)), look_(look), click_(std::move(click))
{
    QPalette colours = palette();
    for (auto role : {QPalette::Window, QPalette::Base})
        colours.setColor(role, look.background);
    for (auto role : {QPalette::WindowText, QPalette::Text})
        colours.setColor(role, look.text);
    label_->setPalette(colours);
    QPalette frame = palette();
    frame.setColor(QPalette::WindowText, look.text);
    setPalette(frame);
    label_->setAutoFillBackground(true);
    label_->setTextFormat(Qt::PlainText);
    label_->setWordWrap(true);
    label_->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    setAccessibleName(name);
    setFrameStyle(look.border ? int(QFrame::Box) | int(QFrame::Plain) : int(QFrame::NoFrame));
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::StrongFocus);
    setWidget(label_);
    viewport()->setAttribute(Qt::WA_AcceptTouchEvents);
    new QShortcut(Qt::Key_Escape, this, [this] { tell_click(); });
}

void TextPanel::place(QRect box, int bottom)
{
    QFont font(QStringLiteral("MS Sans Serif"));
    int const pixels = static_cast<int>(std::lround(look_.punti * pixels_per_point()));
    font.setPixelSize(std::max(1, pixels));
    font.setHintingPreference(QFont::PreferNoHinting);
    label_->setFont(font);
    label_->setMargin(pixels / 3);

    int const needed = label_->heightForWidth(box.width() - 2 * frameWidth()) + 2 * frameWidth();
    box.setHeight(std::clamp(needed, std::min(box.height(), bottom - box.top()), bottom - box.top()));
    setGeometry(box);
}

void TextPanel::mousePressEvent(QMouseEvent*) { tell_click(); }

// A finger draws the text along, and is a click if it has not.
bool TextPanel::viewportEvent(QEvent* event)
{
    auto const type = event->type();
    if (type != QEvent::TouchBegin && type != QEvent::TouchUpdate && type != QEvent::TouchEnd)
        return QScrollArea::viewportEvent(event);
    auto const& finger = static_cast<QTouchEvent*>(event)->point(0);
    QPointF const moved = finger.position() - finger.pressPosition();
    if (type == QEvent::TouchBegin) {
        scrolled_from_ = verticalScrollBar()->value();
        scrolls_ = false;
    }
    scrolls_ |= moved.manhattanLength() >= QApplication::startDragDistance();
    if (scrolls_)
        verticalScrollBar()->setValue(scrolled_from_ - qRound(moved.y()));
    else if (type == QEvent::TouchEnd)
        tell_click();
    return true;
}
