// The help pages, written at build time from the catalogue: an index of the games by family,
// a page per game with its how-to text, options and the lists it takes, and the teacher's guide.
#pragma once

#include <QString>
#include <map>
#include <vector>

namespace wm {

struct GameCard;

namespace help {

// The families the index groups the games in, in the order it shows them.
struct Family {
    QString title;
    QString blurb;
    std::vector<const GameCard*> games;
};

// Every offered game under its family. A game the table does not name goes under the last.
std::vector<Family> Families(const std::vector<const GameCard*>& offered);

// A game's page name inside the help folder: "games/word-search.htm".
QString PageName(const QString& game);

// The pages, by file name relative to the help folder. `home` and `teacher` are the pages' own
// words (HTML fragments).
std::map<QString, QString> Pages(const std::vector<const GameCard*>& offered,
                                 const QString& home, const QString& teacher);

// HTML text for plain text: the five characters that matter escaped.
QString Escape(const QString& text);

}  // namespace help
}  // namespace wm
