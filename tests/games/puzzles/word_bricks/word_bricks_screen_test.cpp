// Word Bricks on its screen: from the title through a refused brick, a wrong girder and a win to
// the table and back; a list of overlong words, refused; a full site at both sizes, in silence.

#include "games/puzzles/word_bricks/word_bricks_screen.h"
#include "look.h"
#include "screen_kit.h"

namespace {
const Pairs kAnimals{
    {"tiger", "a big striped cat"}, {"ox", "a strong farm animal"}, {"emu", "a tall bird"}};

void mouse(QWidget* w, QEvent::Type type, QPointF at) {
    const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent e(type, at, w->mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(w, &e);
}

// Drags the brick showing `text` by its middle to `to`, and lets it settle.
void drag(WordBricks* g, const std::string& text, QPointF to) {
    int brick = -1;
    for (int i = 0; i < int(g->game().bricks.size()); ++i)
        if (g->game().bricks[i].text == text) brick = i;
    QVERIFY(brick >= 0);
    mouse(g, QEvent::MouseButtonPress, g->brickRect(brick).center());
    mouse(g, QEvent::MouseMove, (g->brickRect(brick).center() + to) / 2);
    mouse(g, QEvent::MouseMove, to);
    mouse(g, QEvent::MouseButtonRelease, to);
    Pump(1000);
}

// A point on a girder: at its front or past its last letter.
QPointF front(WordBricks* g, int line) {
    return g->lineRect(line).center() - QPointF(g->lineRect(line).width() / 2.0 - 4, 0);
}
QPointF back(WordBricks* g, int line) {
    return g->lineRect(line).center() + QPointF(g->lineRect(line).width() / 2.0 + 30, 0);
}
}  // namespace

class WordBricksScreenTest : public QObject {
    Q_OBJECT
private slots:
    void fromTheTitleThroughAWinToTheTable() {
        Road fx(0, {"OWL"});
        WriteOneList(fx, "Animals", kAnimals);
        // tiger and ox; tiger cut "tig" "er"; the heap left as tipped.
        fx.rng.pick(1, 3).pick(2, 3).pick(2, 2).pick(3, 3).pick(2, 2);
        auto* g = qobject_cast<WordBricks*>(PlayFromTitle("Word Bricks", "Animals", 2));
        QVERIFY2(g, qPrintable(fx.dialogs.texts().join(" | ")));
        Pump();
        QCOMPARE(g->clueText(0).lines.join(" "), "a big striped cat");
        // The bricks tip out first; they cannot be picked up while they fall.
        QVERIFY(g->Caption->isVisible() && g->Caption->text() == "Here come the bricks!");
        QCOMPARE(fx.sound.played.last(), "bricks-tip.wav");
        Pump(200);
        QVERIFY(g->brickRect(2).bottom() < g->lineRect(1).top());
        WM_CHECK_LOOK("Word_Bricks_tip", g);  // mid-fall
        drag(g, "er", back(g, 0));
        QCOMPARE(g->game().bricks[1].line, -1);
        Pump(500);
        QVERIFY(g->playing() && !g->Caption->isVisible());
        QCOMPARE(IntervalOf(g->frame(), "Timer1"), 1000);  // the clock, a second a tick
        QVERIFY(fx.music.opened.endsWith("sounds/wordbricks.mid"));

        // "tig" does not fit the girder of "ox": it goes back where it lay.
        const QRectF lay = g->brickRect(0);
        drag(g, "tig", front(g, 1));
        QCOMPARE(fx.sound.played.last(), "bricks-bump.wav");
        QCOMPARE(g->brickRect(0), lay);
        // "er" then "tig" behind it: full and wrong, so it shakes them off for ten points.
        drag(g, "er", front(g, 0));
        QCOMPARE(fx.sound.played.last(), "bricks-snap.wav");
        QCOMPARE(g->brickRect(1).topLeft(), QPointF(g->lineRect(0).topLeft()));
        drag(g, "tig", back(g, 0));
        QCOMPARE(fx.sound.played.last(), "bricks-shake.wav");
        QCOMPARE(LabelText(g, "ScoreLabel"), "Score: -10");
        QVERIFY(g->brickRect(0) == lay && g->brickRect(1).top() > g->lineRect(1).bottom());

        // "er", then "tig" dropped in front of it: tiger, 5 x 10.
        drag(g, "er", back(g, 0));
        drag(g, "tig", front(g, 0));
        QCOMPARE(fx.sound.played.last(), "bricks-built.wav");
        QCOMPARE(LabelText(g, "ScoreLabel"), "Score: 40");
        QCOMPARE(LabelText(g, "WordsLabel"), "Words built: 1 of 2");
        // A built word's bricks stay put.
        drag(g, "tig", back(g, 1));
        QCOMPARE(g->game().bricks[0].line, 0);

        // The last word: 2 x 10 and (40 x 2 - seconds) x 2, then the table.
        fx.dialogs.answerYes(false);
        const int seconds = g->game().seconds;
        QVERIFY(seconds >= 5 && seconds <= 7);
        QCOMPARE(LabelText(g, "ClockLabel"), QString("Time: 0:0%1").arg(seconds));
        // "ox" lifted over the site, tiger built: how it looks in the hand.
        QCOMPARE(g->game().bricks[2].text, "ox");
        const QPointF ox = g->brickRect(2).center();
        mouse(g, QEvent::MouseButtonPress, ox);
        mouse(g, QEvent::MouseMove, (ox + front(g, 1)) / 2);
        WM_CHECK_LOOK("Word_Bricks_play", g);
        mouse(g, QEvent::MouseButtonRelease, (ox + front(g, 1)) / 2);
        drag(g, "ox", front(g, 1));
        const int score = 40 + 20 + (80 - seconds) * 2;
        QCOMPARE(LabelText(g, "ScoreLabel"), QString("Score: %1").arg(score));
        QCOMPARE(LabelText(g, "WordsLabel"), "Words built: 2 of 2");
        QCOMPARE(g->Caption->text(), "Well built!");
        QCOMPARE(fx.sound.played.last(), "bricks-win.wav");
        WM_CHECK_LOOK("Word_Bricks_won", g);
        QVERIFY(fx.win.tables.isEmpty());  // the finished site shows first
        Pump(1000);
        WM_VERIFY(WonBox(fx, score));
        QCOMPARE(TableRow(fx, "Word Bricks"), QString("OWL %1").arg(score));
        QVERIFY(BackAtTitle());
    }

    void aFullSiteFitsAtBothSizesInSilenceAndOverlongWordsAreRefused() {
        ShellFixture fx;
        // Ten words of 14 letters down to 5, one of them with a long definition.
        Pairs words;
        for (int k = 0; k < 10; ++k)
            words.push_back({std::string(14 - k, char('a' + k)), "a thing"});
        words[0].second =
            "a very large animal with thick grey skin, a huge mouth and short legs that lives in "
            "and "
            "near the rivers and lakes of Africa and can stay under water for several minutes "
            "before it comes up again to breathe the air";
        for (int k = 1; k <= 10; ++k) fx.rng.pick(k, 10);
        auto* g = OpenGame<WordBricks>(fx, "Word Bricks", words, 10, false, false);
        QVERIFY(g);
        for (QSize size : {QSize(1280, 800), QSize(1920, 1080)}) {
            g->resize(size);
            Pump(2000);
            const auto& clue = g->clueText(0);
            QVERIFY(clue.whole && clue.font.pixelSize() >= 10);
            // The long definition fits its sign in the size it was given.
            QVERIFY(clue.lines.size() * QFontMetricsF(clue.font).lineSpacing() <=
                    g->signRect(0).height());
            const QRect bar = g->ClockLabel->geometry();
            for (int l = 0; l < 10; ++l) {
                const QRect cells = g->lineRect(l), sign = g->signRect(l);
                QVERIFY(g->rect().contains(cells) && g->rect().contains(sign));
                QVERIFY(sign.right() < cells.left() && sign.top() > bar.bottom());
                if (l > 0) QVERIFY(g->signRect(l - 1).bottom() < sign.top());
            }
            for (int i = 0; i < int(g->game().bricks.size()); ++i) {
                const QRectF r = g->brickRect(i);
                QVERIFY(r.height() >= 40 && r.width() >= 40);
                QVERIFY(r.top() > g->lineRect(9).bottom() && g->rect().contains(r.toRect()));
            }
        }
        // A word wider than its sign even at the smallest size is cut at the last letter that fits.
        const auto cut = wm::word_bricks::fitClue(QString(40, 'w'), QSizeF(80, 40), 12, 12);
        QVERIFY(!cut.whole && QFontMetricsF(cut.font).horizontalAdvance(cut.lines[0] + 'w') > 80);
        drag(g, g->game().bricks[0].text, front(g, 0));
        QVERIFY(g->game().lines[0].bricks.size() == 1 && fx.sound.played.isEmpty());  // sound off
        g->frame().quit();
        // One word a line takes, one of 15 letters it does not.
        WM_VERIFY(
            Refused(fx, "Word Bricks", {{"odd", "strange"}, {"extraordinarily", "very"}}, 2,
                    "There are not enough words of 14 letters or fewer on this list to play at "
                    "this level. Please choose another list or go back and lower the "
                    "difficulty level."));
    }
};

QTEST_MAIN(WordBricksScreenTest)
#include "word_bricks_screen_test.moc"
