// Writes Vost's short notification sounds as 16-bit mono PCM WAV files.
//
//   vost-soundgen <output folder>
//
// Every sound is synthesised here from sines, simple waveforms and seeded noise, so
// the output is the same on every build. Each lasts well under half a second.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <functional>
#include <numbers>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int sampleRate = 44100;
constexpr double twoPi = 2.0 * std::numbers::pi;

using Samples = std::vector<double>;

Samples silence(double seconds)
{
    return Samples(static_cast<std::size_t>(seconds * sampleRate), 0.0);
}

double timeOf(std::size_t index)
{
    return static_cast<double>(index) / sampleRate;
}

// Adds a tone starting at `start`, its amplitude shaped by `envelope(t)` and its
// instantaneous frequency given by `frequency(t)`, with t measured from the tone's start.
void addTone(Samples &samples, double start, double duration, const std::function<double(double)> &frequency,
             const std::function<double(double)> &envelope, const std::function<double(double)> &wave)
{
    const auto first = static_cast<std::size_t>(start * sampleRate);
    const auto count = static_cast<std::size_t>(duration * sampleRate);
    double phase = 0.0;
    for (std::size_t i = 0; i < count && first + i < samples.size(); ++i) {
        const double t = timeOf(i);
        samples[first + i] += envelope(t) * wave(phase);
        phase += twoPi * frequency(t) / sampleRate;
        if (phase > twoPi)
            phase -= twoPi;
    }
}

double sine(double phase)
{
    return std::sin(phase);
}

// A band-limited-enough sawtooth made of its first harmonics.
std::function<double(double)> harmonics(int count, double falloff)
{
    return [count, falloff](double phase) {
        double value = 0.0;
        for (int n = 1; n <= count; ++n)
            value += std::sin(n * phase) / std::pow(n, falloff);
        return value / 1.6;
    };
}

double squareish(double phase)
{
    return std::tanh(4.0 * std::sin(phase));
}

std::function<double(double)> constant(double value)
{
    return [value](double) { return value; };
}

// Quick attack, exponential decay.
std::function<double(double)> strike(double level, double decay, double attack = 0.002)
{
    return [=](double t) { return level * std::min(1.0, t / attack) * std::exp(-t / decay); };
}

// Rises, holds and falls over the whole duration.
std::function<double(double)> swell(double level, double duration, double rise, double fall)
{
    return [=](double t) {
        const double in = std::min(1.0, t / rise);
        const double out = std::clamp((duration - t) / fall, 0.0, 1.0);
        return level * in * out;
    };
}

// Seeded white noise through a one-pole low-pass whose cut-off follows `cutoff(t)`.
void addNoise(Samples &samples, double start, double duration, unsigned seed,
              const std::function<double(double)> &cutoff, const std::function<double(double)> &envelope)
{
    std::minstd_rand random(seed);
    std::uniform_real_distribution<double> uniform(-1.0, 1.0);
    const auto first = static_cast<std::size_t>(start * sampleRate);
    const auto count = static_cast<std::size_t>(duration * sampleRate);
    double state = 0.0;
    for (std::size_t i = 0; i < count && first + i < samples.size(); ++i) {
        const double t = timeOf(i);
        const double alpha = 1.0 - std::exp(-twoPi * cutoff(t) / sampleRate);
        state += alpha * (uniform(random) - state);
        samples[first + i] += envelope(t) * state * 3.0;
    }
}

Samples tink()
{
    Samples s = silence(0.16);
    addTone(s, 0, 0.16, constant(2793), strike(0.5, 0.035), sine);
    addTone(s, 0, 0.16, constant(2793 * 2.76), strike(0.25, 0.02), sine);
    addTone(s, 0, 0.16, constant(2793 * 5.40), strike(0.12, 0.012), sine);
    return s;
}

Samples glass()
{
    Samples s = silence(0.45);
    for (const double start : {0.0, 0.05}) {
        addTone(s, start, 0.4, constant(1568), strike(0.35, 0.14), sine);
        addTone(s, start, 0.4, constant(1568 * 2.32), strike(0.18, 0.09), sine);
        addTone(s, start, 0.4, constant(1568 * 4.25), strike(0.08, 0.05), sine);
    }
    return s;
}

Samples ping()
{
    Samples s = silence(0.35);
    addTone(s, 0, 0.35, constant(1175), strike(0.7, 0.09), sine);
    addTone(s, 0, 0.35, constant(2350), strike(0.1, 0.04), sine);
    return s;
}

Samples hero()
{
    Samples s = silence(0.46);
    const double notes[] = {523.25, 659.25, 783.99, 1046.5};
    for (int i = 0; i < 4; ++i) {
        const double length = i == 3 ? 0.22 : 0.08;
        addTone(s, i * 0.08, length, constant(notes[i]), swell(0.35, length, 0.01, 0.05), harmonics(6, 1.3));
    }
    return s;
}

Samples basso()
{
    Samples s = silence(0.38);
    addTone(
        s, 0, 0.38, [](double t) { return 110.0 - 18.0 * t; }, swell(0.4, 0.38, 0.01, 0.2), squareish);
    addTone(s, 0, 0.38, constant(55), swell(0.25, 0.38, 0.01, 0.2), sine);
    return s;
}

Samples pop()
{
    Samples s = silence(0.09);
    addTone(
        s, 0, 0.09, [](double t) { return 150.0 + 550.0 * std::exp(-t / 0.012); }, strike(0.85, 0.025, 0.001), sine);
    return s;
}

Samples purr()
{
    Samples s = silence(0.42);
    const auto flutter = [](double t) {
        const double base = swell(0.5, 0.42, 0.05, 0.12)(t);
        return base * (0.55 + 0.45 * std::sin(twoPi * 24.0 * t));
    };
    addTone(s, 0, 0.42, constant(185), flutter, harmonics(4, 2.0));
    return s;
}

Samples blow()
{
    Samples s = silence(0.4);
    addNoise(
        s, 0, 0.4, 7u, [](double t) { return 600.0 + 2500.0 * std::sin(std::numbers::pi * t / 0.4); },
        swell(0.5, 0.4, 0.15, 0.2));
    return s;
}

Samples funk()
{
    Samples s = silence(0.32);
    for (const double start : {0.0, 0.14}) {
        const double pitch = start == 0.0 ? 196.0 : 147.0;
        addTone(
            s, start, 0.16, [pitch](double t) { return pitch * (1.0 + 0.15 * std::exp(-t / 0.02)); },
            strike(0.45, 0.07, 0.004), harmonics(10, 0.8));
    }
    return s;
}

Samples morse()
{
    Samples s = silence(0.4);
    // Dah, dit, dit.
    const double marks[][2] = {{0.0, 0.15}, {0.2, 0.06}, {0.31, 0.06}};
    for (const auto &mark : marks)
        addTone(s, mark[0], mark[1], constant(800), swell(0.5, mark[1], 0.004, 0.006), sine);
    return s;
}

Samples sosumi()
{
    Samples s = silence(0.42);
    addTone(s, 0.0, 0.2, constant(1318.5), strike(0.5, 0.06), sine);
    addTone(s, 0.0, 0.2, constant(1318.5 * 3.9), strike(0.12, 0.02), sine);
    addTone(s, 0.12, 0.3, constant(987.77), strike(0.5, 0.08), sine);
    addTone(s, 0.12, 0.3, constant(987.77 * 3.9), strike(0.12, 0.025), sine);
    return s;
}

Samples submarine()
{
    Samples s = silence(0.46);
    // A sonar ping with two fading echoes.
    const double echoes[][2] = {{0.0, 0.55}, {0.16, 0.22}, {0.3, 0.09}};
    for (const auto &echo : echoes)
        addTone(s, echo[0], 0.16, constant(523), strike(echo[1], 0.05, 0.005), sine);
    return s;
}

Samples bottle()
{
    Samples s = silence(0.36);
    const auto vibrato = [](double t) { return 349.0 * (1.0 + 0.012 * std::sin(twoPi * 6.0 * t)); };
    addTone(s, 0, 0.36, vibrato, swell(0.5, 0.36, 0.06, 0.12), sine);
    addTone(
        s, 0, 0.36, [&](double t) { return 2 * vibrato(t); }, swell(0.06, 0.36, 0.06, 0.12), sine);
    addNoise(s, 0, 0.36, 11u, constant(1500), swell(0.08, 0.36, 0.02, 0.2));
    return s;
}

Samples frog()
{
    Samples s = silence(0.42);
    for (const double start : {0.0, 0.22}) {
        const auto croak = [](double t) {
            const double gate = std::sin(twoPi * 32.0 * t) > 0.0 ? 1.0 : 0.2;
            return gate * swell(0.45, 0.18, 0.01, 0.05)(t);
        };
        addTone(
            s, start, 0.18, [](double t) { return 130.0 + 40.0 * t; }, croak, harmonics(12, 0.7));
    }
    return s;
}

void putLittleEndian(std::string &out, std::uint32_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        out.push_back(static_cast<char>((value >> (8 * i)) & 0xFF));
}

// 16-bit mono PCM, normalised so that the loudest sample is at about -3 dBFS.
std::string waveFile(Samples samples)
{
    double peak = 0.0;
    for (const double sample : samples)
        peak = std::max(peak, std::abs(sample));
    const double gain = peak > 0.0 ? 0.7 / peak : 0.0;
    // A short fade at the end, so no sound stops on a click.
    const std::size_t fade = std::min<std::size_t>(samples.size(), sampleRate / 200);
    for (std::size_t i = 0; i < fade; ++i)
        samples[samples.size() - 1 - i] *= static_cast<double>(i) / static_cast<double>(fade);

    const auto dataSize = static_cast<std::uint32_t>(samples.size() * 2);
    std::string out;
    out.reserve(44 + dataSize);
    out += "RIFF";
    putLittleEndian(out, 36 + dataSize, 4);
    out += "WAVEfmt ";
    putLittleEndian(out, 16, 4); // chunk size
    putLittleEndian(out, 1, 2);  // PCM
    putLittleEndian(out, 1, 2);  // mono
    putLittleEndian(out, sampleRate, 4);
    putLittleEndian(out, sampleRate * 2, 4); // bytes per second
    putLittleEndian(out, 2, 2);              // block align
    putLittleEndian(out, 16, 2);             // bits per sample
    out += "data";
    putLittleEndian(out, dataSize, 4);
    for (const double sample : samples) {
        const auto value = static_cast<std::int16_t>(std::lround(std::clamp(sample * gain, -1.0, 1.0) * 32767.0));
        putLittleEndian(out, static_cast<std::uint16_t>(value), 2);
    }
    return out;
}

struct Sound {
    const char *name;
    Samples (*make)();
};

constexpr Sound sounds[] = {
    {"Tink", tink},     {"Glass", glass},         {"Ping", ping},     {"Hero", hero}, {"Basso", basso},
    {"Pop", pop},       {"Purr", purr},           {"Blow", blow},     {"Funk", funk}, {"Morse", morse},
    {"Sosumi", sosumi}, {"Submarine", submarine}, {"Bottle", bottle}, {"Frog", frog},
};

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: vost-soundgen <output folder>\n");
        return 2;
    }
    const std::string folder = argv[1];
    for (const Sound &sound : sounds) {
        const std::string path = folder + "/" + sound.name + ".wav";
        std::ofstream file(path, std::ios::binary | std::ios::trunc);
        const std::string bytes = waveFile(sound.make());
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!file) {
            std::fprintf(stderr, "vost-soundgen: cannot write %s\n", path.c_str());
            return 1;
        }
    }
    return 0;
}
