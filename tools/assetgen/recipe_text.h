// The small line-based text that sound and tune recipes are written in: one statement a line,
// a word then `key=value` pairs, '#' to the end of a line is a comment. Errors name the file
// and line so a person editing a recipe finds the mistake without reading generator code.
#pragma once

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace wm::assetgen {

struct RecipeLine {
    int number = 0;                                 // 1-based line in the file
    QString word;                                   // the statement's first word
    QStringList args;                               // bare words after it, in order
    std::vector<std::pair<QString, QString>> keys;  // key=value pairs, in order
    QString rest;                                   // everything after the first word, trimmed
};

// Splits `text` into statements, dropping blank lines and comments.
std::vector<RecipeLine> splitRecipe(const QString& text);

// Reads a whole recipe file; false with "cannot read <file>" in `error`.
bool readRecipeFile(const QString& path, QString* text, QString* error);

// "<file>:<line>: <message>", the one form every recipe error takes.
QString recipeError(const QString& file, int line, const QString& message);

// A pitch name such as "C4", "F#5" or "Bb3" (C4 = 60); -1 when it is not one.
int pitchNumber(const QString& name);

}  // namespace wm::assetgen
