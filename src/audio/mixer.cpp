// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/mixer.h"

#include "audio/font_part.h"

#include <algorithm>
#include <malloc.h>
#include <string_view>
#include <utility>

namespace audio {

namespace {

constexpr int pause_between_tunes = rate * 3 / 2;
constexpr int fade = rate / 100;  // a tune is cut within 10 ms, so that the cut does not crack

constexpr std::size_t samples(int frames) { return static_cast<std::size_t>(frames) * 2; }

void write(fluid_synth_t* synth, std::span<std::int16_t> out)
{
    fluid_synth_write_s16(synth, static_cast<int>(out.size() / 2), out.data(), 0, 2, out.data(), 1, 2);
}

bool is_midi(std::span<std::byte const> file)
{
    std::string_view const magic = "MThd";
    return file.size() > magic.size() && std::equal(magic.begin(), magic.end(), file.begin(),
                                                    [](char c, std::byte b) { return std::byte(c) == b; });
}

}  // namespace

void Mixer::load_font(std::span<std::byte const> midi, std::span<char const* const> fonts)
{
    for (int level = FLUID_PANIC; level < LAST_LOG_LEVEL; ++level)
        fluid_set_log_function(level, nullptr, nullptr);

    synth_.reset();
    settings_.reset(new_fluid_settings());
    fluid_settings_setnum(settings_.get(), "synth.sample-rate", rate);
    fluid_settings_setnum(settings_.get(), "synth.gain", 1.0);
    fluid_settings_setint(settings_.get(), "synth.polyphony", 96);  // the fullest tune takes 87
    fluid_settings_setint(settings_.get(), "synth.dynamic-sample-loading", 1);
    fluid_settings_setint(settings_.get(), "synth.threadsafe-api", 0);
    synth_.reset(new_fluid_synth(settings_.get()));
    if (!synth_ || std::ranges::none_of(fonts, [&, programs = programs_of(midi)](char const* font) {
            return load_part(settings_.get(), synth_.get(), font, programs);
        }))
        synth_.reset();
#ifdef __GLIBC__
    malloc_trim(0);  // reading a font leaves 2 MB of holes
#endif
}

void Mixer::play_tune(std::span<std::byte const> midi)
{
    stop_tune();
    if (!synth_ || !is_midi(midi))
        return;
    tune_.reset(new_fluid_player(synth_.get()));
    if (tune_ && (fluid_player_add_mem(tune_.get(), midi.data(), midi.size()) != FLUID_OK ||
                  fluid_player_play(tune_.get()) != FLUID_OK))
        tune_.reset();
    if (tune_)
        silence_ = 0;
}

void Mixer::stop_tune()
{
    ended_ = false;
    pause_ = 0;
    total_ticks_ = 0;
    if (!tune_)
        return;
    Samples rest(samples(fade));
    write(synth_.get(), rest);
    for (std::size_t i = 0; i < rest.size(); ++i)
        rest[i] = static_cast<std::int16_t>(rest[i] * (fade - static_cast<int>(i / 2)) / fade);
    cut_ = {std::make_shared<Samples const>(std::move(rest)), 0};
    tune_.reset();
    fluid_synth_system_reset(synth_.get());
}

void Mixer::play_sound(std::shared_ptr<Samples const> sound)
{
    if (voices_[0].sound != sound)
        std::swap(voices_[0], voices_[1]);
    voices_[0] = {std::move(sound), 0};
    silence_ = 0;
}

void Mixer::mix(std::span<std::int16_t> out)
{
    int const frames = static_cast<int>(out.size() / 2);
    std::fill(out.begin(), out.end(), std::int16_t{0});
    bool sounding = tune_ != nullptr;
    if (tune_)
        write(synth_.get(), out);

    auto add = [&](Voice& v) {
        if (!v.sound || v.position == v.sound->size())
            return;
        std::size_t const n = std::min(out.size(), v.sound->size() - v.position);
        for (std::size_t i = 0; i < n; ++i)
            out[i] =
                static_cast<std::int16_t>(std::clamp(out[i] + (*v.sound)[v.position + i], -32768, 32767));
        v.position += n;
        sounding = true;
    };
    add(cut_);
    add(voices_[0]);
    add(voices_[1]);

    if (tune_)
        follow_tune(frames);
    silence_ = sounding ? 0 : std::min(silence_ + frames, long_silence);
}

// Ticks alone tell a tune that was played: the player is done with a broken file at once, with a good one
// only two seconds after its end.
void Mixer::follow_tune(int frames)
{
    if (total_ticks_ == 0)
        total_ticks_ = fluid_player_get_total_ticks(tune_.get());

    if (pause_ > 0) {
        pause_ -= frames;
        if (pause_ <= 0) {
            stop_tune();
            ended_ = true;
        }
    } else if (total_ticks_ > 0 && fluid_player_get_current_tick(tune_.get()) >= total_ticks_) {
        fluid_synth_all_notes_off(synth_.get(), -1);
        pause_ = pause_between_tunes;
    } else if (fluid_player_get_status(tune_.get()) == FLUID_PLAYER_DONE) {
        stop_tune();
    }
}

}  // namespace audio
