#include "core/settings_file.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "core/line_file.h"
#include "core/shared_state.h"
#include "core/strings.h"

namespace wm {

void FirstRunRenames(const std::string& appPath) {
    const std::string live = JoinPath(appPath, kSettingsName);
    const std::string factory = JoinPath(appPath, kSettingsFactoryName);
    if (!FileExists(live)) {
        if (!FileExists(factory)) {
            throw FileError(live, "The settings file " + std::string(kSettingsName) +
                                      " (or its factory copy " + kSettingsFactoryName +
                                      ") cannot be found in the folder " + appPath + ".");
        }
        RenameFile(factory, live);
    }
    const std::string lists = JoinPath(appPath, kListFileName);
    const std::string listsFactory = JoinPath(appPath, kListFactoryName);
    // The program starts without the list file: the title names the file when it cannot read
    // it. So a rename that cannot be done (a folder standing at the name, a read-only folder)
    // leaves both names as they are and is not fatal.
    std::error_code ec;
    if (std::filesystem::exists(lists, ec) || ec) return;
    try {
        RenameFile(listsFactory, lists);
    } catch (const FileError&) {
    }
}

bool Settings::soundOn() const {
    return lines.size() > kSoundLine && lines[kSoundLine] == "Sound On";
}

std::string Settings::password() const {
    return lines.size() > kPasswordLine ? lines[kPasswordLine] : std::string();
}

bool Settings::speechOn() const {
    return lines.size() <= kSpeechLine || lines[kSpeechLine] != "Speech Off";
}

int Settings::speechRate() const {
    if (lines.size() <= kSpeechRateLine) return 0;
    const std::string text = Trim(lines[kSpeechRateLine]);
    int rate = 0;
    std::size_t used = 0;
    try {
        rate = std::stoi(text, &used);
    } catch (const std::exception&) {
        return 0;
    }
    if (used != text.size()) return 0;
    return std::clamp(rate, kMinSpeechRate, kMaxSpeechRate);
}

Settings ReadSettings(const std::string& appPath) {
    const std::string path = JoinPath(appPath, kSettingsName);
    Settings s;
    s.lines = ReadLines(path);
    if (s.lines.size() < 6) {
        throw FileError(path, "The settings file " + path +
                                  " is too short: it needs six lines. Delete it to go back to "
                                  "the factory settings.");
    }
    return s;
}

std::string ResolvePath(const std::string& line, const std::string& literal,
                        const std::string& appPath, const std::string& fileName) {
    if (LCase(Trim(line)) == literal) return JoinPath(appPath, fileName);
    return line;
}

void ApplySettings(const Settings& settings, const std::string& appPath, SharedState& state) {
    state.SoundDefault = settings.soundOn() ? kTrue : kFalse;
    state.ListFilePath =
        ResolvePath(settings.lines[kListPathLine], "listpath", appPath, kListFileName);
    state.FolderFilePath =
        ResolvePath(settings.lines[kFolderPathLine], "folderpath", appPath, kFolderFileName);
    state.SpeechOn = settings.speechOn() ? kTrue : kFalse;
    state.SpeechRate = settings.speechRate();
}

namespace {
void RewriteLines(const std::string& appPath,
                  const std::vector<std::pair<int, std::string>>& changes) {
    const std::string path = JoinPath(appPath, kSettingsName);
    std::vector<std::string> lines = ReadLines(path);
    for (const auto& [line, text] : changes) {
        if (line < 0) return;
        if (static_cast<std::size_t>(line) >= lines.size()) lines.resize(line + 1);
        lines[line] = text;
    }
    WriteLinesAtomic(path, lines);
}
}  // namespace

void RewriteSettingsLine(const std::string& appPath, int line, const std::string& text) {
    RewriteLines(appPath, {{line, text}});
}

void WriteSpeechSettings(const std::string& appPath, bool on, int rate) {
    rate = std::clamp(rate, kMinSpeechRate, kMaxSpeechRate);
    RewriteLines(appPath, {{kSpeechLine, on ? "Speech On" : "Speech Off"},
                           {kSpeechRateLine, std::to_string(rate)}});
}

}  // namespace wm
