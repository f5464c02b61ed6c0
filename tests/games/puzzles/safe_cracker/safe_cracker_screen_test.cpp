// Safe Cracker on its screen, on the test clock: the road from the title through five safes
// (a refusal, a repeat, an opened door, an alarm, a fixed hyphen) to the table and back; a game
// with every safe shut, which is lost and shows its words; the palette's accents, no clue and no
// sound when they are off; a list it cannot play.
#include "games/puzzles/safe_cracker/safe_cracker_screen.h"
#include "game_end.h"
#include "look.h"
#include "screen_kit.h"

namespace {
const Pairs kBank{{"gold", "a shiny yellow metal"},
                  {"key", "it opens a lock"},
                  {"x-ray", "a picture of your bones"},
                  {"vault", "a strong room"},
                  {"code", "a secret set of signs"}};

void Guess(QWidget* game, const QString& keys) {
    Keys(game, keys);
    QTest::keyClick(game, Qt::Key_Return);
}
// A row of tumblers as letters: G green, A amber, x grey, . fixed or not lit.
QString Lights(SafeCracker* game, int row) {
    QString out;
    for (const auto& t : game->view().rows[row])
        out += t.mark == 3 ? 'G' : t.mark == 2 ? 'A' : t.mark == 1 ? 'x' : '.';
    return out;
}
QString Letters(SafeCracker* game, int row) {
    QString out;
    for (const auto& t : game->view().rows[row]) out += t.letter.isEmpty() ? "_" : t.letter;
    return out;
}
// Past the pause before a safe.
void Ready(SafeCracker* game, int ms = 1000) {
    Pump(ms + 20);
    QCOMPARE(game->phase(), SafeCracker::Phase::Play);
}
}  // namespace

class SafeCrackerScreenTest : public QObject {
    Q_OBJECT
private slots:
    void fiveSafesFromTheTitleToTheTable() {
        Road fx(0);
        WriteOneList(fx, "Bank", kBank);
        for (int k = 1; k <= 5; ++k) fx.rng.pick(k, 5);
        auto* game = qobject_cast<SafeCracker*>(PlayFromTitle("Safe Cracker", "Bank", 1));
        QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
        QVERIFY(fx.music.opened.endsWith("sounds/safecracker.mid"));
        QCOMPARE(game->windowTitle(), "Safe Cracker");
        QCOMPARE(
            Labels(game, "MeaningLabel ReadyLabel MessageLabel"),
            "Clue: a shiny yellow metal | Get ready! | Type a word of 4 letters and press Enter.");
        Keys(game, "g");  // keys wait for the safe
        QCOMPARE(game->game().typedCount(), 0);
        QVERIFY(!game->key('g')->isEnabled());
        Pump(1500);
        QCOMPARE(game->phase(), SafeCracker::Phase::Ready);
        Ready(game, 100);
        QCOMPARE(Labels(game, "SafeLabel TriesLabel"), "Safe 1 of 5 | Tries left: 6");

        // Enter on a part-filled row is refused; Backspace takes letters back.
        Guess(game, "gox");
        QCOMPARE(LabelText(game, "MessageLabel"), "Fill every tumbler first!");
        QCOMPARE(fx.sound.played.last(), "sc-buzz.wav");
        fx.sound.played.clear();
        QTest::keyClick(game, Qt::Key_Backspace);
        QCOMPARE(Letters(game, 0), "GO__");
        QCOMPARE(fx.sound.played, QStringList{"sc-click.wav"});  // each letter in or out clicks
        Guess(game, "od");
        QCOMPARE(fx.sound.played.mid(1, 2), (QStringList{"sc-click.wav", "sc-click.wav"}));
        QCOMPARE(fx.sound.played.last(), "sc-tumbler.wav");
        QCOMPARE(Labels(game, "MessageLabel TriesLabel"), "Not yet! 5 tries left. | Tries left: 5");
        Pump(600);
        QCOMPARE(Lights(game, 0), "GGxG");
        // The safe after a first try: its lights, the keys it coloured, the message and the clue.
        WM_CHECK_LOOK("Safe_Cracker_play", game);
        // The keys' colours (1 not tried, 2 grey, 3 amber, 4 green): green beats grey elsewhere.
        for (char c : {'g', 'o'}) QCOMPARE(game->key(c)->property("look").toInt(), 4);
        QCOMPARE(Button(game, "KeyG"), game->key('g'));
        Guess(game, "GOOD");  // the same guess in capitals costs nothing
        QCOMPARE(Labels(game, "MessageLabel TriesLabel"),
                 "You tried that combination already. | Tries left: 5");

        // The on-screen keys: Back four times, the letters, Enter.
        QCOMPARE(game->findChild<QPushButton*>("Command1"), game->enterKey());
        for (int i = 0; i < 4; ++i) game->backKey()->click();
        for (char c : {'g', 'o', 'l', 'd'}) game->key(c)->click();
        game->enterKey()->click();
        QCOMPARE(fx.sound.played.last(), "sc-open.wav");
        QCOMPARE(game->phase(), SafeCracker::Phase::Opening);
        // (7 - 2) x 50 + 4 x 10
        QCOMPARE(Labels(game, "ScoreLabel MessageLabel"), "Score: 290 | The safe is open! +290");
        Keys(game, "k");
        QCOMPARE(game->game().typedCount(), 0);
        Pump(1900);
        QVERIFY(game->view().door > 0.3);
        Pump(600);
        // Wide open, the door's edge has come round left of the safe, and is repainted there.
        QVERIFY(RepaintsDuring(game, [] { Pump(100); }).region.boundingRect().left() < 260);
        Pump(1000);
        QCOMPARE(Labels(game, "ReadyLabel MeaningLabel"), "Safe 2 of 5 | Clue: it opens a lock");
        WM_CHECK_LOOK("Safe_Cracker_next", game);
        Ready(game);

        // Six wrong tries: the alarm, and the word shown.
        for (const char* t : {"abc", "def", "fgh", "ijl", "mnp"}) Guess(game, t);
        QCOMPARE(LabelText(game, "MessageLabel"), "Not yet! 1 try left.");
        Guess(game, "qrs");
        QCOMPARE(fx.sound.played.last(), "sc-alarm.wav");
        QCOMPARE(game->phase(), SafeCracker::Phase::Alarm);
        QCOMPARE(LabelText(game, "MessageLabel"), "The alarm went off! The combination was key.");
        QCOMPARE(LabelText(game, "ScoreLabel"), "Score: 290");
        Pump(1000);
        QVERIFY(game->view().alarm > 0);
        WM_CHECK_LOOK("Safe_Cracker_alarm", game);  // the beacon's glow, the word on its plaque
        Pump(2600);
        QCOMPARE(LabelText(game, "SafeLabel"), "Safe 3 of 5");
        Ready(game);

        // The hyphen stands in its place; first-try safes score 300 + length x 10.
        QCOMPARE(Letters(game, 0), "_-___");
        Guess(game, "xray");
        QCOMPARE(LabelText(game, "ScoreLabel"), "Score: 640");
        for (auto [word, score] : {std::pair{"vault", "Score: 990"}, {"code", "Score: 1330"}}) {
            Pump(3900);
            Ready(game);
            if (QString(word) == "code") fx.dialogs.answerYes(false);
            Guess(game, word);
            QCOMPARE(LabelText(game, "ScoreLabel"), score);
        }
        QVERIFY(fx.dialogs.shown.empty());  // the last door opens before the table
        Pump(3900);
        WM_VERIFY(WonBox(fx, 1330));
        QCOMPARE(TableRow(fx, "Safe Cracker"), "ZZZ 1330");
        QVERIFY(BackAtTitle());
        QVERIFY(fx.music.closes > 0);
    }

    void everySafeShutLosesTheGame() {
        Road fx(0);
        auto* game = OpenGame<SafeCracker>(
            fx, "Safe Cracker", {{"ant", ""}, {"bee", ""}, {"cat", ""}, {"dog", ""}, {"elk", ""}},
            1, true, true, true);
        QVERIFY(game);
        QVERIFY(
            fx.dialogs.saw("The list you have selected contains words only, with no definitions. "
                           "The word meaning will not be displayed during the game."));
        game->resize(1920, 1080);
        // The plate moves with the safe to the middle of the larger screen.
        QVERIFY(qAbs(game->findChild<QLabel*>("ReadyLabel")->geometry().center().x() - 960) < 3);
        Ready(game, 1600);
        QVERIFY(!game->findChild<QLabel*>("MeaningLabel")->isVisible());
        for (int safe = 1; safe <= 5; ++safe) {
            if (safe > 1) Ready(game);
            QCOMPARE(LabelText(game, "SafeLabel"), QString("Safe %1 of 5").arg(safe));
            for (const char* t : {"zzz", "zzy", "zyz", "yzz", "yyz", "zyy"}) Guess(game, t);
            QCOMPARE(game->phase(), SafeCracker::Phase::Alarm);
            if (safe == 5) fx.dialogs.answerYes(true);
            Pump(3900);
        }
        QCOMPARE(fx.sound.played.last(), "sc-lose.wav");
        QCOMPARE(int(game->game().words().size()), 1);  // Yes: a new game has begun
        WM_VERIFY(Box(fx,
                      "The alarm went off at every safe! The combinations were cat, dog, elk, ant "
                      "and bee. Would you like to try again?",
                      "Try Again?"));
        QVERIFY(fx.win.congratulations.isEmpty());  // nothing entered the table
        QCOMPARE(game->phase(), SafeCracker::Phase::Ready);
        QCOMPARE(LabelText(game, "SafeLabel"), "Safe 1 of 5");
        QCOMPARE(Shared().Score, 0.0);
        QTest::keyClick(game, Qt::Key_Escape);
        QVERIFY(BackAtTitle());
    }

    void paletteNoClueSilenceAndAListWithNothingToPlay() {
        ShellFixture fx;
        WinDriver driver;
        SetModalHook(PaletteThen(0xC9, driver));  // the capital: case does not matter
        auto* game = OpenGame<SafeCracker>(fx, "Safe Cracker", {{"caf\xE9", "a coffee shop"}}, 1,
                                           false, false);
        QVERIFY(game);
        Ready(game, 1600);
        QVERIFY(!game->findChild<QLabel*>("MeaningLabel")->isVisible());
        Guess(game, "cafe");  // e is not é
        QCOMPARE(Lights(game, 0), "GGGx");
        Keys(game, "caf");
        QVERIFY(TriggerMenu(game, "FLang"));
        QCOMPARE(Letters(game, 1), "CAF\u00c9");
        QTest::keyClick(game, Qt::Key_Enter);
        QCOMPARE(LabelText(game, "ScoreLabel"), "Score: 290");
        QVERIFY(fx.sound.played.isEmpty());
        QVERIFY(TriggerMenu(game, "Return"));
        QVERIFY(BackAtTitle());
        WM_VERIFY(Refused(fx, "Safe Cracker",
                          {{"abcdefghijklm", "thirteen letters"}, {"- -", "nothing to guess"}}, 1,
                          "This list has no word that Safe Cracker can use (the words are empty or "
                          "longer than 12 letters). Please choose another list."));
    }
};

QTEST_MAIN(SafeCrackerScreenTest)
#include "safe_cracker_screen_test.moc"
