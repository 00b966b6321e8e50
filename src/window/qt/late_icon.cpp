// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/qt/late_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPointer>

namespace {

class LateIcon : public QIconEngine {
  public:
    explicit LateIcon(QStyle const& style) : style_(&style) {}

    void paint(QPainter* painter, QRect const& rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(QSize const& size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, 1, mode, state);  // the size is in device pixels already
    }
    QIconEngine* clone() const override { return new LateIcon(*this); }

  private:
    QIcon const& icon()
    {
        if (QStyle const* const style = style_; style && icon_.isNull())
            icon_ = style->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
        return icon_;
    }

    QPointer<QStyle const> style_;
    QIcon icon_;
};

}  // namespace

QIcon LateIconStyle::standardIcon(StandardPixmap which, QStyleOption const* option,
                                  QWidget const* widget) const
{
    if (which == SP_ToolBarHorizontalExtensionButton)
        return QIcon(new LateIcon(*baseStyle()));
    return QProxyStyle::standardIcon(which, option, widget);
}
