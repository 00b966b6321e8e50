// SPDX-License-Identifier: GPL-3.0-or-later
//
// The same person and the same helpers on the real window: what silent_window.h promises, done with mouse
// presses, menu actions and Qt's own event loop. The waits are shortened to nothing; the sound devices are
// not started.
#include "real_window.h"

#include "audio/sound_music.h"
#include "game/table_state.h"
#include "game/wait.h"
#include "players/names_file.h"
#include "silent_window.h"
#include "window/qt/main_window.h"
#include "window/qt/table_view.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointingDevice>
#include <QStyleHints>
#include <QTest>
#include <QTimer>

#include <memory>

SilentWindow finestra;

namespace {

std::unique_ptr<MainWindow> window;

// Answers the message boxes, which hold up whoever opened them.
void answer_boxes()
{
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box)
        return;
    finestra.boxes.push_back(box->text().toStdString());
    finestra.in_box();
    auto const buttons = box->buttons();
    auto const* const last = buttons.back();
    for (auto* button : buttons)
        if (box->buttonRole(button) == QMessageBox::NoRole ? !finestra.answer_yes
                                                           : finestra.answer_yes || button == last)
            return button->click();
}

}  // namespace

MainWindow& real_window() { return *window; }
std::string kept_names() { return finestra.names; }
void keep_names(std::string_view byte) { finestra.names = byte; }
Single time_of_day() { return static_cast<Single>(finestra.day_began + ++finestra.now); }
void close_real_window() { window.reset(); }

QPoint on_table(Single x, Single y)
{
    auto const& table = window->table();
    return {static_cast<int>(x * static_cast<Single>(table.width()) / griglia_x),
            static_cast<int>(y * static_cast<Single>(table.height()) / griglia_y)};
}

QTest::QTouchEventSequence touch()
{
    static auto* const screen = QTest::createTouchDevice();
    return QTest::touchEvent(window->windowHandle(), screen);
}

QPoint in_window(QPoint on_table) { return window->table().mapTo(window.get(), on_table); }

void settle()
{
    do
        QCoreApplication::processEvents();
    while (window->busy());
}

void avvia_programma(Pixels pixels, double /*day_began*/)
{
    window.reset();
    runner.clear();
    finestra = {};
    tavolo = {};
    superficie = {};
    Form_Load();
    window = std::make_unique<MainWindow>();
    window->set_time_factor(0);
    static QTimer boxes;
    boxes.callOnTimeout(window.get(), answer_boxes);
    boxes.start(0);
    window->resize(pixels.width, pixels.height + window->menuBar()->sizeHint().height());
    window->show();
    while (!tavolo.azione)
        QCoreApplication::processEvents();
}

bool scatta_timer() { return false; }

void fino_all_attesa(std::function<void()> const& after_wait)
{
    QCoreApplication::processEvents();
    after_wait();
    while (runner.alive() && (window->busy() || window->waiting())) {
        QCoreApplication::processEvents();
        after_wait();
    }
}

namespace {

void tap(Qt::MouseButton button, QPoint at)
{
    bool const hold = button == Qt::RightButton;
    QGuiApplication::styleHints()->setMousePressAndHoldInterval(hold ? 0 : 60'000);
    touch().press(1, in_window(at));
    if (hold)
        settle();
    touch().release(1, in_window(at));
}

// Nothing happens where the table has no object, or one that does nothing now.
void act(Qt::MouseButton button, QPoint at)
{
    auto& table = window->table();
    QPoint const where = table.mapToGlobal(at);
    auto* const place = QAccessible::queryAccessibleInterface(&table)->childAt(where.x(), where.y());
    auto* const actions = place ? place->actionInterface() : nullptr;
    QString const action = button == Qt::LeftButton ? QAccessibleActionInterface::pressAction()
                                                    : QAccessibleActionInterface::toggleAction();
    if (!actions || !actions->actionNames().contains(action))
        return;
    if (with == With::reader)
        actions->doAction(action);
    else
        QTest::mousePress(&table, button, {}, table.mapFromGlobal(place->rect().center()));
}

}  // namespace

void clic(int tasto, Single x, Single y)
{
    auto const button = tasto == 1 ? Qt::LeftButton : tasto == 2 ? Qt::RightButton : Qt::MiddleButton;
    switch (with) {
    case With::mouse: QTest::mousePress(&window->table(), button, {}, on_table(x, y)); break;
    case With::finger: tap(button, on_table(x, y)); break;
    case With::reader:
    case With::reader_mouse: act(button, on_table(x, y)); break;
    }
    settle();
}

void menu(Menu voce)
{
    window->entry(voce).trigger();
    settle();
}

void muovi(Single x, Single y) { QTest::mouseMove(&window->table(), on_table(x, y)); }

void brano_finito(int codice)
{
    evento([=] { MMC1_Done(codice); });
}

void misura(Pixels pixels) { window->resize(pixels.width, pixels.height); }

void scrivi(int campo, std::string_view testo)
{
    for (auto* const field : window->table().findChildren<QLineEdit*>()) {
        if ((field->y() > on_table(0, 40).y()) != (campo == 2))
            continue;
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size())));
    }
}
