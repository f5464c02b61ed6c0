// The game frame on a small test game: the menu and its order, Escape and the leave guard,
// timers that stop as one, continuations of an earlier round dropped, music by kind, and the
// end of a won game with the game's own texts and table order.
#include <QtTest>
#include <optional>

#include "core/score_table.h"
#include "game_road.h"
#include "platform/speech.h"
#include "platform/text.h"
#include "shell/game_frame.h"
#include "shell/game_registry.h"

using namespace wm;
using namespace wm::test;

namespace {

// A game with nothing of its own: it counts the rounds it was asked to start.
class TinyGame : public QWidget {
public:
    TinyGame() : frame(this, {.foreignKey = "tinykey"}, [this] { ++starts; }) {
        setWindowTitle("Tiny");
    }
    GameFrame frame;
    int starts = 0;
};

TinyGame* OpenTiny() {
    OpenScreen("Title");
    auto* game = new TinyGame;
    game->setObjectName("TinyGame");
    PresentScreen(game);
    return game;
}

QStringList MenuTexts(const GameFrame& frame) {
    QStringList texts;
    for (auto* a : frame.menuBar()->actions()) texts << a->text() + "=" + a->objectName();
    return texts;
}

}  // namespace

class GameFrameTest : public QObject {
    Q_OBJECT
    RecordingSpeech voice;  // outlives the screens the fixture closes
    std::optional<ShellFixture> fx;
    TinyGame* game = nullptr;
private slots:
    void init() {
        fx.emplace();
        game = OpenTiny();
    }
    void cleanup() { fx.reset(); }

    void menuKeepsItsOrderAndNames() {
        QCOMPARE(MenuTexts(game->frame), (QStringList{"Restart=RS", "High Scores=HS",
                                                      "How To Play=mnuHowTo", "Quit=Return"}));
        game->frame.setForeign([](const QString&) {});
        game->frame.setSayIt([] { return Spoken{}; });
        // The palette entry and Say It take their places after Restart, whenever they are added.
        QCOMPARE(MenuTexts(game->frame),
                 (QStringList{"Restart=RS", "Say It=mnuSayIt", "Foreign Language Characters=FLang",
                              "High Scores=HS", "How To Play=mnuHowTo", "Quit=Return"}));
        Shared().HowToText = "Play nicely.";
        QVERIFY(TriggerMenu(game, "mnuHowTo"));
        QCOMPARE(std::tuple(fx->dialogs.shown.back().title, fx->dialogs.last()),
                 std::tuple("How To Play", "Play nicely."));
        QVERIFY(TriggerMenu(game, "RS") && game->starts == 1 && game->frame.round() == 1);
    }

    void paletteMovesCurrentGameToTheKey() {
        QString got;
        game->frame.setForeign([&](const QString& c) { got = c; });
        Shared().CurrentGame = "Tiny";
        SetModalHook([](QDialog& d) {
            auto* fl = qobject_cast<FLForm*>(&d);
            QVERIFY(fl);
            fl->pickCell(0);
            fl->insert(0);
        });
        QVERIFY(TriggerMenu(game, "FLang"));
        QCOMPARE(got, QString(QChar(0xBF)));
        // Kept: the score file follows the key from now on.
        QCOMPARE(QString::fromStdString(Shared().CurrentGame), "tinykey");
    }

    void escapeLeavesOnceAndStopsEverything() {
        int ticks = 0;
        game->frame.timer("Timer1", 100, [&] { ++ticks; }).start();
        QTest::keyClick(game, Qt::Key_Escape);
        QVERIFY(game->frame.leaving() && !game->frame.findTimer("Timer1")->isActive() &&
                Showing<Title>() != nullptr && fx->music.closes >= 1);
        // A second Quit (a box answered late, a key still queued) does nothing.
        const int closes = fx->music.closes;
        game->frame.quit();
        QCOMPARE(fx->music.closes, closes);
        Pump(1000);
        QCOMPARE(ticks, 0);
    }

    void timersStopAsOneAndRunOnTheTestClock() {
        int fast = 0, slow = 0, once = 0;
        game->frame.timer("Timer1", 1, [&] { ++fast; }).start();  // runs at one frame, 16 ms
        game->frame.timer("Timer2", 1000, [&] { ++slow; }).start();
        const auto single = [&] { ++once; };
        game->frame.timer("Timer3", 50, single, true).start();
        Pump(160);
        QCOMPARE(QList<int>({fast, slow, once}), QList<int>({10, 0, 1}));
        Pump(840);
        QCOMPARE(slow, 1);
        game->frame.stopTimers();
        Pump(5000);
        QCOMPARE(QList<int>({fast, slow}), QList<int>({62, 1}));
        // Restart stops them too, but for one the game keeps running on purpose.
        game->frame.findTimer("Timer2")->start();
        game->frame.findTimer("Timer1")->start();
        game->frame.keepOnRestart("Timer1");
        game->frame.newGame();
        QVERIFY(!game->frame.findTimer("Timer2")->isActive() &&
                game->frame.findTimer("Timer1")->isActive());
        game->frame.quit();
        QVERIFY(!game->frame.findTimer("Timer1")->isActive());
    }

    void namedTimersRunOnBehindTheEndBoxes() {
        int flash = 0, clock = 0;
        GameTimer& flasher = game->frame.timer("FlashTimer", 100, [&] { ++flash; });
        GameTimer& clocker = game->frame.timer("Timer1", 100, [&] { ++clock; });
        game->frame.runOnThroughEnd("FlashTimer");
        Shared().CurrentGame = "Scramble";
        WinDriver driver({"AB"});
        SetModalHook(std::ref(driver));
        // Each box stands for half a second: the flash goes on, the game's clock has stopped.
        fx->dialogs.whileOpen = [](const ScriptedDialogs::Shown&) { Pump(500); };
        for (bool won : {false, true}) {
            flash = clock = 0;
            flasher.start();
            clocker.start();
            fx->dialogs.answerYes(true);  // try again
            if (won) {
                Shared().Score = 0;
                game->frame.wonGame();
            } else {
                game->frame.askTryAgain("Again?");
            }
            QCOMPARE(clock, 0);
            QVERIFY(flash >= 5 && !flasher.isActive());  // the next game stops it
        }
        flasher.start();
        fx->dialogs.answerYes(false);  // no: back to the title, everything stops
        game->frame.askTryAgain("Again?");
        QVERIFY(!flasher.isActive() && Showing<Title>() != nullptr);
    }

    void nothingEndsOrSpeaksOnceLeftAndAStrayGameIsReported() {
        services().speech = &voice;
        game->frame.setSayIt([] { return Spoken("perro"); });
        const int stops = voice.stops;
        const auto shown = fx->dialogs.shown.size();
        game->frame.quit();
        game->frame.wonGame();  // a late end after leaving: no box, no table
        QCOMPARE(fx->dialogs.shown.size(), shown);
        QPointer<TinyGame> gone(game);
        game = nullptr;
        Pump();
        QVERIFY(gone.isNull() && voice.stops > stops);  // the screen went, and its voice with it
        // A game naming no card is reported.
        GameRegistrar stray("No Such Game", [] { return nullptr; }, {});
        QVERIFY(GameRegistrationErrors().contains("No Such Game"));
    }

    void restartDropsTheLastRoundsContinuations() {
        game->frame.newGame();
        int ended = 0;
        auto animationEnd = game->frame.later([&] { ++ended; });
        auto current = game->frame.later([&] { ended += 10; });
        animationEnd();
        game->frame.newGame();  // Restart while an animation of round 1 still plays
        current();
        QCOMPARE(ended, 1);
        game->frame.later([&] { ended += 100; })();
        game->frame.quit();
        game->frame.later([&] { ended = -1; })();
        QCOMPARE(ended, 101);
    }

    void refusalTellsThenLeaves() {
        game->frame.refuse("This list cannot be used for this game.");
        QCOMPARE(std::tuple(fx->dialogs.shown.back().title, fx->dialogs.last()),
                 std::tuple("Tiny", "This list cannot be used for this game."));
        QCOMPARE(CurrentScreen(), game);  // it leaves from the event loop, not inside the caller
        Pump();
        QVERIFY(Showing<Title>() != nullptr);
    }

    void musicByKind() {
        Shared().SoundOn = kTrue;
        game->frame.setMusic(MusicKind::Own, "crossword.mid");
        game->frame.startMusic();
        // A flag of its own, not the shared one.
        QVERIFY(game->frame.musicOpen() && fx->music.opened.endsWith("sounds/crossword.mid") &&
                Shared().BgmOpen == kFalse);
        game->frame.startMusic();
        QCOMPARE(fx->music.plays, 1);
        game->frame.stopMusic();
        QVERIFY(!game->frame.musicOpen());

        game->frame.setMusic(MusicKind::Shared, "hangman.mid");
        Shared().SoundOn = kFalse;
        game->frame.startMusic();
        QCOMPARE(fx->music.plays, 1);  // sound off: no music
        Shared().SoundOn = kTrue;
        game->frame.startMusic();
        QVERIFY(Shared().BgmOpen == kTrue && game->frame.musicOpen());
        game->frame.quit();
        QCOMPARE(Shared().BgmOpen, kFalse);
    }

    void wonGameTextsAndOffers() {
        const QString raise = "Would you like to raise the difficulty level a bit?";
        const QString placed = "You got a high score of 1234! Would you like to try again?";
        const QString money =
            "You won a cash and prize total of $1234! Would you like to try again?";
        const QString unplaced = "Congratulations! You scored 1234! Would you like to try again?";
        // Placed in the table, the money texts, the answers, the questions, the difficulty after,
        // and whether the title is back. Not placed: no offer to raise.
        const std::tuple<bool, bool, QList<bool>, QStringList, int, bool> rows[] = {
            {true, false, {true, true}, {placed, raise}, 3, false},  // again, raised
            {true, false, {true, false}, {placed, raise}, 2, false},
            {true, false, {false}, {placed}, 2, true},
            {false, false, {true}, {unplaced}, 2, false},
            {true, true, {true, true}, {money, raise}, 3, false}};
        for (const auto& [isPlaced, isMoney, answers, texts, difficulty, onTitle] : rows) {
            init();
            SharedState& s = Shared();
            s.CurrentGame = "Scramble";
            s.Difficulty = 2;
            s.MaxDifficulty = 3;
            if (!isPlaced) {
                ScoreTable full = ScoreTable::Fresh();
                for (int rank = 1; rank <= 50; ++rank) InsertScore(full, rank, "TOP", "99999");
                WriteScoreTable(fx->path("scores/Scramble.dat").toStdString(), full);
            }
            WinDriver driver({"ass"});
            SetModalHook(std::ref(driver));
            for (bool a : answers) fx->dialogs.answerYes(a);
            s.Score = 1234.75;  // made whole before the table is searched
            EndTexts end;
            if (isMoney)
                end.placed =
                    "You won a cash and prize total of ${score}! Would you like to try again?";
            game->frame.wonGame(end);
            QStringList asked;
            for (const auto& shown : fx->dialogs.shown) {
                asked << shown.text;
                QCOMPARE(shown.title, "Great job!");
            }
            // The game's starts are read before the screen may be deleted.
            QCOMPARE(std::tuple(asked, int(s.Difficulty), s.Score, driver.congratulations.size(),
                                game->starts),
                     std::tuple(texts, difficulty, 1234.0, isPlaced ? 1 : 0, onTitle ? 0 : 1));
            Pump();
            QCOMPARE(Showing<Title>() != nullptr, onTitle);
            const ScoreTable t = ReadScoreTable(fx->path("scores/Scramble.dat").toStdString());
            if (isPlaced)
                QCOMPARE(std::tuple(toQ(t.initials(1)), t.score(1)), std::tuple("WIN", 1234.0));
        }
    }

    void sayItSaysWhatTheGameAllowsInTheListsLanguage() {
        services().speech = &voice;
        Spoken now("perro");
        game->frame.setSayIt([&] { return now; });
        QAction* entry = game->frame.entry(GameFrame::Entry::SayIt);
        Shared().WordsLanguage = "S";  // a Spanish list played from its Spanish side
        Shared().SpeechRate = -4;
        QVERIFY(TriggerMenu(game, "mnuSayIt"));
        now = Spoken("dog", ListSide::Meaning);
        QVERIFY(TriggerMenu(game, "mnuSayIt") && voice.said.size() == 2);
        QCOMPARE(std::tuple(voice.said[0].text, voice.said[0].locale.language(), voice.said[0].rate,
                            voice.said[1].locale.language()),
                 std::tuple("perro", QLocale::Spanish, -4, QLocale::English));

        // Greyed, saying why, and silent; the engine that comes up late brings the entry back.
        now = Spoken("perro");
        const std::pair<SpeechStatus, QString> reasons[] = {
            {SpeechStatus::NoSound,
             "This computer has no sound output, so words cannot be said aloud."},
            {SpeechStatus::NoVoice, "This computer has no voice that speaks Spanish."}};
        for (const auto& [status, why] : reasons) {
            voice.setStatus(status);
            QCOMPARE(entry->toolTip(), why);
            QVERIFY(!entry->isEnabled() && !game->frame.sayIt());
        }
        voice.setStatus(SpeechStatus::Ready);
        QVERIFY(entry->isEnabled());
        now = Spoken({}, ListSide::Word, "Not yet.");
        QVERIFY(!game->frame.sayIt());
        QCOMPARE(entry->toolTip(), "Not yet.");
        Shared().SpeechOn = kFalse;
        QVERIFY(!game->frame.sayIt());
        QCOMPARE(entry->toolTip(), "Your teacher has turned off speech in Teacher Management.");
        QCOMPARE(voice.said.size(), 2);
        // Where finding the word is the game: the word once shown, else the meaning once shown.
        Shared().TheWord = "perro";
        Shared().TheMeaning = "dog";
        QCOMPARE(SecretWord(true, true).text, "perro");
        QVERIFY(SecretWord(false, true).text == "dog" &&
                SecretWord(false, true).side == ListSide::Meaning);
        QVERIFY(SecretWord(false, false).text.isEmpty() && !SecretWord(false, false).why.isEmpty());
    }
};

QTEST_MAIN(GameFrameTest)
#include "game_frame_test.moc"
