// The background tunes, written as a melody, a chord chart and an accompaniment style; the
// bass, chords and drums are played from the chart. Each tune ends on its last bar line so it
// loops without a gap.
#include "asset_gen.h"
#include "midi.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace wm::assetgen {

namespace {

constexpr std::uint32_t kBeat = kTicksPerQuarter;
constexpr std::uint32_t kBar = kBeat * 4;
constexpr int kDrumChannel = 9;

enum class Bass { Bounce, Pop, Drive, Calm };
enum class Comp { Stabs, Arpeggio, Pad, Harp };
enum class Drums { Straight, Bouncy, Driving, Soft };

struct Tune {
    const char* file;
    const char* title;
    double bpm;
    const char* chords;  // one token a bar; "Dm,G" splits a bar in halves
    QString melody;
    int melodyProgram;
    int doubleProgram;  // plays the melody an octave up from `doubleFromBar`; -1 for none
    int doubleFromBar;
    int compProgram;
    Comp comp;
    int padProgram;  // a held chord under the comp; -1 for none
    int bassProgram;
    Bass bass;
    Drums drums;
};

struct Chord {
    int root = 0;                // pitch class
    std::vector<int> intervals;  // from the root
};

Chord parseChord(const QString& name) {
    static const int kSteps[7] = {9, 11, 0, 2, 4, 5, 7};
    Chord c;
    int i = 1;
    c.root = kSteps[name[0].unicode() - 'A'];
    if (name.size() > 1 && name[1] == QLatin1Char('#')) {
        ++c.root;
        ++i;
    } else if (name.size() > 1 && name[1] == QLatin1Char('b')) {
        c.root += 11;
        ++i;
    }
    c.root %= 12;
    const QString quality = name.mid(i);
    if (quality == QLatin1String("m")) {
        c.intervals = {0, 3, 7};
    } else if (quality == QLatin1String("7")) {
        c.intervals = {0, 4, 7, 10};
    } else if (quality == QLatin1String("m7")) {
        c.intervals = {0, 3, 7, 10};
    } else if (quality == QLatin1String("maj7")) {
        c.intervals = {0, 4, 7, 11};
    } else {
        c.intervals = {0, 4, 7};
    }
    return c;
}

// The chart as a list of (start tick, chord).
std::vector<std::pair<std::uint32_t, Chord>> parseChart(const char* chart) {
    std::vector<std::pair<std::uint32_t, Chord>> out;
    const QStringList bars = QString::fromLatin1(chart).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int b = 0; b < bars.size(); ++b) {
        const QStringList parts = bars[b].split(QLatin1Char(','));
        for (int k = 0; k < parts.size(); ++k) {
            out.push_back({b * kBar + k * kBar / static_cast<std::uint32_t>(parts.size()),
                           parseChord(parts[k])});
        }
    }
    return out;
}

const Chord& chordAt(const std::vector<std::pair<std::uint32_t, Chord>>& chart,
                     std::uint32_t tick) {
    size_t i = 0;
    while (i + 1 < chart.size() && chart[i + 1].first <= tick) ++i;
    return chart[i].second;
}

// Chord degree to a key: 0 root, 1 third, 2 fifth, 3 octave, 4 the seventh (or octave); plus
// `octaves` above the root placed at or above `low`.
int degreeKey(const Chord& c, int degree, int low, int octaves = 0) {
    int root = low + ((c.root - low) % 12 + 12) % 12;
    int key = root;
    if (degree == 1 || degree == 2) key = root + c.intervals[static_cast<size_t>(degree)];
    if (degree == 3) key = root + 12;
    if (degree == 4) key = root + (c.intervals.size() > 3 ? c.intervals[3] : 12);
    return key + 12 * octaves;
}

struct Hit {
    double beat;
    double length;
    int degree;
    int octaves;
};

void playBass(MidiTrack& t, const Tune& tune,
              const std::vector<std::pair<std::uint32_t, Chord>>& chart, int bars, int channel) {
    std::vector<Hit> pattern;
    switch (tune.bass) {
        case Bass::Bounce:
            pattern = {{0, 0.9, 0, 0}, {1, 0.9, 2, 0}, {2, 0.9, 3, 0}, {3, 0.9, 2, 0}};
            break;
        case Bass::Pop:
            pattern = {
                {0, 1.4, 0, 0}, {1.5, 0.5, 2, 0}, {2, 0.9, 0, 0}, {3, 0.5, 2, 0}, {3.5, 0.5, 3, 0}};
            break;
        case Bass::Drive:
            for (int i = 0; i < 6; ++i) pattern.push_back({i * 0.5, 0.45, 0, 0});
            pattern.push_back({3, 0.45, 2, 0});
            pattern.push_back({3.5, 0.45, 3, 0});
            break;
        case Bass::Calm:
            pattern = {{0, 1.9, 0, 0}, {2, 1.9, 2, 0}};
            break;
    }
    for (int b = 0; b < bars; ++b) {
        for (const Hit& h : pattern) {
            const auto at = static_cast<std::uint32_t>(b * kBar + h.beat * kBeat);
            const Chord& c = chordAt(chart, at);
            t.note(at, static_cast<std::uint32_t>(h.length * kBeat), channel,
                   degreeKey(c, h.degree, 36, h.octaves), h.beat == 0 ? 100 : 86);
        }
    }
}

void playComp(MidiTrack& t, const Tune& tune,
              const std::vector<std::pair<std::uint32_t, Chord>>& chart, int bars, int channel) {
    for (int b = 0; b < bars; ++b) {
        const std::uint32_t bar = b * kBar;
        auto chordHit = [&](double beat, double length, int velocity) {
            const auto at = static_cast<std::uint32_t>(bar + beat * kBeat);
            const Chord& c = chordAt(chart, at);
            // Triads, with the seventh on top where the chart asks for one.
            for (int d : {0, 1, 2, 4}) {
                if (d == 4 && c.intervals.size() < 4) break;
                t.note(at, static_cast<std::uint32_t>(length * kBeat), channel, degreeKey(c, d, 55),
                       velocity);
            }
        };
        switch (tune.comp) {
            case Comp::Stabs:
                chordHit(0, 1.3, 78);
                chordHit(1.5, 0.8, 66);
                chordHit(3, 0.8, 70);
                break;
            case Comp::Arpeggio: {
                static const std::array<std::pair<int, int>, 8> kArp = {
                    {{0, 0}, {2, 0}, {3, 0}, {1, 1}, {3, 0}, {2, 0}, {1, 0}, {2, 0}}};
                for (int i = 0; i < 8; ++i) {
                    const std::uint32_t at = bar + i * kBeat / 2;
                    t.note(at, kBeat / 2, channel,
                           degreeKey(chordAt(chart, at), kArp[i].first, 52, kArp[i].second),
                           i % 2 == 0 ? 74 : 62);
                }
                break;
            }
            case Comp::Pad:
                // Held through each chord of the bar.
                if (chordAt(chart, bar).root != chordAt(chart, bar + kBar / 2).root) {
                    chordHit(0, 2, 64);
                    chordHit(2, 2, 64);
                } else {
                    chordHit(0, 4, 64);
                }
                break;
            case Comp::Harp: {
                static const std::array<std::pair<int, int>, 8> kUp = {
                    {{0, 0}, {2, 0}, {3, 0}, {1, 1}, {2, 1}, {3, 1}, {2, 1}, {1, 1}}};
                for (int i = 0; i < 8; ++i) {
                    const std::uint32_t at = bar + i * kBeat / 2;
                    // Let each note ring on, but not past the loop point.
                    const std::uint32_t ring = std::min<std::uint32_t>(kBeat, bars * kBar - at);
                    t.note(at, ring, channel,
                           degreeKey(chordAt(chart, at), kUp[i].first, 48, kUp[i].second),
                           56 + (i == 0 ? 10 : 0));
                }
                break;
            }
        }
    }
}

void playPad(MidiTrack& t, const std::vector<std::pair<std::uint32_t, Chord>>& chart, int bars,
             int channel) {
    for (size_t i = 0; i < chart.size(); ++i) {
        const std::uint32_t from = chart[i].first;
        const std::uint32_t to = i + 1 < chart.size() ? chart[i + 1].first : bars * kBar;
        for (int d = 0; d < 3; ++d)
            t.note(from, to - from, channel, degreeKey(chart[i].second, d, 60), 52);
    }
}

void playDrums(MidiTrack& t, Drums style, int bars) {
    enum {
        Kick = 36,
        Stick = 37,
        Snare = 38,
        Closed = 42,
        Open = 46,
        Crash = 49,
        Ride = 51,
        Tambourine = 54,
        Shaker = 70,
        LowTom = 45,
        MidTom = 47,
        HighTom = 50
    };
    const std::uint32_t hit = kBeat / 4;
    for (int b = 0; b < bars; ++b) {
        const std::uint32_t bar = b * kBar;
        auto at = [&](double beat) { return static_cast<std::uint32_t>(bar + beat * kBeat); };
        const bool phraseEnd = b % 8 == 7;
        const bool phraseStart = b % 8 == 0;
        switch (style) {
            case Drums::Straight:
                for (int i = 0; i < 8; ++i)
                    t.note(at(i * 0.5), hit, kDrumChannel, Closed, i % 2 ? 48 : 68);
                for (double k : {0.0, 2.0}) t.note(at(k), hit, kDrumChannel, Kick, 100);
                for (double s : {1.0, 3.0}) t.note(at(s), hit, kDrumChannel, Snare, 88);
                if (phraseEnd) t.note(at(3.5), hit, kDrumChannel, Snare, 70);
                break;
            case Drums::Bouncy:
                for (int i = 0; i < 8; ++i) {
                    t.note(at(i * 0.5), hit, kDrumChannel, i == 7 ? Open : Closed, i % 2 ? 46 : 64);
                }
                for (double k : {0.0, 2.0, 2.5}) t.note(at(k), hit, kDrumChannel, Kick, 96);
                for (double s : {1.0, 3.0}) {
                    t.note(at(s), hit, kDrumChannel, Snare, 84);
                    t.note(at(s), hit, kDrumChannel, Tambourine, 50);
                }
                break;
            case Drums::Driving:
                for (int i = 0; i < 16; ++i) {
                    if (phraseEnd && i >= 8) break;
                    t.note(at(i * 0.25), hit, kDrumChannel, Closed, i % 4 == 0 ? 72 : 44);
                }
                for (double k : {0.0, 1.5, 2.0}) t.note(at(k), hit, kDrumChannel, Kick, 104);
                t.note(at(1), hit, kDrumChannel, Snare, 94);
                if (phraseEnd) {
                    // A tom fill into the next phrase.
                    const int toms[] = {Snare,  Snare,  HighTom, HighTom,
                                        MidTom, MidTom, LowTom,  LowTom};
                    for (int i = 0; i < 8; ++i)
                        t.note(at(2 + i * 0.25), hit, kDrumChannel, toms[i], 70 + i * 5);
                } else {
                    t.note(at(3), hit, kDrumChannel, Snare, 94);
                }
                break;
            case Drums::Soft:
                for (int i = 0; i < 8; ++i)
                    t.note(at(i * 0.5), hit, kDrumChannel, Shaker, i % 2 ? 30 : 42);
                t.note(at(0), hit, kDrumChannel, Kick, 60);
                t.note(at(2), hit, kDrumChannel, Stick, 46);
                for (int i = 0; i < 4; ++i) t.note(at(i), hit, kDrumChannel, Ride, 30);
                break;
        }
        if (phraseStart && style != Drums::Soft) t.note(at(0), kBeat, kDrumChannel, Crash, 84);
    }
}

// One track per part, each on its own channel with its own sound and place in the mix.
MidiTrack part(const std::string& name, int channel, int program, int volume, int pan, int reverb) {
    MidiTrack t;
    t.trackName(name);
    if (program >= 0) t.program(0, channel, program);
    t.control(0, channel, 7, volume);
    t.control(0, channel, 10, pan);
    t.control(0, channel, 91, reverb);
    return t;
}

QByteArray renderTune(const Tune& tune) {
    std::vector<WrittenNote> melody;
    if (!parseLine(tune.melody, &melody, nullptr)) return {};
    const auto chart = parseChart(tune.chords);
    const int bars = static_cast<int>(
        QString::fromLatin1(tune.chords).split(QLatin1Char(' '), Qt::SkipEmptyParts).size());
    std::uint32_t written = 0;
    for (const WrittenNote& n : melody) written += n.ticks;
    // A melody that does not fill the chart exactly would break the loop.
    if (written != static_cast<std::uint32_t>(bars) * kBar || chart.empty()) return {};

    const std::uint32_t end = bars * kBar;
    MidiTrack conductor;
    conductor.trackName(tune.title);
    conductor.timeSignature(0, 4, 2);
    conductor.tempo(0, tune.bpm);

    MidiTrack lead = part("Melody", 0, tune.melodyProgram, 100, 64, 50);
    MidiTrack twin = part("Melody high", 1, tune.doubleProgram, 70, 84, 60);
    std::uint32_t at = 0;
    for (const WrittenNote& n : melody) {
        if (n.key >= 0) {
            const bool strong = at % kBar == 0 || at % kBar == 2 * kBeat;
            const std::uint32_t sounding = n.ticks - n.ticks / 12;  // a breath between notes
            lead.note(at, sounding, 0, n.key, strong ? 104 : 92);
            if (tune.doubleProgram >= 0 && at >= tune.doubleFromBar * kBar) {
                twin.note(at, sounding, 1, n.key + 12, 60);
            }
        }
        at += n.ticks;
    }
    MidiTrack comp = part("Chords", 2, tune.compProgram, 80, 44, 60);
    playComp(comp, tune, chart, bars, 2);
    MidiTrack pad = part("Pad", 3, tune.padProgram, 60, 70, 80);
    if (tune.padProgram >= 0) playPad(pad, chart, bars, 3);
    MidiTrack bass = part("Bass", 4, tune.bassProgram, 96, 64, 30);
    playBass(bass, tune, chart, bars, 4);
    MidiTrack drums = part("Drums", kDrumChannel, -1, 84, 64, 40);
    playDrums(drums, tune.drums, bars);

    std::vector<MidiTrack> tracks = {conductor, lead};
    if (tune.doubleProgram >= 0) tracks.push_back(twin);
    tracks.push_back(comp);
    if (tune.padProgram >= 0) tracks.push_back(pad);
    tracks.push_back(bass);
    tracks.push_back(drums);
    for (MidiTrack& t : tracks) t.endAt(end);
    return encodeMidiFile(tracks);
}

// General MIDI programs, counted from 0.
enum Program {
    Piano = 0,
    Glockenspiel = 9,
    Vibraphone = 11,
    Marimba = 12,
    NylonGuitar = 24,
    AcousticBass = 32,
    FingerBass = 33,
    SynthBass = 38,
    Harp = 46,
    Strings = 48,
    Trumpet = 56,
    BrassSection = 61,
    Flute = 73,
    SquareLead = 80,
    WarmPad = 89
};

std::vector<Tune> allTunes() {
    return {
        {"wmtheme", "Wordmere Theme", 120, "C Am F G C Am Dm,G C F G Em Am F G C G7",
         "E5q G5e E5e C5q G4q | A4q C5e E5e A5h | A5q G5e F5e C5q A4q | B4q D5q G5h | "
         "E5q G5e E5e C5q E5q | A5q. G5e E5q C5q | D5q F5q B4q D5q | C5h. rq | "
         "F5q A5e G5e F5q C5q | G5q B5e A5e G5q D5q | E5q G5e B5e G5q E5q | A5q. G5e A5q C6q | "
         "C6q A5e F5e A5q C6q | B5q. A5e G5q D5q | E5q G5q C6h | B5q G5q F5q D5q",
         Trumpet, Glockenspiel, 8, Piano, Comp::Stabs, Strings, FingerBass, Bass::Bounce,
         Drums::Straight},
        {"bgm-happy", "Sunny Side", 128, "G D Em C G D C D C G Am D C G Am,D G G D Em C G D C D",
         "B4e D5e G5q F#5e G5e A5q | F#5q. E5e D5q A4q | G5e F#5e E5e D5e E5q B4q | "
         "C5e D5e E5e G5e E5h | B4e D5e G5q B5q A5e G5e | F#5q A5q D6q A5q | "
         "G5e E5e C5e E5e G5q E5q | D5q F#5q A5h | "
         "E5q. G5e C6q G5q | B5q. A5e G5q D5q | C6e B5e A5e G5e E5q A5q | F#5h. D5q | "
         "E5e G5e C6e G5e E5e G5e C6q | D6q B5q G5q B5q | A5q C6q F#5q A5q | G5h. rq | "
         "B4e D5e G5q F#5e G5e A5q | F#5q. E5e D5q A4q | G5e F#5e E5e D5e E5q B4q | "
         "C5e D5e E5e G5e E5h | B4e D5e G5q B5q A5e G5e | F#5q A5q D6q A5q | "
         "G5e E5e C5e E5e G5q E5q | A5q F#5q E5q D5q",
         Marimba, Vibraphone, 16, NylonGuitar, Comp::Arpeggio, -1, AcousticBass, Bass::Pop,
         Drums::Bouncy},
        {"bgm-action", "Full Speed", 150,
         "Am F C G Am F E E Dm Am Dm E F G Am E Am F C G Am F E E Dm Am Dm E F G Am E",
         QString("A4e C5e E5e A5e G5e E5e C5e E5e | F5e A5e C6e A5e G5e F5e E5e F5e | "
                 "E5e G5e C6e G5e E5q D5q | D5e G5e B5e D6e B5q G5q | "
                 "A5q. E5e C5e E5e A5q | A5q. F5e C6q A5q | "
                 "G#5e B5e E6e B5e G#5e E5e G#5e B5e | E6h. rq | "
                 "F5q D5e F5e A5q F5q | E5q C5e E5e A5q E5q | "
                 "F5e A5e D6e A5e F5e D5e F5e A5e | G#5q B5q E6h | "
                 "A5e G5e F5e E5e F5q C6q | B5e A5e G5e F5e G5q D6q | "
                 "C6e B5e A5e G5e A5e E5e C5e E5e | B4q E5q G#5q B5q | ")
             .repeated(2),
         SquareLead, -1, 0, BrassSection, Comp::Stabs, Strings, SynthBass, Bass::Drive,
         Drums::Driving},
        {"bgm-calm", "Still Water", 80, "F C Dm Bb F C Bb C Dm Am Bb F Gm C F C",
         "A5h. G5e F5e | E5h G5h | F5q. E5e D5q A5q | F5h. D5q | "
         "C5q F5q A5q C6q | Bb5q. A5e G5h | F5q D5q F5q Bb5q | G5h E5h | "
         "A5q. G5e F5q D5q | E5h C5h | D5q F5q Bb5q D6q | C6h A5h | "
         "Bb5q. A5e G5q D5q | E5q G5q C6q E5q | F5w | C5q E5q G5h",
         Flute, -1, 0, Harp, Comp::Harp, WarmPad, AcousticBass, Bass::Calm, Drums::Soft},
    };
}

}  // namespace

std::vector<AssetFile> renderTunes() {
    std::vector<AssetFile> out;
    for (const Tune& tune : allTunes()) {
        out.push_back(
            {QStringLiteral("sounds/%1.mid").arg(QLatin1String(tune.file)), renderTune(tune)});
    }
    return out;
}

}  // namespace wm::assetgen
