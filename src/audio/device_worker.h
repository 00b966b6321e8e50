// SPDX-License-Identifier: GPL-3.0-or-later
//
// The devices of the desktop: a thread of their own does the work of device.h, whose procedures belong to the
// game's thread. What is asked before start_devices is done when they start; after stop_devices the device_
// procedures only keep their books.
#pragma once

#include "audio/device.h"
#include "audio/player.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

// Once, at the start of the program. `post` makes the game's thread run a function later; it may be called
// from any thread and must not run the function itself. `done` gets the code 1, on the game's thread, when
// the open tune has played to its end and a breath of silence has followed; never for one that was cut,
// broken or missing. The sound device is opened with the first device_play, the sound font with the first
// tune. `load` and `find` are called on the devices' thread; `find` gives the file of a name.
using LoadPlayer = std::function<std::unique_ptr<audio::Player>(audio::Tell)>;
using FindFile = std::function<std::filesystem::path(Device, std::string const& name)>;
void start_devices(std::function<void(std::function<void()>)> post, std::function<void(int code)> done,
                   LoadPlayer load, FindFile find);

// Silence at once, also within a tune or while the sound font is loading, and no `post` or `done` from here
// on. Takes as long as closing the sound device, at most 2 s, whatever a sound server does.
void stop_devices();
