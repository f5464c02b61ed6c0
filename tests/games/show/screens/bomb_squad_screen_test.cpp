// Bomb Squad on its screen: from the title to a defused bomb and the table; the wrong wire and
// the clock running out, each to its own loser's box; a list too short for the wires, refused.

#include "games/show/bomb_squad/bomb_squad_screen.h"
#include "game_open.h"
#include "look.h"
#include "platform/movie.h"

namespace {
const Pairs kWords{
    {"volcano", "a mountain that can erupt"},     {"glacier", "a river of ice"},
    {"canyon", "a deep valley with steep sides"}, {"delta", "land at the mouth of a river"},
    {"island", "land with water all around"},     {"desert", "a very dry place"},
    {"mesa", "a hill with a flat top"},           {"fjord", "a narrow inlet of the sea"},
    {"lagoon", "a pool cut off from the sea"},    {"plateau", "high flat land"},
    {"strait", "a narrow channel of water"},      {"tundra", "a cold plain without trees"}};

void clickAt(QWidget* w, QPoint p) {
    QTest::mouseClick(w, Qt::LeftButton, {}, p);
}

}  // namespace

class BombSquadScreenTest : public QObject {
    Q_OBJECT
private slots:
    void defuseFromTheTitleToTheTable() {
        Road fx(0, {"BOB"});
        fx.rng.setFallback(0.3);
        WM_OPEN(game, fx, StartFromTitle<BombSquad>(fx, "Bomb Squad", kWords, 4, 400));
        const auto& deal = game->deal();
        QCOMPARE(int(deal.wires.size()), 5);
        QCOMPARE(game->timeLabel()->text(), "25");
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(game->wordLabels()[i]->text().toStdString(),
                     Shared().Words[deal.wires[i].word]);
            QCOMPARE(LabelText(game, qPrintable(QString("DefLabel%1").arg(i))).toStdString(),
                     Shared().Meanings[deal.wires[i].definition]);
        }
        QVERIFY(!game->wordLabels()[5]->isVisible());
        // The clock on the bomb is drawn anew each second, not only the label above it.
        QVERIFY(RepaintsDuring(game, [] { Pump(2000); }).region.contains(game->rect().center()));
        QCOMPARE(game->timeLabel()->text(), "23");
        QCOMPARE(fx.sound.played.count("spacebeep.wav"), 2);

        // A press on a label, past the wires or where a sixth wire would run does nothing.
        clickAt(game, game->wordLabels()[0]->geometry().center());
        clickAt(game, game->wireMiddle(5));
        QCOMPARE(fx.sound.played.count("snip.wav"), 0);

        fx.dialogs.answerYes(false);
        // Defused, the wires left are cut no more, not even while the boxes stand.
        fx.dialogs.whileOpen = [&](const auto&) {
            for (int i = 0; i < 5; ++i) clickAt(game, game->wireMiddle(i));
        };
        int bad = 0;
        for (int i = 0; i < 5; ++i) bad += deal.wires[i].bad;
        for (int i = 0, cut = 0; i < 5; ++i) {
            if (!deal.wires[i].bad) continue;
            clickAt(game, game->wireMiddle(i));
            if (++cut < bad) QVERIFY(game->deal().wires[i].cut);
        }
        QCOMPARE(fx.sound.played.count("snip.wav"), bad);
        // (500 + 23 seconds + a roll of 1..4) times 4.
        const double score = Shared().Score;
        QVERIFY(score >= 524 * 4 && score <= 527 * 4 && int(score) % 4 == 0);
        WM_CHECK_WON(fx, "Bomb Squad", QString("BOB %1").arg(score));
    }

    void lossesByWireAndByClock() {
        ShellFixture fx;
        fx.rng.setFallback(0.3);
        WM_OPEN(game, fx, StartFromTitle<BombSquad>(fx, "Bomb Squad", kWords, 2, 400));
        Shared().Score = 777;  // a lost game keeps the score it had
        int good = -1;
        for (int i = 0; i < int(game->deal().wires.size()); ++i)
            if (!game->deal().wires[i].bad) good = i;
        if (good < 0) QSKIP("the fallback dealt only bad wires");
        fx.dialogs.answerYes(true);
        clickAt(game, game->wireMiddle(good));
        QVERIFY(game->exploding() && game->bombMovie()->isVisible());
        QVERIFY(!game->timeLabel()->isVisible());
        QCOMPARE(fx.sound.played.count("2.wav"), 1);
        Pump(400);
        WM_CHECK_LOOK("Bomb_Squad_blast", game);  // BOOM! on the burst, the wires left standing
        Pump(1500);
        QVERIFY2(fx.dialogs.texts().isEmpty(), "the box waits for the tenth shake");
        Pump(200);
        QCOMPARE(LastBox(fx),
                 "Bomb Squad | You cut the wrong wire and set the bomb off! You lose. Would you "
                 "like to give it another try?");
        QCOMPARE(Shared().Score, 777.0);
        // Yes dealt again, the clock back in view: now it runs out.
        QVERIFY(!game->exploding() && !game->bombMovie()->isVisible());
        QCOMPARE(game->timeLabel()->text(), "30");
        fx.dialogs.answerYes(false);
        Pump(30000);
        QVERIFY(game->exploding() || Showing<Title>());
        Pump(2100);
        QCOMPARE(fx.dialogs.last(),
                 "You did not get the bomb diffused in time! You lose. Would you like to give it "
                 "another try?");
        QVERIFY(BackAtTitle());
        // Seven words cannot fill eight wires.
        WM_VERIFY(Refused(fx, "Bomb Squad", {kWords.begin(), kWords.begin() + 7}, 7,
                          "There are not enough different words on this list for this many "
                          "wires. Please choose a lower difficulty level or another list.",
                          "Bomb Squad"));
    }
};

QTEST_MAIN(BombSquadScreenTest)
#include "bomb_squad_screen_test.moc"
