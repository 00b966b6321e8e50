// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/mixer.h"

#include <cstddef>
#include <filesystem>
#include <vector>

namespace audio {

// The whole file; empty if it cannot be read, is no regular file or is larger than `limit` bytes.
std::vector<std::byte> read_file(std::filesystem::path const& file, std::uintmax_t limit);

// A wave file of any rate, sample format and up to 8 channels as frames of the mixer. A longer sound is cut
// off after 20 s. Empty if it cannot be read.
Samples load_wave(std::filesystem::path const& file);

}  // namespace audio
