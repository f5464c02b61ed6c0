// Every registered game, opened with awkward lists and driven for a stretch of test-clock time
// by random clicks, keys and menu entries, with every box answered. Whatever the game, it must
// not crash or hang, never play an empty word, either play or say clearly why it cannot, and
// come back cleanly to the title. A game added later is covered without writing anything here.
#include <QAbstractButton>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QtTest>
#include <random>

#include "core/rng.h"
#include "game_end.h"
#include "shell/game_registry.h"
#include "shell/high_score_form.h"
#include "teacher/program_options.h"

using namespace wm;
using namespace wm::test;

namespace {

struct MatrixList {
    QString name;
    Pairs pairs;
    bool wordsOnly = false;
};

std::string LettersOf(int n, int length) {
    std::string w;
    for (int i = 0; i < length; ++i) {
        w += static_cast<char>('a' + n % 26);
        n = n / 26 + i * 7 + 3;
    }
    return w;
}

std::vector<MatrixList> Lists() {
    std::vector<MatrixList> lists;
    lists.push_back({"One Word", {{"owl", "a bird that hoots at night"}}});
    lists.push_back(
        {"No Shared Letter", {{"cat", "a pet that purrs"}, {"dog", "a pet that barks"}}});
    lists.push_back({"Very Long Words",
                     {{"pneumonoultramicroscopicsilicovolcanoconiosis", "a lung disease"},
                      {"supercalifragilisticexpialidocious", "wonderful, in a song"},
                      {"antidisestablishmentarianisms", "against a state church, and more"},
                      {"floccinaucinihilipilifications", "the act of judging worthless"}}});
    MatrixList wordsOnly{"Words Only", {}, true};
    for (const char* w :
         {"accommodate", "believe", "calendar", "definitely", "embarrass", "friend"})
        wordsOnly.pairs.push_back({w, ""});
    lists.push_back(std::move(wordsOnly));
    MatrixList big{"Thousand Words", {}};
    for (int i = 0; i < 1000; ++i)
        big.pairs.push_back({LettersOf(i, 3 + i % 9), "meaning number " + std::to_string(i + 1)});
    lists.push_back(std::move(big));
    lists.push_back({"Odd Characters",
                     {{"ice cream", "a cold sweet treat"},
                      {"well-known", "known by many"},
                      {"don't", "do not"},
                      {"caf\xE9", "a small restaurant"},
                      {"pi\xF1"
                       "ata",
                       "a party game full of sweets"}}});
    return lists;
}

// Answers every box a game opens: initials typed, tables closed, the palette used or put away.
struct AnyBox {
    std::mt19937* dice;
    void operator()(QDialog& d) {
        if (auto* e = qobject_cast<EnterInitialsForm*>(&d)) {
            for (int i = 0; i < 3; ++i) e->letters()[i]->setText(QString(QChar('A' + i)));
            e->confirm();
        } else if (auto* h = qobject_cast<HighScoreForm*>(&d)) {
            h->findChild<QPushButton*>("Command1")->click();
        } else if (auto* fl = qobject_cast<FLForm*>(&d)) {
            if ((*dice)() % 2) {
                fl->pickCell(static_cast<int>((*dice)() % 64));
                fl->insert(0);
            }
            if (fl->isVisible()) fl->reject();
        } else {
            d.reject();
        }
    }
};

const int kKeys[] = {Qt::Key_A,     Qt::Key_E,      Qt::Key_O,         Qt::Key_T,
                     Qt::Key_Space, Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Up,
                     Qt::Key_Down,  Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Z,
                     Qt::Key_1,     Qt::Key_Minus,  Qt::Key_Apostrophe};

}  // namespace

class GameMatrix : public QObject {
    Q_OBJECT
private slots:
    void everyRegistrationNamesACard();
    void allFortyTwoAreOffered();
    void everyGameSurvivesAwkwardLists_data();
    void everyGameSurvivesAwkwardLists();
};

void GameMatrix::everyRegistrationNamesACard() {
    QCOMPARE(GameRegistrationErrors(), QStringList{});
    ShellFixture fx;
    int built = 0;
    for (const GameCard& card : Catalogue()) {
        if (!card.built()) continue;
        ++built;
        QVERIFY2(HasScreen(QString::fromStdString(card.screen)), card.name.c_str());
        QCOMPARE(MissingAssets(fx, card.name.c_str()), QString());  // the build made them all
    }
    QVERIFY(built >= 1);
}

// The program offers only games it can play; with every game built, that is all 42 of the
// catalogue, on the title, in the score browser and in the teacher's show and hide list.
void GameMatrix::allFortyTwoAreOffered() {
    if (qEnvironmentVariable("WM_MATRIX_SHARD", "0/1").split('/').value(0) != "0") return;
    ShellFixture fx;
    OfferOnlyBuiltGames(true);
    auto* title = qobject_cast<Title*>(OpenScreen("Title"));
    QVERIFY(title && title->startedOk());
    QCOMPARE(Shared().VisibleGameCount, 42);
    // Large Icons: four pages, of 12, 12, 12 and 6.
    QList<int> pages;
    for (int page = 0; page < 6; ++page) {
        int shown = 0;
        for (auto* b : title->buttons()) shown += b->isVisible() ? 1 : 0;
        pages << shown;
        if (!title->moreButton()->isVisible()) break;
        QTest::mouseClick(title->moreButton(), Qt::LeftButton);
    }
    QCOMPARE(pages, (QList<int>{12, 12, 12, 6}));
    // The score browser steps through all 42 and stops at the last.
    Shared().CurrentGame = "Title";
    HighScoreForm scores;
    QStringList seen;
    for (int i = 0; i < 42; ++i, scores.nextGame()) seen << scores.game();
    QCOMPARE(QSet<QString>(seen.begin(), seen.end()).size(), 42);
    QCOMPARE(scores.game(), seen.last());
    EnableDisable shows;
    QCOMPARE(shows.games()->count(), 42);
    OfferOnlyBuiltGames(false);
}

// The built games this shard takes: WM_MATRIX_SHARD="i/n" takes every n-th from the i-th, so that
// shards run side by side (of those WM_GAMES names, when it is set).
std::vector<const GameCard*> ShardGames() {
    const QStringList shard = qEnvironmentVariable("WM_MATRIX_SHARD", "0/1").split('/');
    const int part = shard.value(0).toInt(), parts = std::max(1, shard.value(1).toInt());
    std::vector<const GameCard*> games;
    int built = 0;
    for (const GameCard& card : Catalogue())
        if (card.built() && GameTaken(card.name) && built++ % parts == part) games.push_back(&card);
    return games;
}

void GameMatrix::everyGameSurvivesAwkwardLists_data() {
    QTest::addColumn<QString>("game");
    QTest::addColumn<int>("list");
    const auto lists = Lists();
    for (const GameCard* card : ShardGames())
        for (int i = 0; i < int(lists.size()); ++i)
            QTest::newRow(qPrintable(QString::fromStdString(card->name) + " / " + lists[i].name))
                << QString::fromStdString(card->name) << i;
}

void GameMatrix::everyGameSurvivesAwkwardLists() {
    QFETCH(QString, game);
    QFETCH(int, list);
    const MatrixList ml = Lists()[list];
    const GameCard* card = FindCard(game.toStdString());
    QVERIFY(card);

    ShellFixture fx;
    std::mt19937 dice(static_cast<unsigned>(qHash(game) ^ (list * 7919)));
    SeededRng rng(dice());
    SetRng(&rng);
    AnyBox boxes{&dice};
    SetModalHook(std::ref(boxes));
    // Try again now and then, but not for ever.
    int yeses = 0;
    fx.dialogs.otherwiseYes = [&](const QString&) { return yeses < 6 && (dice() % 2) && ++yeses; };

    WriteOneList(fx, ml.name, ml.pairs, ml.wordsOnly);
    OpenScreen("Title");
    Pump();
    ChooseList* chooser = ChooserFor(game, card->options.start, list % 2 == 0);
    QVERIFY(chooser);
    Shared().TheWord = "\x01";  // untouched by a game that plays no single word
    QPointer<QWidget> screen = ContinueWithList(chooser, ml.name + " (");
    QVERIFY(screen);
    if (screen == chooser || qobject_cast<Title*>(screen)) {
        // Refused: the pupil was told why.
        QVERIFY2(!fx.dialogs.shown.empty(), "refused without a word");
        return;
    }
    QCOMPARE(screen->objectName(), QString::fromStdString(card->screen));

    for (int step = 0; step < 40 && screen && CurrentScreen() == screen; ++step) {
        QVERIFY2(!Shared().TheWord.empty(), "an empty word was played");
        QWidget* target = screen;
        switch (dice() % 5) {
            case 0: {
                QList<QAbstractButton*> buttons;
                for (auto* b : screen->findChildren<QAbstractButton*>())
                    if (b->isVisible() && b->isEnabled()) buttons << b;
                if (!buttons.isEmpty()) buttons[int(dice() % buttons.size())]->click();
                break;
            }
            case 1:
            case 2: {
                if (QWidget* f = QApplication::focusWidget(); f && screen->isAncestorOf(f))
                    target = f;
                const int key = kKeys[dice() % std::size(kKeys)];
                QTest::keyClick(target, Qt::Key(key));
                break;
            }
            case 3: {
                const QPoint at(int(dice() % std::max(1, screen->width())),
                                int(dice() % std::max(1, screen->height())));
                QWidget* child = screen->childAt(at);
                QWidget* hit = child ? child : screen.data();
                QTest::mouseClick(hit, Qt::LeftButton, {}, hit->mapFrom(screen, at));
                break;
            }
            default: {
                // Any entry of the menu but Quit, which ends the drive below.
                auto* bar = screen->findChild<QMenuBar*>();
                if (!bar) break;
                QList<QAction*> actions;
                for (auto* a : bar->actions())
                    if (a->text() != "Quit" && a->isEnabled()) actions << a;
                if (!actions.isEmpty()) actions[int(dice() % actions.size())]->trigger();
                break;
            }
        }
        if (!screen || CurrentScreen() != screen) break;
        Pump(int(dice() % 400));
    }
    if (screen && CurrentScreen() == screen) {
        QTest::keyClick(screen, Qt::Key_Escape);
        Pump();
        if (screen && CurrentScreen() == screen) {
            QAction* quit = nullptr;  // the menu's Quit entry, whatever its control name
            for (auto* a : screen->findChildren<QAction*>())
                if (!quit && a->text() == "Quit") quit = a;
            QVERIFY(quit);
            quit->trigger();
            Pump();
        }
    }
    QVERIFY2(Showing<Title>() != nullptr, "the game did not come back to the title");
}

QTEST_MAIN(GameMatrix)
#include "game_matrix_test.moc"
