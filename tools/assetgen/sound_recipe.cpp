// Each statement of a sound recipe adds voices to one Synth. Besides plain tones and filtered
// noise there are a few instruments (brass, chime, cymbal, crowd claps, a singing voice) whose
// inner settings are kept here so that recipes stay short and sound alike.
#include "sound_recipe.h"

#include "dice.h"
#include "recipe_text.h"
#include "wav.h"

#include <QSet>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <numbers>

namespace wm::assetgen {

namespace {

using Curve = std::function<double(double)>;

double noteHz(double midi) {
    return 440.0 * std::pow(2.0, (midi - 69) / 12.0);
}

// A bell shape over 0..1 peaking at `at`.
double hump(double u, double at) {
    const double x = u < at ? u / at : (1 - u) / (1 - at);
    return std::sin(std::clamp(x, 0.0, 1.0) * std::numbers::pi / 2);
}

// The keys each statement accepts; anything else is a typo worth reporting.
const std::map<QString, QSet<QString>>& allowedKeys() {
    static const std::map<QString, QSet<QString>> keys = {
        {"sound", {"length", "peak", "soften"}},
        {"tone",
         {"at", "len", "freq", "notes", "step", "to", "amp", "attack", "decay", "release",
          "partials", "harmonics", "bright", "vibrato", "bend", "swell", "count", "seed"}},
        {"noise",
         {"at", "len", "amp", "attack", "decay", "release", "filter", "cutoff", "to", "top", "q",
          "sweep", "swell", "seed"}},
        {"brass", {"at", "len", "freq", "notes", "step", "amp", "vdelay"}},
        {"chime", {"at", "len", "freq", "notes", "step", "amp"}},
        {"cymbal", {"at", "len", "amp", "seed"}},
        {"claps", {"at", "len", "count", "seed", "density", "amp"}},
        {"voice", {"at", "len", "freq", "amp", "f1", "f2", "bend", "vibrato", "count", "seed"}},
        {"soften", {"cutoff"}},
    };
    return keys;
}

// Reads the values of one statement. Numbers may be ranges "lo..hi", drawn from the line's own
// dice so that repeated voices (count=) differ from each other but every run is the same.
class Values {
public:
    Values(const RecipeLine& line, const QString& file, std::uint64_t seed)
        : line_(line), file_(file), dice_(seed) {}

    bool failed() const { return !error_.isEmpty(); }
    const QString& error() const { return error_; }

    bool has(const QString& key) const { return !raw(key).isNull(); }

    QString raw(const QString& key) const {
        for (const auto& [k, v] : line_.keys)
            if (k == key) return v;
        return {};
    }

    double number(const QString& text, const QString& key) {
        const int dots = text.indexOf(QLatin1String(".."));
        bool ok = false, ok2 = true;
        double value = 0;
        if (dots > 0) {
            const double lo = text.left(dots).toDouble(&ok);
            const double hi = text.mid(dots + 2).toDouble(&ok2);
            value = dice_.range(lo, hi);
        } else {
            value = text.toDouble(&ok);
        }
        if (!ok || !ok2 || !std::isfinite(value))
            fail(QStringLiteral("bad number \"%1\" for %2").arg(text, key));
        return value;
    }

    double num(const QString& key, double fallback) {
        const QString v = raw(key);
        return v.isNull() ? fallback : number(v, key);
    }

    // A positive value in seconds or Hz, with sane bounds so a slip cannot make a
    // ten-minute file.
    double bounded(const QString& key, double fallback, double lo, double hi) {
        const double v = num(key, fallback);
        if (!failed() && (v < lo || v > hi))
            fail(QStringLiteral("%1=%2 is outside %3..%4").arg(key).arg(v).arg(lo).arg(hi));
        return v;
    }

    // A pitch: a name such as "G4" or a frequency in Hz.
    double pitch(const QString& text, const QString& key) {
        const int midi = pitchNumber(text);
        if (midi >= 0) return noteHz(midi);
        const double hz = number(text, key);
        if (!failed() && (hz < 20 || hz > 12000))
            fail(QStringLiteral("%1=%2 is not a pitch").arg(key, text));
        return hz;
    }

    // The pitches of a statement: `notes=` (a comma list) or `freq=`.
    std::vector<double> pitches(double fallback) {
        if (has(QStringLiteral("notes"))) {
            std::vector<double> out;
            for (const QString& n : raw(QStringLiteral("notes")).split(QLatin1Char(',')))
                out.push_back(pitch(n, QStringLiteral("notes")));
            return out;
        }
        if (has(QStringLiteral("freq"))) return {pitch(raw(QStringLiteral("freq")), "freq")};
        return {fallback};
    }

    // "ratio:amp,ratio:amp..."
    std::vector<std::pair<double, double>> pairs(const QString& key) {
        std::vector<std::pair<double, double>> out;
        for (const QString& p : raw(key).split(QLatin1Char(','))) {
            const QStringList two = p.split(QLatin1Char(':'));
            if (two.size() != 2) {
                fail(QStringLiteral("%1 wants a:b pairs, not \"%2\"").arg(key, p));
                return out;
            }
            const double a = number(two[0], key);
            out.push_back({a, number(two[1], key)});
        }
        return out;
    }

    // A shape over normalised time 0..1: hump(at), trap(up,down) or flat.
    Curve shape(const QString& key) {
        const QString text = raw(key);
        if (text.isNull() || text == QLatin1String("flat")) return {};
        const int open = text.indexOf(QLatin1Char('('));
        if (open < 0 || !text.endsWith(QLatin1Char(')'))) {
            fail(QStringLiteral("bad shape \"%1\" for %2 (hump(at), trap(up,down) or flat)")
                     .arg(text, key));
            return {};
        }
        const QString name = text.left(open);
        const QStringList args = text.mid(open + 1, text.size() - open - 2).split(QLatin1Char(','));
        std::vector<double> a;
        for (const QString& s : args) a.push_back(number(s, key));
        if (name == QLatin1String("hump") && a.size() == 1 && a[0] > 0 && a[0] < 1) {
            const double at = a[0];
            return [at](double u) { return hump(u, at); };
        }
        if (name == QLatin1String("trap") && a.size() == 2 && a[0] >= 0 && a[1] < 1 &&
            a[0] <= a[1]) {
            // Up from 0 to 1 by `up`, level, down to 0 from `down` to the end.
            const double up = a[0], down = a[1];
            return [up, down](double u) {
                const double rise = up > 0 ? std::min(1.0, u / up) : 1.0;
                return rise * (u > down ? (1 - u) / (1 - down) : 1.0);
            };
        }
        fail(QStringLiteral("bad shape \"%1\" for %2").arg(text, key));
        return {};
    }

    // "seconds:semitones,..." a chain of straight moves from 0; the pitch holds after the last.
    Curve bend() {
        if (!has(QStringLiteral("bend"))) return {};
        std::vector<std::pair<double, double>> steps = pairs(QStringLiteral("bend"));
        if (failed()) return {};
        return [steps](double t) {
            double from = 0, value = 0;
            for (const auto& [length, change] : steps) {
                if (t < from + length) return value + change * (t - from) / length;
                from += length;
                value += change;
            }
            return value;
        };
    }

    void fail(const QString& message) {
        if (error_.isEmpty()) error_ = recipeError(file_, line_.number, message);
    }

private:
    const RecipeLine& line_;
    QString file_;
    Dice dice_;
    QString error_;
};

// A brass-like note: rich harmonics that mellow as it sounds, lightly chorused.
void brass(Synth& s, double start, double length, double hz, double amp, double vibratoDelay) {
    for (double detune : {-0.06, 0.06}) {
        Tone t;
        t.start = start;
        t.length = length;
        t.freq = hz * std::pow(2.0, detune / 12);
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
void chime(Synth& s, double start, double hz, double amp, double length) {
    Tone t;
    t.start = start;
    t.length = length;
    t.freq = hz;
    t.amp = amp;
    t.attack = 0.002;
    t.decay = length * 0.35;
    t.release = 0.1;
    t.partials = {{1, 1}, {2.76, 0.3}, {5.4, 0.1}, {8.93, 0.04}};
    t.brightDecay = 3;
    s.tone(t);
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

// A voice singing a vowel: harmonics weighted by two formants.
void voice(Synth& s, double start, double length, double f0, double amp, double f1, double f2,
           Curve bend, double vibrato) {
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

constexpr double kMaxSeconds = 30;

// Runs one statement (copy `copy` of a count= statement) into `s`.
void play(Synth& s, const QString& word, Values& v) {
    const double at = v.bounded("at", 0, 0, kMaxSeconds);
    if (word == QLatin1String("tone")) {
        const std::vector<double> hz = v.pitches(440);
        const double step = v.num("step", 0);
        Tone t;
        t.length = v.bounded("len", 0.2, 0.001, kMaxSeconds);
        t.freqEnd = v.has("to") ? v.pitch(v.raw("to"), "to") : 0;
        t.amp = v.num("amp", 0.5);
        t.attack = v.num("attack", 0.005);
        t.decay = v.num("decay", 0);
        t.release = v.num("release", 0.03);
        if (v.has("partials")) t.partials = v.pairs("partials");
        if (v.has("harmonics")) {
            const auto h = v.pairs("harmonics");
            if (!h.empty()) t.partials = harmonics(std::clamp(int(h[0].first), 1, 64), h[0].second);
        }
        t.brightDecay = v.num("bright", 0);
        if (v.has("vibrato")) {
            const QStringList p = v.raw("vibrato").split(QLatin1Char(':'));
            t.vibratoRate = v.number(p[0], "vibrato");
            t.vibratoDepth = p.size() > 1 ? v.number(p[1], "vibrato") : 0.2;
            t.vibratoDelay = p.size() > 2 ? v.number(p[2], "vibrato") : 0;
        }
        t.bend = v.bend();
        t.swell = v.shape("swell");
        for (size_t i = 0; i < hz.size() && !v.failed(); ++i) {
            t.start = at + step * static_cast<double>(i);
            t.freq = hz[i];
            s.tone(t);
        }
    } else if (word == QLatin1String("noise")) {
        Noise n;
        n.start = at;
        n.length = v.bounded("len", 0.1, 0.001, kMaxSeconds);
        n.amp = v.num("amp", 0.5);
        n.attack = v.num("attack", 0.002);
        n.decay = v.num("decay", 0);
        n.release = v.num("release", 0.02);
        const QString filter = v.raw("filter");
        if (filter == QLatin1String("low")) {
            n.filter = Noise::Filter::LowPass;
        } else if (filter == QLatin1String("high")) {
            n.filter = Noise::Filter::HighPass;
        } else if (!filter.isNull() && filter != QLatin1String("band")) {
            v.fail(QStringLiteral("filter is low, band or high, not \"%1\"").arg(filter));
        }
        n.cutoff = v.bounded("cutoff", 1000, 20, 12000);
        n.cutoffEnd = v.has("to") ? v.bounded("to", 0, 20, 12000) : 0;
        n.q = v.bounded("q", 0.9, 0.1, 30);
        n.seed = static_cast<std::uint64_t>(v.num("seed", 1));
        if (const Curve sweep = v.shape("sweep")) {
            const double lo = n.cutoff, hi = v.bounded("top", n.cutoff, 20, 12000);
            n.sweep = [sweep, lo, hi](double u) { return lo + (hi - lo) * sweep(u); };
        }
        n.swell = v.shape("swell");
        if (!v.failed()) s.noise(n);
    } else if (word == QLatin1String("brass") || word == QLatin1String("chime")) {
        const bool isBrass = word == QLatin1String("brass");
        const std::vector<double> hz = v.pitches(440);
        const double len = v.bounded("len", isBrass ? 0.3 : 1.2, 0.01, kMaxSeconds);
        const double amp = v.num("amp", 0.3);
        const double step = v.num("step", 0);
        const double delay = v.num("vdelay", 0.35);
        for (size_t i = 0; i < hz.size() && !v.failed(); ++i) {
            const double start = at + step * static_cast<double>(i);
            if (isBrass) {
                brass(s, start, len, hz[i], amp, delay);
            } else {
                chime(s, start, hz[i], amp, len);
            }
        }
    } else if (word == QLatin1String("cymbal")) {
        Noise n;
        n.start = at;
        n.length = v.bounded("len", 1.5, 0.01, kMaxSeconds);
        n.amp = v.num("amp", 0.25);
        n.attack = 0.004;
        n.decay = n.length * 0.3;
        n.release = n.length * 0.3;
        n.filter = Noise::Filter::HighPass;
        n.cutoff = 5000;
        n.q = 0.7;
        n.seed = static_cast<std::uint64_t>(v.num("seed", 1));
        if (!v.failed()) s.noise(n);
    } else if (word == QLatin1String("claps")) {
        // A crowd clapping: claps scattered over the length, thinned out where `density` is low.
        const double len = v.bounded("len", 2, 0.01, kMaxSeconds);
        const int claps = static_cast<int>(v.bounded("count", 100, 1, 2000));
        Dice dice(static_cast<std::uint64_t>(v.num("seed", 1)));
        const Curve density = v.shape("density");
        const double amp = v.num("amp", 0.5);
        for (int placed = 0; placed < claps && !v.failed();) {
            const double u = dice.unit();
            if (density && dice.unit() > std::max(0.02, density(u))) continue;
            clap(s, at + u * len, amp * dice.range(0.35, 1.0), dice.range(900, 2600), dice.next());
            ++placed;
        }
    } else if (word == QLatin1String("voice")) {
        const double len = v.bounded("len", 1.5, 0.01, kMaxSeconds);
        const double f0 = v.bounded("freq", 200, 50, 1200);
        const double amp = v.num("amp", 0.15);
        const double f1 = v.num("f1", 750), f2 = v.num("f2", 1200);
        const double vibrato = v.num("vibrato", 5);
        Curve bend = v.bend();
        if (!v.failed()) voice(s, at, len, f0, amp, f1, f2, std::move(bend), vibrato);
    }
}

}  // namespace

bool renderSoundRecipe(const QString& text, const QString& file, std::vector<std::int16_t>* out,
                       QString* error) {
    const std::vector<RecipeLine> lines = splitRecipe(text);
    auto fail = [&](int line, const QString& message) {
        if (error) *error = recipeError(file, line, message);
        return false;
    };
    if (lines.empty() || lines.front().word != QLatin1String("sound"))
        return fail(lines.empty() ? 1 : lines.front().number,
                    QStringLiteral("a recipe starts with \"sound length=<seconds>\""));
    Values head(lines.front(), file, 0);
    const double length = head.bounded("length", 0, 0.01, kMaxSeconds);
    const double peak = head.bounded("peak", 0.7, 0.05, 0.95);
    const double soften = head.num("soften", 0);
    if (head.failed()) {
        if (error) *error = head.error();
        return false;
    }
    Synth synth(length);
    for (size_t i = 0; i < lines.size(); ++i) {
        const RecipeLine& line = lines[i];
        const auto allowed = allowedKeys().find(line.word);
        if (allowed == allowedKeys().end() || (i > 0 && line.word == QLatin1String("sound")))
            return fail(line.number, QStringLiteral("unknown statement \"%1\"").arg(line.word));
        if (!line.args.isEmpty())
            return fail(line.number,
                        QStringLiteral("\"%1\" is not key=value").arg(line.args.front()));
        for (const auto& [key, value] : line.keys) {
            if (!allowed->second.contains(key))
                return fail(line.number,
                            QStringLiteral("%1 has no key \"%2\"").arg(line.word, key));
        }
        if (i == 0) continue;
        if (line.word == QLatin1String("soften")) {
            Values v(line, file, 0);
            synth.soften(v.bounded("cutoff", 6000, 200, 11000));
            if (v.failed()) {
                if (error) *error = v.error();
                return false;
            }
            continue;
        }
        // count= repeats tones, noises and voices; claps use count for their own number.
        const bool repeats = line.word != QLatin1String("claps");
        Values probe(line, file, 0);
        const int count = repeats ? static_cast<int>(probe.bounded("count", 1, 1, 200)) : 1;
        if (probe.failed()) {
            if (error) *error = probe.error();
            return false;
        }
        Values v(line, file, static_cast<std::uint64_t>(probe.num("seed", 1)) * 7919 + 17);
        for (int c = 0; c < count; ++c) {
            play(synth, line.word, v);
            if (v.failed()) {
                if (error) *error = v.error();
                return false;
            }
        }
    }
    if (soften > 0) synth.soften(std::clamp(soften, 200.0, 11000.0));
    *out = synth.finish(peak);
    return true;
}

}  // namespace wm::assetgen
