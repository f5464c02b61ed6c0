// Cannon Shot on its screen, played with the keys: from the title through "Get ready!", the
// barrel turned, the bar charged, balloons popped in order and out of it, five words to the
// table; a game lost at 1920x1080 with every cannonball spent, a try again, and a list whose
// words are all too long.
#include "look.h"

#include "act_kit.h"
#include "cannon_aim.h"
#include "games/action/cannon_shot/cannon_shot_screen.h"
#include "platform/speech.h"

using namespace wm::cannon_shot;

class CannonShotScreenTest : public QObject {
    Q_OBJECT
private slots:
    void fiveWordsWonWithTheKeys();
    void outOfCannonballsLoses();
};

namespace {

// Shoots a balloon with `letter` as a pupil would, with the keys; waits for one to come into
// reach when none is.
bool ShootLetter(CannonShotForm* game, char letter, bool decoy = false) {
    for (int wait = 0; wait < 40; ++wait) {
        const auto& bs = game->game().balloons();
        for (int i = 0; i < int(bs.size()); ++i) {
            Plan p;
            if (!bs[i].shown() || bs[i].letter != letter || bs[i].decoy != decoy ||
                bs[i].x > 1100 || !PlanShot(game->game(), i, &p))
                continue;
            const int key = p.turn > 0 ? Qt::Key_Left : Qt::Key_Right;
            HoldKey(game, key, 16 * p.turnTicks);
            HoldKey(game, Qt::Key_Space, 16 * p.charge);
            for (int t = 0; t < 400 && (t == 0 || game->game().ball().flying); ++t) Pump(16);
            return !game->game().balloons()[i].shown();
        }
        Pump(320);
    }
    return false;
}

}  // namespace

void CannonShotScreenTest::fiveWordsWonWithTheKeys() {
    Road fx(0, {"CAN"});
    auto* game = FromTitle<CannonShotForm>(fx, "Cannon Shot",
                                           {{"ox", "a strong farm animal"},
                                            {"hen", "a bird that lays eggs"},
                                            {"pig", "it rolls in the mud"},
                                            {"cow", "it gives milk"}, {"ewe", "a mother sheep"},
                                            {"kid", "a young goat"}},
                                           2);
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    Pump();
    WM_VERIFY(Called(fx, game->sky()->call(), "Get ready!", "cannonready.wav"));
    QCOMPARE(Labels(game, "Label1 LevelLabel"), Meaning() + " | Level 2");
    QVERIFY(fx.music.opened.endsWith("cannonshot.mid") && game->windowTitle() == "Cannon Shot");
    // The blanks' cursor blinks: they are painted again, though nothing else moves there.
    const auto ready = RepaintsDuring(game->sky(), [] { Pump(CannonShotForm::kReadyMs); }).region;
    QVERIFY(ready.contains(game->sky()->toWidget({980, 836 + 29, 1, 1}).center().toPoint()));
    QCOMPARE(game->sky()->call(), "");
    // A click on the sky gives the keys back to the cannon after the pupil was elsewhere.
    game->clearFocus();
    QTest::mouseClick(game, Qt::LeftButton, {}, QPoint(640, 300));
    QVERIFY(game->hasFocus());

    int score = 0;
    for (int w = 1; w <= 5; ++w) {
        const std::string word = Shared().TheWord;
        QCOMPARE(LabelText(game, "BallsLabel"),
                 QString("Cannonballs: %1").arg(2 * word.size() + 3));
        for (std::size_t k = 0; k < word.size(); ++k) {
            const bool first = w == 1 && k == 0;
            Shared().SoundOn = first ? kFalse : kTrue;  // the pop only with sound on
            QVERIFY2(ShootLetter(game, char(toupper(word[k]))), word.c_str());
            QCOMPARE(fx.sound.played.contains("cannonpop.wav"), !first);
            Shared().SoundOn = kTrue;
            score += 20;
            QCOMPARE(LabelText(game, "ScoreLabel"), QString("Score: %1").arg(score));
            if (first) {
                // A decoy: -5 x level and its own sound; the blank stays empty.
                const auto& bs = game->game().balloons();
                const auto decoy =
                    std::find_if(bs.begin(), bs.end(), [](auto& b) { return b.decoy; });
                QVERIFY(ShootLetter(game, decoy->letter, true));
                QCOMPARE(fx.sound.played.count("cannonwrong.wav"), 1);
                score -= 10;
                QCOMPARE(LabelText(game, "ScoreLabel"), QString("Score: %1").arg(score));
                QCOMPARE(game->game().nextPos(), 1);
                WM_CHECK_LOOK("Cannon_Shot_play", game);
            }
        }
        QVERIFY(fx.sound.played.contains("cannonboom.wav"));
        if (w < 5) {
            WM_VERIFY(Called(fx, game->sky()->call(), "Well done!", "cannonword.wav"));
            Pump(CannonShotForm::kWordMs);
            QCOMPARE(game->sky()->call(), QString("Word %1 of 5").arg(w + 1));
            QCOMPARE(LabelText(game, "WordLabel"), QString("Word %1 of 5").arg(w + 1));
            QCOMPARE(fx.sound.played.last(), "cannonready.wav");  // each word is readied aloud
            Pump(CannonShotForm::kReadyMs);
        }
    }
    WM_VERIFY(Called(fx, game->sky()->call(), "You win!", "cannonwin.wav"));
    Pump(CannonShotForm::kEndMs);
    WM_CHECK_WON(fx, "Cannon Shot", QString("CAN %1").arg(score));
}

void CannonShotScreenTest::outOfCannonballsLoses() {
    RecordingSpeech voice;  // outlives the screens the fixture closes
    Road fx(0);
    services().speech = &voice;
    ScreenMetrics::overrideScreenSize(QSize(1920, 1080));
    fx.rng.pick(1, 2).then(0.9);  // the word, the wind: from the left, strong
    auto* game =
        OpenGame<CannonShotForm>(fx, "Cannon Shot", {{"ox", ""}, {"ox", ""}}, 8, false, true, true);
    QVERIFY(game);
    Pump(CannonShotForm::kReadyMs + 100);
    // A words-only list has no clue; from level 8 the wind blows.
    QVERIFY(!game->findChild<QLabel*>("Label1")->isVisible());
    QCOMPARE(game->game().wind(), 0.8 * 0.01);
    QVERIFY(!game->frame().sayIt());  // the word is the riddle while it is being shot at
    // Down lowers the barrel as Right does; then seven taps of Space into the grass.
    HoldKey(game, Qt::Key_Down, 16 * 40);
    QCOMPARE(game->game().angle(), 10.0);
    for (int b = 7; b >= 1; --b) {
        QCOMPARE(LabelText(game, "BallsLabel"), QString("Cannonballs: %1").arg(b));
        SendKey(game, Qt::Key_Space);
        SendKey(game, Qt::Key_Space, QEvent::KeyRelease);
        Pump(32);
        QVERIFY(game->game().ball().flying);
        QVERIFY(PaintsDuring(game->sky(), [] { Pump(32); }) > 0);  // the ball is seen to fly
        for (int t = 0; t < 200 && game->game().ball().flying; ++t) Pump(16);
    }
    QVERIFY(fx.sound.played.contains("cannonthud.wav"));
    WM_VERIFY(Called(fx, game->sky()->call(), "Out of cannonballs!", "cannonlose.wav"));
    QVERIFY(game->frame().sayIt() && voice.said.back().text == "ox");  // heard once it is lost
    WM_CHECK_LOOK("Cannon_Shot_lost", game);
    bool behind = false;  // the sky plays on behind the box
    WatchBehindTheBox(fx, game, behind);
    Pump(CannonShotForm::kEndMs);
    QVERIFY(behind);
    QCOMPARE(LastBox(fx),
             "Try Again? | Out of cannonballs! The word was ox. Would you like to try again?");
    // Try again: a fresh game with a full rack.
    QCOMPARE(game->sky()->call(), "Get ready!");
    QCOMPARE(LabelText(game, "BallsLabel"), "Cannonballs: 7");
    WM_CHECK_LOOK("Cannon_Shot_again", game);  // the barrel up again, the sky cleared
    // Words too long for the blanks: said clearly, then back to the title.
    Shared().Words = {"", "hippopotomonstrous", "photosynthesise"};
    QCOMPARE(RestartRefusal(fx, game),
             "Cannon Shot | "
             "This list has no words that fit Cannon Shot: a word may have at most 14 letters. "
             "Please choose another list.");
}

QTEST_MAIN(CannonShotScreenTest)
#include "cannon_shot_screen_test.moc"
