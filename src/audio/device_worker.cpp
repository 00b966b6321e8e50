// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/device_worker.h"

#include <chrono>
#include <condition_variable>
#include <future>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

namespace {

constexpr std::chrono::seconds longest_stop{2};

// What the game's thread, the worker and the player's thread share. The game's thread writes wishes, of which
// the worker looks only at the latest: a flood of them costs one tune. All of them share the ownership: when the
// program ends while the worker hangs in a sound server, the worker is left behind and still finds its desk.
struct Desk {
    std::mutex mutex;
    std::condition_variable wake;
    bool news = false;
    bool leaving = false;

    unsigned tune_number = 0;         // counts starts and cuts: the end of any but the last is of no interest
    unsigned failed_tune = 0;         // the number of one that turned out not to play
    std::string tune;                 // empty: no music
    std::vector<std::string> sounds;  // to be started, at most two

    std::function<void(std::function<void()>)> post;
    std::function<void(int)> done;
    LoadPlayer load;
    FindFile find;

    void tell()
    {
        {
            std::lock_guard const lock(mutex);
            news = true;
        }
        wake.notify_one();
    }
};

// On the game's thread, some time after the end of a tune. `done` may start the next one.
void report_end(Desk& desk, unsigned tune_number)
{
    if (!desk.leaving && desk.tune_number == tune_number)
        desk.done(1);
}

void work(std::shared_ptr<Desk> desk)
{
    std::unique_ptr<audio::Player> player;
    unsigned playing = 0;
    for (;;) {
        std::unique_lock lock(desk->mutex);
        desk->wake.wait(lock, [&] { return desk->news || desk->leaving; });
        if (desk->leaving)
            return;
        desk->news = false;
        auto const number = desk->tune_number;
        auto const tune = desk->tune;
        auto const sounds = std::exchange(desk->sounds, {});
        lock.unlock();

        if (!player && desk->load && (!sounds.empty() || !tune.empty()))
            player = std::exchange(desk->load, {})([d = desk.get()] { d->tell(); });
        if (!player) {
            lock.lock();
            if (!tune.empty())
                desk->failed_tune = number;
            continue;
        }
        for (auto const& sound : sounds)
            player->play_sound(desk->find(Device::effects, sound));
        if (number != playing && tune.empty())
            player->stop_tune();
        else if (number != playing)
            player->play_tune(desk->find(Device::music, tune));
        playing = number;
        bool const failed = !tune.empty() && !player->plays_tune();
        bool const ended = player->look();
        lock.lock();
        if (failed)
            desk->failed_tune = number;
        if (ended && !desk->leaving)
            desk->post([desk, playing] { report_end(*desk, playing); });
    }
}

// What the game's thread knows of a device.
struct Control {
    std::string name;
    std::optional<std::string> opened;
    bool at_start = false;
};

Control controls[2];
std::shared_ptr<Desk> the_desk = std::make_shared<Desk>();  // null: stopped
std::thread worker;
std::future<void> worker_left;

// A program that ends by exit() does not come by the end of main.
struct AtExit {
    ~AtExit() { stop_devices(); }
} at_exit;

Control& control(Device d) { return controls[d == Device::music ? 0 : 1]; }

template <class F>
void wish(F f)
{
    if (!the_desk)
        return;
    {
        std::lock_guard const lock(the_desk->mutex);
        f(*the_desk);
        the_desk->news = true;
    }
    the_desk->wake.notify_one();
}

void play_tune(std::string const& name)
{
    wish([&](Desk& d) {
        ++d.tune_number;
        d.tune = name;
    });
}

// A sound asked for twice before the worker looks is one sound.
void play_sound(std::string const& name)
{
    wish([&](Desk& d) {
        if (!d.sounds.empty() && d.sounds.back() == name)
            return;
        if (d.sounds.size() == 2)
            d.sounds.erase(d.sounds.begin());
        d.sounds.push_back(name);
    });
}

}  // namespace

void device_file(Device d, std::string_view name) { control(d).name = name; }

void device_open(Device d)
{
    control(d).opened = control(d).name;
    control(d).at_start = true;
}

void device_close(Device d)
{
    if (!std::exchange(control(d).opened, {}))
        return;
    if (d == Device::music)
        play_tune({});
}

void device_play(Device d)
{
    auto& c = control(d);
    if (!c.opened || !std::exchange(c.at_start, false))
        return;
    if (d == Device::music)
        play_tune(*c.opened);
    else
        play_sound(*c.opened);
}

bool device_plays(Device d)
{
    if (d != Device::music || !the_desk)
        return true;
    std::lock_guard const lock(the_desk->mutex);
    return the_desk->failed_tune == 0 || the_desk->failed_tune != the_desk->tune_number;
}

void device_rewind(Device d) { control(d).at_start = true; }

void start_devices(std::function<void(std::function<void()>)> post, std::function<void(int)> done,
                   LoadPlayer load, FindFile find)
{
    if (!the_desk)
        the_desk = std::make_shared<Desk>();
    the_desk->post = std::move(post);
    the_desk->done = std::move(done);
    the_desk->load = std::move(load);
    the_desk->find = std::move(find);
    std::packaged_task<void()> task([d = the_desk] { work(d); });
    worker_left = task.get_future();
    try {
        worker = std::thread(std::move(task));
    } catch (std::system_error const&) {
        the_desk.reset();  // no thread, no sound
    }
}

void stop_devices()
{
    if (!worker.joinable())
        return;
    {
        std::lock_guard const lock(the_desk->mutex);
        the_desk->leaving = true;
    }
    the_desk->wake.notify_one();
    if (worker_left.wait_for(longest_stop) == std::future_status::ready)
        worker.join();
    else
        worker.detach();
    the_desk.reset();
    controls[0] = controls[1] = {};
}
