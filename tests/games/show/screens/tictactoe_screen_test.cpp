// Tic-Tac-Toe on its screen: a won game from the side choice to the table; at level 5 the
// computer opens in the centre, the question clock runs out as a wrong answer, and the loser's
// box follows the computer's line.

#include "games/show/tictactoe/tictactoe_screen.h"
#include "game_open.h"
#include "look.h"

namespace {
const Pairs kAnimals{{"otter", "a river animal that loves to play"},
                     {"owl", "a bird that hunts at night"},
                     {"beaver", "it builds dams of sticks"},
                     {"hedgehog", "a small animal covered in spines"},
                     {"badger", "a striped digger of the woods"},
                     {"heron", "a tall wading bird"}};

void takeSquare(TicTacToe* game, int row, int col, bool right) {
    QTest::mouseClick(game, Qt::LeftButton, {}, game->squareCentre(row, col));
    QVERIFY(game->questionFrame()->isVisible());
    for (auto* o : game->options()) QVERIFY(!o->isChecked());  // none left from the last question
    const int pick = right ? game->question().right : (game->question().right + 1) % 2;
    game->options()[pick]->click();
    QVERIFY(game->answerButton()->isVisible());
    game->answerButton()->click();
}
}  // namespace

class TicTacToeScreenTest : public QObject {
    Q_OBJECT
private slots:
    void winFromTheSideChoiceToTheTable() {
        Road fx(0, {"OWL"});
        // A cycle of 0.05, 0.25, 0.45, 0.15, 0.35: all under one half, so at level 2 the computer
        // always misses, and the questions still find distinct words.
        for (int i = 0; i < 5000; ++i) fx.rng.then(0.05 + 0.1 * (2 * i % 5));
        WM_OPEN(game, fx, StartFromTitle<TicTacToe>(fx, "Tic-Tac-Toe", kAnimals, 2));
        game->xButton()->click();
        QCOMPARE(game->info()->text(), "Click on the square you want to play...");
        QVERIFY(game->playerTurn());

        // A wrong answer loses the turn, not the square.
        QTest::mouseClick(game, Qt::LeftButton, {}, game->squareCentre(3, 3));
        QVERIFY(game->options()[0]->isVisible() && game->options()[1]->isVisible() &&
                !game->options()[2]->isVisible());
        game->options()[(game->question().right + 1) % 2]->click();
        game->answerButton()->click();
        QVERIFY(fx.dialogs.last().startsWith("Sorry! The word you should have chosen was \""));
        QCOMPARE(game->board().at(3, 3), int(tictactoe::Empty));
        QCOMPARE(game->info()->text(), "The computer tries for a square and...");
        QVERIFY(!game->playerTurn());
        Pump(2000);
        QCOMPARE(game->info()->text(), "...computer misses the square...");
        Pump(1000);
        QVERIFY(game->playerTurn());

        fx.dialogs.answerYes(false);
        for (int col = 1; col <= 3; ++col) {
            takeSquare(game, 1, col, true);
            QCOMPARE(game->board().at(1, col), int(tictactoe::Player));
            Pump(col < 3 ? 4000 : 1000);
        }
        QCOMPARE(game->info()->text(), "You win the game!");
        WM_CHECK_LOOK("Tic-Tac-Toe_won", game);  // the player's row of X under the line
        QVERIFY(fx.sound.played.contains("winner2.wav"));
        Pump(1000);
        WM_CHECK_WON(fx, "Tic-Tac-Toe", "OWL 1002");
    }

    void computerOpensAndWinsWhileTheClockRunsOut() {
        ShellFixture fx;
        fx.rng.setFallback(0.9);  // the computer always lands its try
        WM_OPEN(game, fx, StartFromTitle<TicTacToe>(fx, "Tic-Tac-Toe", kAnimals, 5));
        QVERIFY(!game->playerTurn());
        game->oButton()->click();
        Pump(3000);
        QCOMPARE(game->board().at(2, 2), int(tictactoe::Computer));
        QVERIFY(game->playerTurn());

        fx.dialogs.answerYes(false);
        for (int turn = 0; turn < 2; ++turn) {
            QTest::mouseClick(game, Qt::LeftButton, {}, game->squareCentre(1, 1 + turn));
            QVERIFY(game->timeLabel()->isVisible());
            QCOMPARE(game->timeLabel()->text(), "Time Remaining: 10");
            Pump(10000);
            QVERIFY(!game->questionFrame()->isVisible());
            QVERIFY(fx.dialogs.last().endsWith("\"...you did not win this square..."));
            Pump(3000);
        }
        // Centre, then it built on its row and completed it.
        QCOMPARE(game->board().at(2, 3), int(tictactoe::Computer));
        QCOMPARE(game->board().at(2, 1), int(tictactoe::Computer));
        QCOMPARE(game->info()->text(), "Computer wins the game!");
        // The winning line, the sparks and the saucers go on moving behind the loser's box.
        int changes = 0;
        fx.dialogs.whileOpen = [&](const ScriptedDialogs::Shown&) {
            for (int i = 0; i < 5; ++i) {
                const QImage before = game->field()->surface().copy();
                Pump(60);
                changes += game->field()->surface() != before;
            }
        };
        Pump(1000);
        QCOMPARE(changes, 5);
        QCOMPARE(fx.dialogs.last(),
                 "Oops! The computer beat you that time! Would you like to give it another try?");
        QVERIFY(fx.sound.played.contains("loser3.wav"));
        QCOMPARE(Shared().Score, 0.0);
        QVERIFY(BackAtTitle());
    }
};

QTEST_MAIN(TicTacToeScreenTest)
#include "tictactoe_screen_test.moc"
