// SPDX-License-Identifier: GPL-3.0-or-later
// Listens to the two devices: to the mixer frame by frame, and to all of it through a file in place of a
// sound device, which runs about ten times as fast as one. Time is counted in frames mixed.
#include "audio/device_worker.h"
#include "audio/mixer.h"
#include "audio/wave_file.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <complex>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <mutex>
#include <numbers>
#include <numeric>
#include <random>
#include <sstream>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;
using audio::rate, audio::Samples;
using namespace std::string_literals;

namespace {

// ---- Material

constexpr int low = 69, high = 86;  // keys without a common overtone
constexpr double turn = 2 * std::numbers::pi;
constexpr double low_tone = 440, high_tone = 1174.66, card_tone = 3000, bell_tone = 5000;

// A MIDI file of one track.
std::string file_of(std::string track)
{
    auto const n = (track += "\0\xff\x2f\0"s).size();
    return "MThd\0\0\0\6\0\0\0\1\1\xe0MTrk\0"s + char(n >> 16) + char(n >> 8 & 0xff) + char(n & 0xff) + track;
}

// Half a second of organ for each key.
std::string tune(std::vector<int> const& keys)
{
    std::string track = "\0\xc0\x10"s;
    for (int const key : keys)
        track += {0, char(0x90), char(key), 127, char(0x83), 0x60, char(0x80), char(key), 127};
    return file_of(track);
}

std::string text_of(fs::path const& file)
{
    std::ostringstream all;
    all << std::ifstream(file, std::ios::binary).rdbuf();
    return all.str();
}

std::string endless() { return tune(std::vector<int>(10'000, low)); }

// A whistle in 16 bit samples.
std::string wave(double frequency, double seconds, int wave_rate = rate, int channels = 1)
{
    Samples data(std::size_t(seconds * wave_rate) * std::size_t(channels));
    for (int i = 0; auto& sample : data) {
        int const frame = i++ / channels;
        sample = std::int16_t(8000 * std::sin(turn * frequency * frame / wave_rate));
    }
    unsigned const n = unsigned(data.size() * 2), riff = 36 + n;
    int const format[]{16, 1 | channels << 16, wave_rate, wave_rate * channels * 2, channels * 2 | 16 << 16};
    auto const raw = [](auto* p, unsigned size) {
        return std::string(reinterpret_cast<char const*>(p), size);
    };
    return "RIFF" + raw(&riff, 4) + "WAVEfmt " + raw(format, 20) + "data" + raw(&n, 4) + raw(&data[0], n);
}

// ---- Ears

// Nothing is heard but the dither of the synthesiser, in the last samples.
bool dither(int sample) { return std::abs(sample) <= 1; }
bool quiet(Samples const& s, int last)
{
    return int(s.size()) >= last && std::all_of(s.end() - last, s.end(), dither);
}

// Seconds during which a frequency sounds, by a resonator at the left channel, which rings on for some
// 50 ms.
double heard(Samples const& s, double frequency)
{
    std::complex<double> const pole = std::polar(0.999, turn * frequency / rate);
    std::complex<double> swing;
    int steps = 0;
    for (int i = 0; i < int(s.size() / 2); ++i) {
        swing = swing * pole + double(s[std::size_t(2 * i)]);
        steps += i % (rate / 100) == 0 && std::abs(swing) > 200'000;
    }
    return steps / 100.0;
}

struct Mixer : audio::Mixer {
    std::span<char const* const> fonts = audio::sound_fonts;

    void play(std::string const& midi)
    {
        stop_tune();
        load_font(std::as_bytes(std::span(midi)), fonts);
        play_tune(std::as_bytes(std::span(midi)));
    }

    Samples listen(double seconds)
    {
        Samples all(std::size_t(seconds * 100) * 882);
        for (std::size_t i = 0; i < all.size(); i += 882)
            mix(std::span(all).subspan(i, 882));
        return all;
    }
};

struct Devices : testing::Test {
    void SetUp() override
    {
        fs::create_directories(folder);
        setenv("SDL_DISKAUDIODELAY", "1", 1);
        listen_to("tunes");
        testing::internal::CaptureStderr();
        start("disk");
    }

    void start(char const* driver)
    {
        setenv("SDL_AUDIODRIVER", driver, 1);
        auto const post = [this](auto f) {
            std::lock_guard const lock(mutex);
            posted.push_back(std::move(f));
        };
        auto const done = [this](int code) { codes.push_back(code), play_again(Device::music); };
        start_devices(
            post, done, [](auto tell) { return std::unique_ptr<audio::Player>(sollevinodue_player(tell)); },
            [this](Device, fs::path const& file) {
                std::lock_guard const late(gate);
                return file;
            });
    }

    // The file of a line that is not open yet.
    void listen_to(char const* name)
    {
        line_file = folder / name;
        setenv("SDL_DISKAUDIOFILE", line_file.c_str(), 1);
    }

    // Wherever a test leaves, it is silent from then on, and has been on the terminal.
    void TearDown() override
    {
        stop_devices();
        auto const left = now();
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        EXPECT_EQ(now(), left);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
        fs::remove_all(folder);
    }

    // Until something holds, while the game's loop turns. False if it never does.
    bool wait(auto condition)
    {
        for (int i = 0; i < 10'000 && !condition(); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
            std::vector<std::function<void()>> now;
            if (std::lock_guard const lock(mutex); loop_turns)
                now.swap(posted);
            for (auto const& f : now)
                f();
        }
        return condition();
    }

    // Until a frequency has sounded for so long; until the file has grown by so much, also in silence. The
    // device is given back in a long silence and begins the file anew when it is opened again.
    bool hear(double tone, double time)
    {
        return wait([&] { return heard(mixed(), tone) > time; });
    }
    bool run(double time)
    {
        return wait([&, last = now(), still = 0]() mutable {
            double const before = std::exchange(last, now());
            time -= last < before ? last : last - before;
            still = last == before ? still + 1 : 0;
            return time <= 0 || still > 100;
        });
    }
    double now() const { return double(mixed().size()) / 2 / rate; }

    Samples mixed() const
    {
        auto const bytes = audio::read_file(line_file, 1 << 30);
        auto const* first = reinterpret_cast<std::int16_t const*>(bytes.data());
        return Samples(first, first + bytes.size() / 4 * 2);
    }

    fs::path write(std::string const& name, std::string const& content) const
    {
        std::ofstream(folder / name, std::ios::binary) << content;
        return folder / name;
    }

    static void play_again(Device d) { device_rewind(d), device_play(d); }

    static void play(Device d, fs::path const& file)
    {
        device_close(d);
        device_file(d, file.string());
        device_open(d);
        device_play(d);
    }

    fs::path const folder = fs::temp_directory_path() / ("sollevinodue-audio-" + std::to_string(getpid()));
    fs::path line_file;  // that stands for the line listened to
    Mixer mixer;
    std::vector<int> codes;  // what the devices have told; the tune plays again each time
    bool loop_turns = true;  // the game's
    std::mutex gate;         // holds the worker up
    std::mutex mutex;
    std::vector<std::function<void()>> posted;
};

// ---- The mixer, frame by frame

TEST_F(Devices, ATuneIsMixedWithACardOnTopAndHasAnEnd)
{
    auto const card = std::make_shared<Samples>(audio::load_wave(write("a.wav", wave(card_tone, 0.15))));
    std::string last_note_never_ends = tune({low, high});
    last_note_never_ends.end()[-7] = char(0xa0);
    for (auto const& midi : {tune({low, high}), last_note_never_ends}) {
        mixer.play(midi);
        EXPECT_NEAR(heard(mixer.listen(0.5), low_tone), 0.5, 0.1);
        mixer.play_sound(card);
        Samples const rest = mixer.listen(1.8);
        EXPECT_LT(heard(rest, low_tone), 0.2);
        EXPECT_NEAR(heard(rest, high_tone), 0.6, 0.2);
        EXPECT_NEAR(heard(rest, card_tone), 0.2, 0.05);
        EXPECT_FALSE(mixer.tune_ended());
        EXPECT_TRUE(quiet(mixer.listen(0.3), rate / 10) && mixer.tune_ended());
    }
    std::array const nowhere{"/nowhere/font.sf2"};
    Mixer without_font;
    without_font.fonts = nowhere;
    without_font.play(tune({low}));
    without_font.play_sound(card);
    EXPECT_EQ(without_font.listen(0.15), *card);
    EXPECT_TRUE(quiet(without_font.listen(3), 6 * rate) && !without_font.tune_ended());
}

// A font is cut down to what a tune plays; a broken one is refused.
TEST_F(Devices, ATuneSoundsFromAPartOfTheFontAsFromAllOfIt)
{
    std::string const some = "\0\xf0\3\1\2\xf7\0\xff\1\1a\0\xc0\x13\0\x28\0\xd0\0\0\xc9\x19"s;
    std::string every;
    for (int p = 0; p < 128; ++p)
        every += {0, char(0xc0), char(p)};
    auto const chord = "\0\x90\x40\x7f\0\x43\x7f\0\x99\x26\x7f\0\x92\x30\x7f"s;
    std::span<char const* const> fonts = audio::sound_fonts;
    auto const sound = [&](std::string const& programs) {
        Mixer fresh;
        fresh.fonts = fonts;
        fresh.play(file_of(programs + chord));
        return fresh.listen(1);
    };
    Samples const part = sound(some);
    EXPECT_FALSE(quiet(part, rate));
    EXPECT_EQ(part, sound(every + some));

    auto const copy = folder / "font.sf2";
    std::string const name = copy.string(), font = text_of(audio::sound_fonts[0]);
    std::array const only_font{name.c_str()};
    fonts = only_font;
    auto const sound_of = [&](std::string const& bytes) {
        std::ofstream(copy, std::ios::binary) << bytes;
        return sound(some);
    };
    EXPECT_EQ(part, sound_of(font));
    EXPECT_TRUE(quiet(sound_of(font.substr(0, font.size() - 1000)), rate));
    auto const presets = font.rfind("phdr") + 8, zones = font.rfind("pbag") + 8, mods = font.rfind("pmod");
    // The last byte of a size, or of a column that counts the rows of the next table.
    for (auto const& [first, behind, step] : {std::tuple{presets - 1, presets, 1},
                                              {presets + 25, zones - 8, 38},
                                              {zones - 1, zones, 1},
                                              {zones + 1, mods, 4},
                                              {zones + 3, mods, 4}}) {
        std::string bytes = font;
        for (auto at = first; at < behind; at += std::size_t(step))
            bytes[at] = '\x7f';
        EXPECT_TRUE(quiet(sound_of(bytes), rate)) << first - presets;
    }
}

TEST_F(Devices, TheSameSoundStartsAgainAndAnotherRingsOutClipped)
{
    auto const card = std::make_shared<Samples>(rate * 3 / 10);
    std::iota(card->begin(), card->end(), std::int16_t(100));
    for (int i = 0; i < 3; ++i) {
        mixer.play_sound(card);
        EXPECT_EQ(mixer.listen(0.13), Samples(card->begin(), card->begin() + rate * 26 / 100)) << i;
    }
    mixer.play_sound(std::make_shared<Samples>(rate / 10, std::int16_t(30'000)));
    mixer.play_sound(card);
    Samples const both = mixer.listen(0.15);
    for (std::size_t i = 0; i < both.size(); ++i)
        ASSERT_EQ(both[i], std::min((i < rate / 10 ? 30'000 : 0) + (*card)[i], 32767)) << i;
}

TEST_F(Devices, WhatCannotBeReadIsSilentAndHasNoEnd)
{
    std::string rubbish(5000, 0);
    std::generate(rubbish.begin(), rubbish.end(), std::mt19937(1));
    std::string const midi = tune({low}), whistle = wave(1000, 0.5);
    std::map<double, std::vector<std::string>> files;  // by the seconds of sound in them
    files[0] = {rubbish, tune({}), midi.substr(0, 14) + rubbish, whistle.substr(0, 20) + rubbish};
    for (auto const& [wave_rate, channels] : {std::pair{rate, 9}, {400'000, 1}, {3, 1}})
        files[0].push_back(wave(1, 1, wave_rate, channels));
    files[0.25] = {whistle.substr(0, whistle.size() / 2)};
    files[0.5] = {wave(1000, 0.5, 96'000, 8), wave(1000, 0.5, 8000)};
    for (std::size_t n = 0; n < midi.size(); ++n)
        files[0].insert(files[0].end(), {midi.substr(0, n), whistle.substr(0, n / 2)});
    for (auto const& [seconds, contents] : files)
        for (auto const& content : contents) {
            mixer.play(content);
            EXPECT_TRUE(quiet(mixer.listen(3), 6 * rate) && !mixer.plays_tune()) << content.size();
            Samples const s = audio::load_wave(write("a.wav", content));
            EXPECT_EQ(s.empty(), seconds == 0) << content.size();
            EXPECT_NEAR(heard(s, 1000), seconds, 0.1) << content.size();
        }
}

// A tune goes by its words in the menu, a sound by those that the game asks for.
TEST_F(Devices, TheTunesAndSoundsOfTheGameAreThere)
{
    for (auto const name :
         {"Adagio sostenuto", "Allegretto", "Arabesque", "Boccherini-minuetto", "BWV 772", "BWV 773",
          "BWV 774", "BWV 775", "BWV776", "Fastlane", "Mascagni-preludio", "Monteverdi-balletto", "Per Elisa",
          "Rondò a capriccio", "Rossini-Guglielmo Tell", "Verdi-Aida", "Vivaldi-Concerto in C"}) {
        mixer.play(text_of(fs::path(BUILT_FOLDER "/music") / (name + ".mid"s)));
        EXPECT_FALSE(quiet(mixer.listen(3), 6 * rate)) << name;
    }
    for (auto const name : {"carta", "Notify"})
        EXPECT_FALSE(audio::load_wave(fs::path(BUILT_FOLDER "/sounds") / (name + ".wav"s)).empty()) << name;
}

// ---- The devices, through a file

TEST_F(Devices, AFloodOfChoicesPlaysTheLastWhichIsToldOnceEachTime)
{
    auto const first = write("endless.mid", endless()), broken = write("broken.mid", "MThd");
    auto const begin = std::chrono::steady_clock::now();
    for (int i = 0; i < 1000; ++i)
        play(Device::music, i % 2 ? first : broken);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
    play(Device::music, write("Rondò a capriccio.mid", tune({high})));
    ASSERT_TRUE(wait([&] { return codes.size() == 2; }));
    device_close(Device::music);
    ASSERT_TRUE(run(4));
    EXPECT_EQ(codes, (std::vector{1, 1}));
    EXPECT_GT(heard(mixed(), high_tone), 0.8);
    EXPECT_LT(heard(mixed(), low_tone), 1);
}

TEST_F(Devices, ACutTuneIsSilentAndTellsNothing)
{
    loop_turns = false;
    play(Device::music, write("brief.mid", tune({high})));
    ASSERT_TRUE(hear(high_tone, 0.3) && run(4));
    play(Device::music, write("endless.mid", endless()));  // with an end on its way
    loop_turns = true;
    ASSERT_TRUE(hear(low_tone, 0.1));
    device_close(Device::music);
    device_play(Device::music);  // not open
    ASSERT_TRUE(wait([&] { return quiet(mixed(), 4 * rate); }));
    play(Device::music, write("broken.mid", "MThd"));
    ASSERT_TRUE(run(2));
    EXPECT_TRUE(codes.empty());
}

TEST_F(Devices, WithoutFilesOrASoundDeviceTheGameGoesOn)
{
    setenv("ALSA_CONFIG_PATH", "/nowhere", 1);
    write("a.mid", tune({low}));
    write("a.wav", wave(card_tone, 0.15));
    for (auto const& [driver, files] :
         {std::pair{"disk", folder / "none"}, {"alsa", folder}, {"none", folder}}) {
        stop_devices();
        start(driver);
        for (int i = 0; i < 2; ++i) {
            play(Device::music, files / "a.mid");
            play(Device::effects, files / "a.wav");
            wait([turns = 0]() mutable { return ++turns > 50; });
        }
        EXPECT_FALSE(device_plays(Device::music)) << driver;
        Samples const all = mixed();
        EXPECT_TRUE(codes.empty() && quiet(all, int(all.size()))) << driver;
    }
}

TEST_F(Devices, AnEffectRingsOutOverATuneWhenTheNextIsOpened)
{
    play(Device::music, write("endless.mid", endless()));
    ASSERT_TRUE(hear(low_tone, 0.5));
    listen_to("effects");
    gate.lock();
    play(Device::effects, "none.wav");
    play(Device::effects, write("Notify.wav", wave(bell_tone, 1)));
    play(Device::effects, write("carta.wav", wave(card_tone, 0.15)));
    play_again(Device::effects);  // one sound, since the first has not begun
    gate.unlock();
    ASSERT_TRUE(hear(bell_tone, 0.9) && hear(card_tone, 0.1));
    play_again(Device::effects);
    ASSERT_TRUE(hear(card_tone, 0.25) && run(0.3));
    device_play(Device::effects);  // stands at its end
    device_close(Device::effects);
    play_again(Device::effects);  // not open
    ASSERT_TRUE(run(1));
    EXPECT_NEAR(heard(mixed(), bell_tone), 1, 0.1);
    EXPECT_NEAR(heard(mixed(), card_tone), 0.35, 0.1);
    EXPECT_TRUE(device_plays(Device::music));
}

}  // namespace
