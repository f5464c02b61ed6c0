// Small text helpers with the meanings the rules are written in. Text is Windows-1252 bytes;
// positions are 1-based like the formulas that use them.
#pragma once

#include <string>
#include <string_view>

namespace wm {

// Whole part towards minus infinity: Int(-0.5) is -1.
long long Int(double x);
int Len(std::string_view s);
// Characters from 1-based `start`; `length` < 0 means to the end.
std::string Mid(std::string_view s, int start, int length = -1);
std::string Left(std::string_view s, int length);
std::string Right(std::string_view s, int length);
// Upper and lower case over the Windows-1252 letters, accented ones included.
std::string UCase(std::string_view s);
std::string LCase(std::string_view s);
// A letter of Windows-1252: the two alphabets and the accented letters, the few scattered below
// 0xC0 too; the multiplication and division signs are not letters.
bool IsLetter(char c);
// What a pupil types or shoots in a word: a letter or a digit; spaces and marks are given.
bool IsLetterOrDigit(char c);
// Blanks only, as the list files are compared; tabs and other characters stay.
std::string Trim(std::string_view s);
std::string LTrim(std::string_view s);
std::string RTrim(std::string_view s);
std::string Chr(int code);
// 1-based position of `needle` from `start`, 0 when absent.
int InStr(std::string_view haystack, std::string_view needle, int start = 1);
int InStrRev(std::string_view haystack, std::string_view needle);
// The leading number of a text, 0 when there is none ("12abc" is 12, " -3.5" is -3.5).
double Val(std::string_view s);
// Plain text form of a number: "12", "-3.5", "0.25"; whole numbers print without decimals.
std::string NumText(double x);
// The list chooser's number form: no zero before the point, ".5" and "-.5".
std::string CountText(double x);
// CountText with the leading blank of a positive number, as in "Choose a list: 120 words".
std::string StrText(double x);
// Rounds half to even into 32 bits, as scores do when moved down a table.
long CLng(double x);
std::string Replace(std::string_view s, std::string_view from, std::string_view to);

}  // namespace wm
