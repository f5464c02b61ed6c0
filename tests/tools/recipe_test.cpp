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

TEST(SoundRecipe, MistakesNameTheFileAndLine) {
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"", "t.sound:1: a recipe starts with"},
        {"sound length=100", "t.sound:1: length=100 is outside 0.01..30"},
        {"sound length=1\ntone lenght=0.2", "t.sound:2: tone has no key \"lenght\""},
        {"sound length=1\n\n# a comment\nbuzzer at=0", "t.sound:4: unknown statement \"buzzer\""},
        {"sound length=1\ntone freq=H4", "t.sound:2: bad number \"H4\" for freq"},
        {"sound length=1\ntone at=0 0.5", "t.sound:2: \"0.5\" is not key=value"},
        {"sound length=1\ntone partials=1:1,2", "t.sound:2: partials wants a:b pairs, not \"2\""},
        {"sound length=1\nnoise swell=hump(1.5)", "t.sound:2: bad shape \"hump(1.5)\""},
        {"sound length=1\nnoise filter=notch", "t.sound:2: filter is low, band or high"},
        {"sound length=1\nvoice count=1000", "t.sound:2: count=1000 is outside 1..200"},
    };
    for (const auto& [text, message] : cases) {
        std::vector<std::int16_t> out;
        QString error;
        EXPECT_FALSE(renderSoundRecipe(text, "t.sound", &out, &error)) << text;
        EXPECT_TRUE(error.startsWith(message)) << text << " gave " << error.toStdString();
    }
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
        {good + "double flute\n", "t.tune:9: write \"double <instrument> from <bar>\""},
        {QString(good).replace("title T\n", ""), "t.tune:1: a tune needs a title"},
    };
    for (const auto& [text, message] : cases) {
        EXPECT_FALSE(renderTuneRecipe(text, "t.tune", &out, &error)) << text.toStdString();
        EXPECT_TRUE(error.startsWith(message)) << error.toStdString();
    }
}

TEST(Manifest, ReadsNamesWithBlanksAndSizesAndRefusesBadLines) {
    std::vector<ManifestEntry> entries;
    QString error;
    ASSERT_TRUE(
        parseManifest("# comment\n\nbutton draw:game 360x270 buttons/Bomb Squad 2.jpg\n"
                      "sound  sounds/a.sound   sounds/a.wav\n"
                      "scene  code movies/wmsplash\n",
                      "m.txt", &entries, &error))
        << error.toStdString();
    ASSERT_EQ(entries.size(), 3u);
    EXPECT_EQ(
        std::tuple(entries[0].name, entries[0].size, entries[0].line, groupOf(entries[0].kind)),
        std::tuple("buttons/Bomb Squad 2.jpg", QSize(360, 270), 3, "buttons"));
    EXPECT_EQ(std::tuple(entries[1].source, entries[1].size.isEmpty(), groupOf(entries[2].kind)),
              std::tuple("sounds/a.sound", true, ""));
    // Bad lines are refused with their line.
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"sound a.sound sounds/a.wav\nmusic b.tune sounds/b.mid",
         "m.txt:2: unknown kind \"music\""},
        {"sound a.sound", "m.txt:1: no name after the source"},
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
