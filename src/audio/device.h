// SPDX-License-Identifier: GPL-3.0-or-later
//
// The two voices of the game: `music` (MMC1, the sequencer) plays tunes, `effects` (MMCw, the wave player)
// plays sounds. They sound beside each other and beside the game. Whoever links this header to something that
// sounds knows which file, or what else, stands behind a name.
//
// Every procedure here returns at once. Nothing is ever reported: a missing or broken file, a machine without
// a sound device and a sound server that goes away are silence.
#pragma once

#include <string_view>

enum class Device { music, effects };

// Name of the tune or the effect for the next device_open. What is open stays as it is.
void device_file(Device, std::string_view name);

// Opens the file set last; its start position is 0. The file is read when it is played.
void device_open(Device);

// Music falls silent. An effect that has started rings out. Nothing happens if the device is not open.
void device_close(Device);

// Plays from the start position if that is 0: after device_open or device_rewind, also when the file still
// sounds, which cuts it. Otherwise what plays plays on, and what has ended stays ended.
void device_play(Device);

// False once it has turned out that what was played last can't be heard: its file is missing or broken, or
// there is no sound device. Until then, and when nothing was played, true.
bool device_plays(Device);

// Start position 0 for the next device_play. Does not touch what sounds now.
void device_rewind(Device);
