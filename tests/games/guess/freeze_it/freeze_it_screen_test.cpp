// Freeze-It on its screen: from the title through ten words (a wrong answer, the palette, a
// melted word, right answers) to the table; a game without points that ends without the table;
// long words that fit; a list without letters refused.
#include <QtTest>

#include "game_road.h"
#include "games/guess/freeze_it/freeze_it_screen.h"

using namespace wm;
using namespace wm::test;
using namespace wm::freeze_it;

class FreezeItScreenTest : public QObject {
    Q_OBJECT
private slots:
    void tenWordsToTheTable();
    void noPointsNoTable();
    void longWordsFitAndEmptyListsAreRefused();
};

namespace {
const std::vector<std::pair<std::string, std::string>> kWinter = {
    {"snow", "white flakes that fall in winter"},     {"frost", "thin ice on a cold morning"},
    {"igloo", "a house made of snow blocks"},         {"sled", "you ride it down a snowy hill"},
    {"mitten", "a warm glove without fingers"},       {"scarf", "you wrap it round your neck"},
    {"penguin", "a bird that swims but never flies"}, {"icicle", "ice hanging from a roof"},
    {"blizzard", "a storm of wind and snow"},         {"cocoa", "a hot chocolate drink"}};

// Moves the clock until the ice thaws (the pause before a word is over).
bool UntilThawing(QPointer<FreezeIt> game) {
    for (int i = 0; i < 100 && game; ++i) {
        if (game->frame().findTimer("Timer1")->isActive()) return true;
        Pump(50);
    }
    return false;
}

void TypeAnswer(FreezeIt* game, const QString& text) {
    game->answerBox()->setText(text);
    QTest::keyClick(game->answerBox(), Qt::Key_Return);
}
}  // namespace

void FreezeItScreenTest::tenWordsToTheTable() {
    ShellFixture fx;
    WriteOneList(fx, "Winter", kWinter);
    WinDriver win({"ICE"});
    SetModalHook([&](QDialog& d) {
        if (auto* fl = qobject_cast<FLForm*>(&d)) {
            fl->pickCell(233 - 191);  // e acute
            fl->insert(0);
            if (fl->isVisible()) fl->reject();
        } else {
            win(d);
        }
    });
    fx.dialogs.answerYes(false);
    QPointer<FreezeIt> game = qobject_cast<FreezeIt*>(PlayFromTitle("Freeze-It", "Winter", 3));
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    Pump();
    SharedState& s = Shared();
    const std::string first = s.TheWord;
    const int n = int(first.size());
    QCOMPARE(game->scene()->bannerText(), QString("Get ready!"));
    QCOMPARE(game->wordLabel()->text(), QString("Word 1 of 10"));
    QCOMPARE(game->scoreLabel()->text(), QString("Score: 0"));
    QVERIFY(game->clue()->isVisible());
    QCOMPARE(game->clue()->text(), QString::fromStdString("Meaning: " + s.TheMeaning));
    QCOMPARE(game->scene()->blockCount(), n);

    // Nothing thaws in the pause; then a block every 1800 - 300 x 3 = 900 ms.
    QVERIFY(UntilThawing(game));
    QCOMPARE(game->game().hidden(), n);
    QCOMPARE(game->scene()->bannerText(), QString());
    QCOMPARE(game->hintLabel()->text(), QString("Press SPACE to freeze the ice!"));
    Pump(880);
    QCOMPARE(game->game().hidden(), n);
    Pump(40);
    QCOMPARE(game->game().hidden(), n - 1);
    QCOMPARE(fx.sound.played.count("freeze-drip.wav"), 1);

    // Space freezes; Escape in the box puts it away and the thaw goes on.
    QTest::keyClick(game, Qt::Key_Space);
    QVERIFY(game->answerBox()->isVisible());
    QCOMPARE(game->focusWidget(), game->answerBox());  // Escape now closes the box, not the game
    QCOMPARE(game->hintLabel()->text(), QString("Type the word and press ENTER"));
    QCOMPARE(fx.sound.played.last(), QString("freeze-crack.wav"));
    Pump(2000);
    QCOMPARE(game->game().hidden(), n - 1);
    QTest::keyClick(game->answerBox(), Qt::Key_Escape);
    QVERIFY(!game->answerBox()->isVisible());
    QCOMPARE(CurrentScreen(), game.data());
    QCOMPARE(game->game().phase(), Phase::Thawing);

    // A letter typed straight away freezes the ice and starts the answer; a wrong one costs
    // nothing at 0 and the thaw goes on.
    QTest::keyClick(game, Qt::Key_Q);
    QCOMPARE(game->answerBox()->text(), QString("q"));
    QTest::keyClick(game->answerBox(), Qt::Key_Return);
    QCOMPARE(game->scoreLabel()->text(), QString("Score: 0"));
    QCOMPARE(game->scene()->bannerText(), QString("Not quite! -25"));
    QCOMPARE(fx.sound.played.last(), QString("freeze-wrong.wav"));
    QVERIFY(!game->answerBox()->isVisible());
    Pump(900);
    QCOMPARE(game->game().hidden(), n - 2);
    Shot(game, "freeze-it-1280");
    Pump(450);  // the banner passes; the next block is not due yet
    QCOMPARE(game->scene()->bannerText(), QString());
    QCOMPARE(game->game().hidden(), n - 2);

    // The palette puts its letter into the answer box; the score file follows the palette's key.
    QTest::keyClick(game, Qt::Key_Space);
    Shot(game, "freeze-it-frozen-1280");
    game->resize(1920, 1080);
    Shot(game, "freeze-it-frozen-1920");
    game->resize(1280, 800);
    game->answerBox()->setText("cafX");
    game->answerBox()->setSelection(3, 1);
    QVERIFY(TriggerMenu(game, "FLang"));
    QCOMPARE(game->answerBox()->text(), QString::fromLatin1("caf\xE9"));
    // Keys that reach the screen while the box is open still go into it.
    game->setFocus();
    QTest::keyClick(game, Qt::Key_S);
    QCOMPARE(game->answerBox()->text(), QString::fromLatin1("caf\xE9s"));
    QCOMPARE(s.CurrentGame, std::string("freeze it"));
    TypeAnswer(game, QString::fromStdString(first).toUpper());
    const int firstPoints = (n - 2) * 20 * 3 + 10;
    QCOMPARE(game->scene()->bannerText(), QString("Right! +%1").arg(firstPoints));
    QCOMPARE(game->scoreLabel()->text(), QString("Score: %1").arg(firstPoints));
    QCOMPARE(fx.sound.played.last(), QString("freeze-right.wav"));
    Shot(game, "freeze-it-right-1280");

    // The second word melts away: no points, and the word is shown.
    QVERIFY(UntilThawing(game));
    QCOMPARE(game->wordLabel()->text(), QString("Word 2 of 10"));
    const QString second = QString::fromStdString(s.TheWord);
    QVERIFY(second != QString::fromStdString(first));
    Pump(900 * int(second.size()));
    QCOMPARE(game->scene()->bannerText(), "The word was: " + second);
    QCOMPARE(fx.sound.played.last(), QString("freeze-melt.wav"));
    QCOMPARE(s.Score, double(firstPoints));
    Shot(game, "freeze-it-melted-1280");

    // The other eight at once, each frozen before a block has thawed.
    QStringList words{QString::fromStdString(first), second};
    for (int w = 3; w <= 10; ++w) {
        QVERIFY(UntilThawing(game));
        QCOMPARE(game->wordLabel()->text(), QString("Word %1 of 10").arg(w));
        words << QString::fromStdString(s.TheWord);
        QTest::keyClick(game, Qt::Key_Space);
        TypeAnswer(game, words.last());
    }
    words.removeDuplicates();
    QCOMPARE(words.size(), 10);
    double expected = firstPoints;
    for (int w = 2; w < 10; ++w) expected += words[w].size() * 60 + 10;
    QCOMPARE(s.Score, expected);
    Pump(1950);
    QCOMPARE(game->scene()->bannerText(), QString("You did it! %1 points").arg(expected));
    QCOMPARE(fx.sound.played.last(), QString("freeze-win.wav"));
    QVERIFY(win.tables.isEmpty());
    Pump(2400);
    QCOMPARE(win.tables.size(), 1);
    QVERIFY(win.tables.first().contains("ICE"));
    QVERIFY(fx.exists("scores/freeze it.dat"));
    QVERIFY(fx.dialogs.saw(
        QString("You got a high score of %1! Would you like to try again?").arg(expected)));
    Pump();
    QVERIFY(!game);
    QVERIFY(Showing<Title>());
}

void FreezeItScreenTest::noPointsNoTable() {
    ShellFixture fx;
    WriteOneList(fx, "Cold", {{"ice", ""}, {"hail", ""}, {"sleet", ""}}, true);
    WinDriver win;
    SetModalHook(std::ref(win));
    fx.dialogs.answerYes(false);
    QPointer<FreezeIt> game =
        qobject_cast<FreezeIt*>(ContinueWithList(ChooserFor("Freeze-It", 5, false), "Cold"));
    QVERIFY(game);
    QVERIFY(UntilThawing(game));
    QVERIFY(!game->clue()->isVisible());  // no meaning on a words-only list
    QTest::keyClick(game, Qt::Key_Space);
    TypeAnswer(game, "snow");
    QCOMPARE(game->scoreLabel()->text(), QString("Score: 0"));
    // Every word melts at 1800 - 300 x 5 = 300 ms a block.
    QStringList seen;
    QStringList banners;
    for (int i = 0; i < 800 && game && !fx.dialogs.saw("Try Again?"); ++i) {
        const QString b = game->scene()->bannerText();
        banners << b;
        if (b.startsWith("The word was: ")) seen << b.mid(14);
        Pump(100);
        if (fx.dialogs.last().startsWith("The ice")) break;
    }
    seen.removeDuplicates();
    QCOMPARE(seen.size(), 3);
    const auto& last = fx.dialogs.shown.back();
    QCOMPARE(last.title, QString("Try Again?"));
    QVERIFY(last.text.startsWith("The ice kept its secrets this time! The words were: "));
    for (const QString& w : seen) QVERIFY(last.text.contains(w));
    QCOMPARE(last.text.count(", "), seen.size() - 1);  // each word once
    QVERIFY(last.text.endsWith(". Would you like to try again?"));
    QVERIFY(win.congratulations.isEmpty());
    QVERIFY(!fx.exists("scores/Freeze-It.dat") || !fx.read("scores/Freeze-It.dat").contains("ZZZ"));
    QVERIFY(banners.contains("Brrr! The ice won this time."));
    QCOMPARE(fx.sound.played.last(), QString("freeze-lose.wav"));
    QVERIFY(!fx.sound.played.contains("freeze-win.wav"));
    Pump();
    QVERIFY(Showing<Title>());
}

void FreezeItScreenTest::longWordsFitAndEmptyListsAreRefused() {
    ShellFixture fx;
    const std::string longMeaning =
        "a lung disease caused by breathing in very fine ash and sand dust, as from a volcano, "
        "said to be one of the longest words in the English language";
    WriteOneList(fx, "Long",
                 {{"pneumonoultramicroscopicsilicovolcanoconiosis", longMeaning},
                  {"photosynthesis", "how green plants make food from sunlight"}});
    fx.rng.setFallback(0.0);  // the longest word
    QPointer<FreezeIt> game = qobject_cast<FreezeIt*>(PlayFromTitle("Freeze-It", "Long", 1));
    QVERIFY(game);
    for (const QSize size : {QSize(1280, 800), QSize(1920, 1080)}) {
        game->resize(size);
        Pump();
        FreezeScene* sc = game->scene();
        QCOMPARE(sc->geometry(), game->rect());  // the scene fills the screen
        const QRect first = sc->blockRect(0), last = sc->blockRect(sc->blockCount() - 1);
        QVERIFY(first.left() >= 0 && last.right() < size.width());
        QVERIFY(first.top() > game->clue()->geometry().bottom());
        QVERIFY(last.bottom() < game->answerBox()->geometry().top());
        for (QWidget* w :
             std::initializer_list<QWidget*>{game->clue(), game->wordLabel(), game->scoreLabel(),
                                             game->hintLabel(), game->answerBox()})
            QVERIFY2(game->rect().contains(w->geometry()), qPrintable(w->objectName()));
        Shot(game, QString("freeze-it-long-%1").arg(size.width()));
    }
    // With the sound off, the freeze is silent.
    Shared().SoundOn = kFalse;
    fx.sound.played.clear();  // the title's own sound
    QVERIFY(UntilThawing(game));
    QTest::keyClick(game, Qt::Key_Space);
    QVERIFY(game->answerBox()->isVisible());
    QVERIFY(fx.sound.played.isEmpty());
    game->setFocus();
    QTest::keyClick(game, Qt::Key_Escape);
    Pump();
    QVERIFY(Showing<Title>());

    WriteOneList(fx, "Dashes", {{"- -", "only dashes"}, {"'", "only a mark"}});
    PlayFromTitle("Freeze-It", "Dashes", 3);
    Pump();
    QVERIFY(fx.dialogs.saw(kNoWords));
    Pump();
    QVERIFY(Showing<Title>());
}

QTEST_MAIN(FreezeItScreenTest)
#include "freeze_it_screen_test.moc"
