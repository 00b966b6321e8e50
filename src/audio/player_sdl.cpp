// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/mixer.h"
#include "audio/player.h"
#include "audio/wave_file.h"

#include <SDL.h>
#include <alsa/asoundlib.h>
#include <map>
#include <utility>

namespace fs = std::filesystem;

namespace {

constexpr int device_frames = 512;  // 12 ms from a play to its sound
constexpr std::uintmax_t largest_tune = 4 << 20;
void say_nothing(char const*, int, char const*, int, char const*, ...) {}

// The sound device. Belongs to the worker; SDL's thread comes in through fill().
class Output : public audio::Player {
  public:
    explicit Output(audio::Tell tell) : tell_(std::move(tell)) {}
    Output(Output const&) = delete;
    Output& operator=(Output const&) = delete;
    ~Output() override
    {
        close();
        if (asked_)
            SDL_Quit();
    }

    void play_tune(fs::path const& file) override
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

    void stop_tune() override
    {
        with_mixer([](auto& mixer) { mixer.stop_tune(); });
    }

    bool plays_tune() override
    {
        bool plays = false;
        with_mixer([&](auto& mixer) { plays = mixer.plays_tune(); });
        return plays;
    }

    void play_sound(fs::path const& file) override
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
    bool look() override
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
        bool const had_tune = mixer_.plays_tune();
        mixer_.mix(
            {reinterpret_cast<std::int16_t*>(out), static_cast<std::size_t>(bytes) / sizeof(std::int16_t)});
        if (mixer_.silent() != was_silent || mixer_.tune_ended() != had_ended ||
            mixer_.plays_tune() != had_tune)
            tell_();
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

    audio::Tell tell_;
    audio::Mixer mixer_;
    std::map<fs::path, std::shared_ptr<audio::Samples const>> sounds_;
    SDL_AudioDeviceID device_ = 0;
    bool asked_ = false;
    bool mute_ = false;  // there is no sound on this machine
    bool font_asked_ = false;
};

}  // namespace

extern "C" audio::Player* sollevinodue_player(audio::Tell const& tell) { return new Output(tell); }
