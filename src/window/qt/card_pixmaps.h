// SPDX-License-Identifier: GPL-3.0-or-later
//
// The 54 pictures as pixmaps, drawn from the card drawings when they are first wanted in a size.
#pragma once

#include "window/surface.h"

#include <QCache>
#include <QPixmap>

class CardPixmaps {
  public:
    CardPixmaps();

    // Size in device pixels, not empty.
    QPixmap get(Figura figura, QSize size);
    void clear() { pixmaps_.clear(); }

  private:
    struct Key {
        int figura;
        QSize size;
        bool operator==(Key const&) const = default;
        friend std::size_t qHash(Key const& k, std::size_t seed = 0)
        {
            return qHashMulti(seed, k.figura, k.size.width(), k.size.height());
        }
    };
    QCache<Key, QPixmap> pixmaps_;  // by their bytes
};
