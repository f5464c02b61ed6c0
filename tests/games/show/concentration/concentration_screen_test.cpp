// Concentration on its screen: from the title through misses, a third click and a win to the
// table and back; a long definition in its panel; a list whose words share their definitions,
// refused.
#include "games/show/concentration/concentration_screen.h"
#include "game_open.h"
#include "look.h"

using concentration::Face;

namespace {
const Pairs kAnimals{
    {"otter", "a playful swimmer with thick fur"},        {"heron", "a tall bird that wades"},
    {"badger", "it digs burrows and has a striped face"}, {"newt", "a small lizard-like swimmer"},
    {"moth", "it flies at night toward lights"},          {"hare", "a fast animal with long ears"}};

// Entries 1, 2, 3... drawn; each shuffle step swaps a card with itself: w1 m1 w2 m2 w3 m3...
Concentration* startGame(ShellFixture& fx, int level, const Pairs& words = kAnimals) {
    for (int k = 1; k <= level; ++k) fx.rng.pick(k, 6);
    for (int i = 2 * level; i >= 2; --i) fx.rng.pick(i, i);
    return StartFromTitle<Concentration>(fx, "Concentration", words, level);
}

void clickCard(Concentration* g, int i) {
    QTest::mouseClick(g, Qt::LeftButton, {}, g->cardRect(i).center());
}
}  // namespace

class ConcentrationScreenTest : public QObject {
    Q_OBJECT
private slots:
    void fromTheTitleThroughAWinToTheTable() {
        Road fx(0, {"CAT"});
        Shared().Score = 99;
        WM_OPEN(g, fx, startGame(fx, 3));
        QCOMPARE(Shared().Score, 0.0);  // every game starts from nothing, with a fresh shuffle
        QCOMPARE(fx.rng.randomizeCount, 1);
        QCOMPARE(g->game().cards.size(), std::size_t(6));
        QCOMPARE(Labels(g, "ScoreLabel PairsLabel ClockLabel"),
                 "Score: 0 | Pairs: 0 of 3 | Time: 0:00");
        QVERIFY(fx.music.opened.endsWith("sounds/concentration.mid"));
        QCOMPARE(g->windowTitle(), "Concentration");
        for (int i = 0; i < 6; ++i) {
            QCOMPARE(g->shownFace(i), Face::Back);
            QVERIFY(g->cardRect(i).width() >= 40 && g->cardRect(i).height() >= 40);
            QVERIFY(g->cardText(i).whole && !g->cardText(i).cramped);
        }
        QCOMPARE(g->cardText(1).lines.join(" "), "a playful swimmer with thick fur");
        Pump(2000);
        QCOMPARE(g->ClockLabel->text(), "Time: 0:02");

        // otter, then heron's definition: turns over, narrowing then widening, and does not match.
        clickCard(g, 0);
        QCOMPARE(fx.sound.played.last(), "conc-flip.wav");
        Pump(65);
        QVERIFY(g->cardWidthShare(0) < 0.8);
        QCOMPARE(g->shownFace(0), Face::Back);
        Pump(100);
        QCOMPARE(g->shownFace(0), Face::Word);
        Pump(200);
        QCOMPARE(g->cardWidthShare(0), 1.0);
        QVERIFY(!g->animating());
        clickCard(g, 3);
        QCOMPARE(fx.sound.played.last(), "conc-miss.wav");
        QCOMPARE(g->ScoreLabel->text(), "Score: 0");  // never below zero
        Pump(1100);
        QVERIFY(g->game().cards[0].up && g->game().cards[3].up);
        Pump(150);  // 1.2 s after the second card
        QVERIFY(!g->game().cards[0].up && !g->game().cards[3].up);

        // otter and its own definition: +100 x 3, green once turned.
        clickCard(g, 0);
        clickCard(g, 1);
        QCOMPARE(g->shownFace(1), Face::Back);  // the back shows until half the turn is done
        QCOMPARE(g->shownFace(0), Face::Word);  // and both turn green once it is over
        QCOMPARE(fx.sound.played.last(), "conc-match.wav");
        QCOMPARE(Labels(g, "ScoreLabel PairsLabel"), "Score: 300 | Pairs: 1 of 3");
        Pump(200);
        QCOMPARE(g->shownFace(1), Face::Meaning);
        Pump(60);  // the turn's last moment
        QCOMPARE(std::pair(g->shownFace(0), g->shownFace(1)), std::pair(Face::Found, Face::Found));
        Pump(150);
        QVERIFY(Runs(g->frame(), "Timer3"));  // the found pair swells, then rests
        Pump(190);
        QVERIFY(!Runs(g->frame(), "Timer3"));

        // heron and badger's definition: -10 x 3; a third click turns them back at once.
        clickCard(g, 2);
        clickCard(g, 5);
        QCOMPARE(g->ScoreLabel->text(), "Score: 270");
        clickCard(g, 4);
        QVERIFY(!g->game().cards[2].up && !g->game().cards[5].up && g->game().cards[4].up);
        clickCard(g, 5);
        QCOMPARE(g->ScoreLabel->text(), "Score: 570");
        Pump(1300);  // the 1.2 s of the turned pair no longer matter
        QVERIFY(g->game().cards[4].up);
        // The board mid-game: the found pair, a card face up, the rest face down.
        WM_CHECK_LOOK("Concentration_play", g);

        // The last pair: +300 and (300 - seconds) x 3, then the table.
        fx.dialogs.answerYes(false);
        const int seconds = g->game().seconds;
        QVERIFY(seconds >= 4 && seconds <= 6);
        clickCard(g, 2);
        clickCard(g, 3);
        const double score = 570 + 300 + (300 - seconds) * 3;
        QCOMPARE(Labels(g, "ScoreLabel PairsLabel"),
                 QString("Score: %1 | Pairs: 3 of 3").arg(score));
        // The screen is gone by now: the score above holds the seconds of the last pair.
        Pump(2000);
        QVERIFY(fx.sound.played.contains("conc-win.wav"));
        WM_CHECK_WON(fx, "Concentration", QString("CAT %1").arg(score));
    }

    void longDefinitionInThePanelAndSharedDefinitionsRefused() {
        const std::string long_ =
            "a small animal that lives in rivers and streams, builds its home in the bank with "
            "many "
            "rooms and tunnels, eats fish, frogs and crayfish, and can hold its breath under water "
            "for several minutes while it hunts; some kinds even use stones as tools to crack open "
            "shells on their bellies while floating on their backs in the sea";
        auto words = kAnimals;
        words[0].second = long_;
        ShellFixture fx;
        WM_OPEN(g, fx, startGame(fx, 10 - 4, words));  // six pairs
        const auto& cards = g->game().cards;
        int def = -1, word = -1;
        for (int i = 0; i < int(cards.size()); ++i)
            if (cards[i].entry == 1) (cards[i].meaning ? def : word) = i;
        QVERIFY(g->cardText(def).cramped && !g->cardText(word).cramped);
        clickCard(g, def);
        QVERIFY(g->DefPanel->isVisible());
        QCOMPARE(g->DefPanel->text().toStdString(), long_);
        WM_CHECK_LOOK("Concentration_panel", g);
        Pump(300);
        clickCard(g, 2);  // not its word: a miss
        QVERIFY(g->DefPanel->isVisible());
        Pump(1300);
        QVERIFY(!g->DefPanel->isVisible());
        // Found, it stays in the panel until the next card is turned.
        clickCard(g, word);
        QVERIFY(!g->DefPanel->isVisible());
        clickCard(g, def);
        QVERIFY(g->DefPanel->isVisible());
        QCOMPARE(g->ScoreLabel->text(), "Score: 600");
        clickCard(g, 2);
        QVERIFY(!g->DefPanel->isVisible());
        g->frame().quit();
        for (auto& [w, m] : words) m = "an animal";
        WM_VERIFY(Refused(fx, "Concentration", words, 2,
                          "There are not enough words with different definitions on this list to "
                          "play at this level. Please choose another list or go back and lower the "
                          "difficulty level."));
    }
};

QTEST_MAIN(ConcentrationScreenTest)
#include "concentration_screen_test.moc"
