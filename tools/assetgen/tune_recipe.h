// Background tunes written as text recipes (see assets/tunes/README).
#pragma once

#include <QByteArray>
#include <QString>

namespace wm::assetgen {

// Renders the recipe `text` read from `file` to a Standard MIDI File. False with
// "<file>:<line>: <message>" in `error` on the first mistake.
bool renderTuneRecipe(const QString& text, const QString& file, QByteArray* out, QString* error);

}  // namespace wm::assetgen
