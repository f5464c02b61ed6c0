// Bug Spray on its screen: the intro holds the keys, clips of a group start together and the
// next group waits for both, the sounds of hits and misses, a win into the table, a loss at
// the sixth miss of the hardest level, and silence with sound off on a words-only list.

#include "games/guess/bugspray/bugspray_screen.h"
#include "guess_road.h"
#include "look.h"

class BugSprayScreenTest : public QObject {
    Q_OBJECT
private slots:
    void winAtTheEasiestLevel() {
        Road fx(0, {"BUG"});
        WM_OPEN(game, fx, PlayOn<BugSprayForm>(fx, "Bug Spray", {{"Ant", "a tiny worker"}}, 1));
        Shared().SoundOn = kTrue;
        QVERIFY(TriggerMenu(game, "RS"));
        QVERIFY(fx.sound.played.contains("bugintro.wav"));
        // The intro holds the keys.
        QVERIFY(game->bugPlayer()->isPlaying());
        Keys(game, "a");
        QCOMPARE(LabelText(game, "Label2"), "");
        FinishClips(game);
        fx.sound.played.clear();
        Keys(game, "a");  // a hit that does not finish the word
        QCOMPARE(fx.sound.played, QStringList{"buggood3.wav"});  // Int(0.5 * 4 + 1)
        Keys(game, "z");
        QCOMPARE(fx.sound.played.last(), "bugbad1.wav");
        QVERIFY(game->sprayPlayer()->isPlaying() && game->bugPlayer()->isPlaying());
        game->sprayPlayer()->advance(0.55);
        WM_CHECK_LOOK("Bug_Spray_spray", game);  // the can's mist on its way to the bug
        FinishClips(game);
        Keys(game, "q");
        QCOMPARE(fx.sound.played.last(), "bugbad3.wav");  // Int(0.5 * 3 + 1) + 1
        FinishClips(game);

        fx.dialogs.answerYes(false);
        Keys(game, "nT");
        // The win clip, waited for.
        QVERIFY(fx.sound.played.contains("bugbye.wav") && game->bugPlayer()->isPlaying());
        game->bugPlayer()->advance(0.4);
        WM_CHECK_LOOK("Bug_Spray_win", game);  // wings out, sparkles round it, not yet flying
        FinishClips(game);
        // The stake Int(0.5 * 1000 + 1) x 1 x 3 = 1503, kept whole.
        QVERIFY(!fx.dialogs.saw("Would you like to raise the difficulty level a bit?"));
        WM_CHECK_WON(fx, "Bug Spray", "BUG 1503");
        QVERIFY(fx.music.opened.isEmpty());
    }

    void loseAtTheHardestLevel() {
        ShellFixture fx;
        WM_OPEN(game, fx, OpenGame<BugSprayForm>(fx, "Bug Spray", {{"moth", "flies at night"}}, 3));
        FinishClips(game);
        // Miss 4 at level 3: spray7 + bug5, spray8 + bug6, spray9, spray10 + bug7. A group waits
        // for both of its clips.
        for (QChar c : QString("abc")) {
            Keys(game, c);
            FinishClips(game);
        }
        QCOMPARE(game->round().Misses, 3);
        Keys(game, "d");
        game->sprayPlayer()->advance(60);
        Pump();
        QVERIFY(game->bugPlayer()->isPlaying());  // still the first group
        Keys(game, "e");                          // lost while it plays
        game->bugPlayer()->advance(60);
        Pump();
        QVERIFY(game->sprayPlayer()->isPlaying());  // the second group started
        FinishClips(game);
        QCOMPARE(LabelText(game, "Label2"), "a b c d ");
        Keys(game, "e");
        FinishClips(game);
        fx.dialogs.answerYes(false);
        Keys(game, "fg");
        QVERIFY(fx.dialogs.shown.empty());  // the end clips play first
        FinishClips(game);
        WM_VERIFY(Box(fx,
                      "Oops! Your bug was sprayed! The word you were looking for was \"moth\". "
                      "Would you like to give it another try?",
                      "Try Again?"));
        QVERIFY(BackAtTitle());
    }

    void silentWithSoundOff() {
        ShellFixture fx;
        WM_OPEN(game, fx,
                OpenGame<BugSprayForm>(fx, "Bug Spray", {{"bee", ""}}, 2, false, false, true));
        // A words-only list loses only the hint.
        QVERIFY(!game->hintButton()->isVisible() && game->solveButton()->isVisible());
        FinishClips(game);
        Keys(game, "bz");
        FinishClips(game);
        QCOMPARE(game->round().Misses, 1);
        for (const QString& s : fx.sound.played) QVERIFY2(!s.startsWith("bug"), qPrintable(s));
    }
};

QTEST_MAIN(BugSprayScreenTest)
#include "bugspray_screen_test.moc"
