// SPDX-License-Identifier: GPL-3.0-or-later
#include "real_window.h"

#include "at_the_table.h"
#include "game/piles.h"
#include "game/table_check.h"
#include "game/table_state.h"
#include "greedy_person.h"
#include "window/qt/main_window.h"
#include "window/qt/surface_painter.h"
#include "window/qt/table_view.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <random>

namespace {

QImage picture_of_table()
{
    settle();
    return real_window().table().grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QColor at(QImage const& picture, Single x, Single y)
{
    auto const p = on_table(x, y) * picture.devicePixelRatio();
    return picture.pixelColor(p);
}

QColor const green(0, 112, 0);

template <class W>
W* shown()
{
    for (auto* w : real_window().table().findChildren<W*>())
        if (w->isVisible())
            return w;
    return nullptr;
}

}  // namespace

TEST(RealWindow, PlaysWholeMatchesWithRealClicks)
{
    auto const played = gioca_partite(1, 5, [] { ASSERT_EQ(guasto_tavolo(), "") << mostra_tutto(); });
    EXPECT_EQ(played.matches, 1);
    auto played_moves = played.moves;
    EXPECT_GT(played_moves["person discards"], 50);
}

TEST(RealWindow, ShowsTheMenuTreeAsItIs)
{
    avvia_programma();
    auto const tree = menu_tree();
    EXPECT_EQ(real_window().menuBar()->actions().size(), 8);
    for (auto const& [voce, level, checkable, text] : tree) {
        auto const& action = real_window().entry(voce);
        EXPECT_EQ(action.text().toStdString(), text);
        EXPECT_EQ(action.isEnabled(), enabled(voce)) << text;
        EXPECT_EQ(action.isCheckable() && action.isChecked(), checked(voce)) << text;
    }
    menu(velocità(3));
    menu(velocità(3));  // a second pick of a marked entry leaves its mark
    EXPECT_TRUE(real_window().entry(velocità(3)).isChecked());
    EXPECT_FALSE(real_window().entry(velocità(1)).isChecked());
    EXPECT_EQ(tavolo.velocita, 1.5F);
}

TEST(RealWindow, PaintsWhatTheGameDrawsAndTakesClicksWhereItIs)
{
    for (Pixels const size : {Pixels{1366, 700}, Pixels{1920, 1000}, Pixels{1280, 950}}) {
        avvia_programma(size);
        auto const& t = tavolo;
        EXPECT_EQ(at(picture_of_table(), 512, 384 - t.alt_carta / 2 - 4), green);
        EXPECT_NE(at(picture_of_table(), 512, 384), green);
        clic(1, 512, 384);
        clic(1, 512, 384);
        while (t.azione == 7)
            clic(1, 512, 384);
        fino_all_attesa();
        while (t.turno != 1)
            fino_all_attesa();
        auto const dealt = picture_of_table();
        for (int s = 1; s <= 13; ++s)
            EXPECT_NE(at(dealt, x_mano(s) + t.larg_carta / 2, y_mano_umano + t.alt_carta - 3), green);
        EXPECT_LT(x_mano(15), griglia_x);
        clic_mano(2, 1);
        EXPECT_TRUE(si_legge("PRIMA PESCARE"));
        pesca_tallone()();
        clic_mano(2, 14);
        EXPECT_NE(at(picture_of_table(), x_mano(14) + t.larg_carta / 2, 630), green)
            << "a selected card stands higher";
    }
}

TEST(RealWindow, HoldsTheGameStillWhileAQuestionIsOpen)
{
    avvia_programma();
    clic(1, 512, 384);
    clic(1, 512, 384);
    std::string before, after;
    finestra.in_box = [&] {
        before = mostra_tutto();
        QTest::qWait(30);  // the timer of the deal fires below the box
        after = mostra_tutto();
        finestra.in_box = [] {};
    };
    menu(Menu::esci);
    EXPECT_EQ(finestra.boxes, std::vector<std::string>{"Uscire da Sollevino?"});
    EXPECT_EQ(before, after);
    EXPECT_TRUE(runner.alive());
    fino_all_attesa();
    finestra.answer_yes = true;
    menu(Menu::esci);
    EXPECT_FALSE(runner.alive());
    EXPECT_TRUE(superficie.marks().empty());

    avvia_programma();
    real_window().close();
    EXPECT_FALSE(runner.alive());
}

TEST(RealWindow, TakesNamesLetterByLetter)
{
    avvia_programma();
    menu(Menu::personalize_players);
    auto* const field = shown<QLineEdit>();
    ASSERT_NE(field, nullptr);
    field->selectAll();
    QTest::keyClicks(field, "annalisa");  // seven letters have room
    EXPECT_EQ(field->text().toStdString(), "annalis");
    EXPECT_EQ(tavolo.nomi(0), "ANNALIS");
    field->setText(QString::fromUtf8("\xD7\xA9\xF0\x9F\x82\xA1"));
    QTest::keyClick(field, Qt::Key_End);
    QTest::keyClicks(field, "x");
    EXPECT_EQ(tavolo.nomi(0), "??X");
    QTest::mousePress(&real_window().table(), Qt::LeftButton, {}, on_table(100, 120));
    settle();
    EXPECT_EQ(shown<QLineEdit>(), nullptr);
    EXPECT_EQ(tavolo.azione, 7);
}

TEST(RealWindow, PanelsShowTheirTextAndCloseOnAClick)
{
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(dark);
    avvia_programma({1366, 700});
    for (Menu const voce : {Menu::istruzioni, Menu::menu_help, Menu::menu_about}) {
        menu(voce);
        auto* const panel = shown<QScrollArea>();
        ASSERT_NE(panel, nullptr);
        EXPECT_EQ(panel->pos(), QPoint(0, 0));
        EXPECT_LE(panel->height(), real_window().table().height());
        bool const fits = panel->verticalScrollBar()->maximum() == 0;
        EXPECT_EQ(fits, voce != Menu::istruzioni) << "only the rules are taller than the table";
        auto const text = panel->widget()->palette();
        EXPECT_GT(
            std::abs(text.color(QPalette::WindowText).lightness() - text.color(QPalette::Window).lightness()),
            150);
        if (!fits) {
            QTest::mouseClick(panel->verticalScrollBar(), Qt::LeftButton);
            EXPECT_TRUE(panel->isVisible()) << "the scroll bar does not close it";
        }
        QTest::mouseClick(panel->viewport(), Qt::LeftButton);
        settle();
        EXPECT_FALSE(panel->isVisible());
    }
    QApplication::setPalette({});
}

TEST(RealWindow, FollowsItsSizeWithoutTouchingTheCards)
{
    avvia_programma({1366, 700});
    Single const larg = tavolo.larg_carta, scala = tavolo.scala_y;
    real_window().resize(900, 1000);
    settle();
    EXPECT_EQ(tavolo.larg_carta, larg);
    EXPECT_GT(tavolo.scala_y, scala);
    clic(1, 512, 384);  // the grid stretches with the window, and so do the clicks
    EXPECT_EQ(tavolo.pos_scelta, 2);
    for (int k = 0; k < 200; ++k)
        real_window().resize(1 + k * 37 % 2000, 1 + k * 91 % 1500);
    settle();
    EXPECT_TRUE(runner.alive());
}

// A list of marks without those that are hidden looks like everything painted one upon the other.
TEST(RealWindow, TheListOfMarksLooksLikeAllThatWasPainted)
{
    avvia_programma({1024, 768});
    QSize const size(1024, 768);
    std::mt19937 random(7);
    auto const n = [&](int most) { return static_cast<Single>(random() % static_cast<unsigned>(most)); };
    auto const opaque = [](Figura f, QSize s) {
        QPixmap p(s);
        p.fill(QColor(f * 4, 255 - f * 4, 90));
        return p;
    };
    for (int round = 0; round < 20; ++round) {
        QImage all(size, QImage::Format_RGB32);
        Surface list;
        {
            QPainter painter(&all);
            SurfacePainter each(painter, size, 1, opaque);
            each.background();
            for (int k = 0; k < 300; ++k) {
                Colore const c{static_cast<Byte>(n(256)), 0, static_cast<Byte>(n(256))};
                Single const x = n(8) * 100, y = n(6) * 100, w = n(4) * 100, h = n(4) * 100;
                switch (random() % 4) {
                case 0: list.fill_box({x + w, y, x, y + h}, random() % 3 ? c : colori::tavolo); break;
                case 1: list.outline_box({x, y, x + w + 9, y + h + 9}, c); break;
                case 2: list.line(x, y, x, y + h, c); break;
                default: list.paint_picture(1 + static_cast<int>(n(54)), x, y, 66.05F, 103.75F); break;
                }
                if (!list.marks().empty())
                    each.mark(list.marks().back());
            }
        }
        QImage replayed(size, QImage::Format_RGB32);
        QPainter painter(&replayed);
        SurfacePainter again(painter, size, 1, opaque);
        again.background();
        for (auto const& m : list.marks())
            again.mark(m);
        painter.end();
        ASSERT_EQ(replayed, all) << "round " << round;
        EXPECT_LT(list.marks().size(), 260U);
    }
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    prepare_application();
    QApplication application(argc, argv);
    int const status = RUN_ALL_TESTS();
    close_real_window();
    return status;
}
