#include "wav.h"

#include "dice.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace wm::assetgen {

namespace {

void put32(QByteArray& out, std::uint32_t v) {
    for (int i = 0; i < 4; ++i) out.append(static_cast<char>((v >> (8 * i)) & 0xFF));
}

void put16(QByteArray& out, std::uint16_t v) {
    out.append(static_cast<char>(v & 0xFF));
    out.append(static_cast<char>(v >> 8));
}

constexpr double kTwoPi = 2 * std::numbers::pi;

double envelope(double t, double length, double attack, double decay, double release) {
    double e = attack > 0 && t < attack ? t / attack : 1.0;
    if (decay > 0 && t > attack) e *= std::exp(-(t - attack) / decay);
    const double left = length - t;
    if (release > 0 && left < release) e *= std::max(0.0, left / release);
    return e;
}

}  // namespace

QByteArray encodeWav(const std::vector<std::int16_t>& samples, int sampleRate) {
    const auto dataBytes = static_cast<std::uint32_t>(samples.size() * 2);
    QByteArray out;
    out.reserve(static_cast<int>(44 + dataBytes));
    out.append("RIFF", 4);
    put32(out, 36 + dataBytes);
    out.append("WAVE", 4);
    out.append("fmt ", 4);
    put32(out, 16);
    put16(out, 1);  // PCM
    put16(out, 1);  // mono
    put32(out, static_cast<std::uint32_t>(sampleRate));
    put32(out, static_cast<std::uint32_t>(sampleRate * 2));
    put16(out, 2);
    put16(out, 16);
    out.append("data", 4);
    put32(out, dataBytes);
    for (std::int16_t s : samples) put16(out, static_cast<std::uint16_t>(s));
    return out;
}

std::vector<std::pair<double, double>> harmonics(int count, double tilt) {
    std::vector<std::pair<double, double>> out;
    for (int k = 1; k <= count; ++k) out.push_back({k, 1.0 / std::pow(k, tilt)});
    return out;
}

Synth::Synth(double seconds)
    : buffer_(static_cast<size_t>(std::max(0.0, seconds) * kSampleRate), 0.0f) {}

namespace {
// A sine from a table with linear steps between entries: far inside what a 16-bit sample can
// tell, and several times quicker than std::sin, which the many partials of the effects call
// millions of times. `phase` is in [0, 2 pi).
double tableSin(double phase) {
    constexpr int kSize = 4096;
    static const std::vector<double> table = [] {
        std::vector<double> t(kSize + 1);
        for (int i = 0; i <= kSize; ++i) t[i] = std::sin(kTwoPi * i / kSize);
        return t;
    }();
    const double x = phase * (kSize / kTwoPi);
    const int i = std::min(static_cast<int>(x), kSize - 1);
    return table[i] + (table[i + 1] - table[i]) * (x - i);
}
}  // namespace

void Synth::tone(const Tone& t) {
    const int first = static_cast<int>(t.start * kSampleRate);
    const int count = static_cast<int>(t.length * kSampleRate);
    const double nyquist = kSampleRate * 0.45;
    const double glide = t.freqEnd > 0 ? std::log(t.freqEnd / t.freq) : 0.0;
    std::vector<double> phase(t.partials.size(), 0.0);
    for (int i = 0; i < count; ++i) {
        const int at = first + i;
        if (at < 0) continue;
        if (at >= static_cast<int>(buffer_.size())) break;
        const double time = static_cast<double>(i) / kSampleRate;
        const double u = count > 1 ? static_cast<double>(i) / (count - 1) : 0.0;
        double semis = 0;
        if (t.vibratoRate > 0 && time > t.vibratoDelay) {
            const double ramp = std::min(1.0, (time - t.vibratoDelay) / 0.15);
            semis += ramp * t.vibratoDepth * std::sin(kTwoPi * t.vibratoRate * time);
        }
        if (t.bend) semis += t.bend(time);
        const double f = t.freq * std::exp(glide * u) * std::pow(2.0, semis / 12);
        double v = 0;
        // Partial k fades as exp(-brightDecay * k * time): one exp a sample, raised by steps.
        const double fade = t.brightDecay > 0 ? std::exp(-t.brightDecay * time) : 1.0;
        double faded = 1.0;
        for (size_t k = 0; k < t.partials.size(); ++k, faded *= fade) {
            const auto [ratio, amp] = t.partials[k];
            phase[k] = std::fmod(phase[k] + kTwoPi * f * ratio / kSampleRate, kTwoPi);
            if (f * ratio >= nyquist || amp * faded < 1e-5) continue;
            v += amp * faded * tableSin(phase[k]);
        }
        double level = t.amp * envelope(time, t.length, t.attack, t.decay, t.release);
        if (t.swell) level *= t.swell(u);
        buffer_[static_cast<size_t>(at)] += static_cast<float>(v * level);
    }
}

void Synth::noise(const Noise& n) {
    const int first = static_cast<int>(n.start * kSampleRate);
    const int count = static_cast<int>(n.length * kSampleRate);
    const double glide = n.cutoffEnd > 0 ? std::log(n.cutoffEnd / n.cutoff) : 0.0;
    Dice dice(n.seed);
    // Topology-preserving state-variable filter: stable while the cutoff moves.
    double ic1 = 0, ic2 = 0;
    const double k = 1.0 / n.q;
    for (int i = 0; i < count; ++i) {
        const int at = first + i;
        if (at >= static_cast<int>(buffer_.size())) break;
        const double time = static_cast<double>(i) / kSampleRate;
        const double u = count > 1 ? static_cast<double>(i) / (count - 1) : 0.0;
        double fc = n.sweep ? n.sweep(u) : n.cutoff * std::exp(glide * u);
        fc = std::clamp(fc, 20.0, kSampleRate * 0.45);
        const double g = std::tan(std::numbers::pi * fc / kSampleRate);
        const double a1 = 1 / (1 + g * (g + k)), a2 = g * a1, a3 = g * a2;
        const double x = dice.unit() * 2 - 1;
        const double v3 = x - ic2;
        const double v1 = a1 * ic1 + a2 * v3;
        const double v2 = ic2 + a2 * ic1 + a3 * v3;
        ic1 = 2 * v1 - ic1;
        ic2 = 2 * v2 - ic2;
        double y = v2;
        if (n.filter == Noise::Filter::BandPass) y = v1 * k;
        if (n.filter == Noise::Filter::HighPass) y = x - k * v1 - v2;
        if (at < 0) continue;
        double level = n.amp * envelope(time, n.length, n.attack, n.decay, n.release);
        if (n.swell) level *= n.swell(u);
        buffer_[static_cast<size_t>(at)] += static_cast<float>(y * level);
    }
}

void Synth::soften(double cutoff) {
    const double g = std::tan(std::numbers::pi * cutoff / kSampleRate);
    const double k = std::sqrt(2.0);
    const double a1 = 1 / (1 + g * (g + k)), a2 = g * a1, a3 = g * a2;
    double ic1 = 0, ic2 = 0;
    for (float& s : buffer_) {
        const double v3 = s - ic2;
        const double v1 = a1 * ic1 + a2 * v3;
        const double v2 = ic2 + a2 * ic1 + a3 * v3;
        ic1 = 2 * v1 - ic1;
        ic2 = 2 * v2 - ic2;
        s = static_cast<float>(v2);
    }
}

std::vector<std::int16_t> Synth::finish(double peak) const {
    std::vector<float> s = buffer_;
    const size_t fadeIn = std::min(s.size(), static_cast<size_t>(kSampleRate * 0.002));
    const size_t fadeOut = std::min(s.size(), static_cast<size_t>(kSampleRate * 0.012));
    for (size_t i = 0; i < fadeIn; ++i) s[i] *= static_cast<float>(i) / fadeIn;
    for (size_t i = 0; i < fadeOut; ++i) s[s.size() - 1 - i] *= static_cast<float>(i) / fadeOut;
    float top = 0;
    for (float v : s) top = std::max(top, std::abs(v));
    const double gain = top > 0 ? peak / top : 0.0;
    std::vector<std::int16_t> out(s.size());
    for (size_t i = 0; i < s.size(); ++i) {
        const long v = std::lround(s[i] * gain * 32767.0);
        out[i] = static_cast<std::int16_t>(std::clamp(v, -32767L, 32767L));
    }
    return out;
}

}  // namespace wm::assetgen
