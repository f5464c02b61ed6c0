// The settings file wmdata.dat: six positional lines, kept whole on every rewrite.
#pragma once

#include <string>
#include <vector>

namespace wm {

struct SharedState;

inline constexpr const char* kSettingsName = "wmdata.dat";
inline constexpr const char* kSettingsFactoryName = "wmdata.new";
inline constexpr const char* kListFileName = "thelists.dat";
inline constexpr const char* kListFactoryName = "thelists.new";
inline constexpr const char* kListBackupName = "thelists.bak";
inline constexpr const char* kFolderFileName = "folders.dat";

enum SettingsLine {
    kReserved0 = 0,
    kReserved1 = 1,
    kSoundLine = 2,
    kPasswordLine = 3,
    kListPathLine = 4,
    kFolderPathLine = 5,
    // Our own lines behind the six: every writer keeps them, and an older file without them
    // reads as speech on at the normal rate.
    kSpeechLine = 6,     // "Speech On" or "Speech Off"
    kSpeechRateLine = 7  // a whole number from -10 (slow) to 10 (fast); 0 is normal
};

inline constexpr int kMinSpeechRate = -10;
inline constexpr int kMaxSpeechRate = 10;

// First run: the delivered .new files take the live names when those are missing.
// A live file is never overwritten. Throws FileError naming the folder when neither
// wmdata.dat nor wmdata.new is there.
void FirstRunRenames(const std::string& appPath);

struct Settings {
    std::vector<std::string> lines;  // at least six
    bool soundOn() const;            // exactly "Sound On"
    std::string password() const;
    bool speechOn() const;   // off only when line 6 reads exactly "Speech Off"
    int speechRate() const;  // 0 when missing or not a number; held to -10..10
};

// Reads lines 0 to 5 (and any behind them). Throws FileError when the file is missing or
// shorter than six lines.
Settings ReadSettings(const std::string& appPath);
// Sets SoundDefault, ListFilePath, FolderFilePath, SpeechOn and SpeechRate from the settings.
void ApplySettings(const Settings& settings, const std::string& appPath, SharedState& state);
// "listpath" (any case, blanks around it) means the file in the application folder.
std::string ResolvePath(const std::string& line, const std::string& literal,
                        const std::string& appPath, const std::string& fileName);
// Replaces one line by position and rewrites the whole file; lines past 5 are kept.
void RewriteSettingsLine(const std::string& appPath, int line, const std::string& text);
// The speech lines, both in one rewrite; a file shorter than that is padded with blank lines.
void WriteSpeechSettings(const std::string& appPath, bool on, int rate);

}  // namespace wm
