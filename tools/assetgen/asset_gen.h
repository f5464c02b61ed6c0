// The asset generator: every picture, sound and tune the program loads, drawn or synthesised
// here so the program ships no art of its own. Everything is deterministic: two runs write the
// same bytes.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <vector>

namespace wm::assetgen {

inline constexpr int kButtonWidth = 360;
inline constexpr int kButtonHeight = 270;
inline constexpr int kScreenWidth = 1920;
inline constexpr int kScreenHeight = 1080;

// A finished file: its path relative to the application folder and its bytes.
struct AssetFile {
    QString path;
    QByteArray bytes;
};

// Full-screen backgrounds.
QImage renderTitle();
QImage renderBackdrop();
QImage renderScrambleBack();

// The picture button of game `index` (0-based, catalogue order), 360x270.
QImage renderGameButton(int index);
// The paging buttons, half a game button each way.
QImage renderMoreButton();
QImage renderBackButton();

// The title toolbar's icons, "images/tb-{name}.png", 96x96 with a transparent ground.
const std::vector<QString>& toolbarIconNames();
QImage renderToolbarIcon(const QString& name);

// "sounds/{name}.wav" files, WAV PCM 16-bit mono 22050 Hz.
std::vector<AssetFile> renderSounds();
// "sounds/{name}.mid" files, Standard MIDI format 1.
std::vector<AssetFile> renderTunes();

// Writes everything into `appDir` (creating images/, buttons/, sounds/, movies/, scores/).
// Files in scores/ are never touched. Each file is written atomically. Returns false and sets
// `error` on the first failure.
bool generateAll(const QString& appDir, QString* error);

}  // namespace wm::assetgen
