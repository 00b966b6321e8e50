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

constexpr std::uintmax_t largest_tune = 4 << 20;
constexpr int effect_frames = 512;  // 12 ms from a play to its sound
constexpr int tune_frames = 2048;   // 22 wake-ups a second
void say_nothing(char const*, int, char const*, int, char const*, ...) {}

// A line to the sound device, open while it has something to play. Belongs to the worker; SDL's thread comes in
// through fill().
class Line {
  public:
    // The device asks for so many frames at a time. `tell` outlives the line.
    Line(int frames, audio::Tell const& tell) : frames_(frames), tell_(tell) {}
    Line(Line const&) = delete;
    Line& operator=(Line const&) = delete;
    ~Line() { close(); }

    // False if there is no device. One that was lost, with its server for instance, is looked for anew.
    bool open()
    {
        if (lost())
            close();
        if (device_)
            return true;
        if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0)
            return false;
        SDL_AudioSpec spec{};
        spec.freq = audio::rate;
        spec.format = AUDIO_S16SYS;
        spec.channels = 2;
        spec.samples = static_cast<Uint16>(frames_);
        spec.userdata = this;
        spec.callback = [](void* self, Uint8* out, int bytes) { static_cast<Line*>(self)->fill(out, bytes); };
        device_ = SDL_OpenAudioDevice(nullptr, 0, &spec, nullptr, 0);
        if (device_)
            SDL_PauseAudioDevice(device_, 0);
        else
            SDL_QuitSubSystem(SDL_INIT_AUDIO);
        return device_ != 0;
    }

    // With the last line SDL's own thread goes, which looks for new devices ten times a second.
    void close()
    {
        if (!device_)
            return;
        SDL_PauseAudioDevice(device_, 1);
        SDL_CloseAudioDevice(std::exchange(device_, 0));
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }

    bool is_open() const { return device_ != 0; }

    // SDL goes on asking for frames, which nobody hears.
    bool lost() const { return device_ && SDL_GetAudioDeviceStatus(device_) == SDL_AUDIO_STOPPED; }

    // While no tune plays.
    void load_font(std::span<std::byte const> midi) { mixer_.load_font(midi); }

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

  private:
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

    int const frames_;
    audio::Tell const& tell_;
    audio::Mixer mixer_;
    SDL_AudioDeviceID device_ = 0;
};

// Tunes and effects have a line each: a tune may be mixed well ahead, so that it seldom wakes the processor, an effect
// must be heard at once.
class Output : public audio::Player {
  public:
    explicit Output(audio::Tell tell) : tell_(std::move(tell)) {}
    Output(Output const&) = delete;
    Output& operator=(Output const&) = delete;
    ~Output() override
    {
        music_.close();
        effects_.close();
        if (asked_)
            SDL_Quit();
    }

    void play_tune(fs::path const& file) override
    {
        stop_tune();
        auto const midi = audio::read_file(file, largest_tune);
        if (midi.empty() || !open(music_))
            return;
        music_.load_font(midi);
        music_.with_mixer([&](auto& mixer) { mixer.play_tune(midi); });
    }

    void stop_tune() override
    {
        music_.with_mixer([](auto& mixer) { mixer.stop_tune(); });
    }

    bool plays_tune() override
    {
        bool plays = false;
        music_.with_mixer([&](auto& mixer) { plays = mixer.plays_tune(); });
        return plays;
    }

    // A system that lends its device only once gets the effect through the line of the tune, later than it should.
    void play_sound(fs::path const& file) override
    {
        if (music_.lost())
            music_.open();
        if (!open(effects_) && !music_.is_open())
            return;
        auto& sound = sounds_[file];
        if (!sound)
            sound = std::make_shared<audio::Samples const>(audio::load_wave(file));
        (effects_.is_open() ? effects_ : music_).with_mixer([&](auto& mixer) { mixer.play_sound(sound); });
    }

    // Gives the device back after a silence. True once for each tune that has played to its end.
    bool look() override
    {
        bool ended = false;
        music_.with_mixer([&](auto& mixer) {
            ended = mixer.tune_ended();
            if (ended)
                mixer.stop_tune();
        });
        ended = ended && !music_.lost();
        for (Line* const line : {&music_, &effects_}) {
            bool silent = false;
            line->with_mixer([&](auto& mixer) { silent = mixer.silent(); });
            if (silent)
                line->close();
        }
        return ended;
    }

  private:
    // A machine without sound is asked once. A tune takes a device that is lent only once from the effects.
    bool open(Line& line)
    {
        if (mute_)
            return false;
        bool const first = !std::exchange(asked_, true);
        if (first) {
            snd_lib_error_set_handler(say_nothing);
            SDL_LogSetOutputFunction(nullptr, nullptr);
            SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
            SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "SollevinoDue");
        }
        bool opened = line.open();
        if (!opened && &line == &music_ && effects_.is_open()) {
            effects_.close();
            opened = line.open();
        }
        mute_ = first && !opened;
        return opened;
    }

    audio::Tell tell_;
    Line music_{tune_frames, tell_}, effects_{effect_frames, tell_};
    std::map<fs::path, std::shared_ptr<audio::Samples const>> sounds_;
    bool asked_ = false;
    bool mute_ = false;  // there is no sound on this machine
};

}  // namespace

extern "C" audio::Player* sollevinodue_player(audio::Tell const& tell) { return new Output(tell); }
