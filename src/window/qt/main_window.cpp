// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/qt/main_window.h"

#include "app_icon.h"
#include "game/wait.h"
#include "window/form1.h"
#include "window/lifecycle.h"
#include "window/menu_clicks.h"
#include "window/qt/accessible_panel.h"
#include "window/qt/accessible_table.h"
#include "window/qt/late_icon.h"
#include "window/qt/qt_text.h"
#include "window/qt/table_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <algorithm>

namespace {

MainWindow* the_window = nullptr;

QEvent::Type const wake_up = QEvent::User;

// Qt leaves too little room for the words of an entry where the desktop's letters are large.
void make_room(QMenu* menu)
{
    QFontMetrics const metrics = menu->fontMetrics();
    int widest = 0;
    for (QAction const* entry : menu->actions())
        widest = std::max(widest, metrics.size(Qt::TextShowMnemonic, entry->text()).width());
    menu->setMinimumWidth(widest + 2 * metrics.height());
}

}  // namespace

void prepare_application()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QApplication::setApplicationName(QStringLiteral("sollevinodue"));
    QGuiApplication::setDesktopFileName(QStringLiteral("arpa.home.sollevinodue"));
    QFont::insertSubstitution(QStringLiteral("Brush Script MT"), QStringLiteral("Kaushan Script"));
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    QFont::insertSubstitution(QStringLiteral("MS Sans Serif"), QStringLiteral("Liberation Sans"));
}

MainWindow* MainWindow::current() { return the_window; }

MainWindow::MainWindow() : table_(new TableView(this))
{
    the_window = this;
    QApplication::setStyle(new LateIconStyle);
    install_accessible_panels();
    install_accessible_table();
    setWindowTitle(qt_text(titolo_finestra));
    setWindowIcon(app_icon());
    setContextMenuPolicy(Qt::NoContextMenu);
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.callOnTimeout(this, [] { evento(Timer1_Timer); });
    make_menus();
    connect(entry(Menu::menu_game).menu(), &QMenu::aboutToShow, this,
            [this] { QTimer::singleShot(0, this, &MainWindow::light_continue); });
    setCentralWidget(table_);
    new QShortcut(Qt::Key_F10, this, [this] { menuBar()->setActiveAction(menuBar()->actions().first()); });
}

MainWindow::~MainWindow()
{
    runner.clear();
    the_window = nullptr;
}

void MainWindow::make_menus()
{
    auto const tree = menu_tree();
    std::array<QMenu*, 4> menus{};  // the open menu of each level
    for (std::size_t i = 0; i < tree.size(); ++i) {
        auto const& [voce, level, checkable, caption] = tree[i];
        bool const opens = i + 1 < tree.size() && tree[i + 1].level > level;
        QString const text = qt_text(caption);
        QMenu* const above = menus[level - 1U];

        QAction* action = nullptr;
        if (opens) {
            QMenu* const menu = menus[level] = above ? above->addMenu(text) : menuBar()->addMenu(text);
            connect(menu, &QMenu::aboutToShow, this, [menu] { make_room(menu); });
            action = menus[level]->menuAction();
        } else {
            action = above ? above->addAction(text) : menuBar()->addAction(text);
            connect(action, &QAction::triggered, this, [voce = voce] {
                evento([&] {
                    MainWindow::current()->show_menu_entry(voce);  // the handler alone moves the mark
                    menu_click(voce);
                });
            });
        }
        action->setCheckable(checkable);
        entries_[static_cast<std::size_t>(voce)] = action;
        show_menu_entry(voce);
    }
}

void MainWindow::show_menu_entry(Menu voce)
{
    QAction* const action = entries_[static_cast<std::size_t>(voce)];
    if (!action)
        return;
    action->setEnabled(enabled(voce));
    if (action->isCheckable())
        action->setChecked(checked(voce));
}

void MainWindow::open()
{
    Form_Load();
    QRect const room = screen()->availableGeometry();
    move(room.topLeft());  // of the frame: its title can be reached once the window is restored
    resize(room.size());
    showMaximized();
}

// The window was made as large as the screen, so that its first picture is the one that stays. Whoever leaves
// the maximised state for the first time wants a window that leaves room.
void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || restored_ || !isVisible() ||
        (windowState() & (Qt::WindowMaximized | Qt::WindowMinimized)))
        return;
    restored_ = true;
    QRect const room = screen()->availableGeometry();
    QRect smaller(QPoint(), room.size() * 4 / 5);
    smaller.moveCenter(room.center());
    setGeometry(smaller);
}

// A menu that is opened by key lights its first entry. Between two hands that is the next hand, and not the
// one above it that ends the match.
void MainWindow::light_continue()
{
    auto* const menu = entry(Menu::menu_game).menu();
    if (menu->activeAction() == &entry(Menu::menu_NewGame) && enabled(Menu::menu_continue))
        menu->setActiveAction(&entry(Menu::menu_continue));
}

void MainWindow::start_timer(int milliseconds) { timer_.start(qRound(milliseconds * time_factor_)); }

void MainWindow::wake_game()
{
    if (wake_posted_)
        return;
    wake_posted_ = true;
    QCoreApplication::postEvent(this, new QEvent(wake_up));
}

bool MainWindow::event(QEvent* event)
{
    if (event->type() != wake_up)
        return QMainWindow::event(event);
    wake_posted_ = false;
    if (eventi_aperti == 0) {
        before_step();
        runner.resume();
        after_step(*table_);
    }
    return true;
}

void MainWindow::end()
{
    runner.stop();
    timer_.stop();
    hide();  // at once, however long a sound server takes to let go
    QCoreApplication::exit(0);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    evento(Form_QueryUnload);
}
