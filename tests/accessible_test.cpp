// SPDX-License-Identifier: GPL-3.0-or-later
//
// The table by ear and by finger: the same matches come of it as with a mouse.
#include "real_window.h"

#include "at_the_table.h"
#include "game/table_state.h"
#include "greedy_person.h"
#include "spoken/table_words.h"
#include "window/qt/grid_scale.h"
#include "window/qt/main_window.h"
#include "window/qt/table_view.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleHints>
#include <QTest>
#include <algorithm>

namespace {

// All places below a list, a list in front of its items.
void collect(QAccessibleInterface* list, std::vector<QAccessibleInterface*>& places)
{
    for (int i = 0; i < list->childCount(); ++i)
        if (auto* const child = list->child(i);
            !child->object() && child->role() != QAccessible::Notification) {
            EXPECT_EQ(child->parent(), list);
            EXPECT_EQ(list->indexOfChild(child), i);
            places.push_back(child);
            collect(child, places);
        }
}

// The objects tell what the table in words tells, in its order and where a click counts.
void expect_true_objects()
{
    if (real_window().busy())
        return;
    auto& table = real_window().table();
    std::vector<QAccessibleInterface*> places;
    collect(QAccessible::queryAccessibleInterface(&table), places);
    auto const words = spoken::table_words();
    ASSERT_EQ(places.size(), words.size());
    for (std::size_t i = 0; i < words.size(); ++i) {
        auto* const place = places[i];
        EXPECT_EQ(place->text(QAccessible::Name).toStdString(), words[i].name);
        EXPECT_EQ(place->state().selected, words[i].selected) << words[i].name;
        EXPECT_EQ(place->rect().translated(-table.mapToGlobal(QPoint())),
                  GridScale(table.size()).rect(words[i].box))
            << words[i].name;
    }
}

std::string played(With what)
{
    with = what;
    auto const match = gioca_partite(
        1, 5, what == With::reader ? expect_true_objects : [] {});
    with = With::mouse;
    return to_text(match);
}

// The middle of the first card of the hand.
QPoint first_card()
{
    return on_table(x_mano(1) + tavolo.larg_carta / 2, y_mano_umano + tavolo.alt_carta / 2);
}

}  // namespace

TEST(WithoutAMouse, AReaderAndAFingerPlayTheSameMatch)
{
    EXPECT_EQ(played(With::finger), played(With::mouse));

    QAccessible::setActive(true);
    EXPECT_EQ(played(With::reader), played(With::reader_mouse));
    QAccessible::setActive(false);
}

TEST(WithoutAMouse, OnlyAFingerThatStaysIsAClick)
{
    in_scena({1366, 700}, a_meta_mano);
    QPoint const at = in_window(first_card());
    QGuiApplication::styleHints()->setMousePressAndHoldInterval(20);
    auto const n_selected = [] {
        return std::ranges::count_if(spoken::table_words(), &spoken::Item::selected);
    };
    pesca_tallone();
    auto const before = n_selected();
    int const cards = tavolo.n_carte(umano);

    touch().press(1, at);
    touch().move(1, at + QPoint(0, 3));
    QTest::qWait(40);
    settle();
    EXPECT_EQ(n_selected(), before + 1) << "held: selected before it is lifted";
    touch().release(1, at);
    settle();
    EXPECT_EQ(n_selected(), before + 1) << "and the lift counts no more";

    touch().press(1, at);
    touch().move(1, at + QPoint(60, 0));
    touch().move(1, at);
    QTest::qWait(40);
    touch().release(1, at);
    settle();
    EXPECT_EQ(n_selected(), before + 1) << "moved";
    touch().press(1, at).press(2, at + QPoint(80, 0));
    QTest::qWait(40);
    touch().release(1, at).release(2, at + QPoint(80, 0));
    settle();
    EXPECT_EQ(n_selected(), before + 1) << "two fingers";

    touch().press(1, at);
    finestra.in_box = [] {
        QTest::qWait(40);
        finestra.in_box = [] {};
    };
    menu(Menu::esci);
    touch().release(1, at);
    settle();
    EXPECT_EQ(n_selected(), before + 1) << "a box in between";
    EXPECT_EQ(tavolo.n_carte(umano), cards);
}

TEST(WithoutAMouse, PanelsAreClosedByAnActionAndByAFingerThatDoesNotScroll)
{
    QAccessible::setActive(true);
    avvia_programma({1366, 700});
    menu(Menu::istruzioni);
    auto* const panel = real_window().table().findChild<QScrollArea*>();
    ASSERT_NE(panel, nullptr);
    auto* const page = QAccessible::queryAccessibleInterface(panel);
    EXPECT_EQ(page->text(QAccessible::Name), QStringLiteral("Regole"));
    EXPECT_EQ(page->parent()->text(QAccessible::Name), QStringLiteral("Tavolo"));
    page->actionInterface()->doAction(QStringLiteral("Chiudi"));
    settle();
    EXPECT_FALSE(panel->isVisible());

    menu(Menu::istruzioni);
    auto const paper = [](int y) { return in_window({100, y}); };
    touch().press(1, paper(300));
    touch().move(1, paper(250));
    touch().release(1, paper(250));
    settle();
    EXPECT_EQ(panel->verticalScrollBar()->value(), 50);
    EXPECT_TRUE(panel->isVisible());
    touch().press(1, paper(300));
    touch().release(1, paper(300));
    settle();
    EXPECT_FALSE(panel->isVisible());
    QAccessible::setActive(false);
}
