// Bomb Squad on its screen: from the title to a defused bomb and the table; a press cuts the wire
// drawn under it; the wrong wire and the clock running out, each to its own loser's box, with the
// labels and wires left standing in the blast; Restart's box; the first level a six-word list
// can always deal.
#include <QtTest>

#include <cmath>

#include "core/score_table.h"
#include "game_road.h"
#include "games/show/bomb_squad/bomb_art.h"
#include "games/show/bomb_squad/bomb_squad_screen.h"
#include "platform/movie.h"

using namespace wm;
using namespace wm::test;

class BombSquadScreenTest : public QObject {
    Q_OBJECT
private slots:
    void defuseFromTheTitleToTheTable();
    void pressesCutTheWireDrawnUnderThem_data();
    void pressesCutTheWireDrawnUnderThem();
    void lossesByWireAndByClock();
    void restartAsksFirst();
    void startsAtThreeWiresThatASixWordListCanDeal();
};

namespace {
const std::vector<std::pair<std::string, std::string>> kWords{
    {"volcano", "a mountain that can erupt"},     {"glacier", "a river of ice"},
    {"canyon", "a deep valley with steep sides"}, {"delta", "land at the mouth of a river"},
    {"island", "land with water all around"},     {"desert", "a very dry place"},
    {"mesa", "a hill with a flat top"},           {"fjord", "a narrow inlet of the sea"},
    {"lagoon", "a pool cut off from the sea"},    {"plateau", "high flat land"},
    {"strait", "a narrow channel of water"},      {"tundra", "a cold plain without trees"}};

// Spread draws, so that each deal finds its fresh words quickly and the same way every run.
void queueDraws(ShellFixture& fx, int n = 400) {
    for (int i = 1; i <= n; ++i) fx.rng.then(std::fmod(i * 0.6180339887, 1.0));
}

BombSquad* startGame(ShellFixture& fx, int level, bool sixOnly = false) {
    WriteOneList(fx, "Landforms",
                 sixOnly ? decltype(kWords)(kWords.begin(), kWords.begin() + 6) : kWords);
    queueDraws(fx);
    auto* game = qobject_cast<BombSquad*>(PlayFromTitle("Bomb Squad", "Landforms", level));
    Pump();
    return game;
}
void clickAt(QWidget* w, QPoint p) {
    QTest::mouseClick(w, Qt::LeftButton, {}, p);
}

// Sixteen words: eight wires, all of them bad, each with a word and a definition of its own.
std::vector<std::pair<std::string, std::string>> sixteenWords() {
    auto words = kWords;
    for (const char* w : {"bay", "cape", "dune", "gorge"})
        words.push_back({w, std::string("a ") + w});
    return words;
}
void queueAllBad(ShellFixture& fx) {
    fx.rng.pick(1, 8);  // the wire bad for certain
    for (int i = 1; i <= 8; ++i) fx.rng.pick(2 * i - 1, 16).then(0.0).pick(2 * i, 16);
}

// Points well inside the drawn line of wire `i` (its colour all round), spread along it between
// the label columns.
QVector<QPoint> drawnPoints(BombSquad* game, int i, int count) {
    const QImage shot = game->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QRgb colour = bombart::wireColours()[i].rgb();
    const int from = game->wordLabels()[0]->geometry().right() + 3;
    const int to = game->defLabels()[0]->geometry().left() - 3;
    QVector<QPoint> inside;
    for (int x = from; x < to; ++x) {
        for (int y = 1; y < shot.height() - 1; ++y) {
            bool all = true;
            for (int dx = -1; dx <= 1 && all; ++dx)
                for (int dy = -1; dy <= 1 && all; ++dy) all = shot.pixel(x + dx, y + dy) == colour;
            if (all) {
                inside << QPoint(x, y);
                break;
            }
        }
    }
    QVector<QPoint> spread;
    for (int k = 0; k < count && !inside.isEmpty(); ++k)
        spread << inside[int((inside.size() - 1) * k / double(count - 1))];
    return spread;
}
}  // namespace

void BombSquadScreenTest::defuseFromTheTitleToTheTable() {
    ShellFixture fx;
    fx.rng.setFallback(0.3);
    auto* game = startGame(fx, 4);
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    const auto& deal = game->deal();
    QCOMPARE(int(deal.wires.size()), 5);
    QCOMPARE(game->timeLabel()->text(), "25");
    for (int i = 0; i < 5; ++i) {
        QVERIFY(game->wordLabels()[i]->isVisible());
        QCOMPARE(game->wordLabels()[i]->text().toStdString(), Shared().Words[deal.wires[i].word]);
        QCOMPARE(game->defLabels()[i]->text().toStdString(),
                 Shared().Meanings[deal.wires[i].definition]);
    }
    QVERIFY(!game->wordLabels()[5]->isVisible());
    Pump(2000);
    QCOMPARE(game->timeLabel()->text(), "23");
    QCOMPARE(fx.sound.played.count("spacebeep.wav"), 2);
    Shot(game, "bomb-squad");

    // A press on a label or past the wires does nothing.
    clickAt(game, game->wordLabels()[0]->geometry().center());
    QCOMPARE(fx.sound.played.count("snip.wav"), 0);

    WinDriver driver({"BOB"});
    SetModalHook(std::ref(driver));
    fx.dialogs.answerYes(false);
    int bad = 0;
    for (int i = 0; i < 5; ++i) bad += deal.wires[i].bad;
    for (int i = 0, cut = 0; i < 5; ++i) {
        if (!deal.wires[i].bad) continue;
        clickAt(game, game->wireMiddle(i));
        if (++cut < bad) {
            QVERIFY(game->deal().wires[i].cut);
            Shot(game, "bomb-squad-cut");
        }
    }
    QCOMPARE(fx.sound.played.count("snip.wav"), bad);
    // (500 + 23 seconds + a roll of 1..4) times 4.
    const double score = Shared().Score;
    QVERIFY(score >= 524 * 4 && score <= 527 * 4 && int(score) % 4 == 0);
    QCOMPARE(driver.tables.size(), 1);
    QCOMPARE(fx.dialogs.last(),
             QString("You got a high score of %1! Would you like to try again?").arg(score));
    Pump();
    QVERIFY(Showing<Title>());
    const ScoreTable table = ReadScoreTable(ScoreFilePath(Shared().AppPath, Shared().CurrentGame));
    QCOMPARE(QString::fromStdString(table.initials(1)), "BOB");
}

void BombSquadScreenTest::pressesCutTheWireDrawnUnderThem_data() {
    QTest::addColumn<QSize>("screen");
    QTest::newRow("1280x800") << QSize(1280, 800);
    QTest::newRow("1920x1080") << QSize(1920, 1080);
}

void BombSquadScreenTest::pressesCutTheWireDrawnUnderThem() {
    QFETCH(QSize, screen);
    ShellFixture fx;
    ScreenMetrics::overrideScreenSize(screen);
    WriteOneList(fx, "Landforms", sixteenWords());
    queueAllBad(fx);
    auto* game = qobject_cast<BombSquad*>(PlayFromTitle("Bomb Squad", "Landforms", 7));
    Pump();
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    QCOMPARE(game->size(), screen);
    QCOMPARE(int(game->deal().wires.size()), 8);
    // The board: words at the left edge, definitions against the right one, each pair level and
    // the rows evenly spaced below the menu; the bomb's clock in the middle.
    const auto words = game->wordLabels(), defs = game->defLabels();
    for (int i = 0; i < 8; ++i) {
        const QRect w = words[i]->geometry(), d = defs[i]->geometry();
        QVERIFY(w.left() < screen.width() / 40);
        QVERIFY(d.right() > screen.width() * 39 / 40);
        QVERIFY(qAbs(w.center().y() - d.center().y()) <= 1);
        QVERIFY(w.top() >= game->frame().menuHeight() && w.bottom() < screen.height());
        if (i >= 2) {
            const int step =
                words[i]->geometry().center().y() - words[i - 1]->geometry().center().y();
            const int before =
                words[i - 1]->geometry().center().y() - words[i - 2]->geometry().center().y();
            QVERIFY(qAbs(step - before) <= 1 && step > w.height());
        }
    }
    QVERIFY(qAbs(game->timeLabel()->geometry().center().x() - screen.width() / 2) <= 1);
    Shot(game, QString("bomb-squad-eight-%1").arg(screen.width()));

    // The wires bow towards the bomb: a press anywhere along a drawn wire cuts that wire and no
    // other. Every wire is bad here, so a press never sets the bomb off.
    for (int i = 0; i < 8; ++i) {
        const QVector<QPoint> points = drawnPoints(game, i, 6);
        QCOMPARE(points.size(), 6);
        for (const QPoint& at : points) {
            queueAllBad(fx);
            const int seeded = fx.rng.randomizeCount;
            game->frame().newGame();
            QCOMPARE(fx.rng.pending(), std::size_t(0));
            QCOMPARE(fx.rng.randomizeCount, seeded + 1);  // reseeded for each deal
            clickAt(game, at);
            for (int j = 0; j < 8; ++j)
                QVERIFY2(game->deal().wires[j].cut == (j == i),
                         qPrintable(QString("a press at (%1, %2) on wire %3 cut wire %4")
                                        .arg(at.x())
                                        .arg(at.y())
                                        .arg(i)
                                        .arg(j)));
            QVERIFY(!game->exploding());
        }
    }
    // Far from every wire, a press cuts nothing.
    queueAllBad(fx);
    game->frame().newGame();
    const int snips = fx.sound.played.count("snip.wav");
    clickAt(game, QPoint(game->width() / 2, game->frame().menuHeight() + 4));
    QCOMPARE(fx.sound.played.count("snip.wav"), snips);
    for (const auto& w : game->deal().wires) QVERIFY(!w.cut);
}

void BombSquadScreenTest::lossesByWireAndByClock() {
    ShellFixture fx;
    fx.rng.setFallback(0.3);
    auto* game = startGame(fx, 2);
    QVERIFY(game);
    Shared().Score = 777;  // a lost game keeps the score it had
    int good = -1;
    for (int i = 0; i < int(game->deal().wires.size()); ++i)
        if (!game->deal().wires[i].bad) good = i;
    if (good < 0) {
        QSKIP("the fallback dealt only bad wires");
    }
    fx.dialogs.answerYes(true);
    clickAt(game, game->wireMiddle(good));
    QVERIFY(game->exploding());
    QVERIFY(game->bombMovie()->isVisible());
    // Centred across, and large enough to fill the middle of the screen.
    QVERIFY(qAbs(game->bombMovie()->geometry().center().x() - game->width() / 2) <= 1);
    QVERIFY(game->bombMovie()->width() >= game->width() / 3);
    QVERIFY(!game->timeLabel()->isVisible());
    QCOMPARE(fx.sound.played.count("2.wav"), 1);
    // The blast takes the bomb and its clock only: the labels and the wires stay.
    for (int i = 0; i < 3; ++i) {
        QVERIFY(game->wordLabels()[i]->isVisible());
        QVERIFY(game->defLabels()[i]->isVisible());
        if (i != good) QVERIFY(!drawnPoints(game, i, 2).isEmpty());
    }
    Shot(game, "bomb-squad-boom");
    Pump(1900);
    QVERIFY2(fx.dialogs.texts().isEmpty(), "the box waits for the tenth shake");
    Pump(200);
    QCOMPARE(fx.dialogs.last(),
             "You cut the wrong wire and set the bomb off! You lose. Would you like to give it "
             "another try?");
    QCOMPARE(Shared().Score, 777.0);
    // Yes dealt again, the clock back in view: now it runs out.
    QVERIFY(!game->exploding());
    QVERIFY(game->timeLabel()->isVisible());
    QVERIFY(!game->bombMovie()->isVisible());
    QCOMPARE(game->timeLabel()->text(), "30");
    fx.dialogs.answerYes(false);
    Pump(30000);
    QVERIFY(game->exploding() || Showing<Title>());
    Pump(2100);
    QCOMPARE(fx.dialogs.last(),
             "You did not get the bomb diffused in time! You lose. Would you like to give it "
             "another try?");
    Pump();
    QVERIFY(Showing<Title>());
}

void BombSquadScreenTest::restartAsksFirst() {
    ShellFixture fx;
    startGame(fx, 10, true);
    // Eight wires from six words: a clear message instead of a deal without end.
    QVERIFY(fx.dialogs.saw(bombsquad::kTooFewWords));
    Pump();
    QVERIFY(Showing<Title>());

    auto* again = startGame(fx, 3);
    QVERIFY(again);
    Pump(3000);
    QCOMPARE(again->timeLabel()->text(), "22");
    QVERIFY(TriggerMenu(again, "RS"));
    QCOMPARE(fx.dialogs.last(), "Click OK to reset the game");
    QCOMPARE(again->timeLabel()->text(), "25");
}

void BombSquadScreenTest::startsAtThreeWiresThatASixWordListCanDeal() {
    ShellFixture fx;
    WriteOneList(fx, "Landforms", decltype(kWords)(kWords.begin(), kWords.begin() + 6));
    queueDraws(fx);
    auto* title = qobject_cast<Title*>(OpenScreen("Title"));
    QVERIFY(title);
    Pump();
    // The options screen as the pupil finds it, its slider untouched.
    QAbstractButton* button = nullptr;
    for (int page = 0; page < 4 && !button; ++page) {
        for (auto* b : title->buttons())
            if (b->isVisible() && b->text() == "Bomb Squad") button = b;
        if (!button) title->showMore();
    }
    QVERIFY(button);
    QTest::mouseClick(button, Qt::LeftButton);
    Pump();
    auto* options = Showing<GameOptions>();
    QVERIFY(options);
    QCOMPARE(options->SpeedBar->value(), 2);
    options->continueOn();
    Pump();
    auto* game = qobject_cast<BombSquad*>(ContinueWithList(Showing<ChooseList>(), "Landforms"));
    Pump();
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    QVERIFY(!fx.dialogs.saw(bombsquad::kTooFewWords));
    QCOMPARE(int(game->deal().wires.size()), 3);
    QCOMPARE(game->timeLabel()->text(), "30");
}

QTEST_MAIN(BombSquadScreenTest)
#include "bomb_squad_screen_test.moc"
