// The WAV writer and the synthesised effects: exact RIFF sizes (a mis-sized header can hang the
// effect player), the format the program expects, and sounds that are audible without clipping.
#include "wav.h"
#include "asset_gen.h"
#include "manifest.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSet>
#include <QtEndian>

#include <cmath>
#include <cstdint>
#include <map>

using namespace wm::assetgen;

namespace {

// One group made from the source tree's manifest and recipes.
std::vector<AssetFile> rendered(const char* group) {
    std::vector<AssetFile> out;
    QString error;
    EXPECT_TRUE(renderGroup(sourceAssetsDir(), group, &out, &error)) << error.toStdString();
    return out;
}

std::uint32_t le32(const QByteArray& b, int at) {
    return qFromLittleEndian<std::uint32_t>(b.constData() + at);
}

// Checks the header field by field and returns the samples, or fails the test.
std::vector<std::int16_t> readWav(const QByteArray& b, const QString& name) {
    SCOPED_TRACE(name.toStdString());
    std::vector<std::int16_t> samples;
    EXPECT_GE(b.size(), 44);
    if (b.size() < 44) return samples;
    // A 16-byte format: PCM, mono, 22050 Hz, 44100 bytes a second, blocks of 2, 16 bits.
    EXPECT_EQ(b.left(4) + b.mid(8, 8) + b.mid(36, 4), QByteArray("RIFFWAVEfmt data"));
    EXPECT_EQ(b.mid(16, 20), QByteArray::fromHex("10000000 0100 0100 22560000 44ac0000 0200 1000"));
    EXPECT_EQ(std::pair(le32(b, 4), le32(b, 40)),
              std::pair(std::uint32_t(b.size() - 8), std::uint32_t(b.size() - 44)));
    for (int at = 44; at + 1 < b.size(); at += 2)
        samples.push_back(qFromLittleEndian<std::int16_t>(b.constData() + at));
    return samples;
}

}  // namespace

TEST(WavWriter, HeaderSizesAreExactAndTheSynthFinishesCleanly) {
    for (size_t count : {size_t{0}, size_t{1}, size_t{3}, size_t{22050}}) {
        const std::vector<std::int16_t> in(count, 7);
        const QByteArray b = encodeWav(in);
        EXPECT_EQ(b.size(), static_cast<int>(44 + 2 * count));
        EXPECT_EQ(readWav(b, QStringLiteral("n=%1").arg(count)), in);
    }
    const std::vector<std::int16_t> extremes = {0, 1, -1, 32767, -32768, 256, -256};
    EXPECT_EQ(readWav(encodeWav(extremes), "extremes"), extremes);
    // The synthesiser's finish fades the ends and normalises to the peak.
    Synth s(0.2);
    Tone t;
    std::tie(t.length, t.attack, t.release) = std::tuple(0.2, 0, 0);
    s.tone(t);
    const std::vector<std::int16_t> out = s.finish(0.5);
    int peak = 0;
    for (std::int16_t v : out) peak = std::max(peak, std::abs(static_cast<int>(v)));
    EXPECT_NEAR(peak, 16384, 40);
    EXPECT_EQ(std::tuple(out.front(), out.back()), std::tuple(0, 0));
}

TEST(SoundEffects, EveryEffectIsAWellFormedAudibleWav) {
    // Expected lengths in seconds (low, high).
    const std::map<QString, std::pair<double, double>> expected = {
        {"tolvane", {3.5, 4.5}}, {"ufofly", {1.5, 2.5}}, {"applause", {2.5, 3.5}},
        {"fall", {0.8, 1.2}},    {"click", {0.01, 0.2}}, {"beep", {0.05, 0.4}},
        {"cheer", {1.5, 3.5}},   {"ooh", {0.8, 2.5}},    {"ricochet", {0.3, 1.2}},
        {"ding", {0.3, 2.0}},    {"buzz", {0.2, 1.0}},   {"pop", {0.03, 0.3}},
        {"tick", {0.01, 0.2}},   {"whoosh", {0.3, 1.2}}, {"tada", {1.0, 3.0}}};
    const std::vector<AssetFile> sounds = rendered("sounds");
    QSet<QString> names;
    for (const AssetFile& f : sounds) {
        ASSERT_TRUE(f.path.startsWith("sounds/") && f.path.endsWith(".wav"))
            << f.path.toStdString();
        const QString name = f.path.mid(7).chopped(4);
        names.insert(name);
        SCOPED_TRACE(name.toStdString());
        // Effects without their own bounds are still short enough not to hold up a game.
        const auto bounds = expected.count(name) ? expected.at(name) : std::make_pair(0.02, 5.0);
        const std::vector<std::int16_t> s = readWav(f.bytes, name);
        const double seconds = s.size() / 22050.0;
        EXPECT_TRUE(seconds >= bounds.first && seconds <= bounds.second) << seconds;
        int peak = 0;
        for (std::int16_t v : s) peak = std::max(peak, std::abs(static_cast<int>(v)));
        EXPECT_TRUE(peak > 8000 && peak < 32000) << "too quiet or clipped: " << peak;
        // Nothing shrill: the sample-to-sample change measures the brightness (white noise
        // scores 1.41); below 1.0 the energy sits under about 4 kHz.
        double level = 0, change = 0;
        for (size_t i = 1; i < s.size(); ++i) {
            level += double(s[i]) * s[i];
            change += double(s[i] - s[i - 1]) * (s[i] - s[i - 1]);
        }
        EXPECT_LT(std::sqrt(change / level), 1.0) << "too bright";
        // Starting or stopping away from zero clicks on the speaker.
        EXPECT_LT(std::max(std::abs(s.front()), std::abs(s.back())), 500);
        // The build made its copy in another process: the same bytes, so nothing depends on
        // the clock, the machine or memory left over.
        QFile built(QDir(qEnvironmentVariable("WM_TEST_APP_DIR")).filePath(f.path));
        EXPECT_TRUE(built.open(QIODevice::ReadOnly) && built.readAll() == f.bytes);
    }
    for (const auto& [name, bounds] : expected)
        EXPECT_TRUE(names.contains(name)) << name.toStdString();
}
