// SPDX-License-Identifier: GPL-3.0-or-later
#include "real_window.h"

#include "at_the_table.h"
#include "audio/sound_music.h"
#include "game/piles.h"
#include "game/table_check.h"
#include "game/table_state.h"
#include "greedy_person.h"
#include "kept_file.h"
#include "window/qt/main_window.h"
#include "window/qt/surface_painter.h"
#include "window/qt/table_view.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleFactory>
#include <QTest>
#include <QToolButton>

#include <cstdlib>
#include <numeric>
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

// As a scene tells the menus.
std::string told_menus(QWidget const& menu, std::size_t level)
{
    std::string told;
    for (auto const* entry : menu.actions())
        told += std::string(4 * level, ' ') + entry->text().toStdString() +
                (entry->isEnabled() ? "" : " off") +
                (!entry->isCheckable() ? ""
                 : entry->isChecked()  ? " (checked)"
                                       : " ()") +
                '\n' + (entry->menu() ? told_menus(*entry->menu(), level + 1) : "");
    return told;
}

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
    char const* const how_many = std::getenv("SOLLEVINO_MATCHES");
    int const matches = how_many ? std::atoi(how_many) : 1;
    auto const look = [] {
        ASSERT_EQ(guasto_tavolo(), "") << mostra_tutto();
        for (auto const& entry : menu_tree())
            ASSERT_EQ(real_window().entry(entry.voce).isEnabled(), enabled(entry.voce)) << entry.caption;
    };
    auto const played = gioca_partite(matches, 5, look);
    EXPECT_EQ(played.matches + played.abandoned, matches);
    auto played_moves = played.moves;
    EXPECT_GT(played_moves["person discards"], 50);
}

TEST(RealWindow, ShowsTheMenusThatASceneTells)
{
    avvia_programma();
    menu(canzoni(2));
    menu(Menu::all);
    while (enabled(Menu::personalize_players))
        clic(1, 512, 384);
    std::string const told = kept(TESTS_FOLDER "/scenes/menus.txt"),
                      menus = told_menus(*real_window().menuBar(), 1);
    EXPECT_NE(told.find("\n> menus\n" + menus + '#'), told.npos) << menus;
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
        pesca_tallone();
        clic_mano(2, 14);
        muovi(400, 520);
        EXPECT_EQ(real_window().table().cursor().shape(), Qt::UpArrowCursor);
        EXPECT_NE(at(picture_of_table(), x_mano(14) + t.larg_carta / 2, 630), green)
            << "a selected card stands higher";
    }
}

TEST(RealWindow, DrawsWordsSmallerThatWouldPassTheRightEdge)
{
    avvia_programma({1366, 700});
    superficie.print_at(700, 200);
    superficie.print(std::string(99, 'H'));
    QImage const picture = picture_of_table();
    QRect const last = QRect(on_table(1010, 190), on_table(1020, 230)),
                free(on_table(1021, 190), on_table(1024, 230));
    int written = 0, beyond = 0;
    for (int k = 0; k < picture.width() * picture.height(); ++k) {
        QPoint const p(k % picture.width(), k / picture.width());
        bool const inked = picture.pixelColor(p) != green;
        written += inked && last.contains(p);
        beyond += inked && free.contains(p);
    }
    EXPECT_GT(written, 0);
    EXPECT_EQ(beyond, 0);
}

TEST(RealWindow, HoldsTheGameStillWhileAQuestionIsOpen)
{
    avvia_programma();
    while (tavolo.azione == 7)  // a tie shows a box of its own
        clic(1, 512, 384);
    finestra.boxes.clear();
    std::string before, after;
    finestra.in_box = [&] {
        before = mostra_tutto();
        QTest::qWait(30);  // the timer of the deal fires below the box, and a tune ends
        evento([] { MMC1_Done(1); });
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

TEST(RealWindow, TheKeyboardIsEnoughForTheNamesAndLightsTheNextHand)
{
    avvia_programma({1366, 700});
    menu(Menu::personalize_players);
    settle();
    auto* const first = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(first, nullptr);
    QTest::keyClicks(first, "ugo");
    EXPECT_EQ(tavolo.nomi(0), "UGO") << "the text was selected";
    QTest::keyClick(first, Qt::Key_Tab);
    EXPECT_NE(QApplication::focusWidget(), first);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), first);
    QTest::keyClick(first, Qt::Key_Return);
    settle();
    EXPECT_FALSE(first->isVisible());

    enable(Menu::menu_continue, true);
    enable(Menu::menu_NewGame, true);
    QTest::keyClick(&real_window(), Qt::Key_F10);
    QTest::keyClick(real_window().menuBar(), Qt::Key_Down);
    settle();
    auto* const partita = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(partita, nullptr);
    EXPECT_EQ(partita->activeAction(), &real_window().entry(Menu::menu_continue));
    partita->close();
}

// On a dark desktop too.
TEST(RealWindow, PanelsShowTheirTextAndCloseOnAClick)
{
    struct Row {
        Menu voce;
        QString begins;
        int characters;  // with the two that ended a line of old
        int wide, pixels_high;
        QRgb colour, rim;
    };
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(dark);
    avvia_programma({1366, 700});
    for (auto const& [voce, begins, characters, wide, pixels_high, colour, rim] :
         {Row{Menu::istruzioni, "Il gioco si fa", 2304, 487, 14, 0xffffffff, 0xffffffff},
          {Menu::menu_help, "-Tasto sinistro del Mouse:", 612, 487, 14, 0xffffffff, 0xffffffff},
          {Menu::menu_about, "SollevinoDue ver 3.3", 42, 257, 9, 0xffe0e0e0, 0xff000000}}) {
        menu(voce);
        auto* const panel = shown<QScrollArea>();
        ASSERT_NE(panel, nullptr);
        auto const* const label = panel->findChild<QLabel*>();
        EXPECT_TRUE(label->text().startsWith(begins));
        EXPECT_EQ(label->text().size() + label->text().count('\n'), characters);
        EXPECT_EQ(label->font().pixelSize(), pixels_high);
        EXPECT_EQ(panel->pos(), QPoint(0, 0));
        EXPECT_EQ(panel->width(), wide);
        EXPECT_LE(panel->height(), real_window().table().height());
        bool const fits = panel->verticalScrollBar()->maximum() == 0;
        EXPECT_EQ(fits, voce != Menu::istruzioni) << "only the rules are taller than the table";
        QImage const picture = picture_of_table().copy(panel->geometry());
        int plain = 0, black = 0;
        for (int k = 0; k < picture.width() * picture.height(); ++k) {
            QRgb const pixel = picture.pixel(k % picture.width(), k / picture.width());
            plain += pixel == colour;
            black += qGray(pixel) < 64;
        }
        EXPECT_EQ(picture.pixel(0, 0), rim);
        EXPECT_GT(plain, picture.width() * picture.height() * 2 / 3);
        EXPECT_GT(black, characters / 2);
        if (!fits) {
            QTest::mouseClick(panel->verticalScrollBar(), Qt::LeftButton);
            EXPECT_TRUE(panel->isVisible()) << "the scroll bar does not close it";
        }
        QTest::mouseClick(panel->viewport(), Qt::LeftButton);
        settle();
        EXPECT_FALSE(panel->isVisible());
        menu(voce);
        QTest::keyClick(panel, Qt::Key_Escape);
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
    real_window().resize(150, 400);
    settle();
    auto const* const more = real_window().menuBar()->findChild<QToolButton*>();  // to the menus without room
    EXPECT_TRUE(more->isVisible());
    auto const ink = [](QIcon const& icon) {
        QImage const image = icon.pixmap(16).toImage().convertToFormat(QImage::Format_Alpha8);
        return std::accumulate(image.constBits(), image.constBits() + image.sizeInBytes(), 0);
    };
    std::unique_ptr<QStyle> const style(QStyleFactory::create(QStringLiteral("fusion")));
    int const wanted = ink(style->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton));
    EXPECT_NEAR(ink(more->icon()), wanted, wanted * 0.02);
    for (int k = 0; k < 200; ++k)
        real_window().resize(1 + k * 37 % 2000, 1 + k * 91 % 1500);
    settle();
    EXPECT_TRUE(runner.alive());
}

namespace {

// Something drawn at random, on a raster that makes marks meet: on a surface, and told as the mark that it
// is.
struct RandomMarks {
    std::mt19937 random{7};

    int upto(int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); }
    Mark draw(Surface& s)
    {
        Mark m;
        m.colore =
            upto(3) ? Colore{static_cast<Byte>(upto(256)), 0, static_cast<Byte>(upto(256))} : colori::tavolo;
        auto const x = static_cast<Single>(upto(8) * 100), y = static_cast<Single>(upto(6) * 100);
        auto const w = static_cast<Single>(upto(4) * 100), h = static_cast<Single>(upto(4) * 100);
        m.kind = static_cast<Mark::Kind>(upto(4));
        m.figura = 1 + upto(54);
        switch (m.kind) {
        case Mark::Kind::fill:
            m.box = {x, y, x + w, y + h};
            s.fill_box({x + w, y, x, y + h}, m.colore);
            break;
        case Mark::Kind::outline:
            m.box = {x, y, x + w + 9, y + h + 9};
            s.outline_box(m.box, m.colore);
            break;
        case Mark::Kind::line:
            m.box = {x, y, x, y + h};
            s.line(x, y, x, y + h, m.colore);
            break;
        default:
            m.box = {x, y, x + 66.05F, y + 103.75F};
            s.paint_picture(m.figura, x, y, 66.05F, 103.75F);
            break;
        }
        return m;
    }
};

}  // namespace

// A list of marks without those that are hidden looks like everything painted one upon the other.
TEST(RealWindow, TheListOfMarksLooksLikeAllThatWasPainted)
{
    avvia_programma({1024, 768});
    RandomMarks marks;
    auto const opaque = [](Figura f, QSize s) {
        QPixmap p(s);
        p.fill(QColor(f * 4, 255 - f * 4, 90));
        return p;
    };
    for (int round = 0; round < 60; ++round) {
        QSize const size(1024 + round * 23, 768 + round * 17);
        QImage all(size, QImage::Format_RGB32), replayed(size, QImage::Format_RGB32);
        Surface list;
        QPainter one(&all), other(&replayed);
        SurfacePainter each(one, size, 1, opaque), again(other, size, 1, opaque);
        each.background();
        for (int k = marks.upto(120); k >= 0; --k)
            each.mark(marks.draw(list));
        again.background();
        for (auto const& m : list.marks())
            again.mark(m);
        one.end();
        other.end();
        ASSERT_EQ(replayed, all) << "round " << round;
    }
}

// Each drawing tells the whole box that has to be painted again: what stands on the screen is what a fresh
// picture of the table would show, letters that leave their cell included.
TEST(RealWindow, PaintsAgainAllThatHasChanged)
{
    avvia_programma({1366, 700});
    RandomMarks marks;
    auto& s = superficie;
    for (int k = 0; k < 150; ++k) {
        marks.draw(s);
        s.font_name(marks.upto(2) ? "Arial" : "Brush Script MT");
        s.font_size(static_cast<Single>(8 + marks.upto(2) * 12));
        s.text_colour(marks.upto(2) ? colori::bianco : colori::blu);
        s.print_at(static_cast<Single>(marks.upto(5) * 220), static_cast<Single>(marks.upto(8) * 100));
        s.print(marks.upto(2) ? "SollevinoDue" : "gjQÀ");
        settle();
        if (marks.upto(3) == 0)  // exactly the cell of the text
            s.fill_box(Box(s.marks().back().box), colori::tavolo);
        settle();
        auto const& table = real_window().table();
        QImage const screen =
            real_window()
                .screen()
                ->grabWindow(real_window().winId(), table.x(), table.y(), table.width(), table.height())
                .toImage()
                .convertToFormat(QImage::Format_RGB32);
        ASSERT_EQ(screen.size(), table.size());
        ASSERT_EQ(screen, picture_of_table()) << "step " << k;
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
