// The one block of process-wide variables that carries a pupil's road through the program.
// Screens read and write it; nothing else is global. Text is Windows-1252 bytes.
#pragma once

#include <string>
#include <vector>

namespace wm {

inline constexpr int kTrue = -1;  // flags are integers: true = -1, false = 0
inline constexpr int kFalse = 0;
inline constexpr int kMaxWords = 1000;

struct ScoreTable;

struct SharedState {
    SharedState();

    // Our own: the folder of the files the program reads and writes (settings, lists,
    // categories, display file, scores): beside the program in a build, the shared data folder
    // once installed.
    std::string AppPath;

    std::vector<std::string> GameNames;  // 1-based, room for 200
    int GameCount = 0;
    std::vector<std::string> VisibleGames;  // 1-based, room for 200
    int VisibleGameCount = 0;

    std::string CurrentGame;
    std::string CurrentListName;

    // 1-based; one spare entry past 1000, since a list over the limit leaves WordCount at 1001.
    std::vector<std::string> Words;
    std::vector<std::string> Meanings;
    short WordCount = 0;
    int WordsOnly = kFalse;

    std::string TheWord;
    std::string TheMeaning;

    int Difficulty = 0;
    short MaxDifficulty = 0;
    int GameOptionOn = kFalse;
    int SoundOn = kFalse;
    int SoundDefault = kFalse;
    std::string HowToText;
    int BgmOpen = kFalse;
    double Score = 0;
    short ElapsedSeconds = 0;
    std::string LastInitials;
    short PlacedRank = 0;
    short ScoreViewIndex = 0;

    std::string ListFilePath;
    std::string FolderFilePath;
    std::string ListLanguage;
    std::string NewListName;
    std::string LastListChoice;
    std::string LastCategoryChoice;
    std::string ForeignChar;

    short WordIndex = 0;
    short GameSpeed = 0;
    short PuzzleWordCount = 0;
    short QuizType = 0;
    short QuizLength = 0;
    short FlashCardMode = 0;
    std::string StartLetter;  // flash cards from a letter: one character
    int ListChanged = kFalse;
    int SoundResult = 0;

    // Our own: the teacher's speech setting (lines 6 and 7 of the settings file), and the
    // language of each column of the loaded list, a code of flcodelist.dat ("" is English).
    int SpeechOn = kTrue;
    int SpeechRate = 0;  // -10 slow .. 10 fast
    std::string WordsLanguage;
    std::string MeaningsLanguage;

    // Our own: the folder of the pictures, sounds, movies, buttons and help; AppPath when empty.
    std::string AssetPath;
};

// The single instance every screen sees. Tests reset it with `Shared() = SharedState{}`.
SharedState& Shared();

}  // namespace wm
