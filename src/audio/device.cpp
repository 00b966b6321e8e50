// SPDX-License-Identifier: GPL-3.0-or-later
#include "device.h"

#include "mixer.h"
#include "wave_file.h"

#include <SDL.h>
#include <alsa/asoundlib.h>
#include <chrono>
#include <condition_variable>
#include <future>
#include <map>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace fs = std::filesystem;

namespace {

constexpr int device_frames = 512;  // 12 ms from a play to its sound
constexpr std::uintmax_t largest_tune = 4 << 20;
constexpr std::chrono::seconds longest_stop{2};

void say_nothing(char const*, int, char const*, int, char const*, ...)
{
}

// What the game's thread, the worker and SDL's thread share. The game's thread writes wishes, of which the
// worker looks only at the latest: a flood of them costs one tune. Held by all of them, so that a worker
// which hangs in a sound server at the program's end may be left behind.
struct Desk {
    std::mutex mutex;
    std::condition_variable wake;
    bool news = false;
    bool leaving = false;

    unsigned tune_number = 0;      // counts starts and cuts: the end of any but the last is of no interest
    fs::path tune;                 // empty: no music
    std::vector<fs::path> sounds;  // to be started, at most two

    std::function<void(std::function<void()>)> post;
    std::function<void(int)> done;

    void tell()
    {
        {
            std::lock_guard const lock(mutex);
            news = true;
        }
        wake.notify_one();
    }
};

// The sound device. Belongs to the worker; SDL's thread comes in through fill().
class Output {
  public:
    explicit Output(Desk& desk) : desk_(desk) {}
    Output(Output const&) = delete;
    Output& operator=(Output const&) = delete;
    ~Output()
    {
        close();
        if (asked_)
            SDL_Quit();
    }

    void play_tune(fs::path const& file)
    {
        with_mixer([](auto& mixer) { mixer.stop_tune(); });
        auto const midi = audio::read_file(file, largest_tune);
        if (midi.empty() || !open())
            return;
        if (!std::exchange(font_asked_, true))
            mixer_.load_font();
        with_mixer([&](auto& mixer) { mixer.play_tune(midi); });
        SDL_PauseAudioDevice(device_, 0);
    }

    void stop_tune()
    {
        with_mixer([](auto& mixer) { mixer.stop_tune(); });
    }

    void play_sound(fs::path const& file)
    {
        if (!open())
            return;
        auto& sound = sounds_[file];
        if (!sound)
            sound = std::make_shared<audio::Samples const>(audio::load_wave(file));
        with_mixer([&](auto& mixer) { mixer.play_sound(sound); });
        SDL_PauseAudioDevice(device_, 0);
    }

    // Gives the device back after a silence. True once for each tune that has played to its end.
    bool look()
    {
        bool ended = false, silent = false;
        with_mixer([&](auto& mixer) {
            ended = mixer.tune_ended();
            silent = mixer.silent();
            if (ended)
                mixer.stop_tune();
        });
        ended = ended && !lost();
        if (silent)
            close();
        return ended;
    }

  private:
    // Sees to an open device. A machine without sound is asked once; a device that was lost, with its server
    // for instance, is looked for at each play.
    bool open()
    {
        if (lost())
            close();
        if (device_ || mute_)
            return device_ != 0;
        bool const first = !std::exchange(asked_, true);
        if (first) {
            snd_lib_error_set_handler(say_nothing);
            SDL_LogSetOutputFunction(nullptr, nullptr);
            SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
            SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "SollevinoDue");
            if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) {
                mute_ = true;
                return false;
            }
        }
        SDL_AudioSpec spec{};
        spec.freq = audio::rate;
        spec.format = AUDIO_S16SYS;
        spec.channels = 2;
        spec.samples = device_frames;
        spec.userdata = this;
        spec.callback = [](void* self, Uint8* out, int bytes) {
            static_cast<Output*>(self)->fill(out, bytes);
        };
        device_ = SDL_OpenAudioDevice(nullptr, 0, &spec, nullptr, 0);
        mute_ = first && !device_;
        return device_ != 0;
    }

    // SDL goes on asking for frames, which nobody hears.
    bool lost() const { return device_ && SDL_GetAudioDeviceStatus(device_) == SDL_AUDIO_STOPPED; }

    void close()
    {
        if (!device_)
            return;
        SDL_PauseAudioDevice(device_, 1);
        SDL_CloseAudioDevice(std::exchange(device_, 0));
    }

    void fill(Uint8* out, int bytes)
    {
        bool const was_silent = mixer_.silent();
        bool const had_ended = mixer_.tune_ended();
        mixer_.mix({reinterpret_cast<std::int16_t*>(out), std::size_t(bytes) / sizeof(std::int16_t)});
        if (mixer_.silent() != was_silent || mixer_.tune_ended() != had_ended)
            desk_.tell();
    }

    // Keeps SDL's thread out for as long.
    template <class F>
    void with_mixer(F f)
    {
        if (device_)
            SDL_LockAudioDevice(device_);
        f(mixer_);
        if (device_)
            SDL_UnlockAudioDevice(device_);
    }

    Desk& desk_;
    audio::Mixer mixer_;
    std::map<fs::path, std::shared_ptr<audio::Samples const>> sounds_;
    SDL_AudioDeviceID device_ = 0;
    bool asked_ = false;
    bool mute_ = false;  // there is no sound on this machine
    bool font_asked_ = false;
};

// On the game's thread, some time after the end of a tune. `done` may start the next one.
void report_end(Desk& desk, unsigned tune_number)
{
    if (!desk.leaving && desk.tune_number == tune_number)
        desk.done(1);
}

void work(std::shared_ptr<Desk> desk)
{
    Output output(*desk);
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

        for (auto const& sound : sounds)
            output.play_sound(sound);
        if (number != playing)
            tune.empty() ? output.stop_tune() : output.play_tune(tune);
        playing = number;
        if (output.look()) {
            lock.lock();
            if (!desk->leaving)
                desk->post([desk, playing] { report_end(*desk, playing); });
        }
    }
}

// What the game's thread knows of a device.
struct Control {
    fs::path file;
    std::optional<fs::path> opened;
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

Control& control(Device d)
{
    return controls[d == Device::music ? 0 : 1];
}

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

void play_tune(fs::path const& file)
{
    wish([&](Desk& d) {
        ++d.tune_number;
        d.tune = file;
    });
}

// A sound asked for twice before the worker looks is one sound.
void play_sound(fs::path const& file)
{
    wish([&](Desk& d) {
        if (!d.sounds.empty() && d.sounds.back() == file)
            return;
        if (d.sounds.size() == 2)
            d.sounds.erase(d.sounds.begin());
        d.sounds.push_back(file);
    });
}

}  // namespace

void device_file(Device d, fs::path const& file)
{
    control(d).file = file;
}

void device_open(Device d)
{
    control(d).opened = control(d).file;
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
    d == Device::music ? play_tune(*c.opened) : play_sound(*c.opened);
}

void device_rewind(Device d)
{
    control(d).at_start = true;
}

void start_devices(std::function<void(std::function<void()>)> post, std::function<void(int)> done)
{
    if (!the_desk)
        the_desk = std::make_shared<Desk>();
    the_desk->post = std::move(post);
    the_desk->done = std::move(done);
    std::packaged_task<void()> task([d = the_desk] { work(d); });
    worker_left = task.get_future();
    worker = std::thread(std::move(task));
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
