// SPDX-License-Identifier: GPL-3.0-or-later
//
// render_tune MIDI WAVE: a tune as the game's own mixer plays it, with the silence behind it, as a wave file.
#include "audio/mixer.h"
#include "audio/wave_file.h"

#include <cstdio>
#include <fstream>

namespace {

constexpr int longest = 20 * 60 * audio::rate;  // frames; a tune that never ends is broken
constexpr int step = audio::rate / 10;

void write(std::ofstream& out, auto const value)
{
    out.write(reinterpret_cast<char const*>(&value), sizeof value);
}

bool write_wave(char const* file, audio::Samples const& samples)
{
    auto const bytes = static_cast<std::uint32_t>(samples.size() * sizeof samples[0]);
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out << "RIFF";
    write(out, bytes + 36);
    out << "WAVEfmt ";
    for (std::uint32_t const v :
         {16U, 1U | 2U << 16, std::uint32_t{audio::rate}, audio::rate * 4U, 4U | 16U << 16})
        write(out, v);
    out << "data";
    write(out, bytes);
    out.write(reinterpret_cast<char const*>(samples.data()), bytes);
    out.close();
    return !out.fail();
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    audio::Mixer mixer;
    auto const midi = audio::read_file(argv[1], 1 << 24);
    mixer.load_font(midi);
    mixer.play_tune(midi);
    audio::Samples all;
    while (!mixer.tune_ended() && all.size() < std::size_t{2} * longest) {
        all.resize(all.size() + std::size_t{2} * step);
        mixer.mix(std::span(all).last(std::size_t{2} * step));
    }
    if (mixer.tune_ended() && write_wave(argv[2], all))
        return 0;
    std::fprintf(stderr, "%s cannot be rendered to %s\n", argv[1], argv[2]);
    return 1;
}
