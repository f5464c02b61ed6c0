// The sound effects, each built from tones and filtered noise. Levels and filters are chosen to
// stay soft on small classroom speakers: nothing above ~10 kHz, no bare square waves.
#include "asset_gen.h"
#include "dice.h"
#include "wav.h"

#include <cmath>
#include <numbers>

namespace wm::assetgen {

namespace {

double noteHz(int midi) {
    return 440.0 * std::pow(2.0, (midi - 69) / 12.0);
}

// A bell shape over 0..1 peaking at `at`.
double hump(double u, double at) {
    const double x = u < at ? u / at : (1 - u) / (1 - at);
    return std::sin(x * std::numbers::pi / 2);
}

// A brass-like note: rich harmonics that mellow as it sounds, lightly chorused.
void brass(Synth& s, double start, double length, int midi, double amp,
           double vibratoDelay = 0.35) {
    for (double detune : {-0.06, 0.06}) {
        Tone t;
        t.start = start;
        t.length = length;
        t.freq = noteHz(midi) * std::pow(2.0, detune / 12);
        t.amp = amp / 2;
        t.attack = 0.03;
        t.release = std::min(0.25, length * 0.4);
        t.partials = harmonics(10, 1.25);
        t.brightDecay = 0.9;
        t.vibratoRate = 5.5;
        t.vibratoDepth = 0.12;
        t.vibratoDelay = vibratoDelay;
        s.tone(t);
    }
}

// A glockenspiel strike: bar partials that die away, the high ones first.
void chime(Synth& s, double start, int midi, double amp, double length = 1.2) {
    Tone t;
    t.start = start;
    t.length = length;
    t.freq = noteHz(midi);
    t.amp = amp;
    t.attack = 0.002;
    t.decay = length * 0.35;
    t.release = 0.1;
    t.partials = {{1, 1}, {2.76, 0.3}, {5.4, 0.1}, {8.93, 0.04}};
    t.brightDecay = 3;
    s.tone(t);
}

void cymbal(Synth& s, double start, double length, double amp, std::uint64_t seed) {
    Noise n;
    n.start = start;
    n.length = length;
    n.amp = amp;
    n.attack = 0.004;
    n.decay = length * 0.3;
    n.release = length * 0.3;
    n.filter = Noise::Filter::HighPass;
    n.cutoff = 5000;
    n.q = 0.7;
    n.seed = seed;
    s.noise(n);
}

// One clap: a tight burst of band-passed noise.
void clap(Synth& s, double start, double amp, double centre, std::uint64_t seed) {
    Noise n;
    n.start = start;
    n.length = 0.06;
    n.amp = amp;
    n.attack = 0.001;
    n.decay = 0.012;
    n.release = 0.01;
    n.cutoff = centre;
    n.q = 1.3;
    n.seed = seed;
    s.noise(n);
}

// Applause: many claps whose density follows `density` (0..1 over the sound).
void crowdClaps(Synth& s, double start, double length, int claps, std::uint64_t seed,
                const std::function<double(double)>& density, double amp) {
    Dice dice(seed);
    int placed = 0;
    while (placed < claps) {
        const double u = dice.unit();
        if (dice.unit() > density(u)) continue;
        clap(s, start + u * length, amp * dice.range(0.35, 1.0), dice.range(900, 2600),
             dice.next());
        ++placed;
    }
}

// A voice singing a vowel: harmonics weighted by two formants.
void voice(Synth& s, double start, double length, double f0, double amp, double f1, double f2,
           std::function<double(double)> bend, double vibrato) {
    Tone t;
    t.start = start;
    t.length = length;
    t.freq = f0;
    t.amp = amp;
    t.attack = 0.08;
    t.release = length * 0.45;
    t.partials.clear();
    for (int k = 1; k <= 24; ++k) {
        const double f = k * f0;
        const double w = std::exp(-std::pow((f - f1) / 160, 2)) +
                         0.6 * std::exp(-std::pow((f - f2) / 220, 2)) + 0.08 / k;
        t.partials.push_back({k, w});
    }
    t.bend = std::move(bend);
    t.vibratoRate = vibrato;
    t.vibratoDepth = 0.25;
    s.tone(t);
}

std::vector<std::int16_t> tolvane() {
    Synth s(4.0);
    // Rising call, then the held chord with a shimmer on top.
    const int call[] = {67, 72, 76};
    for (int i = 0; i < 3; ++i) brass(s, 0.05 + i * 0.16, 0.2, call[i], 0.5);
    brass(s, 0.53, 0.45, 79, 0.55);
    brass(s, 0.98, 0.18, 76, 0.5);
    brass(s, 1.16, 2.6, 79, 0.55);
    for (int m : {60, 64, 67, 72}) brass(s, 1.16, 2.6, m, 0.28, 0.6);
    for (double at : {0.53, 1.16}) {
        Tone thump;
        thump.start = at;
        thump.length = 0.6;
        thump.freq = 98;
        thump.freqEnd = 80;
        thump.amp = 0.6;
        thump.decay = 0.18;
        s.tone(thump);
    }
    cymbal(s, 1.16, 2.4, 0.25, 11);
    const int sparkle[] = {84, 88, 91, 96};
    for (int i = 0; i < 4; ++i) chime(s, 1.5 + i * 0.12, sparkle[i], 0.16, 2.0);
    s.soften(7000);
    return s.finish(0.85);
}

std::vector<std::int16_t> ufofly() {
    Synth s(2.2);
    auto pass = [](double u) { return hump(u, 0.45); };
    Tone ufo;
    ufo.length = 2.2;
    ufo.freq = 620;
    ufo.amp = 0.45;
    ufo.attack = 0.3;
    ufo.release = 0.5;
    ufo.partials = {{1, 1}, {2, 0.25}, {3, 0.12}};
    // The pitch warbles and drops as it passes, like a flying saucer overhead.
    ufo.bend = [](double t) {
        return 1.6 * std::sin(2 * std::numbers::pi * 7 * t) + 3 - 6 / (1 + std::exp(-(t - 1) * 5));
    };
    ufo.swell = pass;
    s.tone(ufo);
    Noise air;
    air.length = 2.2;
    air.amp = 0.9;
    air.attack = 0.2;
    air.release = 0.4;
    air.q = 1.4;
    air.sweep = [](double u) { return 400 + 2200 * hump(u, 0.45); };
    air.swell = pass;
    air.seed = 3;
    s.noise(air);
    s.soften(6500);
    return s.finish(0.8);
}

std::vector<std::int16_t> applause() {
    Synth s(3.0);
    auto density = [](double u) {
        return std::min(1.0, u / 0.08) * (u > 0.55 ? (1 - u) / 0.45 : 1);
    };
    crowdClaps(s, 0, 3.0, 260, 7, density, 0.7);
    Noise bed;
    bed.length = 3.0;
    bed.amp = 0.18;
    bed.filter = Noise::Filter::LowPass;
    bed.cutoff = 2500;
    bed.swell = density;
    bed.seed = 8;
    s.noise(bed);
    s.soften(8000);
    return s.finish(0.7);
}

std::vector<std::int16_t> fall() {
    Synth s(1.0);
    Tone whistle;
    whistle.length = 1.0;
    whistle.freq = 1700;
    whistle.freqEnd = 240;
    whistle.amp = 0.6;
    whistle.attack = 0.02;
    whistle.release = 0.2;
    whistle.partials = {{1, 1}, {2, 0.12}, {3, 0.04}};
    whistle.vibratoRate = 6;
    whistle.vibratoDepth = 0.3;
    s.tone(whistle);
    Noise breath;
    breath.length = 1.0;
    breath.amp = 0.08;
    breath.cutoff = 1700;
    breath.cutoffEnd = 240;
    breath.q = 4;
    breath.seed = 5;
    s.noise(breath);
    return s.finish(0.5);
}

std::vector<std::int16_t> click() {
    Synth s(0.05);
    Noise n;
    n.length = 0.02;
    n.amp = 0.8;
    n.decay = 0.003;
    n.cutoff = 3200;
    n.q = 1.5;
    s.noise(n);
    Tone t;
    t.length = 0.04;
    t.freq = 1900;
    t.amp = 0.4;
    t.attack = 0.0005;
    t.decay = 0.006;
    s.tone(t);
    return s.finish(0.6);
}

std::vector<std::int16_t> beep() {
    Synth s(0.18);
    Tone t;
    t.length = 0.18;
    t.freq = 880;
    t.amp = 0.6;
    t.attack = 0.005;
    t.release = 0.05;
    t.partials = {{1, 1}, {2, 0.18}, {3, 0.07}};
    s.tone(t);
    return s.finish(0.45);
}

std::vector<std::int16_t> cheer() {
    Synth s(2.6);
    Dice dice(12);
    for (int i = 0; i < 14; ++i) {
        const double rise = dice.range(3, 6);
        voice(
            s, dice.range(0, 0.25), dice.range(1.7, 2.3), dice.range(190, 420),
            dice.range(0.1, 0.18), dice.range(700, 850), dice.range(1100, 1300),
            [rise](double t) {
                return rise * std::min(1.0, t / 0.35) - 1.5 * std::max(0.0, t - 0.8);
            },
            dice.range(4.5, 6.5));
    }
    crowdClaps(
        s, 0.1, 2.4, 150, 13, [](double u) { return u > 0.6 ? (1 - u) / 0.4 : 1.0; }, 0.5);
    s.soften(6000);
    return s.finish(0.75);
}

std::vector<std::int16_t> ooh() {
    Synth s(1.7);
    Dice dice(14);
    // A disappointed crowd: "oo" vowels sliding down together.
    for (int i = 0; i < 9; ++i) {
        voice(
            s, dice.range(0, 0.08), dice.range(1.4, 1.65), dice.range(150, 300),
            dice.range(0.12, 0.2), dice.range(320, 420), dice.range(800, 900),
            [](double t) { return 1.5 * std::min(1.0, t / 0.2) - 6 * std::max(0.0, t - 0.25); },
            dice.range(4, 5.5));
    }
    s.soften(4000);
    return s.finish(0.75);
}

std::vector<std::int16_t> ricochet() {
    Synth s(0.75);
    Noise crack;
    crack.length = 0.03;
    crack.amp = 0.6;
    crack.decay = 0.006;
    crack.cutoff = 3500;
    crack.q = 1.2;
    crack.seed = 9;
    s.noise(crack);
    Tone zing;
    zing.start = 0.005;
    zing.length = 0.72;
    zing.freq = 2900;
    zing.freqEnd = 850;
    zing.amp = 0.5;
    zing.attack = 0.004;
    zing.decay = 0.3;
    zing.release = 0.1;
    zing.partials = {{1, 1}, {2.01, 0.2}};
    zing.vibratoRate = 30;
    zing.vibratoDepth = 0.15;
    s.tone(zing);
    return s.finish(0.7);
}

std::vector<std::int16_t> ding() {
    Synth s(1.3);
    chime(s, 0, 84, 0.6, 1.2);
    chime(s, 0.11, 91, 0.55, 1.19);
    return s.finish(0.75);
}

std::vector<std::int16_t> buzz() {
    Synth s(0.6);
    for (double f : {98.0, 103.6}) {
        Tone t;
        t.length = 0.55;
        t.freq = f;
        t.amp = 0.35;
        t.attack = 0.01;
        t.release = 0.08;
        t.partials = harmonics(24, 1.0);
        s.tone(t);
    }
    s.soften(1600);
    return s.finish(0.6);
}

std::vector<std::int16_t> pop() {
    Synth s(0.12);
    Tone t;
    t.length = 0.1;
    t.freq = 320;
    t.freqEnd = 1300;
    t.amp = 0.7;
    t.attack = 0.001;
    t.decay = 0.025;
    t.partials = {{1, 1}, {2, 0.15}};
    s.tone(t);
    Noise n;
    n.length = 0.01;
    n.amp = 0.3;
    n.cutoff = 2000;
    n.seed = 10;
    s.noise(n);
    return s.finish(0.65);
}

std::vector<std::int16_t> tick() {
    Synth s(0.06);
    Tone t;
    t.length = 0.05;
    t.freq = 1750;
    t.amp = 0.6;
    t.attack = 0.0005;
    t.decay = 0.008;
    t.partials = {{1, 1}, {1.67, 0.5}, {2.9, 0.2}};
    s.tone(t);
    Noise n;
    n.length = 0.006;
    n.amp = 0.4;
    n.cutoff = 5000;
    n.seed = 6;
    s.noise(n);
    return s.finish(0.55);
}

std::vector<std::int16_t> whoosh() {
    Synth s(0.7);
    Noise n;
    n.length = 0.7;
    n.amp = 1;
    n.attack = 0.05;
    n.release = 0.2;
    n.q = 1.6;
    n.sweep = [](double u) { return 300 + 2600 * hump(u, 0.4); };
    n.swell = [](double u) { return hump(u, 0.4); };
    n.seed = 4;
    s.noise(n);
    Noise body = n;
    body.filter = Noise::Filter::LowPass;
    body.amp = 0.3;
    body.sweep = [](double u) { return 200 + 800 * hump(u, 0.4); };
    body.seed = 5;
    s.noise(body);
    return s.finish(0.75);
}

std::vector<std::int16_t> tada() {
    Synth s(2.0);
    for (int m : {72, 76, 79}) brass(s, 0.02, 0.16, m, 0.35);
    for (int m : {60, 72, 76, 79, 84}) brass(s, 0.22, 1.7, m, 0.32, 0.4);
    Tone thump;
    thump.start = 0.22;
    thump.length = 0.5;
    thump.freq = 110;
    thump.freqEnd = 85;
    thump.amp = 0.5;
    thump.decay = 0.15;
    s.tone(thump);
    cymbal(s, 0.22, 1.6, 0.22, 21);
    for (int i = 0; i < 4; ++i)
        chime(s, 0.45 + i * 0.09, 88 + (i % 2) * 3 + (i / 2) * 12, 0.12, 1.2);
    s.soften(7000);
    return s.finish(0.85);
}

}  // namespace

std::vector<AssetFile> renderSounds() {
    struct Named {
        const char* name;
        std::vector<std::int16_t> (*make)();
    };
    const Named all[] = {{"tolvane", tolvane}, {"ufofly", ufofly}, {"applause", applause},
                         {"fall", fall},       {"click", click},   {"beep", beep},
                         {"cheer", cheer},     {"ooh", ooh},       {"ricochet", ricochet},
                         {"ding", ding},       {"buzz", buzz},     {"pop", pop},
                         {"tick", tick},       {"whoosh", whoosh}, {"tada", tada}};
    std::vector<AssetFile> out;
    for (const Named& n : all) {
        out.push_back(
            {QStringLiteral("sounds/%1.wav").arg(QLatin1String(n.name)), encodeWav(n.make())});
    }
    return out;
}

}  // namespace wm::assetgen
