// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/qt/surface_painter.h"

#include "window/qt/qt_text.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <map>

namespace {

constexpr Single bordo_testo = 4;  // free at the right edge of the table, grid units

QColor qt_colour(Colore c) { return {c.rosso, c.verde, c.blu}; }

// The family of that name or the one that stands for it. Asking for one that is not there makes Qt look
// through all fonts, which is felt at the start.
QString installed_family(QString const& name)
{
    return QFontDatabase::hasFamily(name) ? name : QFont::substitute(name);
}

}  // namespace

QFont const& large_font(Font const& font)
{
    static std::map<std::pair<std::string, int>, QFont> known;
    int const size = std::max(1, static_cast<int>(std::lround(font.punti * large_font_factor)));
    auto const [at, is_new] = known.try_emplace({font.nome, size});
    if (is_new) {
        QFont& f = at->second;
        f.setFamily(installed_family(qt_text(font.nome)));
        f.setPixelSize(size);
        f.setBold(true);
        f.setHintingPreference(QFont::PreferNoHinting);
        f.setKerning(false);
        f.setStyleStrategy(QFont::NoFontMerging);
    }
    return at->second;
}

SurfacePainter::SurfacePainter(QPainter& painter, QSize size, double ratio, Pictures pictures)
    : painter_(painter), size_(size), scale_(size),
      text_scale_(static_cast<double>(pixels_per_point()) * ratio / large_font_factor),
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
// that would run off the right edge of the table is drawn smaller.
void SurfacePainter::text(Mark const& mark)
{
    QFont const& font = large_font(mark.font);
    QFontMetricsF const metrics(font);
    QString const words = qt_text(mark.testo);

    int const x = scale_.x(mark.box.x1);
    double const baseline = font.pixelSize() * metrics.ascent() / (metrics.ascent() + metrics.descent());
    double const right = std::max(metrics.horizontalAdvance(words), metrics.boundingRect(words).right());
    double const room = (scale_.x(griglia_x - bordo_testo) - x) / text_scale_;
    double const fit = right > room && room > 0 ? text_scale_ * room / right : text_scale_;

    painter_.save();
    painter_.translate(x, std::round(scale_.y(mark.box.y1) + baseline * text_scale_));
    painter_.scale(fit, fit);
    painter_.setFont(font);
    painter_.setPen(qt_colour(mark.colore));
    painter_.drawText(QPointF(0, 0), words);
    painter_.restore();
}
