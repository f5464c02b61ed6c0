// The game clock under manual time: pace, firing order, timers changed from inside a timeout;
// and the language a list is said in, with the voice that says it.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/language_codes.h"
#include "platform/speech.h"
#include "platform/ticker.h"

using namespace wm;

namespace {

// Records "name@ms" (ms since the test began) for each timeout.
struct Log {
    qint64 start = Ticker::get().now();
    std::vector<std::string> lines;
    void hook(std::initializer_list<std::pair<GameTimer*, std::string>> timers) {
        for (const auto& [timer, name] : timers)
            QObject::connect(timer, &GameTimer::timeout, [this, name] {
                lines.push_back(name + "@" + std::to_string(Ticker::get().now() - start));
            });
    }
};

class TickerTest : public ::testing::Test {
protected:
    void SetUp() override { Ticker::get().setManual(true); }
};

TEST(TickerPace, EffectiveInterval) {
    const std::vector<std::pair<int, int>> cases = {
        {-5, 0}, {0, 0}, {1, 16}, {10, 16}, {15, 16}, {16, 16}, {17, 17}, {55, 55}, {1000, 1000}};
    for (auto [asked, runs] : cases)
        EXPECT_EQ(Ticker::effectiveInterval(asked), runs) << "asked " << asked;
}

TEST_F(TickerTest, DueTimersFireInTimeOrderAndAsOftenAsDue) {
    Log log;
    GameTimer slow, fast, once, tiny;
    log.hook({{&slow, "slow"}, {&fast, "fast"}, {&once, "once"}, {&tiny, "tiny"}});
    slow.start(50);
    fast.start(30);
    once.setSingleShot(true);
    once.start(40);
    tiny.start(1);  // the pace rule: a 1 ms timer runs every 16 ms
    EXPECT_EQ(tiny.interval(), 1);
    Ticker::get().advance(65);
    const std::vector<std::string> expected = {"tiny@16", "fast@30", "tiny@32", "once@40",
                                               "tiny@48", "slow@50", "fast@60", "tiny@64"};
    EXPECT_EQ(log.lines, expected);
    EXPECT_EQ(std::tuple(once.isActive(), slow.isActive(), Ticker::get().now() - log.start),
              std::tuple(false, true, 65));
    // The remainder of a part-way interval carries into the next advance.
    log.lines.clear();
    tiny.stop();
    Ticker::get().advance(35);
    EXPECT_EQ(log.lines, (std::vector<std::string>{"fast@90", "slow@100"}));
}

TEST_F(TickerTest, StoppedOrDeletedInsideATimeoutNeverFiresAgain) {
    Log log;
    GameTimer first, stopped;
    auto deleted = std::make_unique<GameTimer>();
    auto selfDeleting = new GameTimer;
    log.hook({{&first, "first"}, {&stopped, "stopped"}, {deleted.get(), "deleted"}});
    QObject::connect(&first, &GameTimer::timeout, [&] {
        stopped.stop();
        deleted.reset();
    });
    QObject::connect(selfDeleting, &GameTimer::timeout, [&] {
        log.lines.push_back("self");
        delete selfDeleting;
        selfDeleting = nullptr;
    });
    first.start(20);
    stopped.start(20);  // due at the same moment, but after `first`
    deleted->start(20);
    selfDeleting->start(20);
    Ticker::get().advance(100);
    EXPECT_EQ(log.lines, (std::vector<std::string>{"first@20", "self", "first@40", "first@60",
                                                   "first@80", "first@100"}));
    EXPECT_TRUE(selfDeleting == nullptr && !stopped.isActive());
}

TEST_F(TickerTest, StartedInsideATimeoutCountsFromThatMoment) {
    Log log;
    GameTimer trigger, later;
    log.hook({{&trigger, "trigger"}, {&later, "later"}});
    trigger.setSingleShot(true);
    QObject::connect(&trigger, &GameTimer::timeout, [&] { later.start(50); });
    trigger.start(20);
    Ticker::get().advance(130);
    EXPECT_EQ(log.lines, (std::vector<std::string>{"trigger@20", "later@70", "later@120"}));
}

TEST_F(TickerTest, ZeroIntervalFiresOnTheNextAdvanceEvenOfNothing) {
    Log log;
    GameTimer once, repeating, restarting;
    log.hook({{&once, "once"}, {&repeating, "rep"}, {&restarting, "restart"}});
    once.setSingleShot(true);
    once.start(0);
    repeating.start(0);
    restarting.setSingleShot(true);
    // A handler that sets its own zero timer going again must not spin the clock.
    QObject::connect(&restarting, &GameTimer::timeout, [&] { restarting.start(0); });
    restarting.start(0);
    Ticker::get().advance(0);
    EXPECT_EQ(log.lines, (std::vector<std::string>{"once@0", "rep@0", "restart@0"}));
    log.lines.clear();
    Ticker::get().advance(50);
    EXPECT_EQ(log.lines, (std::vector<std::string>{"rep@0", "restart@0"}));
    EXPECT_FALSE(once.isActive());
}

TEST(Speech, ListCodesLocalesAndVoices) {
    const std::vector<LanguageCode> codes = {
        {"S", "Spanish - English words, Spanish meanings", "x"},
        {"K", "Klingon - English words, Klingon meanings", "x"}};
    const std::pair<std::string, QLocale::Language> cases[] = {
        {"", QLocale::English}, {" S ", QLocale::Spanish}, {"K", QLocale::C}, {"Q", QLocale::C}};
    for (const auto& [code, language] : cases)
        EXPECT_EQ(LocaleForLanguage(code, codes).language(), language) << code;
    // The best locale and voice for a language.
    const QLocale esES("es_ES"), es419("es_419"), enGB("en_GB"), enUS("en_US");
    // A country with no voice of its own takes the language's main country, then any.
    EXPECT_EQ(ChooseLocale({es419, esES}, QLocale("es_MX")), esES);
    EXPECT_EQ(ChooseLocale({enGB}, QLocale("de_DE")).language(), QLocale::C);
    const QList<VoiceInfo> voices = {{"Spanish (Spain)+Adam", esES},
                                     {"Spanish (Latin America)", es419},
                                     {"Spanish (Spain)", esES},
                                     {"English (America)", enUS}};
    EXPECT_EQ(ChooseVoice(voices, esES), 2);  // plain, not a variant
    EXPECT_EQ(ChooseVoice(voices, QLocale("fr_FR")), -1);
}

}  // namespace
