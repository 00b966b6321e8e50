// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <fluidsynth.h>
#include <memory>
#include <span>
#include <vector>

namespace audio {

constexpr int rate = 44100;  // frames a second; a frame is two 16 bit samples, left and right

using Samples = std::vector<std::int16_t>;  // whole frames

constexpr int long_silence = 10 * rate;  // frames

// Where the distributions keep a General MIDI sound font, the best suited first.
constexpr std::array<char const*, 3> sound_fonts{"/usr/share/sounds/sf2/TimGM6mb.sf2",
                                                 "/usr/share/sounds/sf2/default-GM.sf2",
                                                 "/usr/share/sounds/sf3/default-GM.sf3"};

// One tune and two effects, mixed on demand. It knows no clock but the frames mixed so far and no thread: the
// caller sees to it that one procedure runs at a time. load_font alone may run beside mix, while no tune
// plays.
class Mixer {
  public:
    // Loads what the first font that can be read has for that tune. Without one tunes are silent and never end.
    void load_font(std::span<std::byte const> midi, std::span<char const* const> fonts = sound_fonts);

    // Cuts the tune before and plays a Standard MIDI File, the one of the font, from its beginning. A broken one is
    // silent.
    void play_tune(std::span<std::byte const> midi);
    void stop_tune();

    // Starts a sound. The same sound starts again from its beginning; another one rings out beside it.
    void play_sound(std::shared_ptr<Samples const> sound);

    // The next frames of the sum, clipped.
    void mix(std::span<std::int16_t> out);

    // The tune's last tick has gone by, and a pause behind it. False again after the next play or stop.
    bool tune_ended() const { return ended_; }
    // A tune plays, or has ended and was not stopped since. False at once, or with the next frames, if the
    // file is broken or there is no font.
    bool plays_tune() const { return tune_ || ended_; }
    // Nothing has sounded for a while and nothing will before the next play.
    bool silent() const { return silence_ >= long_silence; }

  private:
    struct Release {
        void operator()(fluid_settings_t* s) const { delete_fluid_settings(s); }
        void operator()(fluid_synth_t* s) const { delete_fluid_synth(s); }
        void operator()(fluid_player_t* p) const { delete_fluid_player(p); }
    };
    struct Voice {
        std::shared_ptr<Samples const> sound;
        std::size_t position = 0;
    };

    void follow_tune(int frames);

    std::unique_ptr<fluid_settings_t, Release> settings_;
    std::unique_ptr<fluid_synth_t, Release> synth_;
    std::unique_ptr<fluid_player_t, Release> tune_;  // null: no tune
    Voice cut_;                                      // the last milliseconds of a tune that was cut
    std::array<Voice, 2> voices_;                    // the latest first
    int total_ticks_ = 0;                            // 0 until the player has read the tune
    int pause_ = 0;                                  // frames left between a tune's end and its report
    bool ended_ = false;
    int silence_ = 0;  // frames, at most long_silence
};

}  // namespace audio
