#include "help_pages.h"

#include <QStringList>
#include <QUrl>
#include <algorithm>

#include "platform/text.h"
#include "shell/catalogue.h"

namespace wm::help {

namespace {

struct FamilyRow {
    const char* title;
    const char* blurb;
    std::vector<const char*> games;
};

// Where each game of the catalogue belongs on the index.
const std::vector<FamilyRow>& FamilyTable() {
    static const std::vector<FamilyRow> table{
        {"Study", "Quiet ways to learn a list: questions, cards and scrambled words.",
         {"Quiz", "Flash Cards", "Scramble"}},
        {"Puzzles", "Find, cross and build the words at your own pace.",
         {"Word Search", "Crossword", "Blind Tiles", "Word Maze", "Code Breaker", "Word Bricks",
          "Safe Cracker", "Concentration"}},
        {"Guess the word", "Work the word out letter by letter before time or tries run out.",
         {"HangMan", "Bug Spray", "Speed Type", "Flying Cow", "Freeze-It", "Toad Race",
          "Jailbreak", "Princess"}},
        {"Show and board games", "Spin, play and answer against the computer.",
         {"Wheel of Money", "Tic-Tac-Toe", "Pachinko", "Bomb Squad", "Bomb Squad 2",
          "Short Circuit", "Spell Crush", "Slot Machine"}},
        {"Action games", "Quick hands and quick thinking: aim, steer and catch the right word.",
         {"Crunch Man", "Froggy", "Asteroid Zap", "Word Zap", "Mini Golf", "Basketball",
          "Letter Drop", "Cannon Shot", "Slingshot", "Letter Toss", "Bridge Out", "BreakThru",
          "Hang Glider", "Tower Assault", "Spiderwebs"}},
    };
    return table;
}

QString Q(const std::string& s) {
    return toQ(s);
}

QString Head(const QString& title, const QString& css) {
    return QStringLiteral(
               "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
               "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
               "<title>%1</title>\n<link rel=\"stylesheet\" href=\"%2\">\n</head>\n<body>\n")
        .arg(Escape(title), css);
}

QString Banner(const QString& heading, const QString& line, bool big) {
    QString tiles;
    for (QChar c : QStringLiteral("WORDMERE")) tiles += QStringLiteral("<span>%1</span>").arg(c);
    return QStringLiteral(
               "<header class=\"banner%4\">\n<div class=\"tiles\" aria-hidden=\"true\">%1</div>\n"
               "<h1>%2</h1>\n<p>%3</p>\n</header>\n")
        .arg(tiles, Escape(heading), line, big ? QString() : QStringLiteral(" small"));
}

QString Footer(const QString& root) {
    return QStringLiteral(
               "<footer>\nWordmere 1.01 &middot; <a href=\"%1wmindex.htm\">All games</a> &middot; "
               "<a href=\"%1teacher.htm\">For teachers</a>\n</footer>\n</body>\n</html>\n")
        .arg(root);
}

QString Slug(const QString& name) {
    QString slug;
    for (QChar c : name.toLower()) {
        if (c.isLetterOrNumber())
            slug += c;
        else if (!slug.endsWith('-'))
            slug += '-';
    }
    while (slug.endsWith('-')) slug.chop(1);
    return slug;
}

// From a page `root` deep in the help folder to the game's button, beside the help folder.
QString ButtonPath(const GameCard& card, const QString& root) {
    return root + QStringLiteral("../") +
           QString::fromLatin1(QUrl::toPercentEncoding(Q(card.button), "/.-_"));
}

QString LevelText(const OptionsRow& o) {
    if (!o.hasDifficulty) return QStringLiteral("This game has no level to set.");
    QString text = QStringLiteral("Move the slider from level %1 (easiest) to level %2 (hardest). "
                                  "It starts at %3.")
                       .arg(o.min)
                       .arg(o.max)
                       .arg(o.start);
    if (o.clamped)
        text += QStringLiteral(" The level can never be more than the number of words in the list.");
    return text;
}

QString OptionText(const OptionsRow& o) {
    if (o.frame == OptionFrame::Hidden) return {};
    QString text = QStringLiteral("&ldquo;%1&rdquo; &mdash; choose &ldquo;%2&rdquo; or "
                                  "&ldquo;%3&rdquo;.")
                       .arg(Escape(Q(o.frameCaption)), Escape(Q(o.option2)),
                            Escape(Q(o.option1)));
    if (o.frame == OptionFrame::ShownUnlessWordsOnly)
        text += QStringLiteral(" (Not asked for a list of words only.)");
    return text;
}

QString ListText(const GameCard& card) {
    const EligibilityRow& e = card.eligibility;
    QStringList lines;
    switch (e.wordsOnly) {
        case WordsOnlyRule::Allowed:
            lines << QStringLiteral("Plays with any list, also a spelling list of words only.");
            break;
        case WordsOnlyRule::Refuse:
            lines << QStringLiteral("Needs a list with meanings: a list of words only cannot be "
                                    "used.");
            break;
        case WordsOnlyRule::RefuseIfOption:
            lines << QStringLiteral("Needs a list with meanings while the meaning option is on.");
            break;
        case WordsOnlyRule::Warn:
        case WordsOnlyRule::WarnIfOption:
            lines << QStringLiteral("A list of words only plays without the meanings.");
            break;
    }
    switch (e.count) {
        case CountRule::None:
            break;
        case CountRule::Below:
            lines << QStringLiteral("Needs a list of at least %1 words.").arg(e.minWords);
            break;
        case CountRule::BelowDifficulty:
            lines << QStringLiteral("Needs at least as many words in the list as the level.");
            break;
    }
    if (card.firstScreen == "ChooseList")
        lines << QStringLiteral("You choose the list first, and the options after it.");
    QString html = QStringLiteral("<ul>\n");
    for (const QString& l : lines) html += QStringLiteral("<li>%1</li>\n").arg(Escape(l));
    return html + QStringLiteral("</ul>\n");
}

QString GamePage(const GameCard& card, const GameCard* before, const GameCard* after,
                 const QString& family) {
    const QString name = Q(card.name);
    QString html = Head(name + QStringLiteral(" - Wordmere Help"), QStringLiteral("../wmhelp.css"));
    html += Banner(name, Escape(family), false);
    html += QStringLiteral("<nav class=\"trail\"><a href=\"../wmindex.htm\">All games</a> "
                           "&rsaquo; <span>%1</span></nav>\n<main class=\"game\">\n")
                .arg(Escape(name));
    html += QStringLiteral("<section>\n<figure class=\"button-picture\"><img src=\"%1\" "
                           "alt=\"The %2 button\" width=\"220\" height=\"165\"></figure>\n"
                           "<h2>How to play</h2>\n<p class=\"howto\">%3</p>\n</section>\n")
                .arg(ButtonPath(card, QStringLiteral("../")).toHtmlEscaped(), Escape(name),
                     Escape(Q(card.howTo)));
    html += QStringLiteral("<section>\n<h2>Options</h2>\n<p>%1</p>\n").arg(LevelText(card.options));
    if (const QString option = OptionText(card.options); !option.isEmpty())
        html += QStringLiteral("<p>%1</p>\n").arg(option);
    html += QStringLiteral("<p>You can turn the sound on or off.</p>\n</section>\n");
    html += QStringLiteral("<section>\n<h2>Which lists it plays</h2>\n%1</section>\n")
                .arg(ListText(card));
    html += QStringLiteral("<nav class=\"turn\">");
    if (before)
        html += QStringLiteral("<a class=\"prev\" href=\"%1\">&lsaquo; %2</a>")
                    .arg(PageName(Q(before->name)).mid(6), Escape(Q(before->name)));
    if (after)
        html += QStringLiteral("<a class=\"next\" href=\"%1\">%2 &rsaquo;</a>")
                    .arg(PageName(Q(after->name)).mid(6), Escape(Q(after->name)));
    html += QStringLiteral("</nav>\n</main>\n");
    return html + Footer(QStringLiteral("../"));
}

QString IndexPage(const std::vector<Family>& families, const QString& home, int gameCount) {
    QString html = Head(QStringLiteral("Wordmere Help"), QStringLiteral("wmhelp.css"));
    html += Banner(QStringLiteral("Welcome to Wordmere"),
                   QStringLiteral("%1 games that turn vocabulary lists into play.").arg(gameCount),
                   true);
    html += QStringLiteral(
        "<nav class=\"contents\">\n<a href=\"#games\">The games</a>\n<a href=\"#about\">What it "
        "is</a>\n<a href=\"#play\">Playing a game</a>\n<a href=\"#scores\">High scores</a>\n"
        "<a href=\"teacher.htm\">For teachers</a>\n</nav>\n<main>\n");
    html += QStringLiteral("<section id=\"games\">\n<h2>The games</h2>\n");
    for (const Family& f : families) {
        if (f.games.empty()) continue;
        html += QStringLiteral("<h3>%1</h3>\n<p class=\"blurb\">%2</p>\n<ul class=\"game-grid\">\n")
                    .arg(Escape(f.title), Escape(f.blurb));
        for (const GameCard* card : f.games) {
            const QString name = Q(card->name);
            html += QStringLiteral("<li><a href=\"%1\"><img src=\"%2\" alt=\"\" width=\"160\" "
                                   "height=\"120\"><span>%3</span></a></li>\n")
                        .arg(PageName(name).toHtmlEscaped(),
                             ButtonPath(*card, {}).toHtmlEscaped(), Escape(name));
        }
        html += QStringLiteral("</ul>\n");
    }
    html += QStringLiteral("</section>\n\n") + home + QStringLiteral("</main>\n");
    return html + Footer({});
}

QString TeacherPage(const QString& teacher) {
    QString html = Head(QStringLiteral("For teachers - Wordmere Help"), QStringLiteral("wmhelp.css"));
    html += Banner(QStringLiteral("For teachers"),
                   QStringLiteral("Lists, passwords, shared folders and a fresh start."), false);
    html += QStringLiteral(
        "<nav class=\"contents\">\n<a href=\"wmindex.htm\">All games</a>\n<a href=\"#teachers\">"
        "Teacher Management</a>\n<a href=\"#files\">Where files live</a>\n<a href=\"#reset\">"
        "Factory reset</a>\n</nav>\n<main>\n");
    html += teacher + QStringLiteral("</main>\n");
    return html + Footer({});
}

}  // namespace

QString Escape(const QString& text) {
    return text.toHtmlEscaped();
}

QString PageName(const QString& game) {
    return QStringLiteral("games/") + Slug(game) + QStringLiteral(".htm");
}

std::vector<Family> Families(const std::vector<const GameCard*>& offered) {
    std::vector<Family> families;
    for (const FamilyRow& row : FamilyTable())
        families.push_back({QString::fromUtf8(row.title), QString::fromUtf8(row.blurb), {}});
    for (const GameCard* card : offered) {
        std::size_t at = families.size() - 1;
        for (std::size_t f = 0; f < FamilyTable().size(); ++f) {
            const auto& names = FamilyTable()[f].games;
            if (std::find(names.begin(), names.end(), card->name) != names.end()) at = f;
        }
        families[at].games.push_back(card);
    }
    // Alphabetical inside a family, as a child looks for a name.
    for (Family& f : families)
        std::sort(f.games.begin(), f.games.end(), [](const GameCard* a, const GameCard* b) {
            return Q(a->name).compare(Q(b->name), Qt::CaseInsensitive) < 0;
        });
    return families;
}

std::map<QString, QString> Pages(const std::vector<const GameCard*>& offered, const QString& home,
                                 const QString& teacher) {
    std::map<QString, QString> pages;
    const std::vector<Family> families = Families(offered);
    std::vector<std::pair<const GameCard*, QString>> order;
    for (const Family& f : families)
        for (const GameCard* card : f.games) order.push_back({card, f.title});
    for (std::size_t i = 0; i < order.size(); ++i) {
        const GameCard* before = i > 0 ? order[i - 1].first : nullptr;
        const GameCard* after = i + 1 < order.size() ? order[i + 1].first : nullptr;
        pages[PageName(Q(order[i].first->name))] =
            GamePage(*order[i].first, before, after, order[i].second);
    }
    pages[QStringLiteral("wmindex.htm")] = IndexPage(families, home, int(offered.size()));
    pages[QStringLiteral("teacher.htm")] = TeacherPage(teacher);
    return pages;
}

}  // namespace wm::help
