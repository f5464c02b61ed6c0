// Blind Tiles on its screen: the road from the title to a win, the table and another round; the
// same word twice in the list, another list word typed into a slot, Give Answer down to a
// negative score.

#include "games/puzzles/blind_tiles/blind_tiles_screen.h"
#include "core/strings.h"
#include "cross_road.h"
#include "look.h"
#include "platform/text.h"
#include "screen_kit.h"

namespace {

QStringList ShownEntries(const BlindTilesForm* game) {
    QStringList out;
    for (auto* l : game->clueLabels())
        if (l->isVisible()) out << l->text();
    return out;
}

bool EntryYellow(const QLabel* l) {
    return l->styleSheet().contains("rgb(255, 255, 192)");
}

BlindTilesForm* OpenBlindTiles(ShellFixture& fx, const std::vector<std::string>& words,
                               int difficulty, bool soundOn) {
    Pairs pairs;
    for (const auto& w : words) pairs.push_back({w, ""});
    return ThroughOptions<BlindTilesForm>(fx, "Blind Tiles", pairs, difficulty, soundOn, 30, true);
}

}  // namespace

class BlindTilesScreenTest : public QObject {
    Q_OBJECT
private slots:
    void roadToAWinTheTableAndAnotherRound() {
        Road fx(21);
        fx.dialogs.answerYes(true).answerYes(true);  // try again, a bit harder
        auto* game = OpenBlindTiles(
            fx, {"silver", "river", "listen", "stream", "valley", "forest", "island", "meadow"}, 5,
            true);
        QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
        SharedState& s = Shared();
        QCOMPARE(fx.music.opened, appFile("sounds/vivaldi.mid"));
        QCOMPARE(LabelText(game, "Label2"), "Score: 0");
        // The palette's key is the game's own name: the scores stay in its table.
        QVERIFY(TriggerMenu(game, "FLang"));
        QCOMPARE(s.CurrentGame, std::string("Blind Tiles"));
        const auto words = PlacedWords(game->state().board);
        QCOMPARE(int(words.size()), int(s.PuzzleWordCount));
        // The panel lists the words in the order they were placed, all pink.
        const QStringList entries = ShownEntries(game);
        QCOMPARE(entries.size(), int(words.size()));
        for (int i = 0; i < entries.size(); ++i) {
            QCOMPARE(entries[i], toQ(s.Words[game->state().PlaceWord[i + 1]]));
            QVERIFY(!EntryYellow(game->clueLabels()[i]));
        }

        auto* command1 = game->findChild<QPushButton*>("Command1");
        int expected = 0;
        for (std::size_t n = 0; n < words.size(); ++n) {
            QVERIFY(SelectWord(game, words[n], game->board()->tileRect(words[n].cell)));
            QVERIFY(command1->isVisible());
            const std::string& word = s.Words[words[n].index];
            QTest::keyClicks(game, toQ(word));
            expected += 100 * int(word.size());
            if (n + 1 < words.size()) {
                QCOMPARE(s.Score, double(expected));  // 100 a letter, no draw
                QCOMPARE(LabelText(game, "Label2"), "Score: " + QString::number(expected));
                QVERIFY(EntryYellow(game->clueLabels()[entries.indexOf(toQ(word))]));
                Pump(16 * 12);
                if (n == 1) WM_CHECK_LOOK("Blind_Tiles_play", game);  // two words solved, listed
            }
        }
        QCOMPARE(fx.sound.played.count("gong.wav"), int(words.size()));
        QVERIFY(fx.sound.played.contains("cheer.wav"));
        QCOMPARE(fx.win.tables.size(), 1);
        QVERIFY(fx.win.tables[0].contains("ZZZ"));
        WM_VERIFY(WonBox(fx, expected));
        // Yes, and Yes to a harder game: the next round is laid out at once.
        QCOMPARE(Showing<BlindTilesForm>(), game);
        QCOMPARE(int(s.Difficulty), 6);
        QCOMPARE(s.Score, 0.0);
        QVERIFY(!PlacedWords(game->state().board).empty());
        QVERIFY(!EntryYellow(game->clueLabels()[0]));
        // A smaller round (as a layout that lowers its target gives) lists only its own words.
        s.Difficulty = 3;
        QVERIFY(TriggerMenu(game, "RS"));
        QCOMPARE(ShownEntries(game).size(), 3);
        QCOMPARE(fx.music.plays, 1);
        QVERIFY(TriggerMenu(game, "Return"));
        QVERIFY(Showing<Title>());
        QCOMPARE(fx.music.closes, 1);
    }

    void twinWordsWrongSlotAndGiveAnswerToANegativeScore() {
        Road fx(4);
        // Anagrams cross anywhere, so all five entries are placed, the twin "garden" twice.
        auto* game =
            OpenBlindTiles(fx, {"garden", "garden", "danger", "ranged", "gander"}, 5, true);
        QVERIFY(game);
        SharedState& s = Shared();
        QCOMPARE(int(s.PuzzleWordCount), 5);
        QCOMPARE(ShownEntries(game).count("garden"), 2);
        auto words = PlacedWords(game->state().board);
        QCOMPARE(int(words.size()), 5);

        // Another word of the list typed into a slot is wrong: the pink goes, nothing is solved.
        const auto gardenAt = std::find_if(words.begin(), words.end(), [&](const WordPlace& w) {
            return s.Words[w.index] == "garden";
        });
        QVERIFY(SelectWord(game, *gardenAt, game->board()->tileRect(gardenAt->cell)));
        QTest::keyClicks(game, "danger");
        QCOMPARE(int(s.PuzzleWordCount), 5);
        QCOMPARE(game->state().board.colour[gardenAt->cell], cross::TileColour::White);
        for (int k = 0; k < 6; ++k) QTest::keyClick(game, Qt::Key_Backspace);
        QTest::keyClicks(game, "garden");
        // Both twin entries turn yellow; the count still wants the other slot.
        QCOMPARE(int(s.PuzzleWordCount), 4);
        for (auto* l : game->clueLabels())
            if (l->isVisible() && l->text() == "garden") QVERIFY(EntryYellow(l));
        QCOMPARE(s.Score, 600.0);
        words.erase(gardenAt);

        fx.sound.played.clear();
        auto* command1 = game->findChild<QPushButton*>("Command1");
        for (const auto& w : words) {
            QVERIFY(SelectWord(game, w, game->board()->tileRect(w.cell)));
            QTest::mouseClick(command1, Qt::LeftButton);
        }
        // Exactly 1000 a word, and no sound for a given answer.
        QCOMPARE(s.Score, 600.0 - 4000.0);
        QCOMPARE(fx.sound.played, QStringList{"ooh.wav"});
        WM_VERIFY(Box(fx, "Oops! You had a negative score! Maybe you will do better next time...",
                      "You lose!"));
        QVERIFY(Showing<Title>());
    }
};

QTEST_MAIN(BlindTilesScreenTest)
#include "blind_tiles_screen_test.moc"
