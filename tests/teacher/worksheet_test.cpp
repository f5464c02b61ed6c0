// Printed worksheets: every kind over the factory lists, read back from the PDF with pdftotext;
// awkward lists (one word, 1000 words, words only); the rules the printed puzzles keep; and the
// road from the manager's button to a saved file.
#include <QFileDialog>
#include <QPrintDialog>
#include <QProcess>

#include "core/strings.h"
#include "teacher/worksheets/print_worksheets.h"
#include "teacher/worksheets/worksheet_paint.h"
#include "teacher_fixture.h"

using namespace wm;
using namespace wm::sheets;
using namespace wm::test;

Q_DECLARE_METATYPE(wm::sheets::Kind)

namespace {

const QString kFailed = "Crossword creation failed. Please try another word list.";
const QString kWordsOnly =
    "The list you have selected contains words only, with no definitions, and cannot be used "
    "for this worksheet. Please choose another kind of worksheet or another list.";

// Every list of the factory file, as the games load them.
std::vector<WordList> FactoryLists() {
    const QString path = QString(WM_SOURCE_DATA_DIR) + "/thelists.new";
    std::vector<WordList> out;
    std::vector<ForeignList> foreign;
    for (const std::string& stored : ListNames(path.toStdString()))
        if (HasPrefix(stored)) foreign.push_back({stored.substr(1, 1), PlainName(stored)});
    for (const std::string& stored : ListNames(path.toStdString())) {
        SharedState s;
        s.CurrentListName = PlainName(stored);
        LoadList(path.toStdString(), s, foreign);
        WordList l{s.CurrentListName, {}, s.WordsOnly != kFalse};
        for (int i = 1; i <= s.WordCount; ++i) l.pairs.emplace_back(s.Words[i], s.Meanings[i]);
        out.push_back(l);
    }
    return out;
}

Options Opt(Kind kind, int size = 12, bool diagonals = true, bool definitionClues = false) {
    Options o;
    std::tie(o.kind, o.size, o.diagonals, o.clueIsDefinition) =
        std::tuple(kind, size, diagonals, definitionClues);
    return o;
}

WordList Made(int n, bool wordsOnly = false) {
    WordList l{"Made", {}, wordsOnly};
    for (int i = 1; i <= n; ++i)
        l.pairs.emplace_back("w" + std::to_string(i) + "x" + std::string(i % 7, 'e'),
                             wordsOnly ? "-----" : "meaning number " + std::to_string(i));
    return l;
}

// The text of each page of a PDF (each ends on a form feed), every run of blanks made one space.
QStringList PdfPages(const QString& pdf) {
    QProcess p;
    p.start("pdftotext", {"-enc", "UTF-8", pdf, "-"});
    p.waitForFinished(30000);
    QStringList pages = QString::fromUtf8(p.readAllStandardOutput()).split('\f');
    pages.removeLast();
    for (QString& page : pages) page = page.simplified();
    return pages;
}

// The letters of the grid where `e` stands, across (1) or down (2).
QString Spelt(const SheetContent& c, const Entry& e) {
    std::string spelt;
    for (int k = 0; k < e.length; ++k)
        spelt += c.at(e.col + (e.direction == 1 ? k : 0), e.row + (e.direction == 2 ? k : 0));
    return toQ(spelt);
}

// Every text of the pages, for looking words up without printing.
QString LaidText(const std::vector<Page>& pages) {
    QString all;
    for (const Page& p : pages)
        for (const Item& it : p.items)
            if (it.type == Item::Text) all += toQ(it.text) + " ";
    return all.simplified();
}

}  // namespace

class WorksheetTest : public QObject {
    Q_OBJECT
    SystemRng rng_;
    QTemporaryDir out_;

    static QString Q(const std::string& s) { return toQ(s).simplified(); }
    // Text without its blanks and hyphens, for texts that may wrap at a hyphen.
    static QString Bare(QString text) { return text.remove(' ').remove('-'); }
    static int KeyPages(const std::vector<Page>& pages) {
        return int(std::count_if(pages.begin(), pages.end(), [](const Page& p) { return p.key; }));
    }

    // The sheet as a PDF, kept in WM_SHOTS for looking at when that names a folder.
    QString Pdf(const std::vector<Page>& pages, const QString& name) {
        const QString shots = qEnvironmentVariable("WM_SHOTS");
        const QString path = (shots.isEmpty() ? out_.path() : shots) + "/" + name + ".pdf";
        const QString error = writePdf(pages, Paper::A4, name, path);
        if (!error.isEmpty()) qWarning() << error;
        return path;
    }
    QString refusal(const WordList& list, const Options& o) {
        return toQ(makeContent(list, o, rng_).refusal);
    }

private slots:
    void initTestCase() {
        ShellFixture fixture;  // the pictures beside the program, for the title ornament
        QVERIFY2(QProcess::execute("pdftotext", {"-v"}) == 0,
                 "pdftotext (poppler-utils) is missing");
    }

    void factoryListsPrintWhole_data() {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<bool>("definitionClues");
        for (int k = 0; k < kKindCount; ++k) {
            const Kind kind = static_cast<Kind>(k);
            QTest::newRow(kindName(kind)) << kind << false;
        }
        QTest::newRow("Word Search, definitions") << Kind::WordSearch << true;
    }
    void factoryListsPrintWhole() {
        QFETCH(Kind, kind);
        QFETCH(bool, definitionClues);
        ShellFixture fixture;
        const std::vector<WordList> lists = FactoryLists();
        QCOMPARE(lists.size(), std::size_t(11));
        for (const WordList& list : lists) {
            const Options o = Opt(kind, 12, true, definitionClues);
            const SheetContent c = makeContent(list, o, rng_);
            const bool needs =
                definitionClues || (kind != Kind::Scramble && kind != Kind::WordSearch);
            if (list.wordsOnly && needs) {
                QVERIFY(c.refusal.starts_with("The list you have selected contains words only"));
                continue;
            }
            QVERIFY2(c.refusal.empty(), c.refusal.c_str());
            const std::vector<Page> pages = layOutPages(c, o, printWidth);
            const QString pdf = Pdf(pages, QString("%1 - %2").arg(kindName(kind), Q(list.name)) +
                                               (definitionClues ? " - clues" : ""));
            const QStringList printed = PdfPages(pdf);
            QCOMPARE(printed.size(), int(pages.size()));
            const int keys = KeyPages(pages);
            QVERIFY(pages.front().items.size() > 10 && !pages.front().key && pages.back().key);
            const int n = static_cast<int>(list.pairs.size());
            const int puzzleWords = kind == Kind::WordSearch  ? 12
                                    : kind == Kind::Crossword ? 10
                                                              : n;
            const int entries = int(c.entries.size());
            QVERIFY(entries <= puzzleWords &&
                    entries >= (kind == Kind::Crossword ? 5 : puzzleWords));
            if (kind == Kind::FlashCards) QCOMPARE(int(pages.size()) - keys, (n + 7) / 8 * 2);
            if (kind == Kind::WordSearch && !definitionClues) QCOMPARE(int(pages.size()), 2);
            const QString sheet = printed.mid(0, printed.size() - keys).join(' ');
            const QString key = printed.mid(printed.size() - keys).join(' ');
            const QString laid = LaidText(pages);
            QVERIFY(sheet.startsWith(Q(list.name) + " " + kindName(kind) + " Name: ") ||
                    kind == Kind::FlashCards);
            QVERIFY(sheet.contains("Page 1 of " + QString::number(pages.size())) &&
                    key.contains(QString(kindName(kind)) + ": Answer Key"));
            int rings = 0;
            for (const Page& p : pages)
                for (const Item& it : p.items) rings += p.key && it.type == Item::Ring;
            QCOMPARE(rings, kind == Kind::WordSearch ? int(c.entries.size()) : 0);
            for (const Entry& e : c.entries) {
                const bool wordShown = kind == Kind::WordSearch
                                           ? !definitionClues
                                           : kind != Kind::Crossword && kind != Kind::Scramble;
                if (wordShown) QVERIFY2(sheet.contains(Q(e.word)), qPrintable(Q(e.word)));
                // pdftotext joins a line that ends on a hyphen to the next ("re-" / "11."):
                // clues are compared without blanks and hyphens, wherever the line broke.
                if (!e.clue.empty() && kind != Kind::Matching &&
                    (kind != Kind::WordSearch || definitionClues)) {
                    QVERIFY2(Bare(sheet).contains(Bare(Q(e.clue))), qPrintable(Q(e.clue)));
                }
                if (kind == Kind::Scramble)  // printed spaced out, to be read one by one
                    QVERIFY(laid.contains(Q(e.shown).split("", Qt::SkipEmptyParts).join(" ")));
                if (kind == Kind::Matching)
                    QVERIFY2(sheet.contains(Q(e.shown)), qPrintable(Q(e.shown)));
                QVERIFY2(key.contains(Q(e.word)), qPrintable(toQ(list.name) + ": " + Q(e.word)));
            }
        }
    }

    // One word, a thousand words, and a list without definitions.
    void awkwardLists_data() {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QString>("oneWord");  // the refusal, or "" and then the pages
        QTest::addColumn<int>("oneWordPages");
        QTest::addColumn<QString>("wordsOnly");
        QTest::newRow("word search") << Kind::WordSearch << "" << 2 << "";
        QTest::newRow("crossword") << Kind::Crossword << kFailed << 0 << kWordsOnly;
        QTest::newRow("scramble") << Kind::Scramble << "" << 2 << "";
        QTest::newRow("matching") << Kind::Matching << "" << 2 << kWordsOnly;
        QTest::newRow("fill in") << Kind::FillIn << "" << 2 << kWordsOnly;
        QTest::newRow("flash cards") << Kind::FlashCards << "" << 3 << kWordsOnly;
    }
    void awkwardLists() {
        QFETCH(Kind, kind);
        const Options o = Opt(kind);
        const SheetContent one = makeContent(Made(1), o, rng_);
        QTEST(toQ(one.refusal), "oneWord");
        QTEST(int(layOutPages(one, o, roughWidth).size()), "oneWordPages");
        QTEST(refusal(Made(30, true), o), "wordsOnly");
        QCOMPARE(refusal(Made(0), o), "The list you have selected has no words.");

        // A thousand words flow onto as many pages as they need, every item on its paper.
        const WordList big = Made(1000);
        const SheetContent c = makeContent(big, o, rng_);
        const std::vector<Page> pages = layOutPages(c, o, printWidth);
        const PageSize paper = pageSize(Paper::A4);
        for (const Page& p : pages) {
            for (const Item& it : p.items) {
                if (it.type == Item::Line) QVERIFY(it.w == 0 || it.h == 0);  // rules run true
                QVERIFY(it.x >= 40 && std::max(it.x, it.x + it.w) <= paper.width - 40 + 0.01);
                QVERIFY(it.y >= 40 && std::max(it.y, it.y + it.h) <= paper.height - 18);
            }
        }
        const QString text = LaidText(pages);
        if (kind != Kind::WordSearch && kind != Kind::Crossword)
            QCOMPARE(int(c.entries.size()), 1000);
        if (kind == Kind::WordSearch) QCOMPARE(int(c.entries.size()), 12);
        for (const Entry& e : c.entries) QVERIFY(text.contains(Q(e.word)));
        if (kind == Kind::FlashCards) QCOMPARE(int(pages.size()) - KeyPages(pages), 250);
        if (kind == Kind::Scramble) {
            const QString pdf = Pdf(pages, "scramble - 1000 words");
            const QStringList printed = PdfPages(pdf);
            QCOMPARE(printed.size(), int(pages.size()));
            const QString key = printed.mid(printed.size() - KeyPages(pages)).join(' ');
            for (std::size_t i = 0; i < c.entries.size(); ++i)
                QVERIFY(key.contains(QString("%1. %2: %3 ")
                                         .arg(i + 1)
                                         .arg(Q(c.entries[i].shown), Q(c.entries[i].word))));
        }
    }

    // The word search key rings each word where the builder hid it; a word too long for the
    // largest grid is refused with the game's message.
    void wordSearchAndCrosswordGrids() {
        WordList l{"Spaced", {{"ice cream", "cold"}, {"Zo\xEB", "a name"}, {"cat", "pet"}}, false};
        const SheetContent c = makeContent(l, Opt(Kind::WordSearch, 5, false), rng_);
        QCOMPARE(c.entries.size(), std::size_t(3));
        for (const Entry& e : c.entries) {
            QVERIFY(e.direction == 1 || e.direction == 2);
            QCOMPARE(Spelt(c, e), toQ(UCase(e.word)).remove(' '));
        }
        // "ICECREAM" needs a grid one longer than itself: 5 grows by twos to 9 at least.
        QVERIFY(c.cols >= 9 && c.cols % 2 == 1);
        QCOMPARE(refusal(Made(3, true), Opt(Kind::WordSearch, 12, true, true)),
                 "The list you have selected contains words only, with no definitions. Choose "
                 "\"Clue is Word (Easy)\" to make a word search from it.");
        QCOMPARE(refusal({"Long", {{std::string(20, 'a'), "x"}}, false}, Opt(Kind::WordSearch, 20)),
                 "Unable to create this puzzle: some words on this list are too long for it. "
                 "Please try another word list.");
        // Crossword numbers run in reading order; every word stands in its cells.
        for (int round = 0; round < 5; ++round) {
            const SheetContent c = makeContent(FactoryLists()[1], Opt(Kind::Crossword), rng_);
            QVERIFY(c.entries.size() >= 5);
            int last = 0;
            for (int i = 0; i < c.cols * c.rows; ++i) {
                if (!c.numbers[i]) continue;
                QCOMPARE(c.numbers[i], last + 1);
                last = c.numbers[i];
            }
            for (const Entry& e : c.entries) {
                QCOMPARE(std::to_string(c.numbers[e.row * c.cols + e.col]), e.label);
                QCOMPARE(Spelt(c, e), toQ(UCase(e.word)).remove(' '));
            }
        }
        // Two pairs that share letters only within each pair: two of the four words fit.
        const SheetContent pairs =
            makeContent({"Pairs", {{"abc", "1"}, {"cbd", "2"}, {"xyz", "3"}, {"zyw", "4"}}, false},
                        Opt(Kind::Crossword), rng_);
        QCOMPARE(pairs.entries.size(), std::size_t(2));
        QCOMPARE(toQ(pairs.note),
                 QString("Only 2 of the 4 words asked for fit in this crossword."));
        QCOMPARE(refusal({"Apart", {{"abc", "1"}, {"xyz", "2"}}, false}, Opt(Kind::Crossword)),
                 kFailed);
    }

    // Matching letters point at the right definitions; scrambles keep their letters and move
    // them; a card's back stands behind its front when the sheet turns over its long edge.
    void shufflesCardsAndWrapping() {
        const WordList l = Made(23);
        const SheetContent m = makeContent(l, Opt(Kind::Matching), rng_);
        // 23 words: sets of 8, 8 and 7.
        QCOMPARE(std::tuple(m.entries[7].set, m.entries[8].set, m.entries.back().set),
                 std::tuple(0, 1, 2));
        for (std::size_t i = 0; i < m.entries.size(); ++i) {
            const Entry& e = m.entries[i];
            std::size_t setStart = i;
            while (setStart > 0 && m.entries[setStart - 1].set == e.set) --setStart;
            QCOMPARE(m.entries[setStart + (e.label[0] - 'A')].shown, l.pairs[i].second);
        }
        // The shuffle's draws, as scripted: Int(Rnd * i + 1) for i = 3, then 2.
        ScriptedRng scripted;
        scripted.pick(1, 3).pick(2, 2);
        QStringList labels;
        for (const Entry& e : makeContent(Made(3), Opt(Kind::Matching), scripted).entries)
            labels << toQ(e.label);
        QCOMPARE(labels, (QStringList{"C", "B", "A"}));
        const SheetContent s = makeContent({"S", {{"table", ""}, {"aa", ""}, {"b", ""}}, false},
                                           Opt(Kind::Scramble), rng_);
        QVERIFY(s.entries[0].shown != "TABLE");
        std::string letters = s.entries[0].shown;
        std::sort(letters.begin(), letters.end());
        QCOMPARE(std::tuple(letters, s.entries[1].shown), std::tuple("ABELT", "AA"));

        const Options cards = Opt(Kind::FlashCards);
        const std::vector<Page> pages =
            layOutPages(makeContent(Made(5), cards, rng_), cards, roughWidth);
        auto numberAt = [](const Page& p, const std::string& n) {
            for (const Item& it : p.items)
                if (it.type == Item::Text && it.text == n && it.font.size == 8) return it;
            return Item{};
        };
        const double width = pageSize(Paper::A4).width;
        for (const char* n : {"1", "2", "5"}) {
            const Item front = numberAt(pages[0], n), back = numberAt(pages[1], n);
            QVERIFY(front.x > 0 && back.x > 0);
            QCOMPARE(front.y, back.y);
            // Two cards across between margins of 42 points: the columns swap.
            QCOMPARE(front.x + back.x, 2 * (42 + 8) + (width - 84) / 2);
            QCOMPARE(front.x<width / 2, back.x> width / 2);
        }
        // Wrapping.
        const Font f{10};
        auto wrap = [&](const std::string& s, double w) {
            QStringList out;
            for (const auto& l : wrapText(s, f, w, roughWidth)) out << toQ(l);
            return out;
        };
        QCOMPARE(wrap("", 100), QStringList{""});
        QCOMPARE(wrap("ab cd", 28.01), QStringList{"ab cd"});  // fits exactly
        QCOMPARE(wrap("ab cd", 27.99), (QStringList{"ab", "cd"}));
        QCOMPARE(wrap("abcdefg  hi", 17), (QStringList{"abc", "def", "g", "hi"}));
    }

    // The manager's button opens the box on the chooser's lists; a refusal is said before any
    // file is asked for; Save as PDF writes the previewed pages.
    void managerRoad() {
        TeacherFixture f({"Animals", "cat", "a pet", "dog", "a loyal pet", "<New List>", "Spelling",
                          "rhythm", "-----", "because", "-----"});
        SystemRng rng;
        SetRng(&rng);
        const QString saved = f.path("out/Animals.pdf");
        QDir().mkpath(f.path("out"));
        f.then<PrintWorksheets>([&](PrintWorksheets& box) {
            QCOMPARE(box.lists()->count(), 2);
            QCOMPARE(
                std::tuple(box.lists()->item(0)->text(), box.lists()->item(1)->text(),
                           box.title()->text()),
                std::tuple("Animals (2 words)", "Spelling (2 words- no definitions)", "Animals"));
            QCOMPARE(box.status(), QString("1 page for the pupil, 1 of answers."));
            box.resize(1200, 760);
            box.title()->setText("Our Pets");
            emit box.title()->textEdited("Our Pets");
            box.kind()->setCurrentIndex(int(Kind::Matching));
            box.lists()->setCurrentRow(1);
            QCOMPARE(box.title()->text(), QString("Our Pets"));  // typed titles stay
            QCOMPARE(box.status(), kWordsOnly);
            box.savePdf();
            QCOMPARE(f.dialogs.last(), kWordsOnly);
            box.lists()->setCurrentRow(0);
            box.answerKey()->setChecked(false);
            QCOMPARE(box.status(), QString("1 page for the pupil."));
            f.then<QFileDialog>([&](QFileDialog& save) {
                QCOMPARE(QFileInfo(save.selectedFiles().value(0)).fileName(),
                         "Our Pets - Matching.pdf");
                save.selectFile(saved);
                static_cast<QDialog&>(save).accept();
            });
            box.savePdf();
            f.then<QPrintDialog>([](QPrintDialog& print) { print.reject(); });
            box.print();
            box.reject();
        });
        Manager manager;
        manager.resize(1280, 800);
        manager.show();
        QVERIFY(manager.command("Print Worksheets..."));
        QCOMPARE(f.opened, (QStringList{"PrintWorksheets", "SaveAs", "PrintDialog"}));
        const QStringList pages = PdfPages(saved);
        const QString text = pages.size() == 1 ? pages[0] : "not one page";
        QVERIFY2(text.startsWith("Our Pets Matching Name: ______ Date: ______"), qPrintable(text));
        for (const char* s : {"1. cat", "2. dog", "a pet", "a loyal pet", "Page 1 of 1"})
            QVERIFY(text.contains(s));
        SetRng(nullptr);
    }
};

QTEST_MAIN(WorksheetTest)
#include "worksheet_test.moc"
