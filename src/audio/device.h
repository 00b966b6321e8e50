// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/player.h"

#include <filesystem>
#include <functional>
#include <memory>

// The two voices of the game: `music` (MMC1, the sequencer) plays MIDI files, `effects` (MMCw, the wave
// player) plays wave files. They sound beside each other and beside the game.
//
// Every procedure here belongs to the game's thread and returns at once; the work is done by a thread of the
// devices. Nothing is ever reported: a missing or broken file, a machine without a sound device and a sound
// server that goes away are silence. What is asked before start_devices is done when they start; after
// stop_devices the device_ procedures only keep their books.
enum class Device { music, effects };

// Full path for the next device_open. What is open stays as it is.
void device_file(Device, std::filesystem::path const&);

// Opens the file set last; its start position is 0. The file is read when it is played.
void device_open(Device);

// Music falls silent. An effect that has started rings out. Nothing happens if the device is not open.
void device_close(Device);

// Plays from the start position if that is 0: after device_open or device_rewind, also when the file still
// sounds, which cuts it. Otherwise what plays plays on, and what has ended stays ended.
void device_play(Device);

// Start position 0 for the next device_play. Does not touch what sounds now.
void device_rewind(Device);

// Once, at the start of the program. `post` makes the game's thread run a function later; it may be called
// from any thread and must not run the function itself. `done` gets the code 1, on the game's thread, when
// the open tune has played to its end and a breath of silence has followed; never for one that was cut,
// broken or missing. The sound device is opened with the first device_play, the sound font with the first
// tune.
using LoadPlayer = std::function<std::unique_ptr<audio::Player>(audio::Tell)>;
void start_devices(std::function<void(std::function<void()>)> post, std::function<void(int code)> done,
                   LoadPlayer load);

// Silence at once, also within a tune or while the sound font is loading, and no `post` or `done` from here
// on. Takes as long as closing the sound device, at most 2 s, whatever a sound server does.
void stop_devices();
