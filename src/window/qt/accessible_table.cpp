// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/qt/accessible_table.h"

#include "game/task.h"
#include "human/pointer_input.h"
#include "spoken/table_news.h"
#include "spoken/table_words.h"
#include "window/qt/grid_scale.h"
#include "window/qt/qt_text.h"
#include "window/qt/table_view.h"
#include "window/window.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <algorithm>
#include <map>
#include <optional>
#include <vector>

namespace {

using spoken::Item;
using spoken::Place;

class AccessibleTable;
AccessibleTable* the_table = nullptr;

void send(QAccessibleInterface* from, QAccessible::Event what)
{
    QAccessibleEvent event(from, what);
    QAccessible::updateAccessibility(&event);
}

// What lies at one place. The table makes it, and the cache of interfaces deletes it.
class AccessibleItem : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    AccessibleItem(TableView& view, Item item) : view_(view), item_(std::move(item)) {}

    Item const& item() const { return item_; }
    void become(Item item);

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return view_.window()->windowHandle(); }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(QAccessibleInterface const* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QString text(QAccessible::Text what) const override
    {
        return what == QAccessible::Name ? qt_text(item_.name) : QString();
    }
    void setText(QAccessible::Text, QString const&) override {}
    QRect rect() const override
    {
        QRect const on_table = GridScale(view_.size()).rect(item_.box);
        return {view_.mapToGlobal(on_table.topLeft()), on_table.size()};
    }
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override;
    void doAction(QString const& name) override;
    QStringList keyBindingsForAction(QString const&) const override { return {}; }

  private:
    TableView& view_;
    Item item_;
};

// What has happened, as a notification that shows itself anew. Qt has announcements from 6.8 on.
class Notification : public AccessibleItem {
  public:
    explicit Notification(TableView& view) : AccessibleItem(view, {}) {}
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override
    {
        QAccessible::State s;
        s.invisible = item().name.empty();
        return s;
    }
    QStringList actionNames() const override { return {}; }
};

class AccessibleTable : public QAccessibleWidget {
  public:
    explicit AccessibleTable(TableView& view)
        : QAccessibleWidget(&view, QAccessible::List, QStringLiteral("Tavolo")), view_(view)
    {
        the_table = this;
        for (Item& item : spoken::table_words())
            add(std::move(item));
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
        QAccessible::registerAccessibleInterface(news_ = new Notification(view));
        order_.push_back(news_);
#endif
    }
    ~AccessibleTable() override
    {
        the_table = nullptr;
        for (auto* item : order_)
            QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(item));
    }

    // The objects follow what lies on the table now; each change is told.
    void refresh();
    void announce(std::vector<std::string> const& sentences);

    // The places of a list; without one those that lie in none. In reading order.
    std::vector<AccessibleItem*> places_in(AccessibleItem const* list) const;
    AccessibleItem* list_of(AccessibleItem const& item) const;
    int index_of(AccessibleItem const& item) const
    {
        auto const places = places_in(list_of(item));
        return static_cast<int>(std::ranges::find(places, &item) - places.begin());
    }

    void focus(AccessibleItem const* item);
    bool has_focus(AccessibleItem const& item) const { return focus_ == item.item().place; }

    QAccessible::State state() const override;
    int childCount() const override
    {
        return static_cast<int>(places_in(nullptr).size()) + QAccessibleWidget::childCount();
    }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(QAccessibleInterface const* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override
    {
        auto const focused = focus_ ? places_.find(*focus_) : places_.end();
        return focused == places_.end() ? QAccessibleWidget::focusChild() : focused->second;
    }

  private:
    AccessibleItem* add(Item item);
    void remove(AccessibleItem* item);

    TableView& view_;
    std::map<Place, AccessibleItem*> places_;
    std::vector<AccessibleItem*> order_;  // in reading order, what has happened behind them
    AccessibleItem* news_ = nullptr;
    std::optional<Place> focus_;  // where an assistive technology has put it
};

// ---------------------------------------------------------------- one place

void AccessibleItem::become(Item item)
{
    std::swap(item_, item);
    if (item_.name != item.name)
        send(this, QAccessible::NameChanged);
    if (item_.selected != item.selected)
        send(this, item_.selected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
    if (!(item_.box == item.box))
        send(this, QAccessible::LocationChanged);
}

QAccessibleInterface* AccessibleItem::parent() const
{
    if (!the_table)
        return nullptr;
    auto* const list = the_table->list_of(*this);
    return list ? static_cast<QAccessibleInterface*>(list) : the_table;
}

QAccessibleInterface* AccessibleItem::child(int index) const
{
    auto const places = the_table ? the_table->places_in(this) : std::vector<AccessibleItem*>();
    return index >= 0 && index < static_cast<int>(places.size()) ? places[static_cast<std::size_t>(index)]
                                                                 : nullptr;
}

int AccessibleItem::childCount() const
{
    return the_table ? static_cast<int>(the_table->places_in(this).size()) : 0;
}

int AccessibleItem::indexOfChild(QAccessibleInterface const* child) const
{
    for (int i = 0; i < childCount(); ++i)
        if (this->child(i) == child)
            return i;
    return -1;
}

QAccessibleInterface* AccessibleItem::childAt(int x, int y) const
{
    for (int i = 0; i < childCount(); ++i)
        if (auto* const item = child(i); item && item->rect().contains(x, y))
            return item;
    return nullptr;
}

QAccessible::Role AccessibleItem::role() const
{
    switch (item_.role) {
    case spoken::Role::button: return QAccessible::Button;
    case spoken::Role::list: return QAccessible::List;
    case spoken::Role::item: return QAccessible::ListItem;
    case spoken::Role::label: break;
    }
    return QAccessible::StaticText;
}

QAccessible::State AccessibleItem::state() const
{
    QAccessible::State s;
    s.focusable = true;
    s.focused = the_table && the_table->has_focus(*this) && view_.hasFocus();
    s.selectable = item_.selectable;
    s.multiSelectable = item_.place.kind == Place::Kind::hand;
    s.selected = item_.selected;
    return s;
}

QStringList AccessibleItem::actionNames() const
{
    QStringList names;
    if (item_.left)
        names << pressAction();
    if (item_.right)
        names << toggleAction();
    return names << setFocusAction();
}

void AccessibleItem::doAction(QString const& name)
{
    if (!actionNames().contains(name) || !the_table)
        return;
    if (name == setFocusAction())
        return the_table->focus(this);
    if (QApplication::activeModalWidget())  // a message box holds the game still for everybody
        return;
    Box const at = item_.box;
    evento(
        [&] { Form_MouseDown(name == pressAction() ? 1 : 2, 0, (at.x1 + at.x2) / 2, (at.y1 + at.y2) / 2); });
}

// ---------------------------------------------------------------- the list of them

std::vector<AccessibleItem*> AccessibleTable::places_in(AccessibleItem const* list) const
{
    Place const in = list ? list->item().place : Place{};
    if (list && list->item().role != spoken::Role::list)
        return {};
    std::vector<AccessibleItem*> places;
    std::ranges::copy_if(order_, std::back_inserter(places),
                         [&](AccessibleItem const* i) { return i->item().group == in; });
    return places;
}

AccessibleItem* AccessibleTable::list_of(AccessibleItem const& item) const
{
    auto const list = places_.find(item.item().group);
    return item.item().group == Place{} || list == places_.end() ? nullptr : list->second;
}

AccessibleItem* AccessibleTable::add(Item item)
{
    Place const place = item.place;
    auto* const made = new AccessibleItem(view_, std::move(item));
    QAccessible::registerAccessibleInterface(made);
    places_[place] = made;
    order_.push_back(made);
    return made;
}

void AccessibleTable::remove(AccessibleItem* item)
{
    if (focus_ == item->item().place)
        focus(nullptr);
    send(item, QAccessible::ObjectDestroyed);
    places_.erase(item->item().place);
    std::erase(order_, item);
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(item));
}

void AccessibleTable::refresh()
{
    auto words = spoken::table_words();
    auto const gone = [&](AccessibleItem const* item) {
        return item != news_ && !std::ranges::count(words, item->item().place, &Item::place);
    };
    // The last first: a list goes behind its items.
    for (std::size_t i = order_.size(); i-- > 0;)
        if (gone(order_[i]))
            remove(order_[i]);

    std::vector<AccessibleItem*> made;
    std::vector<AccessibleItem*> order;
    for (Item& item : words) {
        auto const known = places_.find(item.place);
        if (known != places_.end())
            known->second->become(std::move(item));
        else
            made.push_back(add(std::move(item)));
        order.push_back(known != places_.end() ? known->second : made.back());
    }
    if (news_)
        order.push_back(news_);
    order_ = std::move(order);
    for (auto* item : made)
        send(item, QAccessible::ObjectCreated);
}

void AccessibleTable::announce(std::vector<std::string> const& sentences)
{
    if (sentences.empty())
        return;
    std::string all;
    for (auto const& sentence : sentences)
        all += (all.empty() ? "" : ". ") + sentence;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(&view_, qt_text(all));
    QAccessible::updateAccessibility(&event);
#else
    Item item = news_->item();
    if (!item.name.empty())
        send(news_, QAccessible::ObjectHide);
    item.name = std::move(all);
    news_->become(std::move(item));
    send(news_, QAccessible::ObjectShow);
#endif
}

void AccessibleTable::focus(AccessibleItem const* item)
{
    focus_.reset();
    if (item)
        focus_ = item->item().place;
    view_.setFocus();
    QAccessibleInterface* const where = focusChild();
    send(where ? where : this, QAccessible::Focus);
}

QAccessible::State AccessibleTable::state() const
{
    QAccessible::State s = QAccessibleWidget::state();
    s.focusable = true;
    s.focused = view_.hasFocus() && !focus_;
    return s;
}

QAccessibleInterface* AccessibleTable::child(int index) const
{
    auto const places = places_in(nullptr);
    int const n = static_cast<int>(places.size());
    return index >= 0 && index < n ? places[static_cast<std::size_t>(index)]
                                   : QAccessibleWidget::child(index - n);
}

int AccessibleTable::indexOfChild(QAccessibleInterface const* child) const
{
    auto const places = places_in(nullptr);
    auto const place = std::ranges::find(places, child);
    if (place != places.end())
        return static_cast<int>(place - places.begin());
    int const widget = QAccessibleWidget::indexOfChild(child);
    return widget < 0 ? -1 : static_cast<int>(places.size()) + widget;
}

QAccessibleInterface* AccessibleTable::childAt(int x, int y) const
{
    for (int i = 0; i < QAccessibleWidget::childCount(); ++i)  // panels and fields lie over the table
        if (auto* const over = QAccessibleWidget::child(i);
            !over->state().invisible && over->rect().contains(x, y))
            return over;
    for (auto const* item : order_)
        if (item != news_ && item->item().role != spoken::Role::label && item->rect().contains(x, y)) {
            auto* const inside = item->childAt(x, y);
            return inside ? inside : const_cast<AccessibleItem*>(item);
        }
    return nullptr;
}

QAccessibleInterface* make(QString const&, QObject* object)
{
    auto* const table = dynamic_cast<TableView*>(object);
    return table ? new AccessibleTable(*table) : nullptr;
}

std::optional<spoken::News> news;

// Whether an assistive technology is there.
struct Listeners : QAccessible::ActivationObserver {
    bool there = QAccessible::isActive();
    Listeners() { QAccessible::installActivationObserver(this); }
    void accessibilityActiveChanged(bool active) override
    {
        there = active;
        if (there && the_table)  // Qt may have made it before anybody listened
            the_table->refresh();
    }
};
Listeners& listeners()
{
    static Listeners all;
    return all;
}

}  // namespace

void install_accessible_table()
{
    QAccessible::installFactory(make);
    listeners();
}

void before_step()
{
    if (news)
        news->before();
}

void after_step(TableView& table)
{
    if (!listeners().there) {
        news.reset();
        return;
    }
    if (!news)
        news.emplace();
    QAccessible::queryAccessibleInterface(&table);  // makes the objects if there are none
    auto const sentences = news->after();
    the_table->refresh();
    the_table->announce(sentences);
}
