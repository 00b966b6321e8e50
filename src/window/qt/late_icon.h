// SPDX-License-Identifier: GPL-3.0-or-later
//
// The desktop's style but for one icon, whose picture is read when it is first shown. A menu bar asks for that of its
// extension button as soon as it is made, and shows it only in a window too narrow for all menus. To read a picture
// file Qt loads every plug-in for image formats, one thirtieth of a start.
// Found: an application; before there is one, nobody knows the desktop's style.
#pragma once

#include <QProxyStyle>

class LateIconStyle : public QProxyStyle {
  public:
    QIcon standardIcon(StandardPixmap which, QStyleOption const* option,
                       QWidget const* widget) const override;
};
