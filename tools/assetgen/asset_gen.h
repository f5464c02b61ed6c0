// The asset generator: every picture, sound and tune the program loads, drawn here or made from
// the recipes under assets/, so the program ships no art of its own. Everything is deterministic:
// two runs write the same bytes.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>

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

// Renders every file of one group (see assetGroups()) that `assetsDir`/manifest.txt lists:
// pictures and buttons drawn here, "sounds/{name}.wav" (PCM 16-bit mono 22050 Hz) and
// "sounds/{name}.mid" (Standard MIDI format 1) from their recipes, movies and their drawings
// copied. False with a message naming the file (and line) on the first failure.
bool renderGroup(const QString& assetsDir, const QString& group, std::vector<AssetFile>* out,
                 QString* error);

// Writes the given groups (every group when `groups` is empty) into `appDir`, creating images/,
// buttons/, sounds/, movies/ and scores/. Files in scores/ are never touched; a file whose bytes
// are already right is left alone, others are written atomically. False with `error` set on the
// first failure.
bool generate(const QString& assetsDir, const QString& appDir, const QStringList& groups,
              QString* error);
// Every group, from the source tree's assets.
bool generateAll(const QString& appDir, QString* error);

}  // namespace wm::assetgen
