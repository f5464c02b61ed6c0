// Slot Machine on its screen: from the title through ten jackpots (Space, the handle, the STOP
// buttons and the keys, a pull that pays part and holds nothing) to the table; one reel paid,
// then twenty empty pulls to the out-of-coins box; the machine laid out whole at both screen
// sizes; a list it cannot use.
#include "games/show/slot_machine/slot_machine_screen.h"
#include "act_kit.h"
#include "game_open.h"
#include "look.h"

using namespace wm::slot_machine;

namespace {
// Fourteen letters and a definition that fills its panel.
const std::vector<std::pair<std::string, std::string>> kWords = {
    {"characteristic",
     "a quality or feature that belongs to a person, a place or a thing and helps "
     "you tell it apart from others of its kind, such as the stripes of a zebra, "
     "the long neck of a giraffe or the loud voice of a teacher on a busy day"},
    {"extraordinarily", "far more than usual"},
    {"owl", "a night bird"},
    {"responsibility", "a duty that you are trusted to do well"}};

bool onAnswer(const SlotMachine* game, int reel) {
    const Reel& r = game->game().reel(reel);
    return r.strip[r.shown()] == game->game().answer();
}

// Lets the reels roll until reel `reel` shows the answer (or not), then stops it with its key,
// or with its button when `button`.
void StopOn(SlotMachine* game, int reel, bool right, bool button = false) {
    for (int i = 0; i < 500 && onAnswer(game, reel) != right; ++i) Pump(16);
    QVERIFY(onAnswer(game, reel) == right);
    if (button)
        game->stopButton(reel)->click();
    else
        QTest::keyClick(game, Qt::Key(Qt::Key_1 + reel));
}
}  // namespace

class SlotMachineScreenTest : public QObject {
    Q_OBJECT
private slots:
    void tenJackpotsToTheTable() {
        Road road(7, {"ACE"});
        road.dialogs.answerYes(false);
        WM_OPEN(game, road, QPointer(PlayOn<SlotMachine>(road, "Slot Machine", kWords, 1)));
        Pump();
        SharedState& s = Shared();
        QCOMPARE(game->scene()->bannerText(), QString("Get ready!"));
        QTest::keyClick(game, Qt::Key_Space);  // nothing to pull before the first definition
        Pump(1500);
        QCOMPARE(road.music.opened.section('/', -1), QString("slotmachine.mid"));
        QCOMPARE(LabelText(game, "Label1"), QString::fromLatin1(s.TheMeaning.c_str()));
        QCOMPARE(LabelText(game, "Label2") + " / " + LabelText(game, "Label3"),
                 QString("Coins: 100 / Definition 1 of 10"));
        const QString pullText = "Pull the handle (or press Space) to spin the reels!";
        QCOMPARE(LabelText(game, "Label4"), pullText);
        QVERIFY(!game->stopButton(0)->isEnabled());

        // The first pull: two reels right, one wrong.
        QTest::keyClick(game, Qt::Key_Space);
        QCOMPARE(road.sound.played.last(), QString("slot-pull.wav"));
        QCOMPARE(Labels(game, "Label2 Label4"),
                 "Coins: 95 | Press STOP (or 1, 2, 3) when the right word is in the window!");
        StopOn(game, 0, true);
        QCOMPARE(road.sound.played.last(), QString("slot-ding.wav"));
        QCOMPARE(LabelText(game, "Label2"), QString("Coins: 100"));
        QCOMPARE(game->stopButton(0)->text(), QString("RIGHT!"));
        WM_CHECK_LOOK("Slot_Machine_play", game);
        QVERIFY(!game->stopButton(0)->isEnabled() && game->stopButton(1)->isEnabled());
        StopOn(game, 1, false, true);
        QCOMPARE(road.sound.played.last(), QString("slot-stop.wav"));
        StopOn(game, 2, true);
        QCOMPARE(Labels(game, "Label2 Label4"), "Coins: 105 | " + pullText);

        // The second pull, on the handle: all three roll again; three right stops, the jackpot.
        QTest::mouseClick(game, Qt::LeftButton, {}, game->scene()->leverRect().center());
        QCOMPARE(game->game().rolling(), 3);
        QCOMPARE(game->stopButton(0)->text(), QString("STOP"));
        StopOn(game, 0, true);
        QTest::keyClick(game, Qt::Key_1);  // a stopped reel does not stop again
        QCOMPARE(road.sound.played.last(), QString("slot-ding.wav"));
        StopOn(game, 1, true, true);
        StopOn(game, 2, true);
        QCOMPARE(road.sound.played.last(), QString("slot-jackpot.wav"));
        QCOMPARE(game->scene()->bannerText(), QString("JACKPOT! +20 coins"));
        WM_CHECK_LOOK("Slot_Machine_jackpot", game);
        QCOMPARE(LabelText(game, "Label2"), QString("Coins: 135"));
        QTest::keyClick(game, Qt::Key_Space);  // the jackpot shows before the next pull
        const std::string first = s.TheWord;
        Pump(2600);
        QCOMPARE(LabelText(game, "Label3"), QString("Definition 2 of 10"));
        QVERIFY(s.TheWord != first);
        QCOMPARE(game->stopButton(0)->text(), QString("STOP"));

        // Nine more, each on one pull: 30 coins a definition at level 1.
        for (int d = 2; d <= 10; ++d) {
            QTest::keyClick(game, Qt::Key_Space);
            for (int reel = 0; reel < 3; ++reel) StopOn(game, reel, true);
            if (d < 10) Pump(2600);
        }
        QCOMPARE(road.sound.played.last(), QString("slot-win.wav"));
        QCOMPARE(game->scene()->bannerText(), QString("All ten! You have 405 coins!"));
        WM_CHECK_LOOK("Slot_Machine_won", game);  // the coins fly to the purse
        SlotMachine* const machine = game;
        bool behind = false;  // the jackpot's frames go on behind the boxes of the win
        WatchBehindTheWin(road, machine, behind);
        Pump(2700);
        QVERIFY(road.win.tables.isEmpty());
        Pump(200);
        WM_CHECK_WON(road, "Slot Machine", "ACE 405");
        QVERIFY(behind);
    }

    void outOfCoins() {
        Road road(3);
        road.dialogs.answerYes(false);
        WM_OPEN(game, road, QPointer(OpenGame<SlotMachine>(road, "Slot Machine", kWords, 20)));
        Pump(1500);
        // The first pull pays for its first reel; the next, all wrong, has no luck all the same.
        for (int pull = 1; pull <= 21; ++pull) {
            QTest::keyClick(game, Qt::Key_Space);
            QCOMPARE(game->game().coins(), 100 - 5 * pull + 5 * (pull > 1));
            for (int reel = 0; reel < 3; ++reel)
                StopOn(game, reel, pull == 1 && reel == 0, reel == 2);
            if (pull == 2) {
                QCOMPARE(road.sound.played.last(), QString("slot-miss.wav"));
                QCOMPARE(game->scene()->bannerText(), QString("No luck this time!"));
            }
        }
        QCOMPARE(road.sound.played.last(), QString("slot-lose.wav"));
        QCOMPARE(game->scene()->bannerText(), QString("You're out of coins!"));
        WM_CHECK_LOOK("Slot_Machine_broke", game);
        QTest::keyClick(game, Qt::Key_Space);
        Pump(2700);
        QVERIFY(road.dialogs.shown.empty());
        Pump(200);
        WM_VERIFY(Box(road,
                      "You're out of coins! The word was \"" +
                          QString::fromLatin1(Shared().TheWord.c_str()) +
                          "\". Would you like to try again?",
                      "Slot Machine"));
        QVERIFY(BackAtTitle());
    }

    void theMachineFitsAndOddListsAreRefused() {
        Road road(5);
        for (QSize screen : {QSize(1280, 800), QSize(1920, 1080)}) {
            ScreenMetrics::overrideScreenSize(screen);
            WM_OPEN(game, road, QPointer(OpenGame<SlotMachine>(road, "Slot Machine", kWords, 9)));
            for (int i = 0; i < 30 && Shared().TheWord != "characteristic"; ++i) {
                TriggerMenu(game, "RS");
                Pump(1500);
            }
            Pump(1500);
            QCOMPARE(Shared().TheWord, std::string("characteristic"));
            SlotScene* sc = game->scene();
            std::vector<QRect> parts{sc->definitionRect(), sc->promptRect(), sc->purseRect(),
                                     sc->countRect(), sc->leverRect()};
            for (int i = 0; i < 3; ++i)
                parts.insert(parts.end(), {sc->reelRect(i), sc->stopRect(i)});
            for (std::size_t i = 0; i < parts.size(); ++i) {
                QVERIFY(game->rect().contains(parts[i]) &&
                        parts[i].top() >= game->frame().menuHeight());
                for (std::size_t j = 0; j < i; ++j) QVERIFY(!parts[i].intersects(parts[j]));
            }
            // The longest definition stays whole on its panel, in letters a pupil can read.
            auto* def = game->findChild<QLabel*>("Label1");
            QVERIFY(def->fontInfo().pixelSize() >= 14);
            QVERIFY(def->fontMetrics()
                        .boundingRect(QRect(0, 0, def->width() - 36, 10000), Qt::TextWordWrap,
                                      def->text())
                        .height() <= def->height() - 14);
            game->frame().quit();
            Pump();
        }
        // One word in two spellings cannot fill a reel: a clear message, then the title.
        WM_VERIFY(Refused(road, "Slot Machine", {{"cat", "a pet"}, {" CAT", "a cat"}}, 9,
                          "Slot Machine needs a list with at least two different words and a "
                          "definition to play with. Please choose another list or another game."));
    }
};

QTEST_MAIN(SlotMachineScreenTest)
#include "slot_machine_screen_test.moc"
