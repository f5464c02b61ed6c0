// Lists from other programs' files and back: the corpus of real-world shapes is read exactly,
// every bad file is refused with a message and leaves the list file byte-identical, and an
// exported list reads back as it was.
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTableWidget>
#include <QtTest>

#include "teacher/list_exchange.h"
#include "teacher/manager.h"
#include "teacher_fixture.h"

using namespace wm;
using namespace wm::test;

namespace {

QString Corpus(const QString& name) {
    return QString(WM_TEST_DATA_DIR) + "/import/" + name;
}

QList<TextPair> Pairs(std::initializer_list<TextPair> list) {
    return QList<TextPair>(list);
}

}  // namespace

class TeacherImportTest : public QObject {
    Q_OBJECT
private slots:
    void corpusReadsExactly_data();
    void corpusReadsExactly();
    void csvQuotesAcrossLines();
    void badFilesChangeNothing_data();
    void badFilesChangeNothing();
    void importAppendsThroughTheManager();
    void importNameChecksAndWordsOnly();
    void exportRoundTrips();
};

void TeacherImportTest::corpusReadsExactly_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QList<TextPair>>("pairs");
    QTest::addColumn<QString>("title");
    QTest::newRow("csv with BOM, header and quotes") << "quoted.csv"
                                                     << "CSV"
                                                     << Pairs({{"cat", "a small pet, often furry"},
                                                               {"say \"hi\"", "to greet"},
                                                               {"naïve", "trusting, simple"},
                                                               {"café", "a small restaurant"}})
                                                     << "";
    QTest::newRow("tab separated with comment lines")
        << "cards.tsv"
        << "tab separated text" << Pairs({{"perro", "dog"}, {"gato", "cat"}, {"el pájaro", "bird"}})
        << "";
    QTest::newRow("kvtml, three languages, first two taken")
        << "languages.kvtml"
        << "KVTML" << Pairs({{"spoon", "cuillère"}, {"fork", "fourchette"}}) << "Kitchen Words";
    QTest::newRow("words only") << "wordsonly.csv"
                                << "CSV" << Pairs({{"rhythm", ""}, {"necessary", ""}}) << "";
}

void TeacherImportTest::corpusReadsExactly() {
    QFETCH(QString, file);
    QFETCH(QString, format);
    QFETCH(QList<TextPair>, pairs);
    QFETCH(QString, title);
    QFile f(Corpus(file));
    QVERIFY(f.open(QIODevice::ReadOnly));
    const ImportedList list = ParseVocabularyFile(f.readAll(), file);
    QCOMPARE(list.error, "");
    QCOMPARE(list.format, format);
    QCOMPARE(list.pairs, pairs);
    QCOMPARE(list.suggestedName, title);
}

void TeacherImportTest::csvQuotesAcrossLines() {
    const auto rows = ParseCsv("a,\"b\r\nc\",\"\"\"\"\r\n\r\nlast,\"x,y\"", ',');
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows[0], (QStringList{"a", "b\r\nc", "\""}));
    QCOMPARE(rows[1], (QStringList{"last", "x,y"}));
}

void TeacherImportTest::badFilesChangeNothing_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << "empty.csv"
                           << "The file empty.csv is empty.";
    QTest::newRow("only a BOM and blanks") << "blank-bom.csv"
                                           << "The file blank-bom.csv is empty.";
    QTest::newRow("binary") << "picture.png"
                            << "The file picture.png is not a text file. Choose a CSV, tab "
                               "separated or KVTML file.";
    QTest::newRow("one column")
        << "onecolumn.csv"
        << "The file onecolumn.csv has only one column. Put each word and its definition side by "
           "side, separated by a comma or a tab.";
    QTest::newRow("outside the code page")
        << "outside.csv"
        << "The text \"水\" has characters this program cannot store (it keeps Western European "
           "letters only). Nothing was imported.";
    QTest::newRow("broken xml") << "broken.kvtml"
                                << "This is not a KVTML file";
    QTest::newRow("a word twice")
        << "twice.csv"
        << "The word \"CAT\" appears twice in twice.csv. Nothing was imported.";
    QTest::newRow("a missing definition")
        << "missingdef.csv"
        << "The word \"dog\" has no definition. Give every word a definition, or none at all for "
           "a words-only list. Nothing was imported.";
    QTest::newRow("over the limit") << ""
                                    << "holds 1001 words. A list can hold at most 1000";
    QTest::newRow("name in use") << "quoted.csv"
                                 << "The list name you typed already exists. Please choose another "
                                    "name for your new list.";
}

void TeacherImportTest::badFilesChangeNothing() {
    QFETCH(QString, file);
    QFETCH(QString, message);
    TeacherFixture f;
    QString path = file.isEmpty() ? QString() : Corpus(file);
    if (file.isEmpty()) {
        QStringList rows;
        for (int i = 1; i <= 1001; ++i) rows << QString("word%1,meaning %1").arg(i);
        f.writeLines("big.csv", rows);
        path = f.path("big.csv");
    }
    const QByteArray before = f.lists();
    f.dialogs.fileAnswers.push_back(path);
    f.then<ImportPreview>([](ImportPreview& p) {
        p.name()->setText(" ANIMALS ");
        p.confirm();
        p.reject();
    });
    Manager m;
    m.command("Import List...");
    QVERIFY2(f.dialogs.texts().join("|").contains(message),
             qPrintable(f.dialogs.texts().join("|")));
    QCOMPARE(f.lists(), before);
}

void TeacherImportTest::importAppendsThroughTheManager() {
    TeacherFixture f({"No Lists"});
    f.dialogs.fileAnswers.push_back(Corpus("languages.kvtml"));
    f.then<ImportPreview>([](ImportPreview& p) {
        QCOMPARE(p.summary(), "2 words found in languages.kvtml (KVTML).");
        QCOMPARE(p.table()->rowCount(), 2);
        QCOMPARE(p.table()->item(1, 1)->text(), "fourchette");
        QCOMPARE(p.name()->text(), "Kitchen Words");
        Shot(&p, "import-preview");
        p.confirm();
    });
    Manager m;
    m.command("Import List...");
    QCOMPARE(f.dialogs.last(), "The list \"Kitchen Words\" has been imported with 2 words.");
    // A first list: no separator; accents stored in the program's code page.
    QCOMPARE(f.lists(),
             QByteArray("Kitchen Words\r\nspoon\r\ncuill\xE8re\r\nfork\r\nfourchette\r\n"));

    f.dialogs.fileAnswers.push_back(Corpus("cards.tsv"));
    f.then<ImportPreview>([](ImportPreview& p) {
        p.name()->setText("Animales");
        p.confirm();
    });
    m.command("Import List...");
    QVERIFY(
        f.lists().endsWith("<New List>\r\nAnimales\r\nperro\r\ndog\r\ngato\r\ncat\r\nel "
                           "p\xE1jaro\r\nbird\r\n"));
}

void TeacherImportTest::importNameChecksAndWordsOnly() {
    TeacherFixture f;
    const QByteArray before = f.lists();
    f.dialogs.fileAnswers.push_back(Corpus("wordsonly.csv"));
    Manager m;
    m.command("Import List...");  // No to words-only: nothing happens
    QVERIFY(f.dialogs.last().contains("has words but no definitions"));
    QCOMPARE(f.lists(), before);
    QVERIFY(!f.opened.contains("ImportPreview"));
    f.dialogs.fileAnswers.push_back(Corpus("wordsonly.csv"));
    f.dialogs.answerYes();
    f.then<ImportPreview>([&](ImportPreview& p) {
        QCOMPARE(p.table()->columnCount(), 1);
        p.name()->setText("  ");
        p.confirm();
        QCOMPARE(f.dialogs.last(), "Type a name for your list before you continue...");
        p.name()->setText("Spelling");
        p.confirm();
    });
    m.command("Import List...");
    QCOMPARE(f.lists(),
             before + "<New List>\r\nSpelling\r\nrhythm\r\n-----\r\nnecessary\r\n-----\r\n");
}

void TeacherImportTest::exportRoundTrips() {
    TeacherFixture f({"Animals", "cat", "a pet, furry", "dog", "a \"loyal\" pet", "<New List>",
                      "Spelling", "rhythm", "-----"});
    auto exportAs = [&](const QString& list, bool kvtml, const QString& target) {
        f.then<ExportForm>([=](ExportForm& e) {
            for (int i = 0; i < e.lists()->count(); ++i) {
                if (e.lists()->item(i)->text() == list) e.lists()->setCurrentRow(i);
            }
            e.kvtml()->setChecked(kvtml);
            e.target()->setText(target);
            e.confirm();
        });
        Manager m;
        m.command("Export List...");
        QFile out(target);
        if (!out.open(QIODevice::ReadOnly)) return ImportedList{};
        return ParseVocabularyFile(out.readAll(), target);
    };
    const auto animals = Pairs({{"cat", "a pet, furry"}, {"dog", "a \"loyal\" pet"}});
    ImportedList csv = exportAs("Animals", false, f.path("animals.csv"));
    QCOMPARE(f.dialogs.last(), "The list \"Animals\" has been exported.");
    QCOMPARE(csv.pairs, animals);
    QVERIFY(f.read("animals.csv")
                .startsWith("\xEF\xBB\xBF"
                            "cat,\"a pet, furry\"\r\n"));
    ImportedList kv = exportAs("Animals", true, f.path("animals.kvtml"));
    QCOMPARE(kv.pairs, animals);
    QCOMPARE(kv.suggestedName, "Animals");
    ImportedList words = exportAs("Spelling", true, f.path("spelling.kvtml"));
    QCOMPARE(words.pairs, Pairs({{"rhythm", ""}}));
    QVERIFY(!f.read("spelling.kvtml").contains("-----"));
}

QTEST_MAIN(TeacherImportTest)
#include "teacher_import_test.moc"
