// Word Zap on its screen: from the title through a timed round of hits to the initials the game
// writes itself and the table, and a careless round that ends below zero; the score caption
// changes only on a hit.
#include "games/action/word_zap/word_zap_screen.h"
#include "act_kit.h"

namespace {

Zap* Start(ShellFixture& fx) {
    static SeededRng seeded(11);
    SetRng(&seeded);
    auto* game = OpenGame<Zap>(
        fx, "Word Zap", {{"cat", "a small furry pet"}, {"dog", "barks"}, {"owl", "hoots"}}, 2);
    Pump(0);
    return game;
}

void Click(Zap* game, const QRect& logical) {
    QTest::mouseClick(game->field(), Qt::LeftButton, {}, game->field()->toWidget(logical).center());
}

// The slot of the definition on show.
int RightTarget(Zap* game) {
    const auto& g = game->gallery();
    return g.slotOf[g.definition] - 1;
}

}  // namespace

class WordZapScreenTest : public QObject {
    Q_OBJECT
private slots:
    void roadToTheInitialsAndTheTable();
    void carelessRoundEndsBelowZero();
};

void WordZapScreenTest::roadToTheInitialsAndTheTable() {
    Road fx(0, {"ZAP"});
    auto* game = Start(fx);
    QVERIFY(game);
    QCOMPARE(game->windowTitle() + " | " + game->scoreText() + " | " + game->timeText(),
             "Word Zap | Score:  0000 | Time:  60");
    QCOMPARE(game->defText(),
             "When the timer starts, look here for the definition of the word you should shoot.");
    Click(game, QRect(10, 10, 5, 5));  // nothing counts before the start
    QCOMPARE(game->gallery().score, 0.0);
    Pump(16 * 30);  // reaction ticks run before the start too
    Click(game, game->readyRect());
    QVERIFY(!game->readyShown() && fx.sound.played.contains("ricochet.wav"));
    QCOMPARE(game->gallery().reaction, 0);

    Pump(16 * 10);
    Click(game, game->targetRect(RightTarget(game)));
    QCOMPARE(game->gallery().score, 1000.0 - 10 + 200);
    QCOMPARE(game->scoreText(), "Score: 1190");
    QVERIFY(fx.sound.played.contains("crumble.wav"));
    Pump(16 * 5);
    Click(game, game->targetRect(RightTarget(game)));  // the last of the round: a new deal
    QCOMPARE(game->gallery().definition, 1);
    QCOMPARE(game->scoreText(), "Score: 2385");
    Click(game, QRect(game->field()->logicalSize().width() / 2, 20, 4, 4));  // the sky
    QCOMPARE(game->gallery().score, 1190.0 + 1000 - 5 + 200 - 100);
    QCOMPARE(fx.sound.played.last(), "shotmiss.wav");
    QCOMPARE(game->scoreText(), "Score: 2385");  // a miss shows with the next hit

    for (int n = 0; n < 62 && Showing<Zap>(); ++n) Pump(1000);
    QVERIFY(fx.sound.played.contains("airhorn.wav"));
    QCOMPARE(fx.win.congratulations,
             QStringList{"Congratulations! You have placed number 1 in the high score records "
                         "with a score of 2285! Type your initials to save your record..."});
    WM_CHECK_WON(fx, "Word Zap", "ZAP 2285");
}

void WordZapScreenTest::carelessRoundEndsBelowZero() {
    ShellFixture fx;
    auto* game = Start(fx);
    QVERIFY(game);
    Click(game, game->readyRect());
    int other = -1;
    for (int k = 0; k < 8; ++k)
        if (k != RightTarget(game) && game->gallery().targets[k].visible) other = k;
    QVERIFY(other >= 0);
    Click(game, game->targetRect(other));
    QVERIFY(game->gallery().score == -500.0 && game->gallery().targets[other].black);
    QCOMPARE(fx.sound.played.last(), "shotmiss.wav");
    QCOMPARE(game->scoreText(), "Score:  0000");  // the wrong target shows with the next hit
    Pump(16 * 20);
    Click(game, game->targetRect(RightTarget(game)));
    QCOMPARE(game->gallery().score, -500.0 + 1000 - 20 + 200);
    QCOMPARE(game->scoreText(), "Score: 680");
    // Shots into the sky cost 100 each and leave the caption be.
    for (int n = 0; n < 8; ++n)
        Click(game, QRect(game->field()->logicalSize().width() / 2, 20, 4, 4));
    QCOMPARE(game->gallery().score, -120.0);
    QCOMPARE(game->scoreText(), "Score: 680");
    fx.dialogs.answerYes();
    const int round = game->frame().round();
    for (int n = 0; n < 62 && game->frame().round() == round; ++n) Pump(1000);
    QCOMPARE(LastBox(fx),
             "Not so great... | Oops! You scored -120! Try to be more careful what "
             "you shoot next time! Would you like to try again?");
    QVERIFY(game->readyShown());  // Yes: a new game waits for the start again
}

QTEST_MAIN(WordZapScreenTest)
#include "word_zap_screen_test.moc"
