// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/wave_file.h"

#include <SDL.h>
#include <algorithm>
#include <fstream>
#include <memory>

namespace audio {

namespace {

constexpr std::uintmax_t largest_wave = 16 << 20;
constexpr int longest_sound = 20;  // seconds
// Beyond these rates a sound would be a handful of samples, or no sound at all.
constexpr int lowest_rate = 1000, highest_rate = 384'000;

}  // namespace

std::vector<std::byte> read_file(std::filesystem::path const& file, std::uintmax_t limit)
{
    std::error_code ec;
    if (!std::filesystem::is_regular_file(file, ec))
        return {};
    auto const size = std::filesystem::file_size(file, ec);
    if (ec || size > limit)
        return {};
    std::vector<std::byte> bytes(size);
    std::ifstream in(file, std::ios::binary);
    in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<std::size_t>(in.gcount()));
    return bytes;
}

Samples load_wave(std::filesystem::path const& file)
{
    auto const bytes = read_file(file, largest_wave);
    SDL_AudioSpec spec;
    Uint8* data = nullptr;
    Uint32 size = 0;
    if (!SDL_LoadWAV_RW(SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size())), 1, &spec, &data,
                        &size))
        return {};
    std::unique_ptr<Uint8, decltype(&SDL_FreeWAV)> const wave(data, SDL_FreeWAV);
    if (spec.freq < lowest_rate || spec.freq > highest_rate)
        return {};

    SDL_AudioCVT convert;
    if (SDL_BuildAudioCVT(&convert, spec.format, spec.channels, spec.freq, AUDIO_S16SYS, 2, rate) < 0)
        return {};
    auto const frame = Uint32(SDL_AUDIO_BITSIZE(spec.format) / 8 * spec.channels);
    auto const used = frame * std::min(size / frame, static_cast<Uint32>(spec.freq * longest_sound));
    std::vector<Uint8> buffer(static_cast<std::size_t>(used) * static_cast<std::size_t>(convert.len_mult));
    std::copy_n(data, used, buffer.begin());
    convert.buf = buffer.data();
    convert.len = static_cast<int>(used);
    if (used == 0 || SDL_ConvertAudio(&convert) != 0)
        return {};
    auto const* first = reinterpret_cast<std::int16_t const*>(buffer.data());
    return Samples(first, first + static_cast<std::size_t>(convert.len_cvt) / sizeof(std::int16_t));
}

}  // namespace audio
