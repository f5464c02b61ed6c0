// Hang Glider on its screen, flown with the keys: from the title through "Get ready!", each
// letter met by steering up to it, a wrong one, five words to the table; a game lost at
// 1920x1080 by diving into the field, a try again, and a list whose words are all too long.
#include "games/action/hang_glider/hang_glider_screen.h"
#include "act_kit.h"
#include "look.h"

using namespace wm::hang_glider;

class HangGliderScreenTest : public QObject {
    Q_OBJECT
private slots:
    void fiveWordsWonWithTheKeys();
    void landingTooEarlyLosesAndALongClueShrinks();
};

namespace {

// Puts `letter` in the sky ahead at height `y` and steers into it as a pupil would: Up or Down
// held until the glider is level with it, then let go. True when it was flown through.
bool FlyThrough(HangGlider* game, char letter, double y) {
    game->rules().addLetter(letter, kGliderX + 240, y);
    const auto& g = game->game();
    const int done = g.done(), score = g.score();
    auto through = [&] { return g.done() != done || g.score() != score; };
    int held = 0;
    for (int frame = 0; frame < 120 && !through(); ++frame) {
        const double dy = y - g.y();
        Hold(game, held, dy < -8 ? Qt::Key_Up : dy > 8 ? Qt::Key_Down : 0);
        Pump(16);
    }
    Hold(game, held, 0);
    return through();
}

// The plates and the clue stand inside the screen, clear of each other.
void CheckLayout(HangGlider* game) {
    WM_CHECK_PLATES(game, {"LevelLabel", "WordLabel", "ScoreLabel", "Label1"});
    // The clue centred under the word; the plates in the corners, mirrored.
    const auto at = [&](const char* name) { return game->findChild<QLabel*>(name)->geometry(); };
    QVERIFY(std::abs(at("Label1").center().x() - game->width() / 2) <= 2);
    QVERIFY(std::abs(at("LevelLabel").left() - (game->width() - 1 - at("ScoreLabel").right())) <=
            2);
    QCOMPARE(at("LevelLabel").top(), at("ScoreLabel").top());
}

}  // namespace

void HangGliderScreenTest::fiveWordsWonWithTheKeys() {
    Road fx(0, {"HGL"});
    fx.rng.setFallback(0.99);  // the decoys come low, the letters the pupil flies to high
    auto* game = FromTitle<HangGlider>(fx, "Hang Glider",
                                       {{"ox", "a strong farm animal"},
                                        {"hen", "a bird that lays eggs"},
                                        {"pig", "it rolls in the mud"}, {"cow", "it gives milk"},
                                        {"ewe", "a mother sheep"}, {"kid", "a young goat"}},
                                       2);
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    Pump();
    WM_VERIFY(Called(fx, game->sky()->call(), "Get ready!", "gliderready.wav"));
    QCOMPARE(Labels(game, "Label1 LevelLabel"), Meaning() + " | Level 2");
    QVERIFY(fx.music.opened.endsWith("hangglider.mid") && game->windowTitle() == "Hang Glider");
    CheckLayout(game);
    WM_CHECK_LOOK("Hang_Glider_ready", game);
    Pump(HangGlider::kReadyMs);
    QCOMPARE(game->sky()->call(), "");

    int score = 0;
    for (int w = 1; w <= 5; ++w) {
        const std::string word = Shared().TheWord;
        QCOMPARE(LabelText(game, "WordLabel"), QString("Word %1 of 5").arg(w));
        for (std::size_t k = 0; k < word.size(); ++k) {
            const double below = game->game().ceiling() + 40;  // as high as it may climb
            QVERIFY2(FlyThrough(game, char(toupper(word[k])), std::max(300.0, below)),
                     word.c_str());
            score += 20;
            QCOMPARE(LabelText(game, "ScoreLabel"), QString("Score: %1").arg(score));
            for (const bool soundOn : {true, false}) {
                if (w > 1 || k > 0) break;
                // A wrong letter: -5 x level, its sound only with sound on.
                Shared().SoundOn = soundOn ? kTrue : kFalse;
                const auto sounds = fx.sound.played.count("gliderwrong.wav");
                QVERIFY(FlyThrough(game, 'Q', game->game().y()));
                QCOMPARE(fx.sound.played.count("gliderwrong.wav"), sounds + soundOn);
                score -= 10;
                QCOMPARE(LabelText(game, "ScoreLabel"), QString("Score: %1").arg(score));
                Shared().SoundOn = kTrue;
            }
        }
        QVERIFY(fx.sound.played.contains("gliderlift.wav"));
        if (w < 5) {
            WM_VERIFY(Called(fx, game->sky()->call(), "Well done!", "gliderword.wav"));
            Pump(HangGlider::kWordMs);
            QCOMPARE(game->sky()->call(), QString("Word %1 of 5").arg(w + 1));
            QCOMPARE(LabelText(game, "Label1"), Meaning());
            QVERIFY(game->findChild<QLabel*>("Label1")->isVisible());
            Pump(HangGlider::kReadyMs);
        }
    }
    WM_VERIFY(Called(fx, game->sky()->call(), "You win!", "gliderwin.wav"));
    Pump(HangGlider::kEndMs);
    WM_CHECK_WON(fx, "Hang Glider", QString("HGL %1").arg(score));
}

void HangGliderScreenTest::landingTooEarlyLosesAndALongClueShrinks() {
    Road fx(0);
    ScreenMetrics::overrideScreenSize(QSize(1920, 1080));
    auto* game =
        OpenGame<HangGlider>(fx, "Hang Glider", {{"ox", ""}, {"ox", ""}}, 5, false, true, true);
    QVERIFY(game);
    Pump(HangGlider::kReadyMs + 100);
    // A words-only list has no clue.
    QVERIFY(!game->findChild<QLabel*>("Label1")->isVisible());
    CheckLayout(game);
    // Straight down into the field: 460 units at 4.8 a frame.
    SendKey(game, Qt::Key_Down);
    Pump(16 * 30);
    QVERIFY2(game->sky()->pitch() > 10, "the nose goes down in a dive");
    Pump(16 * 70);  // Down still held as the flight ends
    QCOMPARE(game->game().phase(), Phase::Lost);
    WM_VERIFY(Called(fx, game->sky()->call(), "You landed too early!", "gliderland.wav"));
    bool behind = false;  // the sky flies on behind the box
    WatchBehindTheBox(fx, game, behind);
    Pump(HangGlider::kEndMs);
    QVERIFY(behind);
    QCOMPARE(LastBox(fx),
             "Try Again? | You landed too early! The word was ox. Would you like to try again?");
    // Try again: a fresh flight from the top.
    QCOMPARE(game->sky()->call(), "Get ready!");
    QVERIFY(!game->sky()->showsEnd());
    QCOMPARE(game->game().y(), 330.0);
    Pump(HangGlider::kReadyMs + 16 * 30);
    QVERIFY2(game->sky()->pitch() < 10, "the key held at the crash is forgotten");
    // Words too long for the plate: said clearly, then back to the title.
    Shared().Words = {"", "pneumonoultramicroscopic", "supercalifragilistic1"};
    QCOMPARE(RestartRefusal(fx, game),
             "Hang Glider | "
             "This list has no words that fit Hang Glider: a word may have at most 20 letters. "
             "Please choose another list.");

    // A long clue shrinks to fit its plate.
    const std::string longer =
        "a large bird of prey with a hooked beak and broad wings that soars for hours on warm "
        "rising air over hills, cliffs and open country, looking down for small animals to catch";
    game = OpenGame<HangGlider>(fx, "Hang Glider", {{"eagle", longer}, {"eagle", longer}}, 1);
    QVERIFY(game);
    Pump();
    QVERIFY(game->findChild<QLabel*>("Label1")->font().pixelSize() < 30);  // 30 for a short one
    CheckLayout(game);
}

QTEST_MAIN(HangGliderScreenTest)
#include "hang_glider_screen_test.moc"
