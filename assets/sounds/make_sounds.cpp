// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the two sounds of the table, carta.wav and Notify.wav, into the folder given. The same bytes each
// time.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <numbers>
#include <random>
#include <string>
#include <vector>

namespace {

using Sound = std::vector<double>;

constexpr int rate = 44100;
constexpr double two_pi = 2 * std::numbers::pi;

constexpr double seconds(std::size_t i) { return double(i) / rate; }
Sound silence(double length) { return Sound(std::size_t(length * rate)); }

// White noise, -1 to 1. The raw numbers of the generator are the same everywhere, its distributions are not.
class Noise {
  public:
    double operator()() { return double(random_()) / double(std::mt19937::max()) * 2 - 1; }

  private:
    std::mt19937 random_{7};
};

// A band of noise around a frequency in Hz; q is the frequency over the width. Two poles, gain 1 in the
// middle.
class Band {
  public:
    Band(double frequency, double q)
    {
        double const w = two_pi * frequency / rate, alpha = std::sin(w) / (2 * q);
        b_ = alpha / (1 + alpha);
        a1_ = -2 * std::cos(w) / (1 + alpha);
        a2_ = (1 - alpha) / (1 + alpha);
    }

    double operator()(double x)
    {
        double const y = b_ * (x - x2_) - a1_ * y1_ - a2_ * y2_;
        x2_ = x1_, x1_ = x;
        y2_ = y1_, y1_ = y;
        return y;
    }

  private:
    double b_, a1_, a2_;
    double x1_ = 0, x2_ = 0, y1_ = 0, y2_ = 0;
};

// 0 before `start`, a smooth rise within `rise` seconds, then a fall to 1/e within `fall`.
double hit(double t, double start, double rise, double fall)
{
    double const u = t - start;
    if (u <= 0)
        return 0;
    return u < rise ? 0.5 - 0.5 * std::cos(two_pi / 2 * u / rise) : std::exp(-(u - rise) / fall);
}

// A card slides over the cloth for some 50 ms, snaps down with its edge and pats the table under the cloth.
Sound carta()
{
    constexpr double snap = 0.052;
    Noise noise;
    Band slide(2600, 0.6), paper(5200, 0.9), edge(1500, 1.1), cloth(420, 0.8);
    Sound s = silence(0.15);
    for (std::size_t i = 0; i < s.size(); ++i) {
        double const t = seconds(i), white = noise();
        double const drag = std::min(1.0, t / 0.035) * (t < snap ? 1 : std::exp(-(t - snap) / 0.012));
        double const grain = 0.75 + 0.25 * std::sin(two_pi * 95 * t + 2 * std::sin(two_pi * 31 * t));
        double const thump = std::sin(two_pi * (95 * t + 0.9 * std::exp(-(t - snap) / 0.02)));
        s[i] = 0.95 * drag * grain * slide(white)                  // the slide
               + 1.10 * hit(t, snap, 0.001, 0.009) * paper(white)  // the snap
               + 1.30 * hit(t, snap, 0.002, 0.016) * edge(white)   //
               + 1.60 * hit(t, snap, 0.003, 0.022) * cloth(white)  // the pat
               + 0.34 * hit(t, snap, 0.004, 0.024) * thump;
    }
    return s;
}

// Two notes of a small bell, a fourth apart.
Sound notify()
{
    struct Partial {
        double ratio, gain, fall;
    };
    constexpr Partial bell[] = {
        {0.5, 0.18, 0.30}, {1, 1, 0.26}, {2.003, 0.32, 0.17}, {2.99, 0.12, 0.09}, {4.17, 0.06, 0.05}};
    Sound s = silence(1.1);
    for (std::size_t i = 0; i < s.size(); ++i)
        for (auto const [start, frequency, gain] :
             {std::array{0.0, 783.99, 0.8}, std::array{0.22, 1046.5, 1.0}})
            for (auto const& p : bell)
                s[i] += gain * p.gain * hit(seconds(i), start, 0.006, p.fall) *
                        std::sin(two_pi * frequency * p.ratio * (seconds(i) - start));
    return s;
}

// Brings the sound to its loudness in dB of full scale and its last 20 ms to nothing.
void finish(Sound& s, double peak)
{
    constexpr std::size_t fade = rate / 50;
    for (std::size_t i = 0; i < fade; ++i)
        s[s.size() - 1 - i] *= double(i) / fade;
    double largest = 0;
    for (double const x : s)
        largest = std::max(largest, std::abs(x));
    for (double& x : s)
        x *= std::pow(10, peak / 20) / largest;
}

// 44.1 kHz, 16 bit, one channel.
bool write_wave(std::filesystem::path const& file, Sound const& s)
{
    std::string bytes;
    auto number = [&](std::uint32_t value, int size) {
        for (int i = 0; i < size; ++i)
            bytes += char(value >> (8 * i) & 0xff);
    };
    auto const size = std::uint32_t(s.size() * 2);
    bytes += "RIFF";
    number(36 + size, 4);
    bytes += "WAVEfmt ";
    number(16, 4), number(1, 2), number(1, 2), number(rate, 4), number(rate * 2, 4), number(2, 2),
        number(16, 2);
    bytes += "data";
    number(size, 4);
    for (double const x : s)
        number(std::uint32_t(std::lround(x * 32767)), 2);
    std::ofstream out(file, std::ios::binary);
    out << bytes;
    return bool(out.flush());
}

}  // namespace

int main(int argc, char** argv)
{
    std::filesystem::path const folder = argc > 1 ? argv[1] : ".";
    Sound card = carta(), bell = notify();
    finish(card, -9);
    finish(bell, -9);
    if (write_wave(folder / "carta.wav", card) && write_wave(folder / "Notify.wav", bell))
        return 0;
    std::cerr << "make_sounds: cannot write into " << folder << '\n';
    return 1;
}
