#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <ctime>
#include <tuple>

#include "core/clock.h"
#include "core/rng.h"
#include "core/strings.h"

using namespace wm;

TEST(Strings, IntFloorsAndMidLeftRightAreOneBased) {
    EXPECT_EQ(std::tuple(Int(2.999), Int(-0.5), Int(0.0)), std::tuple(2, -1, 0));
    // The draw formula always lands in 1..N for Rnd in [0, 1).
    EXPECT_EQ(std::tuple(Int(0.0 * 7 + 1), Int(0.9999999 * 7 + 1)), std::tuple(1, 7));
    // Mid, Left and Right count from one and never fail.
    EXPECT_EQ(std::tuple(Mid("[S]Animals", 4), Mid("abc", 2, 1), Mid("abc", 9), Mid("abc", 0, 2),
                         Mid("abc", 2, 0)),
              std::tuple("Animals", "b", "", "ab", ""));
    EXPECT_EQ(std::tuple(Left("abc", 10), Right("abc", 2), Left("abc", -1)),
              std::tuple("abc", "bc", ""));
}

TEST(Strings, CaseCoversWindows1252Letters) {
    EXPECT_EQ(UCase("ma\xF1\x61na"), "MA\xD1\x41NA");  // mañana
    EXPECT_EQ(LCase("\xC9T\xC9"), "\xE9t\xE9");        // ÉTÉ
    EXPECT_EQ(UCase("\xF7\xDF"), "\xF7\xDF");          // division sign and sharp s stay
    EXPECT_EQ(LCase("\xD7"), "\xD7");                  // multiplication sign stays
    EXPECT_EQ(UCase("\x9A\x9C\x9E\xFF"), "\x8A\x8C\x8E\x9F");
    for (int c = 192; c <= 255; ++c) {
        std::string s = Chr(c);
        EXPECT_EQ(UCase(LCase(UCase(s))), UCase(s)) << c;
    }
}

TEST(Strings, WhatCountsAsALetter) {
    // The edges of the alphabets, and the scattered accented letters of Windows-1252 below 0xC0.
    const std::string letters = "AZaz\x8A\x8C\x8E\x9A\x9C\x9E\x9F\xC0\xE9\xFF";
    for (char c : letters) EXPECT_TRUE(IsLetter(c)) << int(c);
    const std::string others = " -'@[`{0\x80\x8B\x8D\x9B\xAA\xBF\xD7\xF7";
    for (char c : others) EXPECT_FALSE(IsLetter(c)) << int(c);
    // What a pupil types or shoots: the digits too, but never a blank or a mark.
    for (char c : std::string("09aZ\xDF\xFF")) EXPECT_TRUE(IsLetterOrDigit(c)) << int(c);
    for (char c : std::string(" -'./:\xD7\xF7")) EXPECT_FALSE(IsLetterOrDigit(c)) << int(c);
}

TEST(Strings, TrimInStrAndReplace) {
    EXPECT_EQ(std::tuple(Trim("  listpath "), Trim("\tx\t"), Trim("   ")),
              std::tuple("listpath", "\tx\t", ""));
    // InStr and InStrRev count from one; 0 is not found.
    EXPECT_EQ(std::tuple(InStr("Unit (2) (30 words)", "("), InStrRev("Unit (2) (30 words)", "(")),
              std::tuple(6, 10));
    EXPECT_EQ(std::tuple(InStr("abc", "z"), InStrRev("abc", "z"), InStr("abcabc", "a", 2)),
              std::tuple(0, 0, 4));
    // Replace takes every match, and nothing for an empty pattern.
    EXPECT_EQ(std::tuple(Replace("a-b--c", "-", "+"), Replace("abc", "", "x")),
              std::tuple("a+b++c", "abc"));
}

TEST(Strings, ValAndNumberTexts) {
    EXPECT_EQ(std::tuple(Val("1234   "), Val(" -3.5x"), Val("---"), Val(""), Val(".25")),
              std::tuple(1234, -3.5, 0, 0, 0.25));
    // The texts of numbers.
    EXPECT_EQ(std::tuple(NumText(12), NumText(-3.5), NumText(0.75), NumText(1.01)),
              std::tuple("12", "-3.5", "0.75", "1.01"));
    // Whole numbers up to 15 digits; not a number, or endless: shown as 0.
    EXPECT_EQ(std::tuple(NumText(999999999999999), NumText(1e15), NumText(std::nan("")),
                         NumText(-HUGE_VAL)),
              std::tuple("999999999999999", "1e+15", "0", "0"));
    EXPECT_EQ(std::tuple(StrText(120), StrText(-0.5), StrText(2.5), StrText(0.5)),
              std::tuple(" 120", "-.5", " 2.5", " .5"));
    EXPECT_EQ(std::tuple(CountText(-0.5), CountText(0)), std::tuple("-.5", "0"));
    // CLng rounds a half to the even number.
    EXPECT_EQ(std::tuple(CLng(2.5), CLng(3.5), CLng(0.1234), CLng(1e12)),
              std::tuple(2, 4, 0, 2147483647));
}

// Seconds since midnight with their fraction, against midnight found another way.
TEST(Clock, TimerIsSecondsSinceLocalMidnight) {
    auto secondsSinceMidnight = [] {
        const auto now = std::chrono::system_clock::now();
        const std::time_t t = std::chrono::system_clock::to_time_t(now);
        std::tm midnight{};
        localtime_r(&t, &midnight);
        midnight.tm_hour = midnight.tm_min = midnight.tm_sec = 0;
        midnight.tm_isdst = -1;
        const std::chrono::duration<double> part = now - std::chrono::system_clock::from_time_t(t);
        return std::difftime(t, std::mktime(&midnight)) + part.count();
    };
    SystemClock clock;
    const double before = secondsSinceMidnight();
    const double timer = clock.Timer();
    const double after = secondsSinceMidnight();
    if (before < 5 || after > 86395) GTEST_SKIP() << "too close to midnight";
    EXPECT_GE(timer, before - 0.002);
    EXPECT_LE(timer, after + 0.002);
    // The day's fraction counts whole seconds only.
    EXPECT_NEAR(clock.Now() * 86400, std::floor(after), 1.0);
    FixedClock fixed(0.25);
    SetClock(&fixed);
    EXPECT_EQ(TheClock().Now(), 0.25);
    SetClock(nullptr);
    EXPECT_NEAR(TheClock().Timer(), secondsSinceMidnight(), 0.5);
}
