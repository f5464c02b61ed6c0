// The help as the build wrote it: a page for every game this build offers and none for the
// others, each with its own how-to text and button picture, every link and picture found, the
// tags closed, and the teacher's guide.
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

#include "help_pages.h"
#include "platform/text.h"
#include "shell/catalogue.h"

using namespace wm;

class HelpPagesTest : public QObject {
    Q_OBJECT
private slots:
    void everyOfferedGameHasItsPageAndNoOtherDoes();
    void everyLinkAndPictureIsFound();
    void tagsAreClosed();
    void familiesPlaceEveryCatalogueGame();
};

namespace {
const QString kHelp = QStringLiteral(WM_APP_DIR "/wm-help");

QString Read(const QString& path) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(f.readAll());
}

QStringList AllPages() {
    QStringList pages;
    QDirIterator it(kHelp, {"*.htm"}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) pages << it.next();
    pages.sort();
    return pages;
}
}  // namespace

void HelpPagesTest::everyOfferedGameHasItsPageAndNoOtherDoes() {
    int built = 0;
    const QString index = Read(kHelp + "/wmindex.htm");
    QVERIFY(!index.isEmpty());
    for (const GameCard& card : Catalogue()) {
        const QString name = toQ(card.name);
        const QString page = help::PageName(name);
        if (!card.built()) {
            QVERIFY2(!QFile::exists(kHelp + "/" + page), qPrintable(page));
            QVERIFY2(!index.contains(page), qPrintable(page));
            continue;
        }
        ++built;
        const QString html = Read(kHelp + "/" + page);
        QVERIFY2(!html.isEmpty(), qPrintable(page));
        QVERIFY2(html.contains("<h1>" + name.toHtmlEscaped() + "</h1>"), qPrintable(page));
        QVERIFY2(html.contains(toQ(card.howTo).toHtmlEscaped()), qPrintable(page));
        const QString button = QUrl::toPercentEncoding(toQ(card.button), "/.-_");
        QVERIFY2(html.contains("src=\"../../" + button + "\""), qPrintable(page));
        QVERIFY2(index.contains("href=\"" + page + "\""), qPrintable(page));
        if (card.options.hasDifficulty)
            QVERIFY2(html.contains(QStringLiteral("from level %1 (easiest) to level %2")
                                       .arg(card.options.min)
                                       .arg(card.options.max)),
                     qPrintable(page));
    }
    QVERIFY(built >= 24);
    QCOMPARE(AllPages().size(), built + 2);  // and the index and the teacher's guide
    QVERIFY(index.contains(QString::number(built) + " games that turn vocabulary lists"));
    const QString teacher = Read(kHelp + "/teacher.htm");
    QVERIFY(teacher.contains("mapleton"));
    QVERIFY(teacher.contains("Teacher Management"));
    QVERIFY(teacher.contains("thelists.dat"));
}

void HelpPagesTest::everyLinkAndPictureIsFound() {
    static const QRegularExpression ref(R"((?:href|src)="([^"#]*)(#([^"]*))?")");
    int checked = 0;
    for (const QString& page : AllPages()) {
        const QString html = Read(page);
        const QDir here = QFileInfo(page).dir();
        for (auto m = ref.globalMatch(html); m.hasNext();) {
            const auto match = m.next();
            const QString target = match.captured(1);
            QVERIFY2(!target.contains("://"), qPrintable(page + ": " + target));
            const QString file =
                target.isEmpty() ? page : here.absoluteFilePath(QUrl::fromPercentEncoding(target.toUtf8()));
            QVERIFY2(QFile::exists(file), qPrintable(page + ": " + target));
            if (const QString anchor = match.captured(3); !anchor.isEmpty())
                QVERIFY2(Read(file).contains("id=\"" + anchor + "\""),
                         qPrintable(page + ": #" + anchor));
            ++checked;
        }
    }
    QVERIFY(checked > 100);
}

void HelpPagesTest::tagsAreClosed() {
    static const QRegularExpression tag(R"(<(/?)([a-zA-Z][a-zA-Z0-9]*)[^>]*>)");
    static const QStringList empty{"meta", "link", "img", "br", "hr", "input"};
    for (const QString& page : AllPages()) {
        QString html = Read(page);
        html.remove(QRegularExpression("<!--.*?-->", QRegularExpression::DotMatchesEverythingOption));
        QStringList open;
        for (auto m = tag.globalMatch(html); m.hasNext();) {
            const auto t = m.next();
            const QString name = t.captured(2).toLower();
            if (empty.contains(name)) continue;
            if (t.captured(1).isEmpty()) {
                open << name;
                continue;
            }
            QVERIFY2(!open.isEmpty() && open.last() == name,
                     qPrintable(page + ": </" + name + "> closes " + open.value(open.size() - 1)));
            open.removeLast();
        }
        QVERIFY2(open.isEmpty(), qPrintable(page + ": left open " + open.join(",")));
        QVERIFY(html.startsWith("<!DOCTYPE html>"));
        QVERIFY(html.contains("name=\"viewport\""));
    }
}

void HelpPagesTest::familiesPlaceEveryCatalogueGame() {
    std::vector<const GameCard*> all;
    for (const GameCard& card : Catalogue()) all.push_back(&card);
    const auto families = help::Families(all);
    QCOMPARE(int(families.size()), 5);
    QStringList titles;
    std::size_t placed = 0;
    for (const auto& f : families) {
        titles << f.title;
        placed += f.games.size();
    }
    QCOMPARE(titles, (QStringList{"Study", "Puzzles", "Guess the word", "Show and board games",
                                  "Action games"}));
    QCOMPARE(placed, std::size_t(42));
    // Each family holds what it says, alphabetically: a few fixed points.
    QCOMPARE(toQ(families[0].games.front()->name), "Flash Cards");
    QCOMPARE(toQ(families[4].games.front()->name), "Asteroid Zap");
    QCOMPARE(int(families[4].games.size()), 15);
    QCOMPARE(help::PageName("Bomb Squad 2"), "games/bomb-squad-2.htm");
    QCOMPARE(help::PageName("Tic-Tac-Toe"), "games/tic-tac-toe.htm");
}

QTEST_GUILESS_MAIN(HelpPagesTest)
#include "help_pages_test.moc"
