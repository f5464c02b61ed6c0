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

namespace {
const QString kHelp = QStringLiteral(WM_APP_DIR "/wm-help");
// A link or a picture: the file it names, and the anchor after "#".
const QRegularExpression kRef(R"((?:href|src)="([^"#]*)(#([^"]*))?")");

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

class HelpPagesTest : public QObject {
    Q_OBJECT
private slots:
    void everyOfferedGameHasItsPageAndEveryLinkIsFound() {
        int built = 0;
        const QString index = Read(kHelp + "/wmindex.htm");
        QVERIFY(!index.isEmpty());
        for (const GameCard& card : Catalogue()) {
            const QString name = toQ(card.name);
            const QString page = help::PageName(name);
            if (!card.built()) {
                QVERIFY2(!QFile::exists(kHelp + "/" + page) && !index.contains(page),
                         qPrintable(page));
                continue;
            }
            ++built;
            // Its heading, its how-to text and its button picture, and the index links to it.
            const QString html = Read(kHelp + "/" + page);
            const QString button = QUrl::toPercentEncoding(toQ(card.button), "/.-_");
            QVERIFY2(html.contains("<h1>" + name.toHtmlEscaped() + "</h1>") &&
                         html.contains(toQ(card.howTo).toHtmlEscaped()) &&
                         html.contains("src=\"../../" + button + "\"") &&
                         index.contains("href=\"" + page + "\""),
                     qPrintable(page));
            if (card.options.hasDifficulty)
                QVERIFY2(html.contains(QString("from level %1 (easiest) to level %2")
                                           .arg(card.options.min)
                                           .arg(card.options.max)),
                         qPrintable(page));
        }
        QVERIFY(built >= 24);
        QCOMPARE(AllPages().size(), built + 2);  // and the index and the teacher's guide
        QVERIFY(index.contains(QString::number(built) + " games that turn vocabulary lists"));
        const QString teacher = Read(kHelp + "/teacher.htm");
        for (const char* text : {"mapleton", "Teacher Management", "thelists.dat"})
            QVERIFY2(teacher.contains(text), text);
        // Every link and picture is found.
        int checked = 0;
        for (const QString& page : AllPages()) {
            const QString html = Read(page);
            const QDir here = QFileInfo(page).dir();
            for (auto m = kRef.globalMatch(html); m.hasNext();) {
                const auto match = m.next();
                const QString target = match.captured(1);
                QVERIFY2(!target.contains("://"), qPrintable(page + ": " + target));
                const QString decoded = QUrl::fromPercentEncoding(target.toUtf8());
                const QString file = target.isEmpty() ? page : here.absoluteFilePath(decoded);
                QVERIFY2(QFile::exists(file), qPrintable(page + ": " + target));
                if (const QString anchor = match.captured(3); !anchor.isEmpty())
                    QVERIFY2(Read(file).contains("id=\"" + anchor + "\""),
                             qPrintable(page + ": #" + anchor));
                ++checked;
            }
        }
        QVERIFY(checked > 100);
    }
};

QTEST_GUILESS_MAIN(HelpPagesTest)
#include "help_pages_test.moc"
