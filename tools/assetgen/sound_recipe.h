// Sound effects written as text recipes over the synthesiser (see assets/sounds/README).
#pragma once

#include <QString>

#include <cstdint>
#include <vector>

namespace wm::assetgen {

// Renders the recipe `text` read from `file` to 16-bit samples. False with
// "<file>:<line>: <message>" in `error` on the first mistake.
bool renderSoundRecipe(const QString& text, const QString& file, std::vector<std::int16_t>* out,
                       QString* error);

}  // namespace wm::assetgen
