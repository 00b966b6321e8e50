// SPDX-License-Identifier: GPL-3.0-or-later
#include "start.h"

#include "audio/device_worker.h"
#include "audio/sound_music.h"
#include "folders.h"
#include "players/names_file.h"
#include "window/qt/main_window.h"

#include <QApplication>
#include <QLibrary>
#include <QStandardPaths>
#include <QTime>
#include <QTimer>

namespace {

constexpr int moment = 150;  // milliseconds, enough for the first picture

Folders folders;

std::filesystem::path path(QString const& text) { return text.toStdU16String(); }

// The player lies beside the executable, or where an installation keeps it. Without it the game is silent.
std::unique_ptr<audio::Player> load_player(audio::Tell const& tell)
{
    QString const folder = QCoreApplication::applicationDirPath();
    for (char const* place : {"/", "/../lib/sollevinodue/"}) {
        QLibrary library(folder + QLatin1String(place) + QStringLiteral("sollevinodue-sound"));
        if (auto* const make = library.resolve("sollevinodue_player"))
            return std::unique_ptr<audio::Player>(
                reinterpret_cast<decltype(&sollevinodue_player)>(make)(tell));
    }
    return nullptr;
}

void start_sound(MainWindow* window)
{
    start_devices(
        [window](std::function<void()> later) {
            QMetaObject::invokeMethod(window, std::move(later), Qt::QueuedConnection);
        },
        [](int code) { evento([code] { MMC1_Done(code); }); }, load_player,
        [here = folders](Device d, std::string const& name) {
            return d == Device::music ? here.tune(name) : here.effect(name);
        });
}

}  // namespace

std::string kept_names() { return folders.names(); }
void keep_names(std::string_view byte) { folders.keep_names(byte); }
Single time_of_day() { return static_cast<Single>(QTime::currentTime().msecsSinceStartOfDay()) / 1000; }

void start_game(MainWindow& window)
{
    folders = Folders(path(QCoreApplication::applicationDirPath()),
                      path(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)));
    window.open();
    QTimer::singleShot(moment, &window, [&window] { start_sound(&window); });
}
