// WAV writing and the small synthesiser the sound effects are built from.
#pragma once

#include <QByteArray>

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace wm::assetgen {

inline constexpr int kSampleRate = 22050;

// RIFF/WAVE, PCM 16-bit mono, with exact chunk sizes: a truncated or mis-sized header can leave
// an effect player waiting for ever.
QByteArray encodeWav(const std::vector<std::int16_t>& samples, int sampleRate = kSampleRate);

// A pitched voice: partials over a gliding fundamental, under an attack/decay/release envelope.
struct Tone {
    double start = 0;     // seconds
    double length = 0.2;  // seconds, release included
    double freq = 440;    // Hz at the start
    double freqEnd = 0;   // Hz at the end, gliding exponentially; 0 keeps `freq`
    double amp = 0.5;
    double attack = 0.005;  // seconds to full level
    double decay = 0;       // exponential time constant after the attack; 0 holds the level
    double release = 0.03;  // linear fade at the end
    // (ratio to the fundamental, amplitude); harmonic or not.
    std::vector<std::pair<double, double>> partials = {{1, 1}};
    double brightDecay = 0;   // higher partials fade faster: partial k loses exp(-b (k-1) t)
    double vibratoRate = 0;   // Hz
    double vibratoDepth = 0;  // semitones
    double vibratoDelay = 0;  // seconds before the vibrato sets in
    // Extra pitch in semitones over time (seconds from the tone's start); may be empty.
    std::function<double(double)> bend;
    // Extra level over normalised time 0..1; may be empty.
    std::function<double(double)> swell;
};

// Filtered noise: white noise through a state-variable filter whose centre may glide.
struct Noise {
    enum class Filter { LowPass, BandPass, HighPass };
    double start = 0;
    double length = 0.1;
    double amp = 0.5;
    double attack = 0.002;
    double decay = 0;
    double release = 0.02;
    Filter filter = Filter::BandPass;
    double cutoff = 1000;  // Hz at the start
    double cutoffEnd = 0;  // Hz at the end; 0 keeps `cutoff`
    double q = 0.9;
    std::uint64_t seed = 1;
    // Cutoff over normalised time 0..1 (overrides the glide); may be empty.
    std::function<double(double)> sweep;
    std::function<double(double)> swell;
};

// Harmonic partials 1..count with amplitude 1/k^tilt, the building block of brass and reeds.
std::vector<std::pair<double, double>> harmonics(int count, double tilt);

class Synth {
public:
    explicit Synth(double seconds);
    void tone(const Tone& t);
    void noise(const Noise& n);
    // A gentle two-pole low pass over everything so far, to take the edge off.
    void soften(double cutoff);
    double seconds() const { return static_cast<double>(buffer_.size()) / kSampleRate; }
    const std::vector<float>& samples() const { return buffer_; }
    // Short fades at both ends, normalised to `peak` of full scale.
    std::vector<std::int16_t> finish(double peak) const;

private:
    std::vector<float> buffer_;
};

}  // namespace wm::assetgen
