// Bridge Out on its screen: from the title, planks dragged out of the river into the gaps (a
// wrong one first), eight bridges fixed and the score to the table; three trucks stopped at the
// gap at 1920x1080, the box naming the words, a try again; a list with nothing to build.
#include "look.h"

#include "act_kit.h"
#include "core/strings.h"
#include "games/action/bridge_out/bridge_out_screen.h"

class BridgeOutScreenTest : public QObject {
    Q_OBJECT
private slots:
    void eightBridgesFromTheTitleToTheTable();
    void threeTrucksStoppedNameTheWords();
};

namespace {

// Drags the first plank afloat that carries `letter` (upper case) onto gap `gap`.
bool DragTo(BridgeOutGame* game, const std::string& letter, int gap) {
    BridgeScene* scene = game->scene();
    for (const bridge_out::Plank& p : game->game().river()) {
        if (p.letter != letter) continue;
        const QPoint from = scene->plankRect(p).center().toPoint();
        const QPoint to = scene->gapRect(gap).center().toPoint();
        QTest::mousePress(scene, Qt::LeftButton, {}, from);
        QTest::mouseMove(scene, to);
        QTest::mouseRelease(scene, Qt::LeftButton, {}, to);
        return true;
    }
    return false;
}

}  // namespace

void BridgeOutScreenTest::eightBridgesFromTheTitleToTheTable() {
    Road fx(0, {"BOB"});
    const Pairs river{
        {"cat", "a pet that purrs"}, {"dog", "a pet that barks"}, {"owl", "it hoots"},
        {"bee", "it buzzes"},        {"ant", "a tiny insect"},    {"elk", "a big deer"},
        {"yak", "a hairy ox"},       {"emu", "a big bird"},       {"fox", "a red animal"}};
    BridgeOutGame* game = nullptr;
    bool rolling = false;  // the river flows on behind the end boxes
    WatchBehindTheWin(fx, game, rolling);
    game = FromTitle<BridgeOutGame>(fx, "Bridge Out", river, 2);
    QVERIFY2(game, qPrintable(fx.dialogs.texts().join(" | ")));
    Shared().SoundOn = kTrue;
    Pump(16);
    QCOMPARE(Labels(game, "Label1 TrucksLabel"), Meaning() + " | Trucks: 3");
    QVERIFY(fx.music.opened.endsWith("sounds/bridgeout.mid"));

    for (int word = 1; word <= 8; ++word) {
        QCOMPARE(game->scene()->call(), QString("Bridge %1 of 8").arg(word));
        const auto& g = game->game();
        int gap = 0;
        while (!g.isGap(gap)) ++gap;
        const std::string right = UCase(g.word().substr(gap, 1));
        if (word == 1) {
            // A decoy into the gap splashes back: -5 x level 2.
            for (char c = 'A'; c <= 'Z'; ++c)
                if (std::string(1, c) != right && DragTo(game, std::string(1, c), gap)) break;
            QCOMPARE(LabelText(game, "ScoreLabel"), "Score: -10");
            QVERIFY(fx.sound.played.contains("bridgesplash.wav"));
        }
        // The right letter before the truck sets off: +10 x 2, and all 44 metres to spare.
        QVERIFY(DragTo(game, right, gap));
        QCOMPARE(LabelText(game, "BridgeLabel"), QString("Bridges: %1 of 8").arg(word));
        QCOMPARE(game->scene()->call(), "Fixed! Road bonus +88");
        QVERIFY(fx.sound.played.contains("bridgelock.wav") &&
                fx.sound.played.contains("bridgecross.wav"));
        if (word == 8) break;
        Pump(bridge_out::kCrossMs + 16);
    }
    Pump(bridge_out::kCrossMs + 16);
    WM_VERIFY(Called(fx, game->scene()->call(), "All across! You did it!", "bridgewin.wav"));
    QVERIFY(fx.dialogs.shown.empty());
    Pump(BridgeOutGame::kEndMs);
    QVERIFY(rolling);
    WM_CHECK_WON(fx, "Bridge Out", "BOB 854");
}

void BridgeOutScreenTest::threeTrucksStoppedNameTheWords() {
    ShellFixture fx;
    ScreenMetrics::overrideScreenSize(QSize(1920, 1080));
    auto* game = OpenGame<BridgeOutGame>(fx, "Bridge Out", {{"cat", ""}, {"dog", ""}, {"owl", ""}},
                                         10, false, true, true);
    QVERIFY(game);
    Pump(16);
    // A words-only list: the sign tells what to do instead of a meaning.
    QCOMPARE(LabelText(game, "Label1"), "Drag the letters from the river into the gaps!");
    QStringList words;
    for (int truck = 1; truck <= 3; ++truck) {
        words << "\"" + Word() + "\"";
        QCOMPARE(LabelText(game, "RoadLabel"), "Road: 44 m");
        if (truck == 1) {
            while (game->game().phase() == bridge_out::Phase::Ready) Pump(16);
            WM_VERIFY(Called(fx, game->scene()->call(), "Go!", "bridgego.wav"));
            // 44 metres at 7 m/s on level 10: 6286 ms, on 16 ms frames.
            Pump(6272);
            QCOMPARE(game->game().phase(), bridge_out::Phase::Driving);
            Pump(16);
        }
        for (int i = 0; i < 1000 && game->game().phase() != bridge_out::Phase::Stopped; ++i)
            Pump(16);
        QCOMPARE(game->scene()->call(), "Bridge out!");
        if (truck == 1) WM_CHECK_LOOK("Bridge_Out_stopped", game);
        QVERIFY(fx.sound.played.contains("bridgehorn.wav"));
        QCOMPARE(LabelText(game, "TrucksLabel"), QString("Trucks: %1").arg(3 - truck));
        for (int i = 0; i < 300 && game->game().phase() == bridge_out::Phase::Stopped; ++i)
            Pump(16);
    }
    WM_VERIFY(Called(fx, game->scene()->call(), "Out of trucks!", "bridgelose.wav"));
    fx.dialogs.answerYes(true);
    Pump(BridgeOutGame::kEndMs);
    QCOMPARE(LastBox(fx), "Bridge Out | Honk! All three trucks had to stop at the broken bridge. "
                          "The words were " + words[0] + ", " + words[1] + " and " + words[2] +
                              ". Would you like to try again?");
    // Try again: a fresh game.
    QCOMPARE(game->scene()->call() + " | " + LabelText(game, "TrucksLabel"),
             "Bridge 1 of 8 | Trucks: 3");
    // A list with nothing the bridge can carry: said clearly, then back to the title.
    Shared().Words = {"", "abcdefghijklmnopq"};
    Shared().WordCount = 1;
    QCOMPARE(RestartRefusal(fx, game),
             "Bridge Out | "
             "No word on this list fits on the bridge: a word needs at least one letter and at "
             "most 16 letters and blanks. Please choose another list.");
}

QTEST_MAIN(BridgeOutScreenTest)
#include "bridge_out_screen_test.moc"
