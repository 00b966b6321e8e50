// SPDX-License-Identifier: GPL-3.0-or-later
//
// What sounds: one tune and the card sounds. The player is a library of its own, since loading the libraries that it
// needs takes time: the game loads it after its first picture.
#pragma once

#include <filesystem>
#include <functional>

namespace audio {

// All of it on one thread. Nothing throws or reports: what can't be played is silent.
class Player {
  public:
    virtual ~Player() = default;

    // Cuts the tune before and plays a file from its beginning.
    virtual void play_tune(std::filesystem::path const& file) = 0;
    virtual void stop_tune() = 0;

    // The tune played last can be heard, or was to its end.
    virtual bool plays_tune() = 0;

    // The same file again starts from its beginning; another one rings out beside it.
    virtual void play_sound(std::filesystem::path const& file) = 0;

    // To be called when `tell` was, and after each play. True once for each tune that has played to its end.
    virtual bool look() = 0;
};

// `tell` is called from any thread when look() has something to see; it must not wait.
using Tell = std::function<void()>;

}  // namespace audio

// The entry of that library. The caller owns the player.
extern "C" audio::Player* sollevinodue_player(audio::Tell const& tell);
