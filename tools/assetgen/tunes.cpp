// Background tunes from their recipes: a melody, a chord chart and an accompaniment style; the
// bass, chords and drums are played from the chart. Each tune ends on its last bar line so it
// loops without a gap.
#include "tune_recipe.h"

#include "midi.h"
#include "recipe_text.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <map>

namespace wm::assetgen {

namespace {

constexpr std::uint32_t kBeat = kTicksPerQuarter;
constexpr std::uint32_t kBar = kBeat * 4;
constexpr int kDrumChannel = 9;

enum class Bass { Bounce, Pop, Drive, Calm };
enum class Comp { Stabs, Arpeggio, Pad, Harp };
enum class Drums { Straight, Bouncy, Driving, Soft };

struct Tune {
    QString title;
    double bpm = 120;
    QString chords;  // one token a bar; "Dm,G" splits a bar in halves
    QString melody;
    int melodyProgram = 0;
    int doubleProgram = -1;  // plays the melody an octave up from `doubleFromBar`; -1 for none
    int doubleFromBar = 0;
    int compProgram = 0;
    Comp comp = Comp::Stabs;
    int padProgram = -1;  // a held chord under the comp; -1 for none
    int bassProgram = 32;
    Bass bass = Bass::Bounce;
    Drums drums = Drums::Straight;
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
std::vector<std::pair<std::uint32_t, Chord>> parseChart(const QString& chart) {
    std::vector<std::pair<std::uint32_t, Chord>> out;
    const QStringList bars = chart.split(QLatin1Char(' '), Qt::SkipEmptyParts);
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

QByteArray renderTune(const Tune& tune, const std::vector<WrittenNote>& melody) {
    const auto chart = parseChart(tune.chords);
    const int bars =
        static_cast<int>(tune.chords.split(QLatin1Char(' '), Qt::SkipEmptyParts).size());

    const std::uint32_t end = bars * kBar;
    MidiTrack conductor;
    conductor.trackName(tune.title.toStdString());
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

// General MIDI programs by the names recipes use, counted from 0; recipes may also give a number.
int programNumber(const QString& name) {
    static const std::map<QString, int> kPrograms = {
        {"piano", 0},       {"brightpiano", 1},  {"epiano", 4},       {"harpsichord", 6},
        {"celesta", 8},     {"glockenspiel", 9}, {"musicbox", 10},    {"vibraphone", 11},
        {"marimba", 12},    {"xylophone", 13},   {"organ", 19},       {"accordion", 21},
        {"harmonica", 22},  {"nylonguitar", 24}, {"steelguitar", 25}, {"acousticbass", 32},
        {"fingerbass", 33}, {"pickbass", 34},    {"synthbass", 38},   {"violin", 40},
        {"cello", 42},      {"pizzicato", 45},   {"harp", 46},        {"timpani", 47},
        {"strings", 48},    {"slowstrings", 49}, {"choir", 52},       {"trumpet", 56},
        {"trombone", 57},   {"tuba", 58},        {"frenchhorn", 60},  {"brasssection", 61},
        {"saxophone", 65},  {"oboe", 68},        {"clarinet", 71},    {"piccolo", 72},
        {"flute", 73},      {"recorder", 74},    {"panflute", 75},    {"ocarina", 79},
        {"squarelead", 80}, {"sawlead", 81},     {"warmpad", 89},     {"steeldrums", 114},
    };
    const auto it = kPrograms.find(name.toLower());
    if (it != kPrograms.end()) return it->second;
    bool ok = false;
    const int n = name.toInt(&ok);
    return ok && n >= 0 && n <= 127 ? n : -1;
}

template <typename E>
bool styleNamed(const QString& name, std::initializer_list<std::pair<const char*, E>> styles,
                E* out) {
    for (const auto& [text, value] : styles) {
        if (name == QLatin1String(text)) {
            *out = value;
            return true;
        }
    }
    return false;
}

}  // namespace

bool renderTuneRecipe(const QString& text, const QString& file, QByteArray* out, QString* error) {
    Tune tune;
    QString melodyText;
    bool hasLead = false;
    auto fail = [&](int line, const QString& message) {
        if (error) *error = recipeError(file, line, message);
        return false;
    };
    static const QRegularExpression chordName(
        QStringLiteral("^[A-G][#b]?(m|7|m7|maj7)?(,[A-G][#b]?(m|7|m7|maj7)?)*$"));
    for (const RecipeLine& line : splitRecipe(text)) {
        const QStringList words = line.rest.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        // "<instrument>" with an optional style word after it.
        auto instrument = [&](int* program) {
            *program = words.isEmpty() ? -1 : programNumber(words[0]);
            return *program >= 0;
        };
        const QString style = words.size() > 1 ? words[1] : QString();
        if (line.word == QLatin1String("title")) {
            tune.title = line.rest;
        } else if (line.word == QLatin1String("tempo")) {
            bool ok = false;
            tune.bpm = line.rest.toDouble(&ok);
            if (!ok || tune.bpm < 30 || tune.bpm > 300)
                return fail(line.number, QStringLiteral("tempo is beats a minute, 30 to 300"));
        } else if (line.word == QLatin1String("chords")) {
            for (const QString& bar : words) {
                if (bar == QLatin1String("|")) continue;
                if (!chordName.match(bar).hasMatch())
                    return fail(line.number, QStringLiteral("bad chord \"%1\"").arg(bar));
                tune.chords += bar + QLatin1Char(' ');
            }
        } else if (line.word == QLatin1String("melody")) {
            std::vector<WrittenNote> check;
            QString why;
            if (!parseLine(line.rest, &check, &why)) return fail(line.number, why);
            melodyText += line.rest + QLatin1Char(' ');
        } else if (line.word == QLatin1String("lead")) {
            if (!instrument(&tune.melodyProgram))
                return fail(line.number,
                            QStringLiteral("unknown instrument \"%1\"").arg(line.rest));
            hasLead = true;
        } else if (line.word == QLatin1String("double")) {
            // "double <instrument> from <bar>": the melody an octave up from that bar (from 1).
            bool ok = words.size() == 3 && words[1] == QLatin1String("from");
            const int bar = ok ? words[2].toInt(&ok) : 0;
            if (!ok || bar < 1 || !instrument(&tune.doubleProgram))
                return fail(line.number,
                            QStringLiteral("write \"double <instrument> from <bar>\""));
            tune.doubleFromBar = bar - 1;
        } else if (line.word == QLatin1String("comp")) {
            if (!instrument(&tune.compProgram) || !styleNamed<Comp>(style,
                                                                    {{"stabs", Comp::Stabs},
                                                                     {"arpeggio", Comp::Arpeggio},
                                                                     {"pad", Comp::Pad},
                                                                     {"harp", Comp::Harp}},
                                                                    &tune.comp))
                return fail(line.number, QStringLiteral("write \"comp <instrument> "
                                                        "stabs|arpeggio|pad|harp\""));
        } else if (line.word == QLatin1String("pad")) {
            if (!instrument(&tune.padProgram))
                return fail(line.number,
                            QStringLiteral("unknown instrument \"%1\"").arg(line.rest));
        } else if (line.word == QLatin1String("bass")) {
            if (!instrument(&tune.bassProgram) || !styleNamed<Bass>(style,
                                                                    {{"bounce", Bass::Bounce},
                                                                     {"pop", Bass::Pop},
                                                                     {"drive", Bass::Drive},
                                                                     {"calm", Bass::Calm}},
                                                                    &tune.bass))
                return fail(line.number, QStringLiteral("write \"bass <instrument> "
                                                        "bounce|pop|drive|calm\""));
        } else if (line.word == QLatin1String("drums")) {
            if (!styleNamed<Drums>(line.rest,
                                   {{"straight", Drums::Straight},
                                    {"bouncy", Drums::Bouncy},
                                    {"driving", Drums::Driving},
                                    {"soft", Drums::Soft}},
                                   &tune.drums))
                return fail(line.number,
                            QStringLiteral("drums are straight, bouncy, driving or soft"));
        } else {
            return fail(line.number, QStringLiteral("unknown statement \"%1\"").arg(line.word));
        }
    }
    std::vector<WrittenNote> melody;
    parseLine(melodyText, &melody, nullptr);
    const auto bars =
        static_cast<std::uint32_t>(tune.chords.split(QLatin1Char(' '), Qt::SkipEmptyParts).size());
    std::uint32_t written = 0;
    for (const WrittenNote& n : melody) written += n.ticks;
    if (tune.title.isEmpty() || bars == 0 || melody.empty() || !hasLead)
        return fail(1, QStringLiteral("a tune needs a title, chords, a melody and a lead"));
    // A melody that does not fill the chart exactly would break the loop.
    if (written != bars * kBar) {
        return fail(1, QStringLiteral("the melody lasts %1 beats but the chords %2 bars (%3 beats)")
                           .arg(written / double(kBeat))
                           .arg(bars)
                           .arg(bars * 4));
    }
    *out = renderTune(tune, melody);
    return true;
}

}  // namespace wm::assetgen
