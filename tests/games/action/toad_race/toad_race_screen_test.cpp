// Toad Race on its screen: from the title through "Ready... Go!", wrong and right words, the
// palette, a race won to the table; a race lost to a computer toad at 1920x1080, the box naming
// the winner and the word, a try again; a list with no words.
#include "games/action/toad_race/toad_race_screen.h"
#include "act_kit.h"
#include "look.h"

class ToadRaceScreenTest : public QObject {
    Q_OBJECT
private slots:
    void aRaceWonFromTheTitleToTheTable();
    void aRaceLostNamesTheWinnerAndTheWord();
};

namespace {

void enter(ToadRace* game, const QString& typed) {
    Enter(game->typingBox(), typed);
    Pump(0);
}

}  // namespace

void ToadRaceScreenTest::aRaceWonFromTheTitleToTheTable() {
    Road fx(0, {"TOD"});
    SetModalHook(PaletteThen(0xE9, fx.win));
    const Pairs pond{{"frog", "a jumping animal"}, {"caf\xE9", "a small restaurant"},
                     {"photosynthesis", "how green plants make food"}, {"newt", "a small animal"},
                     {"reed", "a tall grass"}, {"lily", "a flower"},
                     {"swan", "a large white water bird with a long curving neck"},
                     {"duck", "it quacks"}, {"moss", "soft green plants"}, {"fish", "it swims"},
                     {"rain", "water from clouds"}, {"mud", "wet earth"},
                     {"bank", "a river's edge"}};
    auto* game = FromTitle<ToadRace>(fx, "Toad Race", pond, 2);
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    Shared().SoundOn = kTrue;
    Pump();
    WM_VERIFY(Called(fx, game->pond()->call(), "Ready...", "toadready.wav"));
    WM_CHECK_LOOK("Toad_Race_ready", game);  // the call outlined, the plates, a long meaning
    QLineEdit* box = game->typingBox();
    // No false starts: nothing can be typed before "Go!".
    Enter(box, "frog");
    QCOMPARE(box->text(), "");
    Pump(ToadRace::kReadyMs);
    QCOMPARE(game->pond()->call(), "Go!");
    QCOMPARE(Labels(game, "Label1 Label2 PadsLabel LevelLabel"),
             Word() + " | " + Meaning() + " | Pads to go: 12 | Level 2");

    // A wrong word: the toad sits, the word stands, the box keeps what was typed, selected to
    // be typed over. The croak only with sound on.
    const QString first = LabelText(game, "Label1");
    Shared().SoundOn = kFalse;
    enter(game, "zzz");
    QVERIFY(!fx.sound.played.contains("toadcroak.wav"));
    Shared().SoundOn = kTrue;
    enter(game, "");
    QVERIFY(fx.sound.played.contains("toadcroak.wav"));
    QCOMPARE(game->race().pad(0), 0);
    QCOMPARE(LabelText(game, "Label1"), first);
    QCOMPARE(box->selectedText(), "zzz");
    QCOMPARE(box->property("edge").toString(), "#d8402c");  // a red edge until put right
    // The palette's character goes into the typing box.
    box->clear();
    QVERIFY(TriggerMenu(game, "FLang"));
    QCOMPARE(box->text(), "\u00e9");
    box->clear();
    Pump(900);

    int letters = 0;
    QStringList played;
    for (int pad = 1; pad <= 12; ++pad) {
        const QString word = LabelText(game, "Label1");
        QVERIFY2(!played.contains(word), qPrintable(word));  // no repeats in one race
        played << word;
        letters += int(word.size());
        enter(game, word.toUpper());
        QCOMPARE(LabelText(game, "PadsLabel"), QString("Pads to go: %1").arg(12 - pad));
        QCOMPARE(game->pond()->shownPad(0), pad);  // the pupil's own toad hops
        QCOMPARE(box->property("edge").toString(), "#5da03a");
        if (pad == 6) {
            // Halfway, the computer's toads have had their first hop (every 6700 ms at level 2).
            Pump(6000);
            for (int t = 1; t <= 3; ++t) QCOMPARE(game->pond()->shownPad(t), 1);
            QVERIFY(fx.sound.played.contains("toadplop.wav"));
        }
        Pump(16);
    }
    // The winner's moment, then the table.
    Pump(Pond::kHopMs);
    WM_VERIFY(Called(fx, game->pond()->call(), "You win!", "toadwin.wav"));
    Pump(400);
    QCOMPARE(fx.win.congratulations.size(), 0);
    Pump(ToadRace::kCheerMs - 400);
    // (11 pads the best computer toad is behind x 100 + letters x 5) x level 2
    const int score = (11 * 100 + letters * 5) * 2;
    WM_CHECK_WON(fx, "Toad Race", QString("TOD %1").arg(score));
}

void ToadRaceScreenTest::aRaceLostNamesTheWinnerAndTheWord() {
    Road fx(0);
    ScreenMetrics::overrideScreenSize(QSize(1920, 1080));
    // The first word, then the waits: Ruby (toad 3) leaves first, at 1200 ms, then every 1500.
    fx.rng.pick(1, 2).then(0.5).then(0.5).then(0.0);
    auto* game = OpenGame<ToadRace>(fx, "Toad Race",
                                    {{"cat", "a pet that purrs"}, {"dog", "a pet that barks"}}, 10,
                                    false, true, true);
    QVERIFY(game);
    Pump();
    // A words-only list has no clue under the word.
    QVERIFY(!game->findChild<QLabel*>("Label2")->isVisible());
    Pump(ToadRace::kReadyMs);
    enter(game, "cat");
    QCOMPARE(LabelText(game, "Label1"), "dog");
    enter(game, "dgo");
    for (int ms = 0; ms < 17600; ms += 400) Pump(400);
    QCOMPARE(game->race().phase(), toad_race::Phase::Racing);
    Pump(120);
    QCOMPARE(game->race().phase(), toad_race::Phase::Lost);
    Pump(Pond::kHopMs);
    WM_VERIFY(Called(fx, game->pond()->call(), "Ruby wins!", "toadlose.wav"));
    Pump(400);
    QVERIFY(fx.dialogs.shown.empty());
    fx.dialogs.answerYes(true);
    Pump(ToadRace::kCheerMs - 400);
    QCOMPARE(LastBox(fx),
             "Toad Race | Beaten by a nose! Ruby got home first. Your word was "
             "\"dog\". Would you like to try again?");
    QCOMPARE(fx.win.congratulations.size(), 0);
    // Try again: a fresh race from the start stones.
    QCOMPARE(game->pond()->call(), "Ready...");
    for (int t = 0; t < 4; ++t) QCOMPARE(game->pond()->shownPad(t), 0);
    // A list with no words left to race with: said clearly, then back to the title.
    Shared().WordCount = 0;
    QCOMPARE(RestartRefusal(fx, game),
             "Toad Race | This list has no words to race with. Please choose another list.");
}

QTEST_MAIN(ToadRaceScreenTest)
#include "toad_race_screen_test.moc"
