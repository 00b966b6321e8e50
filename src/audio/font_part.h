// SPDX-License-Identifier: GPL-3.0-or-later
//
// The synthesiser lays out every instrument of the font that it is given, in 5 MB, where a tune plays a few. So it is
// given a font without the others.
#pragma once

#include <bitset>
#include <cstddef>
#include <fluidsynth.h>
#include <span>

namespace audio {

using Programs = std::bitset<128>;

// The instruments that a Standard MIDI File selects, and the first, which a channel has until it selects one. Of a
// broken file those before the break.
Programs programs_of(std::span<std::byte const> midi);

// Gives the synthesiser what that sound font has for the programs, in every bank. False, and nothing is given, if the
// file cannot be read or is no sound font.
bool load_part(fluid_settings_t* settings, fluid_synth_t* synth, char const* font, Programs const& programs);

}  // namespace audio
