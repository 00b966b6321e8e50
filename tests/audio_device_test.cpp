// SPDX-License-Identifier: GPL-3.0-or-later
// Listens to the two devices: to the mixer frame by frame, and to all of it through a file in place of a
// sound device, which runs about ten times as fast as one. Time is counted in frames mixed.
#include "audio/device.h"
#include "audio/mixer.h"
#include "audio/wave_file.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <complex>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <mutex>
#include <numbers>
#include <numeric>
#include <random>
#include <string>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;
using audio::Mixer;
using audio::rate;
using audio::Samples;

namespace {

// ---- Material

std::string number(std::size_t value, int size, bool little)
{
    std::string s;
    for (int i = 0; i < size; ++i)
        s += char(value >> 8 * (little ? i : size - 1 - i) & 0xff);
    return s;
}

// Half a second of organ for each key. The last one is never let go if it hangs.
std::string tune(std::vector<int> const& keys, bool hangs = false)
{
    std::string events("\0\xc0\x10", 3);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        char const key = char(keys[i]);
        bool const let_go = !hangs || i + 1 < keys.size();
        events +=
            {0,  char(0x90), key, 127, char(0x83), 0x60, char(let_go ? 0x80 : 0xb0), char(let_go ? key : 7),
             127};
    }
    events += std::string("\0\xff\x2f\0", 4);
    return "MThd" + number(6, 4, false) + number(0, 2, false) + number(1, 2, false) + number(480, 2, false) +
           "MTrk" + number(events.size(), 4, false) + events;
}

constexpr int low = 69, high = 86;  // keys without a common overtone
constexpr double low_tone = 440, high_tone = 1174.66;

// A whistle in 16 bit samples.
std::string wave(double frequency, double seconds, int wave_rate = rate, int channels = 1)
{
    std::string data;
    for (int i = 0; i < int(seconds * wave_rate); ++i)
        for (int c = 0; c < channels; ++c) {
            double const x = 8000 * std::sin(2 * std::numbers::pi * frequency * i / wave_rate);
            data += number(std::size_t(std::lround(x)), 2, true);
        }
    auto const four = [](auto... values) { return (number(std::size_t(values), 4, true) + ...); };
    return "RIFF" + four(36 + data.size()) + "WAVEfmt " +
           four(16, 1 | channels << 16, wave_rate, wave_rate * channels * 2, channels * 2 | 16 << 16) +
           "data" + four(data.size()) + data;
}

std::string rubbish(std::size_t size)
{
    std::mt19937 random(1);
    std::string s(size, '\0');
    for (char& c : s)
        c = char(random() & 0xff);
    return s;
}

// A folder of this process for as long as a test runs.
struct Folder {
    fs::path const path = fs::temp_directory_path() / ("sollevinodue-audio-" + std::to_string(getpid()));

    Folder() { fs::create_directories(path); }
    Folder(Folder const&) = delete;
    Folder& operator=(Folder const&) = delete;
    ~Folder() { fs::remove_all(path); }

    fs::path write(std::string const& name, std::string const& content) const
    {
        std::ofstream(path / name, std::ios::binary) << content;
        return path / name;
    }
};

// ---- Ears

constexpr int silence = 1;  // the synthesiser dithers

int loudest(Samples const& s, double from = 0, double to = 1e6)
{
    int peak = 0;
    for (auto i = std::size_t(from * rate) * 2; i < std::min(s.size(), std::size_t(to * rate) * 2); ++i)
        peak = std::max(peak, std::abs(int(s[i])));
    return peak;
}

// Whether a frequency sounds at a time, within 60 ms of the left channel.
bool hears(Samples const& s, double frequency, double from)
{
    auto const begin = std::size_t(from * rate), n = std::size_t(0.06 * rate);
    double const turn = 2 * std::numbers::pi / rate;
    std::complex<double> sum = 0;
    for (std::size_t i = 0; i < n && 2 * (begin + i) < s.size(); ++i)
        sum += s[2 * (begin + i)] * (1 - std::cos(turn * double(i) / 0.06)) *
               std::polar(1.0, turn * frequency * double(i));
    return std::abs(sum) / double(n) > 150;
}

// Seconds during which a frequency sounds.
double duration(Samples const& s, double frequency)
{
    double sum = 0;
    for (double t = 0; t < double(s.size()) / 2 / rate; t += 0.02)
        sum += hears(s, frequency, t) ? 0.02 : 0;
    return sum;
}

// ---- The mixer, frame by frame

Samples mix(Mixer& mixer, double seconds)
{
    Samples all(std::size_t(seconds * rate) * 2);
    for (std::size_t i = 0; i < all.size(); i += 1024)
        mixer.mix(std::span(all).subspan(i, std::min<std::size_t>(1024, all.size() - i)));
    return all;
}

void play(Mixer& mixer, std::string const& midi) { mixer.play_tune(std::as_bytes(std::span(midi))); }

// Seconds until the end of the tune is told, or -1 if it is not within ten.
double end_of_tune(Mixer& mixer)
{
    for (int i = 0; i < 1000; ++i) {
        if (mixer.tune_ended())
            return i / 100.0;
        mix(mixer, 0.01);
    }
    return -1;
}

std::shared_ptr<Samples const> ramp(std::size_t frames, int first)
{
    auto s = std::make_shared<Samples>(frames * 2);
    std::iota(s->begin(), s->end(), std::int16_t(first));
    return s;
}

TEST(Mixer, PlaysTheNotesOfATuneWithACardOnTop)
{
    Folder const folder;
    Mixer mixer;
    mixer.load_font();
    play(mixer, tune({low, high}));
    Samples const first = mix(mixer, 0.6);
    mixer.play_sound(
        std::make_shared<Samples const>(audio::load_wave(folder.write("card.wav", wave(3000, 0.15)))));
    Samples const second = mix(mixer, 3);

    EXPECT_TRUE(hears(first, low_tone, 0.3) && !hears(first, high_tone, 0.3));
    EXPECT_TRUE(hears(second, high_tone, 0.05) && hears(second, 3000, 0.05));
    EXPECT_TRUE(!hears(second, low_tone, 0.25) && !hears(second, 3000, 0.25));
    EXPECT_LE(loudest(second, 2.5), silence);
}

TEST(Mixer, StartsTheSameSoundAgainLetsAnotherRingOutAndClips)
{
    auto const card = ramp(rate * 15 / 100, 100), bell = ramp(rate / 10, 30'000);
    Mixer mixer;
    for (int i = 0; i < 3; ++i) {
        mixer.play_sound(card);
        EXPECT_EQ(mix(mixer, 0.13), Samples(card->begin(), card->begin() + rate * 13 / 100 * 2)) << i;
    }
    mixer.play_sound(bell);
    mixer.play_sound(card);
    Samples const both = mix(mixer, 1);
    for (std::size_t i = 0; i < both.size(); ++i) {
        int const sum = (i < bell->size() ? (*bell)[i] : 0) + (i < card->size() ? (*card)[i] : 0);
        ASSERT_EQ(both[i], std::clamp(sum, -32768, 32767)) << i;
    }
}

TEST(Mixer, TellsTheEndAfterAPauseButNotACut)
{
    Mixer mixer;
    mixer.load_font();
    for (bool const hangs : {false, true, false}) {
        play(mixer, tune({low, high}, hangs));
        EXPECT_NEAR(end_of_tune(mixer), 2.5, 0.1) << hangs;
        mix(mixer, 0.1);
        EXPECT_LE(loudest(mix(mixer, 0.5)), silence) << hangs;
    }
    EXPECT_FALSE(mixer.silent());
    mix(mixer, 10);
    EXPECT_TRUE(mixer.silent());
    play(mixer, tune({low}));
    EXPECT_FALSE(mixer.silent() || mixer.tune_ended());
    mix(mixer, 0.3);
    mixer.stop_tune();  // takes some milliseconds to die away
    EXPECT_LE(loudest(mix(mixer, 1), 0.012), silence);
    EXPECT_EQ(end_of_tune(mixer), -1);
    play(mixer, tune({high}));
    EXPECT_FALSE(hears(mix(mixer, 0.5), low_tone, 0.1));
}

TEST(Mixer, ABrokenTuneIsSilentAndHasNoEnd)
{
    std::string const good = tune({low});
    std::vector<std::string> broken{rubbish(5000), good.substr(0, 14) + rubbish(5000), tune({})};
    for (std::size_t cut = 0; cut < good.size(); ++cut)
        broken.push_back(good.substr(0, cut));
    Mixer mixer;
    mixer.load_font();
    for (auto const& midi : broken) {
        play(mixer, midi);
        EXPECT_LE(loudest(mix(mixer, 3)), silence) << midi.size();
        EXPECT_FALSE(mixer.tune_ended()) << midi.size();
    }
    mix(mixer, 10);
    EXPECT_TRUE(mixer.silent());

    std::mt19937 random(2);
    for (int i = 0; i < 200; ++i) {  // whatever these sound like, they leave the mixer whole
        std::string odd = good;
        for (int flips = 0; flips < 3; ++flips)
            odd[random() % odd.size()] = char(random() & 0xff);
        play(mixer, odd);
        mix(mixer, 0.1);
    }
    play(mixer, good);
    EXPECT_NEAR(end_of_tune(mixer), 2, 0.1);
}

TEST(Mixer, WithoutASoundFontOnlySoundsAreHeard)
{
    Mixer mixer;
    char const* const nowhere[] = {"/nowhere/font.sf2"};
    mixer.load_font(nowhere);
    play(mixer, tune({low}));
    mixer.play_sound(ramp(100, 1));
    EXPECT_EQ(loudest(mix(mixer, 1)), 200);
    EXPECT_EQ(end_of_tune(mixer), -1);
}

TEST(WaveFile, AnyRateAndUpToEightChannelsSoundTheSame)
{
    Folder const folder;
    for (auto const& [wave_rate, channels] :
         {std::pair{44100, 1}, {8000, 1}, {22050, 2}, {48000, 6}, {96000, 8}}) {
        Samples const s = audio::load_wave(folder.write("a.wav", wave(1000, 0.5, wave_rate, channels)));
        EXPECT_NEAR(double(s.size()), rate, 200) << wave_rate << ' ' << channels;
        EXPECT_TRUE(hears(s, 1000, 0.2)) << wave_rate << ' ' << channels;
        EXPECT_NEAR(loudest(s, 0.1, 0.4), 8000, 800) << wave_rate << ' ' << channels;
    }
    Samples const s = audio::load_wave(folder.write("a.wav", wave(100, 25, 8000)));
    EXPECT_EQ(s.size(), std::size_t(20 * rate * 2));
}

TEST(WaveFile, AFaultyOneIsShortOrEmpty)
{
    Folder const folder;
    std::string const good = wave(1000, 0.1);
    for (std::size_t cut = 0; cut < good.size(); cut += cut < 60 ? 1 : 501)
        EXPECT_LE(audio::load_wave(folder.write("a.wav", good.substr(0, cut))).size(), good.size()) << cut;
    for (auto const& bad : {std::string(), rubbish(5000), good.substr(0, 20) + rubbish(5000), wave(1, 10, 3),
                            wave(1, 1, 400'000), wave(100, 0.1, rate, 9)})
        EXPECT_TRUE(audio::load_wave(folder.write("a.wav", bad)).empty());
    EXPECT_TRUE(audio::load_wave(folder.path / "missing").empty());
    EXPECT_TRUE(audio::load_wave(folder.path).empty());
}

// ---- The devices, through a file

class Devices : public testing::Test {
  protected:
    void SetUp() override
    {
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIODELAY", "1", 1);
        setenv("SDL_DISKAUDIOFILE", (folder.path / "mix").c_str(), 1);
        testing::internal::CaptureStderr();
        start();
    }

    void TearDown() override
    {
        stop_devices();
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    }

    void start()
    {
        start_devices(
            [this](auto f) {
                std::lock_guard const lock(mutex);
                posted.push_back(std::move(f));
            },
            [this](int code) {
                codes.push_back(code);
                if (codes.size() == 1 && repeat)
                    play_again(Device::music);
            },
            [](audio::Tell tell) { return std::unique_ptr<audio::Player>(sollevinodue_player(tell)); });
    }

    // Rounds of the game's loop until something holds. False if it never does.
    bool run_until(auto condition)
    {
        auto const end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        while (std::chrono::steady_clock::now() < end) {
            if (condition())
                return true;
            std::vector<std::function<void()>> now;
            {
                std::lock_guard const lock(mutex);
                now.swap(posted);
            }
            for (auto const& f : now)
                f();
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        return false;
    }

    // Until the file has grown by so many seconds, which it does in silence, too.
    bool run(double seconds)
    {
        double const end = length() + seconds;
        return run_until([&] { return length() >= end; });
    }

    // Each stretch of the file is listened to once, as it comes.
    bool run_until_heard(double frequency, double seconds)
    {
        double from = 0, sum = 0;
        return run_until([&] {
            Samples const s = mixed();
            for (; from + 0.06 < double(s.size()) / 2 / rate; from += 0.02)
                sum += hears(s, frequency, from) ? 0.02 : 0;
            return sum > seconds;
        });
    }

    bool run_to_the_end_of_the_tune()
    {
        return run_until([this] { return !codes.empty(); });
    }

    bool end_is_posted()
    {
        std::lock_guard const lock(mutex);
        return !posted.empty();
    }

    // While the game's loop stands still.
    bool wait_for_the_end_to_be_posted()
    {
        for (int i = 0; i < 60'000 && !end_is_posted(); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return end_is_posted();
    }

    // What the file holds by now, in seconds and in full.
    double length() const
    {
        std::error_code none_yet;
        auto const size = fs::file_size(folder.path / "mix", none_yet);
        return none_yet ? 0 : double(size) / 4 / rate;
    }

    Samples mixed() const
    {
        auto const bytes = audio::read_file(folder.path / "mix", 1 << 30);
        Samples s(bytes.size() / 4 * 2);
        if (!s.empty())
            std::memcpy(s.data(), bytes.data(), s.size() * 2);
        return s;
    }

    static void open(Device d, fs::path const& file)
    {
        device_close(d);
        device_file(d, file);
        device_open(d);
    }

    static void play_again(Device d)
    {
        device_rewind(d);
        device_play(d);
    }

    Folder folder;
    std::vector<int> codes;  // what the devices have told
    bool repeat = false;     // play the first tune that ends again

  private:
    std::mutex mutex;
    std::vector<std::function<void()>> posted;
};

TEST_F(Devices, ATuneIsToldOnceAndPlaysAgainAfterRewind)
{
    repeat = true;
    open(Device::music, folder.write("Rondò a capriccio.mid", tune({low})));
    device_play(Device::music);
    ASSERT_TRUE(run_until([this] { return codes.size() == 2; }));
    device_play(Device::music);  // it stands at its end
    ASSERT_TRUE(run(4));
    EXPECT_EQ(codes, (std::vector{1, 1}));
    EXPECT_NEAR(duration(mixed(), low_tone), 1, 0.2);
}

TEST_F(Devices, ACutTuneIsSilentAndTellsNothing)
{
    open(Device::music, folder.write("long.mid", tune(std::vector<int>(1000, low))));
    device_play(Device::music);
    ASSERT_TRUE(run_until_heard(low_tone, 0.1));
    device_rewind(Device::music);  // neither of the two touches what plays
    device_file(Device::music, folder.write("short.mid", tune({high})));
    ASSERT_TRUE(run_until_heard(low_tone, 0.5));
    device_close(Device::music);
    device_play(Device::music);
    ASSERT_TRUE(run_until([this] {
        Samples const s = mixed();
        return loudest(s, std::max(0.0, double(s.size()) / 2 / rate - 2)) <= silence;
    }));
    EXPECT_TRUE(codes.empty());
    device_open(Device::music);
    device_play(Device::music);
    ASSERT_TRUE(run_to_the_end_of_the_tune());
    EXPECT_NEAR(duration(mixed(), high_tone), 0.5, 0.2);
}

TEST_F(Devices, AnEndOnItsWayIsDroppedWithANewChoice)
{
    open(Device::music, folder.write("short.mid", tune({low})));
    device_play(Device::music);
    ASSERT_TRUE(wait_for_the_end_to_be_posted());
    open(Device::music, folder.write("long.mid", tune(std::vector<int>(1000, high))));
    device_play(Device::music);
    ASSERT_TRUE(run_until_heard(high_tone, 0.1));
    EXPECT_TRUE(codes.empty());
}

TEST_F(Devices, AnEffectRingsOutWhenTheNextIsOpened)
{
    auto const card = folder.write("carta.wav", wave(3000, 0.15)),
               bell = folder.write("Notify.wav", wave(700, 1));
    open(Device::music, folder.write("long.mid", tune(std::vector<int>(10'000, high))));
    device_play(Device::music);
    open(Device::effects, bell);
    play_again(Device::effects);
    open(Device::effects, card);
    ASSERT_TRUE(run_until_heard(700, 0.9));
    for (double const heard : {0.1, 0.25}) {
        play_again(Device::effects);
        ASSERT_TRUE(run_until_heard(3000, heard));
        ASSERT_TRUE(run(0.3));  // to its end
    }
    device_play(Device::effects);  // stands there
    device_close(Device::effects);
    play_again(Device::effects);  // not open
    ASSERT_TRUE(run(0.3));

    // After a silence the device is given back; the next sound opens it again, and with it a new file.
    device_close(Device::music);
    double longest = 0;
    ASSERT_TRUE(run_until([&, still = 0]() mutable {
        still = length() <= longest ? still + 1 : 0;
        longest = length();
        return still == 300;
    }));
    EXPECT_NEAR(duration(mixed(), 700), 1, 0.1);
    EXPECT_NEAR(duration(mixed(), 3000), 0.35, 0.1);
    device_open(Device::effects);
    device_play(Device::effects);
    ASSERT_TRUE(run_until_heard(3000, 0.1));
    EXPECT_LT(length(), longest);
}

TEST_F(Devices, AFloodOfChoicesPlaysTheLast)
{
    auto const first = folder.write("first.mid", tune({low, low})),
               last = folder.write("last.mid", tune({high}));
    open(Device::effects, folder.write("carta.wav", wave(3000, 0.15)));
    auto const start = std::chrono::steady_clock::now();
    for (int i = 0; i < 1000; ++i) {
        open(Device::music, i < 999 ? first : last);
        device_play(Device::music);
        play_again(Device::effects);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    ASSERT_TRUE(run_to_the_end_of_the_tune());
    ASSERT_TRUE(run(4));
    EXPECT_EQ(codes.size(), 1u);
    EXPECT_NEAR(duration(mixed(), high_tone), 0.5, 0.2);
}

TEST_F(Devices, BrokenAndMissingFilesAreSilenceAndTheNextTunePlays)
{
    std::string const good_tune = tune({low}), good_wave = wave(1000, 0.1);
    std::vector<std::pair<fs::path, fs::path>> const bad{
        {folder.write("0.mid", ""), folder.write("0.wav", "")},
        {folder.write("1.mid", rubbish(3000)), folder.write("1.wav", rubbish(3000))},
        {folder.write("2.mid", good_tune.substr(0, 36)), folder.write("2.wav", good_wave.substr(0, 30))},
        {folder.path / "none" / "a.mid", folder.path},
        {"", ""}};
    for (auto const& [midi, sound] : bad) {
        open(Device::music, midi);
        device_play(Device::music);
        open(Device::effects, sound);
        device_play(Device::effects);
        ASSERT_TRUE(run(2));
    }
    EXPECT_TRUE(codes.empty());
    EXPECT_LE(loudest(mixed()), silence);
    open(Device::music, folder.write("good.mid", good_tune));
    device_play(Device::music);
    ASSERT_TRUE(run_to_the_end_of_the_tune());
    EXPECT_NEAR(duration(mixed(), low_tone), 0.5, 0.2);
}

// Before the device is open, within a tune, and with an end that is on its way.
TEST_F(Devices, LeavingCutsEverythingShort)
{
    for (int i = 0; i < 3; ++i) {
        open(Device::music, folder.write("a.mid", tune(std::vector<int>(i < 2 ? 1000 : 1, low))));
        device_play(Device::music);
        ASSERT_TRUE(i != 1 || run_until_heard(low_tone, 0.1));
        ASSERT_TRUE(i != 2 || wait_for_the_end_to_be_posted());
        stop_devices();
        EXPECT_EQ(end_is_posted(), i == 2);
        run_until([n = 0]() mutable { return ++n == 30; });
        EXPECT_TRUE(codes.empty());
        start();
    }
}

TEST_F(Devices, AMachineWithoutSoundIsSilent)
{
    setenv("SDL_AUDIODRIVER", "alsa", 1);
    setenv("ALSA_CONFIG_PATH", "/nowhere", 1);
    for (int i = 0; i < 2; ++i) {
        open(Device::music, folder.write("a.mid", tune({low})));
        device_play(Device::music);
        open(Device::effects, folder.write("a.wav", wave(1000, 0.1)));
        device_play(Device::effects);
        run_until([n = 0]() mutable { return ++n == 100; });
    }
    EXPECT_TRUE(codes.empty());
}

}  // namespace
