// SPDX-License-Identifier: GPL-3.0-or-later

// The pictures of the icon, each from the drawing that is meant for its size:
//   make_icon FOLDER DRAWING.svg SIZE... [DRAWING.svg SIZE...]...
// writes FOLDER/SIZE.png, and FOLDER/SIZE.rgba, the same as bare pixels: four bytes each, premultiplied, row
// by row. The folder must exist. It ends with 1 at the first word it can't make anything of: an unreadable
// drawing, a picture that can't be written.

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

#include <iostream>

namespace {

// What lies on whole pixels at 24 doesn't at 22, so the picture of 22 is that of 24 without its outermost
// ones.
QImage dipinta(QSvgRenderer& disegno, int lato)
{
    QImage i(lato, lato, QImage::Format_ARGB32_Premultiplied);
    i.fill(Qt::transparent);
    QPainter p(&i);
    p.setRenderHint(QPainter::Antialiasing);
    disegno.render(&p, lato == 22 ? QRectF(-1, -1, 24, 24) : QRectF(0, 0, lato, lato));
    return i;
}

bool scrivi(QImage const& i, QString const& nome)
{
    QImage const nuda = i.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    QFile f(nome + ".rgba");
    return i.convertToFormat(QImage::Format_ARGB32).save(nome + ".png", "PNG", 0) &&
           f.open(QIODevice::WriteOnly) &&
           f.write(reinterpret_cast<char const*>(nuda.constBits()), nuda.sizeInBytes()) == nuda.sizeInBytes();
}

}  // namespace

int main(int argc, char** argv)
{
    QSvgRenderer disegno;
    for (int k = 2; k < argc; ++k) {
        QString const parola = QString::fromLocal8Bit(argv[k]);
        int const lato = parola.toInt();
        bool const fatto =
            lato > 0 ? disegno.isValid() &&
                           scrivi(dipinta(disegno, lato), QString::fromLocal8Bit(argv[1]) + '/' + parola)
                     : disegno.load(parola);
        if (!fatto) {
            std::cerr << "make_icon: " << argv[k] << '\n';
            return 1;
        }
    }
    return 0;
}
