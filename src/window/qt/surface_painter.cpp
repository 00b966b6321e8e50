// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/qt/surface_painter.h"

#include "window/qt/qt_text.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <map>

namespace {

constexpr Single bordo_testo = 4;  // free at the right edge of the table, grid units

QColor qt_colour(Colore c) { return {c.rosso, c.verde, c.blu}; }

// The family of that name, or the one that stands for it. Asking Qt for a family that is not installed, or whether
// one is, makes it search for the most similar one, which slows the start. Reading the list of names does not.
QString installed_family(QString const& name)
{
    static QStringList const installed = QFontDatabase::families();
    return installed.contains(name, Qt::CaseInsensitive) ? name : QFont::substitute(name);
}

}  // namespace

QFont const& large_font(std::string_view name)
{
    static std::map<std::string_view, QFont> known;
    auto const [at, is_new] = known.try_emplace(name);
    if (is_new) {
        QFont& f = at->second;
        f.setFamily(installed_family(qt_text(name)));
        f.setPixelSize(large_pixels);
        f.setBold(true);
        f.setHintingPreference(QFont::PreferNoHinting);
        f.setKerning(false);
        f.setStyleStrategy(QFont::NoFontMerging);
    }
    return at->second;
}

SurfacePainter::SurfacePainter(QPainter& painter, QSize size, double ratio, Pictures pictures)
    : painter_(painter), size_(size), scale_(size), point_(static_cast<double>(pixels_per_point()) * ratio),
      pictures_(std::move(pictures))
{
}

void SurfacePainter::background() { painter_.fillRect(QRect({0, 0}, size_), qt_colour(Surface::background)); }

void SurfacePainter::mark(Mark const& mark)
{
    QRect const r = scale_.rect(mark.box);
    int const t = scale_.thickness();
    QColor const colour = qt_colour(mark.colore);

    switch (mark.kind) {
    case Mark::Kind::fill: painter_.fillRect(r, colour); break;
    case Mark::Kind::line:
        painter_.fillRect(r.x(), r.y(), std::max(r.width(), t), std::max(r.height(), t), colour);
        break;
    case Mark::Kind::outline:
        painter_.fillRect(r.x(), r.y(), r.width(), t, colour);
        painter_.fillRect(r.x(), r.y() + r.height() - t, r.width(), t, colour);
        painter_.fillRect(r.x(), r.y(), t, r.height(), colour);
        painter_.fillRect(r.x() + r.width() - t, r.y(), t, r.height(), colour);
        break;
    case Mark::Kind::picture:
        if (!r.isEmpty())
            painter_.drawPixmap(r.topLeft(), pictures_(mark.figura, r.size()));
        break;
    case Mark::Kind::text: text(mark); break;
    }
}

// The cell of a text is as high as its font's size; the letters stand in it as in a line of the font. A text
// that would run off the right edge of the table is drawn smaller, and so is one whose cell has become lower
// in a window that was made smaller: it would reach into the next line.
void SurfacePainter::text(Mark const& mark)
{
    QFont const& font = large_font(mark.font.nome);
    QFontMetricsF const metrics(font);
    QString const words = qt_text(mark.testo);
    double const asked = static_cast<double>(mark.font.punti) * point_;  // pixels
    double const cell = scale_.height(mark.box);
    double const size = cell < 0.98 * asked ? cell : asked;  // what the rounding of a cell takes is not felt

    int const x = scale_.x(mark.box.x1);
    double const baseline = size * metrics.ascent() / (metrics.ascent() + metrics.descent());
    double const right = std::max(metrics.horizontalAdvance(words), metrics.boundingRect(words).right());
    double const room = scale_.x(griglia_x - bordo_testo) - x;
    double const fit = std::min(size / large_pixels, room > 0 ? room / right : 1);

    painter_.save();
    painter_.translate(x, std::round(scale_.y(mark.box.y1) + baseline));
    painter_.scale(fit, fit);
    painter_.setFont(font);
    painter_.setPen(qt_colour(mark.colore));
    painter_.drawText(QPointF(0, 0), words);
    painter_.restore();
}
