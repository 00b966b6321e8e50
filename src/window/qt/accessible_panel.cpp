// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/qt/accessible_panel.h"

#include "window/qt/text_panel.h"

#include <QAccessibleWidget>
#include <QApplication>

namespace {

class AccessiblePanel : public QAccessibleWidget {
  public:
    explicit AccessiblePanel(TextPanel& panel)
        : QAccessibleWidget(&panel, QAccessible::Document), panel_(panel)
    {
    }
    QStringList actionNames() const override
    {
        return QAccessibleWidget::actionNames() << QStringLiteral("Chiudi");
    }
    void doAction(QString const& name) override
    {
        if (name != QStringLiteral("Chiudi"))
            QAccessibleWidget::doAction(name);
        else if (!QApplication::activeModalWidget())
            panel_.tell_click();
    }

  private:
    TextPanel& panel_;
};

QAccessibleInterface* make(QString const&, QObject* object)
{
    auto* const panel = dynamic_cast<TextPanel*>(object);
    return panel ? new AccessiblePanel(*panel) : nullptr;
}

}  // namespace

void install_accessible_panels() { QAccessible::installFactory(make); }
