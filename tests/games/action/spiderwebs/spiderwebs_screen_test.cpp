// Spiderwebs on its screen: from the title at 1920x1080, a wrong fly eaten, the right one freed,
// ten definitions and the score to the table; twelve flies with long words, the spider winning
// every definition, the word shown each time, no points and a try again; a list with too few
// words for the web.
#include "games/action/spiderwebs/spiderwebs_screen.h"
#include "act_kit.h"
#include "core/strings.h"
#include "look.h"

class SpiderScreenTest : public QObject {
    Q_OBJECT
private slots:
    void tenDefinitionsFromTheTitleToTheTable();
    void theSpiderWinsEveryDefinition();
};

namespace {

// A click on the fly's word tag picks the fly.
void ClickFly(SpiderGame* game, int fly) {
    const QPoint at = game->scene()->tagRect(fly).center().toPoint();
    QTest::mouseClick(game->scene(), Qt::LeftButton, {}, at);
}

int WrongFly(SpiderGame* game) {
    return game->game().answer() == 0 ? 1 : 0;
}

// The definition sits on the sign and the plates beside it, each text whole in its box, none
// over another or off the screen.
void CheckLayout(SpiderGame* game, bool crowded) {
    QVERIFY(game->rect().contains(game->scene()->geometry()));
    const QStringList plates{"ScoreLabel", "TimeLabel", "RoundLabel", "FliesLabel"};
    WM_CHECK_PLATES(game, plates + QStringList{"Label1"});
    const QRect sign = game->scene()->clueRect().translated(game->scene()->pos());
    for (const QString& name : plates) {
        const QRect r = game->findChild<QLabel*>(name)->geometry();
        QVERIFY2(!r.intersects(sign) && r.y() >= game->scene()->y(), qPrintable(name));
    }
    const QLabel* l = game->findChild<QLabel*>("Label1");
    QVERIFY(sign.contains(l->geometry()));
    // A long definition is as big as the sign lets it be.
    QFont bigger = l->font();
    bigger.setPixelSize(bigger.pixelSize() + 1);
    const QRect box = l->contentsRect();
    const QRect need = QFontMetrics(bigger).boundingRect(
        box, int(l->alignment()) | (l->wordWrap() ? int(Qt::TextWordWrap) : 0), l->text());
    QCOMPARE(box.contains(need), !crowded);
}

// What the game drew and played is what its card declares (the matrix sees all of it built).
void CheckDeclared(const ShellFixture& fx) {
    QStringList used{"images/spider-garden.svg", "images/spider-sprites.svg",
                     QDir(fx.dir.path()).relativeFilePath(fx.music.opened)};
    for (const QString& effect : fx.sound.played)
        if (effect.startsWith("spider")) used << "sounds/" + effect;  // not the title's
    const auto& declared = FindCard("Spiderwebs")->assets;
    for (const QString& u : used)
        QVERIFY2(std::count(declared.begin(), declared.end(), u.toStdString()), qPrintable(u));
}

}  // namespace

void SpiderScreenTest::tenDefinitionsFromTheTitleToTheTable() {
    Road fx(0, {"BOB"});
    ScreenMetrics::overrideScreenSize(QSize(1920, 1080));
    const Pairs bugs{{"ant", "a tiny insect that lives in a hill"},
                     {"bee", "it makes honey"}, {"moth", "it flies to the light at night"},
                     {"slug", "a slimy garden crawler"}, {"wasp", "a striped insect that stings"},
                     {"snail", "it carries its house"}, {"beetle", "an insect with a hard shell"},
                     {"cricket", "it chirps"}, {"ladybird", "a red beetle with black spots"},
                     {"worm", "it wriggles"}, {"gnat", "a very small fly"}};
    SpiderGame* game = nullptr;
    bool dancing = false;  // the fireflies behind the end boxes
    WatchBehindTheWin(fx, game, dancing);
    game = FromTitle<SpiderGame>(fx, "Spiderwebs", bugs, 3);
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    Shared().SoundOn = kTrue;
    Pump(16);
    QCOMPARE(LabelText(game, "FliesLabel"), "Flies: 3");
    for (int round = 1; round <= 10; ++round) {
        QCOMPARE(LabelText(game, "RoundLabel"), QString("Definition %1 of 10").arg(round));
        QCOMPARE(LabelText(game, "Label1"), QString::fromLatin1(Shared().TheMeaning.c_str()));
        QCOMPARE(game->scene()->call(), QString("Definition %1 of 10").arg(round));
        if (round == 1) {
            CheckLayout(game, false);
            WM_CHECK_LOOK("Spiderwebs_ready", game);  // the flies round the web, the plates
            // A wrong fly first: eaten, -25, and the spider half as fast again.
            const int wrong = WrongFly(game);
            ClickFly(game, wrong);
            QCOMPARE(LabelText(game, "ScoreLabel"), "Score: -25");
            WM_VERIFY(Called(fx, game->scene()->call(), "Gulp! Wrong fly, and the spider hurries!",
                             "spidereat.wav"));
            ClickFly(game, wrong);  // eaten already: nothing happens
            QCOMPARE(LabelText(game, "ScoreLabel"), "Score: -25");
            QCOMPARE(LabelText(game, "TimeLabel"), "Spider: 8.0 s");
            // The right one before the spider sets off: 80 tenths x 2.
            ClickFly(game, game->game().answer());
            QCOMPARE(game->scene()->call(), "Free! +160 points");
            QCOMPARE(LabelText(game, "ScoreLabel"), "Score: 135");
        } else if (round == 2) {
            // The spider sets off after a second and a half...
            for (int i = 0; i < 100 && game->game().phase() == spiderwebs::Phase::Ready; ++i)
                Pump(16);
            WM_VERIFY(Called(fx, game->scene()->call(), "Click the fly with the matching word!",
                             "spidergo.wav"));
            // ... and crawls 11.5 s to its fly in the second round.
            Pump(1984);
            QCOMPARE(LabelText(game, "TimeLabel"), "Spider: 9.5 s");
            ClickFly(game, game->game().answer());
            QCOMPARE(game->scene()->call(), "Free! +190 points");
        } else {
            ClickFly(game, game->game().answer());
        }
        QVERIFY(fx.sound.played.contains("spiderfree.wav"));
        QCOMPARE(game->game().freed(), round);
        if (round < 10) Pump(spiderwebs::kFreedMs + 16);
    }
    // Rounds 3 to 10 at their whole crawls: 220 down to 150 points.
    QCOMPARE(LabelText(game, "ScoreLabel"), "Score: 1805");
    Pump(spiderwebs::kFreedMs + 16);
    WM_VERIFY(Called(fx, game->scene()->call(), "All ten done! You freed 10 of 10 flies.",
                     "spiderwin.wav"));
    Pump(SpiderGame::kEndMs);
    QVERIFY(dancing);
    CheckDeclared(fx);
    WM_CHECK_WON(fx, "Spiderwebs", "BOB 1805");
}

void SpiderScreenTest::theSpiderWinsEveryDefinition() {
    ShellFixture fx;
    Pairs pairs;
    for (const char* w : {"photosynthesis", "metamorphosis", "camouflaged", "caterpillars",
                          "grasshoppers", "dragonflies", "hibernation", "chrysalis", "centipede",
                          "earthworm", "pollinator", "honeycomb", "cobweb"})
        pairs.push_back({w, std::string("a long definition of ") + w +
                                ", so long that it has to wrap onto a second line on the sign"});
    auto* game = OpenGame<SpiderGame>(fx, "Spiderwebs", pairs, 12);
    QVERIFY(game);
    Pump(16);
    QCOMPARE(game->game().flies().size(), 12u);
    QCOMPARE(game->game().phase(), spiderwebs::Phase::Ready);  // only a frame has gone by
    QStringList words;
    for (int round = 1; round <= 10; ++round) {
        const QString word = QString::fromLatin1(Shared().TheWord.c_str());
        QVERIFY2(!words.contains(word), qPrintable(word));
        words << word;
        // At the hub a while, then the crawl: 12 s less half a second a round.
        for (int i = 0; i < 100 && game->game().phase() == spiderwebs::Phase::Ready; ++i) Pump(16);
        Pump(12000 - 500 * (round - 1) - 32);
        QCOMPARE(game->game().phase(), spiderwebs::Phase::Crawling);
        for (int i = 0; i < 4 && game->game().phase() == spiderwebs::Phase::Crawling; ++i) Pump(16);
        QCOMPARE(game->scene()->call(), "Too late! The word was \"" + word + "\".");
        if (round == 1) CheckLayout(game, true);
        QVERIFY(fx.sound.played.contains("spidercatch.wav"));
        QCOMPARE(LabelText(game, "ScoreLabel"), "Score: 0");
        Pump(spiderwebs::kCaughtMs);
    }
    WM_VERIFY(
        Called(fx, game->scene()->call(), "The spider had a feast tonight!", "spiderlose.wav"));
    fx.dialogs.answerYes(true);
    Pump(SpiderGame::kEndMs);
    QCOMPARE(LastBox(fx),
             "Spiderwebs | All ten definitions are done, but your score is 0, so it "
             "cannot go on the high score table. Would you like to try again?");
    QCOMPARE(TableRow(fx, "Spiderwebs"), "--- 0");  // nobody on the table
    CheckDeclared(fx);
    // Try again: a fresh game.
    QCOMPARE(game->scene()->call(), "Definition 1 of 10");
    QCOMPARE(game->game().round(), 1);
    // Twelve flies need twelve different words.
    Shared().WordCount = 11;
    QCOMPARE(RestartRefusal(fx, game),
             "Spiderwebs | "
             "At level 12 the web holds 12 flies, each with a different word, but this list has "
             "only 11 different words. Please choose another list or a lower level.");
}

QTEST_MAIN(SpiderScreenTest)
#include "spiderwebs_screen_test.moc"
