// Word Search on its screen: the road to a win and the table, and a lost game that asks again
// with the menu idle after it.
#include <QScrollBar>

#include "games/puzzles/word_search/word_search_screen.h"
#include "look.h"
#include "platform/text.h"
#include "platform/timeline_scene.h"
#include "screen_kit.h"

namespace ws = wm::word_search;

namespace {

const Pairs kAnimals{
    {"cat", "a pet that purrs"}, {"dog", "a pet that barks"}, {"owl", "a bird of the night"},
    {"hen", "a bird that lays eggs"}, {"ant", "a small insect"},
    {"bee", "an insect that makes honey"}, {"pig", "a farm animal"}, {"fox", "a wild dog"}};

// The cells that spell `word` where the builder hid it: across, down or down-right.
QList<int> FindWord(const ws::WordSearchState& p, const std::string& word) {
    const int g = p.GridSize, n = int(word.size());
    const int steps[3][2] = {{1, 0}, {0, 1}, {1, 1}};
    for (int y = 1; y <= g; ++y)
        for (int x = 1; x <= g; ++x)
            for (auto [dx, dy] : steps) {
                QList<int> cells;
                for (int k = 0; k < n; ++k) {
                    const int cx = x + k * dx, cy = y + k * dy;
                    if (cx > g || cy > g || p.LetterGrid[cx][cy] != word[k]) break;
                    cells << (cy - 1) * 20 + (cx - 1);
                }
                if (cells.size() == n) return cells;
            }
    return {};
}

void ClickCell(WordSearchForm* game, int cell) {
    QTest::mouseClick(game->board(), Qt::LeftButton, {}, game->board()->cellRect(cell).center());
}

bool FindAskedWord(WordSearchForm* game) {
    const QList<int> cells = FindWord(game->puzzle(), Shared().TheWord);
    for (int c : cells) ClickCell(game, c);
    return !cells.isEmpty();
}

// Moves the clock until the flash, the win animation and the fireworks are over.
void PumpThroughEnd(WordSearchForm* game, ScriptedDialogs& dialogs) {
    QPointer<WordSearchForm> g(game);
    const size_t before = dialogs.shown.size();
    for (int t = 0; t < 60000 && g && dialogs.shown.size() == before; t += 100) Pump(100);
}

}  // namespace

class WordSearchScreenTest : public QObject {
    Q_OBJECT
private slots:
    void roadFromTitleToTheTable() {
        Road fx(7, {"WSR"});
        SetTimelineFolder(QString(WM_ASSET_DIR) + "/movies");
        WriteOneList(fx, "Animals", kAnimals);
        auto* game = qobject_cast<WordSearchForm*>(PlayFromTitle("Word Search", "Animals (", 5));
        QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
        Pump();
        const SharedState& s = Shared();
        QCOMPARE(game->puzzle().GridSize, 5);
        QCOMPARE(LabelText(game, "WLLabel"), "Words Left: 5");
        QVERIFY(fx.music.opened.endsWith("sounds/music.mid"));
        // The first word is asked; the scroll bar asks for another of the hidden words.
        const QString firstCard = LabelText(game, "CardLabel");
        QCOMPARE(firstCard, toQ(s.TheMeaning));
        game->findChild<QScrollBar*>("ShowScroll")->setValue(2);
        QVERIFY(LabelText(game, "CardLabel") != firstCard);
        QCOMPARE(LabelText(game, "CardLabel"), toQ(s.TheMeaning));
        for (int word = 0; word < 5; ++word) {
            QVERIFY2(FindAskedWord(game), s.TheWord.c_str());
            if (word < 4) {
                QCOMPARE(LabelText(game, "WLLabel"), QString("Words Left: %1").arg(4 - word));
                // The word found flashes, and the flash stops when it is done.
                QVERIFY(Runs(game->frame(), "FlashTimer"));
                Pump(60);
                if (word == 0) WM_CHECK_LOOK("Word_Search_play", game);  // the word flashes green
                Pump(640);
                QVERIFY(!Runs(game->frame(), "FlashTimer"));
            }
        }
        // The last word leaves the count be; the first game counts its seconds.
        QCOMPARE(LabelText(game, "WLLabel") + " | " + LabelText(game, "TimeLabel"),
                 "Words Left: 1 | Time: 2");
        Pump(600);
        QVERIFY(!game->board()->isVisible());
        QVERIFY(game->findChild<Movie*>("MovieBackBox")->isPlaying());
        Pump(2500);
        QCOMPARE(fx.sound.played.count("2.wav"), 0);  // fireworks only once it is over
        PumpThroughEnd(game, fx.dialogs);
        const int fireworks = int(fx.sound.played.count("2.wav"));
        QVERIFY(fireworks >= 4 && fireworks <= 8);
        WM_VERIFY(WonBox(fx, s.Score));
        QCOMPARE(TableRow(fx, "Word Search"), "WSR " + QString::number(s.Score));
        QVERIFY(BackAtTitle());
        SetTimelineFolder({});
    }

    void lossAsksAgainAndTheMenuIdlesAfterIt() {
        Road fx(5);
        Shared().Score = -900000;  // carried in: no finish can lift it above 0
        auto* game = OpenGame<WordSearchForm>(fx, "Word Search",
                                              {{"cat", "a pet"}, {"dog", "a pet too"}}, 5);
        QVERIFY(game);
        Pump();
        Shared().SoundOn = kFalse;
        QVERIFY(FindAskedWord(game));
        const double afterFirst = Shared().Score;
        QVERIFY(afterFirst > -900000 && afterFirst <= -900000 + 30 * 2 * 3 * 10);
        QCOMPARE(LabelText(game, "ScoreLabel"), "Score: " + QString::number(afterFirst, 'f', 0));
        Pump(700);
        QVERIFY(FindAskedWord(game));
        QCOMPARE(Shared().Score, afterFirst);  // the last word gives nothing
        fx.dialogs.answerYes();                // try again
        PumpThroughEnd(game, fx.dialogs);
        QVERIFY(!fx.sound.played.contains("2.wav"));  // silent fireworks with the sound off
        QVERIFY(fx.dialogs.texts().first().startsWith("Oops! Unfortunately, you got a score of -"));
        QVERIFY(fx.dialogs.texts().first().endsWith(
            " on that game! You may want to practice a bit..."));
        QCOMPARE(fx.dialogs.shown.back().text, "Would you like to try again?");
        QCOMPARE(fx.dialogs.shown.back().title, "Another try?");
        Pump();
        // Kept: the new round runs without Timer1, so no time is counted and Restart, High
        // Scores, Quit and Escape stay idle until that game is over.
        QCOMPARE(Showing<WordSearchForm>(), game);
        Pump(3000);
        QCOMPARE(game->puzzle().Seconds, 0);
        for (const char* name : {"RS", "HS", "Return"}) {
            QVERIFY(TriggerMenu(game, name));
            Pump();
            QCOMPARE(Showing<WordSearchForm>(), game);
        }
        QTest::keyClick(game, Qt::Key_Escape);
        Pump();
        QCOMPARE(Showing<WordSearchForm>(), game);
    }
};

QTEST_MAIN(WordSearchScreenTest)
#include "word_search_screen_test.moc"
