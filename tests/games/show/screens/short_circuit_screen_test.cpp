// Short Circuit on its screen: spelling to a lit bulb and the table, a list of long words
// refused, a short circuit, clicks outside the column in play.

#include "games/show/short_circuit/short_circuit_screen.h"
#include "game_open.h"
#include "look.h"

namespace {
void clickLetter(ShortCircuit* game, int column, int row) {
    QTest::mouseClick(game, Qt::LeftButton, {}, game->letter(column, row)->geometry().center());
}
const Pairs kWords{{"volt", "a unit of electric push"},
                   {"electricity", "energy carried by moving charges"},
                   {"wire", "a thin metal thread that carries current"},
                   {"switch", "turns a circuit on and off"}};
}  // namespace

class ShortCircuitScreenTest : public QObject {
    Q_OBJECT
private slots:
    void spellToTheLightAndTheTable() {
        Road fx(0, {"AMP"});
        WM_OPEN(game, fx, StartFromTitle<ShortCircuit>(fx, "Short Circuit", kWords, 5, 400));
        const auto& c = game->circuit();
        QVERIFY(c.word != "ELECTRICITY");
        QCOMPARE(game->directions()->text().toStdString(), shortcircuit::directions(Shared()));
        QCOMPARE(c.rows, 5);
        for (int col = 0; col < int(c.word.size()); ++col) {
            QVERIFY(game->letter(col, 4)->isVisible() && !game->letter(col, 5)->isVisible());
            QCOMPARE(game->letter(col, c.rightRow[col])->text(), QString(QChar(c.word[col])));
        }
        // A click in a later column is ignored.
        clickLetter(game, 1, c.rightRow[1]);
        QCOMPARE(c.column, 0);
        Pump(1445);  // 1505 ms since the deal: three half seconds on the clock

        fx.dialogs.answerYes(false);
        for (int col = 0; col < int(c.word.size()); ++col) {
            clickLetter(game, col, c.rightRow[col]);
            if (col == 1) {
                for (int r = 0; r < c.rows; ++r)
                    QCOMPARE(game->letter(0, r)->isVisible(), r == c.rightRow[0]);
                WM_CHECK_LOOK("Short_Circuit_wired", game);  // the wire into two letters
            }
        }
        QVERIFY(game->lit());
        WM_CHECK_LOOK("Short_Circuit_lit", game);  // the wire round to the socket, the surprise
        QCOMPARE(fx.sound.played.count("laser.wav"), 1);
        QVERIFY(fx.win.tables.isEmpty());
        Pump(3000);
        // The half seconds go on counting through the pause before the score: 3 + 6 of them, the
        // ninth with 5 ms to spare.
        QCOMPARE(game->circuit().halfSeconds, 9);
        const int n = int(c.word.size());
        const int band = 9.0 / n < 2 ? 500 : 9.0 / n < 4 ? 200 : 100;
        const double hidden = Shared().GameOptionOn ? 1 : 5;
        QVERIFY(Shared().Score >= hidden * (n * band + 501 * 5) &&
                Shared().Score <= hidden * (n * band + 505 * 5));
        QCOMPARE(fx.win.tables.size(), 1);
        QVERIFY(BackAtTitle());
        // Words over ten letters cannot be spelled across the board.
        WM_VERIFY(Refused(fx, "Short Circuit",
                          {{"electricity", "energy carried by moving charges"},
                           {"transformer", "changes the push of a current"}},
                          2,
                          "The words on this vocabulary list are too long for this game. Please "
                          "choose another list or another game.",
                          "Short Circuit"));
    }

    void wrongLetterShortsTheCircuit() {
        ShellFixture fx;
        WM_OPEN(game, fx, StartFromTitle<ShortCircuit>(fx, "Short Circuit", kWords, 2, 400));
        const auto& c = game->circuit();
        QCOMPARE(c.rightRow[0], 0);  // at level 2 the right letter is on top
        const std::string word = c.word;
        fx.dialogs.answerYes(false);
        // Behind the try-again box the shorted column flashes on, red and back, every 300 ms.
        QStringList looks;
        fx.dialogs.whileOpen = [&](const ScriptedDialogs::Shown&) {
            for (int i = 0; i < 4; ++i) {
                Pump(300);
                looks << game->letter(0, 1)->styleSheet();
            }
        };
        clickLetter(game, 0, 1);
        QCOMPARE(looks.size(), 4);
        QVERIFY(looks[0] != looks[1]);
        QCOMPARE(looks.mid(2), looks.mid(0, 2));
        QCOMPARE(fx.sound.played.mid(fx.sound.played.size() - 2),
                 QStringList({"zap.wav", "loser3.wav"}));
        QCOMPARE(fx.dialogs.last(),
                 "Oops! You short-circuited the connection! The word you were "
                 "trying to spell was \"" +
                     QString::fromStdString(word) + "\". Would you like to try again?");
        QVERIFY(BackAtTitle());
    }
};

QTEST_MAIN(ShortCircuitScreenTest)
#include "short_circuit_screen_test.moc"
