// The recipe languages and the manifest: mistakes are reported with the file and line, and the
// features recipes lean on (pitch names, ranges, bends, shapes, instrument names) do what the
// READMEs under assets/ promise.
#include "manifest.h"
#include "sound_recipe.h"
#include "tune_recipe.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <vector>

using namespace wm::assetgen;

namespace {

std::vector<std::int16_t> sound(const QString& text) {
    std::vector<std::int16_t> out;
    QString error;
    EXPECT_TRUE(renderSoundRecipe(text, "t.sound", &out, &error)) << error.toStdString();
    return out;
}

// Zero crossings a second over [from, to) seconds: twice the pitch of a pure tone.
double pitchBetween(const std::vector<std::int16_t>& s, double from, double to) {
    const auto a = static_cast<size_t>(from * 22050), b = static_cast<size_t>(to * 22050);
    int crossings = 0;
    for (size_t i = a + 1; i < b && i < s.size(); ++i)
        if ((s[i - 1] < 0) != (s[i] < 0)) ++crossings;
    return crossings / (to - from) / 2;
}

double rmsBetween(const std::vector<std::int16_t>& s, double from, double to) {
    double sum = 0;
    const auto a = static_cast<size_t>(from * 22050), b = static_cast<size_t>(to * 22050);
    for (size_t i = a; i < b; ++i) sum += double(s[i]) * s[i];
    return std::sqrt(sum / double(b - a));
}

}  // namespace

TEST(SoundRecipe, MistakesNameTheFileAndLine) {
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"", "t.sound:1: a recipe starts with"},
        {"tone len=1", "t.sound:1: a recipe starts with"},
        {"sound length=100", "t.sound:1: length=100 is outside 0.01..30"},
        {"sound length=1\ntone lenght=0.2", "t.sound:2: tone has no key \"lenght\""},
        {"sound length=1\n\n# a comment\nbuzzer at=0", "t.sound:4: unknown statement \"buzzer\""},
        {"sound length=1\ntone freq=H4", "t.sound:2: bad number \"H4\" for freq"},
        {"sound length=1\ntone freq=5", "t.sound:2: freq=5 is not a pitch"},
        {"sound length=1\ntone at=0 0.5", "t.sound:2: \"0.5\" is not key=value"},
        {"sound length=1\ntone partials=1:1,2", "t.sound:2: partials wants a:b pairs, not \"2\""},
        {"sound length=1\nnoise swell=hump(1.5)", "t.sound:2: bad shape \"hump(1.5)\""},
        {"sound length=1\nnoise sweep=ramp", "t.sound:2: bad shape \"ramp\""},
        {"sound length=1\nnoise filter=notch", "t.sound:2: filter is low, band or high"},
        {"sound length=1\nvoice count=1000", "t.sound:2: count=1000 is outside 1..200"},
        {"sound length=1\ntone amp=0.1..x", "t.sound:2: bad number \"0.1..x\" for amp"},
        {"sound length=1\nsound length=2", "t.sound:2: unknown statement \"sound\""},
    };
    for (const auto& [text, message] : cases) {
        std::vector<std::int16_t> out;
        QString error;
        EXPECT_FALSE(renderSoundRecipe(text, "t.sound", &out, &error)) << text;
        EXPECT_TRUE(error.startsWith(message)) << text << " gave " << error.toStdString();
    }
}

TEST(SoundRecipe, PitchNamesAndSharpsSurviveComments) {
    // '#' in "F#5" is a sharp; after a blank it starts a comment.
    const auto named = sound("sound length=0.5\ntone len=0.5 freq=F#5 # a comment");
    const auto hz = sound("sound length=0.5\ntone len=0.5 freq=739.98884");
    ASSERT_EQ(named.size(), hz.size());
    for (size_t i = 0; i < named.size(); ++i) ASSERT_NEAR(named[i], hz[i], 12) << i;
    EXPECT_NEAR(pitchBetween(named, 0.1, 0.4), 740, 10);
}

TEST(SoundRecipe, BendChainsMoveThenHold) {
    // Up an octave over the first half second, then held there.
    const auto s = sound("sound length=1\ntone len=1 freq=440 bend=0.5:12 release=0.01");
    EXPECT_NEAR(pitchBetween(s, 0.0, 0.05), 440, 40);
    EXPECT_NEAR(pitchBetween(s, 0.24, 0.26), 622, 50);
    EXPECT_NEAR(pitchBetween(s, 0.6, 0.95), 880, 15);
    // A zero-length step jumps.
    const auto jump = sound("sound length=0.5\ntone len=0.5 freq=440 bend=0:-12");
    EXPECT_NEAR(pitchBetween(jump, 0.05, 0.45), 220, 10);
}

TEST(SoundRecipe, ShapesLiftTheLevelWhereTheySay) {
    const auto early = sound("sound length=1\ntone len=1 freq=300 swell=hump(0.2)");
    EXPECT_GT(rmsBetween(early, 0.15, 0.25), 3 * rmsBetween(early, 0.85, 0.95));
    const auto held = sound("sound length=1\ntone len=1 freq=300 swell=trap(0.1,0.7)");
    EXPECT_NEAR(rmsBetween(held, 0.2, 0.3), rmsBetween(held, 0.55, 0.65), 300);
    EXPECT_LT(rmsBetween(held, 0.9, 0.95), 0.5 * rmsBetween(held, 0.2, 0.3));
}

TEST(SoundRecipe, RangesDrawPerCopyAndFollowTheSeed) {
    const QString crowd = "sound length=1\nvoice count=%1 seed=%2 freq=150..400 len=0.8 amp=0.1";
    EXPECT_EQ(sound(crowd.arg(3).arg(5)), sound(crowd.arg(3).arg(5)));
    EXPECT_NE(sound(crowd.arg(3).arg(5)), sound(crowd.arg(3).arg(6)));
    // Three copies of one fixed voice would sound as one; drawn copies do not.
    const auto one = sound("sound length=1\nvoice freq=200 len=0.8 amp=0.1");
    const auto three = sound("sound length=1\nvoice count=3 freq=200 len=0.8 amp=0.1");
    // Normalised to the same peak: the same sound, but for the last bit of rounding.
    ASSERT_EQ(one.size(), three.size());
    int apart = 0;
    for (std::size_t i = 0; i < one.size(); ++i)
        apart = std::max(apart, std::abs(int(one[i]) - int(three[i])));
    EXPECT_LE(apart, 1);
    EXPECT_NE(one, sound(crowd.arg(3).arg(5)));
}

TEST(TuneRecipe, MistakesNameTheFileAndLine) {
    const QString good =
        "title T\ntempo 120\nchords C G\nmelody C5w | G4w\nlead piano\n"
        "comp piano stabs\nbass fingerbass bounce\ndrums straight\n";
    QByteArray out;
    QString error;
    ASSERT_TRUE(renderTuneRecipe(good, "t.tune", &out, &error)) << error.toStdString();
    const std::vector<std::pair<QString, const char*>> cases = {
        {QString(good).replace("chords C G", "chords C H"), "t.tune:3: bad chord \"H\""},
        {QString(good).replace("C5w", "C5x"), "t.tune:4: bad length in \"C5x\""},
        {QString(good).replace("G4w", "G4h"),
         "t.tune:1: the melody lasts 6 beats but the chords 2 bars (8 beats)"},
        {QString(good).replace("tempo 120", "tempo 12"), "t.tune:2: tempo is beats a minute"},
        {QString(good).replace("lead piano", "lead kazoo"), "t.tune:5: unknown instrument"},
        {QString(good).replace("stabs", "waltz"), "t.tune:6: write \"comp <instrument>"},
        {QString(good).replace("drums straight", "drums loud"), "t.tune:8: drums are"},
        {good + "key C major\n", "t.tune:9: unknown statement \"key\""},
        {good + "double flute\n", "t.tune:9: write \"double <instrument> from <bar>\""},
        {QString(good).replace("title T\n", ""), "t.tune:1: a tune needs a title"},
    };
    for (const auto& [text, message] : cases) {
        EXPECT_FALSE(renderTuneRecipe(text, "t.tune", &out, &error)) << text.toStdString();
        EXPECT_TRUE(error.startsWith(message)) << error.toStdString();
    }
}

TEST(TuneRecipe, InstrumentsByNameOrNumberAndChordsAcrossLines) {
    const QString tune =
        "title T\ntempo 100\nchords C | G\nchords Am,F\n"
        "melody C5w G4w\nmelody A4h F4h\nlead %1\ncomp harp harp\n"
        "bass acousticbass calm\ndrums soft\n";
    QByteArray byName, byNumber;
    QString error;
    ASSERT_TRUE(renderTuneRecipe(tune.arg("flute"), "t.tune", &byName, &error))
        << error.toStdString();
    ASSERT_TRUE(renderTuneRecipe(tune.arg("73"), "t.tune", &byNumber, &error));
    EXPECT_EQ(byName, byNumber);
    EXPECT_TRUE(byName.contains(QByteArray("\xC0\x49", 2)));  // program 73 on channel 1
}

TEST(Manifest, ReadsNamesWithBlanksAndSizes) {
    std::vector<ManifestEntry> entries;
    QString error;
    ASSERT_TRUE(
        parseManifest("# comment\n\nbutton draw:game 360x270 buttons/Bomb Squad 2.jpg\n"
                      "sound  sounds/a.sound   sounds/a.wav\n"
                      "scene  code movies/wmsplash\n",
                      "m.txt", &entries, &error))
        << error.toStdString();
    ASSERT_EQ(entries.size(), 3u);
    EXPECT_EQ(entries[0].name, "buttons/Bomb Squad 2.jpg");
    EXPECT_EQ(entries[0].size, QSize(360, 270));
    EXPECT_EQ(entries[0].line, 3);
    EXPECT_EQ(groupOf(entries[0].kind), "buttons");
    EXPECT_EQ(entries[1].source, "sounds/a.sound");
    EXPECT_TRUE(entries[1].size.isEmpty());
    EXPECT_EQ(groupOf(entries[2].kind), "");
}

TEST(Manifest, BadLinesAreRefusedWithTheirLine) {
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"sound a.sound sounds/a.wav\nmusic b.tune sounds/b.mid",
         "m.txt:2: unknown kind \"music\""},
        {"sound a.sound", "m.txt:1: no name after the source"},
        {"sound a.sound ../a.wav", "m.txt:1: \"../a.wav\" is not a name inside"},
        {"picture draw:title images/t.jpg", "m.txt:1: a picture needs a draw:<name> source and"},
        {"sound a.sound sounds/a.wav\nsound b.sound Sounds/A.wav",
         "m.txt:2: \"Sounds/A.wav\" is listed twice"},
    };
    for (const auto& [text, message] : cases) {
        std::vector<ManifestEntry> entries;
        QString error;
        EXPECT_FALSE(parseManifest(text, "m.txt", &entries, &error)) << text;
        EXPECT_TRUE(error.startsWith(message)) << error.toStdString();
    }
}
