// Lists from other programs' files and back: the corpus of real-world shapes is read exactly,
// every bad file is refused with a message and leaves the list file byte-identical, and an
// exported list reads back as it was.
#include <QCheckBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
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
    void smallFiles_data();
    void smallFiles();
    void previewTakesTheHeadingBack();
    void separatorsHeadingsAndLanguages();
    void badFilesChangeNothing_data();
    void badFilesChangeNothing();
    void importAppendsThroughTheManager();
    void importNameChecksAndWordsOnly();
    void exportRoundTrips();
    void foreignListExportsItsLanguages();
    void boxesRefuseAndCancel();
};

void TeacherImportTest::corpusReadsExactly_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QList<TextPair>>("pairs");
    QTest::addColumn<QString>("title");
    const QString csv = "CSV", tab = "tab separated text", kvtml = "KVTML";
    auto row = [](const char* what, QString file, QString format, QList<TextPair> pairs,
                  QString title = {}) { QTest::newRow(what) << file << format << pairs << title; };
    row("csv with BOM, header and quotes", "quoted.csv", csv,
        {{"cat", "a small pet, often furry"}, {"say \"hi\"", "to greet"},
         {"naïve", "trusting, simple"}, {"café", "a small restaurant"}});
    row("tab separated with comment lines", "cards.tsv", tab,
        {{"perro", "dog"}, {"gato", "cat"}, {"el pájaro", "bird"}});
    row("kvtml, three languages, first two taken", "languages.kvtml", kvtml,
        {{"spoon", "cuillère"}, {"fork", "fourchette"}}, "Kitchen Words");
    row("words only", "wordsonly.csv", csv, {{"rhythm", ""}, {"necessary", ""}});
    row("kvtml: only a translation's own text", "conjugations.kvtml", kvtml,
        {{"être", "to be"}, {"grand", "big"}, {"faire", "to do"}}, "French Verbs and Adjectives");
    row("semicolons, Windows-1252, a heading in German", "semicolons.csv", csv,
        {{"la casa", "house, home"}, {"el pájaro", "bird"}, {"uno; una", "one"},
         {"medio", "0,5 (one half)"}, {"el año", "year"}});
    const QList<TextPair> german = {
        {"der Löffel", "spoon"}, {"die Straße", "street"}, {"die Gabel, -n", "fork"}, {"grün", "green"}};
    row("UTF-16 little-endian", "unicode-le.txt", tab, german);
    row("UTF-16 big-endian", "unicode-be.txt", tab, german);
    row("a title above a blank line", "titled.txt", tab,
        {{"le chien", "dog, hound"}, {"le chat", "cat"}, {"l'oiseau", "bird"}},
        "French vocabulary, unit 3");
    row("words starting with # among headers and comments", "hashes.tsv", tab,
        {{"#", "number sign"}, {"%", "per cent"}, {"#1", "number one, the winner"}, {"&", "and"}});
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

void TeacherImportTest::smallFiles_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QList<TextPair>>("pairs");
    const QString notText = "The file f.txt is not a text file. Choose a CSV, tab separated or "
                            "KVTML file.";
    // One control character in twenty is still text; two are not.
    QTest::newRow("5% control characters") << QByteArray("cat,a pe\x01t\ndog,a pet") << ""
                                           << Pairs({{"cat", "a pe\x01t"}, {"dog", "a pet"}});
    QTest::newRow("10% control characters")
        << QByteArray("cat,a pe\x01t\ndog,a p\x02t") << notText << Pairs({});
    QTest::newRow("a NUL") << QByteArray("cat,a pet\0", 10) << notText << Pairs({});
    QTest::newRow("a definition without its word")
        << QByteArray("cat,a pet\n,a loyal pet\n")
        << "The definition \"a loyal pet\" in f.txt has no word. Nothing was imported."
        << Pairs({});
    QTest::newRow("the separator line as a word")
        << QByteArray("cat,a pet\n<New List>,x\n")
        << "The file f.txt contains the text \"<New List>\", which cannot be used in a list. "
           "Nothing was imported."
        << Pairs({});
    QTest::newRow("most rows are pairs: two titles")
        << QByteArray("Animals\nUnit 3\ncat,a pet\ndog,a loyal pet\nowl,a bird\n") << ""
        << Pairs({{"cat", "a pet"}, {"dog", "a loyal pet"}, {"owl", "a bird"}});
    QTest::newRow("as many words as pairs: no title")
        << QByteArray("Animals\ncat,a pet\n")
        << "The word \"Animals\" has no definition. Give every word a definition, or none at "
           "all for a words-only list. Nothing was imported."
        << Pairs({});
    QTest::newRow("a heading alone") << QByteArray("Word,Definition\n")
                                     << "The file f.txt holds no words to import." << Pairs({});
    QTest::newRow("kvtml: a definition without its word")
        << QByteArray("<kvtml version=\"2.0\"><entries><entry id=\"0\"><translation id=\"1\">"
                      "<text>chat</text></translation></entry></entries></kvtml>")
        << "The definition \"chat\" in f.txt has no word. Nothing was imported." << Pairs({});
    QTest::newRow("kvtml: ids padded, other languages and lessons left out")
        << QByteArray("<kvtml version=\"2.0\"><lessons><entry id=\"0\"/></lessons><entries>"
                      "<entry id=\"0\"><translation id=\" 1 \"><text> le  chat </text>"
                      "</translation><translation id=\"2\"><text>Katze</text></translation>"
                      "<translation id=\"0\"><text>cat</text></translation><comment>x</comment>"
                      "</entry><note/></entries></kvtml>")
        << "" << Pairs({{"cat", "le chat"}});
}

void TeacherImportTest::smallFiles() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, error);
    QFETCH(QList<TextPair>, pairs);
    const ImportedList list = ParseVocabularyFile(bytes, "f.txt");
    QCOMPARE(list.error, error);
    QCOMPARE(list.pairs, pairs);
}

void TeacherImportTest::previewTakesTheHeadingBack() {
    TeacherFixture f({"No Lists"});
    f.dialogs.fileAnswers.push_back(Corpus("heading.csv"));
    f.then<ImportPreview>([](ImportPreview& p) {
        QVERIFY(p.heading());
        QCOMPARE(p.heading()->text(), "First line is a heading");
        QVERIFY(p.heading()->isChecked());
        QCOMPARE(p.summary(), "2 words found in heading.csv (CSV).");
        QCOMPARE(p.table()->horizontalHeaderItem(0)->text(), "Spanish");
        QCOMPARE(p.table()->horizontalHeaderItem(1)->text(), "English");
        QCOMPARE(p.table()->item(0, 0)->text(), "el perro");
        p.heading()->setChecked(false);
        QCOMPARE(p.summary(), "3 words found in heading.csv (CSV).");
        QCOMPARE(p.table()->rowCount(), 3);
        QCOMPARE(p.table()->horizontalHeaderItem(0)->text(), "Word");
        QCOMPARE(p.table()->item(0, 1)->text(), "English");
        p.name()->setText("Animales");
        p.confirm();
    });
    Manager m;
    m.command("Import List...");
    QCOMPARE(f.dialogs.last(), "The list \"Animales\" has been imported with 3 words.");
    QCOMPARE(f.lists(), QByteArray("Animales\r\nSpanish\r\nEnglish\r\nel perro\r\ndog\r\n"
                                   "el gato\r\ncat\r\n"));
}

// The parser's own tables: separators by count, heading words in the languages lists come in,
// and the locales an export names.
void TeacherImportTest::separatorsHeadingsAndLanguages() {
    const std::pair<QString, QChar> separators[] = {
        {"a\tb, c\nd\te, f\n", '\t'},
        {"a;0,5\nb;1,5\nc;2\n", ';'},
        {"a,b;c\nd,e\nf,g\n", ','},
        {"\"x;y\",z\n\"p;q\",r\n", ','},
        {"Unit 3, animals\n\ncat\tchat\ndog\tchien\n", '\t'},
        {"#separator:tab\n#columns:a,b,c\n# one, two, three\nx;y\nz;w\n", ';'},
        {"cat\ndog\n", ','},
        // Only the first 20 lines count: ten and ten, a tie, which goes to the tab.
        {QString("a;b\n").repeated(10) + QString("a\tb\n").repeated(10) +
             QString("a;b\n").repeated(5), '\t'}};
    for (const auto& [text, separator] : separators)
        QVERIFY2(DetectSeparator(text) == separator, qPrintable(text.left(20)));
    const auto rows = ParseCsv("a,\"b\r\nc\",\"\"\"\"\r\n\r\nlast,\"x,y\"", ',');
    QCOMPARE(rows, (QList<QStringList>{{"a", "b\r\nc", "\""}, {"last", "x,y"}}));

    // Every heading word, alone or as a plural, makes a first row a heading; words of a list
    // and numbered words do not.
    const QStringList words = QString(
        "Word Term Front Back Question Answer Vocabulary Vocab Definition Meaning Translation "
        "Description Spelling Phrase Expression Side Card Prompt Response Clue Language Foreign "
        "Native Unit Lesson Chapter List Week Column Palabra Significado Definición Traducción "
        "Mot Sens Définition Traduction Wort Bedeutung Übersetzung Begriff Parola Significato "
        "Español Inglés Francés Alemán Italiano Français Anglais Allemand Espagnol Italien "
        "Deutsch Englisch Französisch Spanisch Italienisch Inglese Spagnolo Francese Tedesco "
        "Welsh").split(' ');
    for (const QString& w : words) {
        for (const QString& first : {w + ",Side 2", "Term in the " + w + "s,"}) {
            const ImportedList l = ParseVocabularyFile((first + "\ncat,a pet\n").toUtf8(), "h.csv");
            QVERIFY2(l.headingSkipped && l.pairs.value(0).first == "cat", qPrintable(first));
        }
    }
    for (const char* first : {"word1,meaning 1", "1,2", "s,a letter", "Word,a unit of language"}) {
        const ImportedList l =
            ParseVocabularyFile(QByteArray(first) + "\ncat,a pet\n", "x.csv");
        QVERIFY2(!l.headingSkipped && l.pairs.size() == 2, first);
    }
    // Up to three leading rows: a title, a subtitle, the headings; the first names the list.
    const ImportedList three = ParseVocabularyFile(
        "Unit 3\nAnimals\nWord,Meaning\nWord,Meaning\ncat,a pet\ndog,a loyal pet\n", "t.csv");
    QCOMPARE(three.headingRows.size(), 3);
    QCOMPARE(three.pairs.value(0), TextPair("Word", "Meaning"));
    QCOMPARE(three.suggestedName, "Unit 3");

    QCOMPARE(LanguageName("Spanish - English words, Spanish meanings"), "Spanish");
    QCOMPARE(LanguageName("  Latin  "), "Latin");
    QCOMPARE(LanguageName("Serbo-Croatian - words"), "Serbo-Croatian");
    const QStringList locales = QString(
        "english en spanish es french fr german de italian it portuguese pt dutch nl latin la "
        "swedish sv norwegian no danish da finnish fi icelandic is irish ga welsh cy gaelic gd "
        "catalan ca basque eu galician gl afrikaans af swahili sw indonesian id malay ms "
        "albanian sq estonian et faroese fo tagalog tl hawaiian haw maori mi esperanto eo "
        "romanian ro polish pl czech cs hungarian hu turkish tr greek el russian ru chinese zh "
        "mandarin zh japanese ja korean ko arabic ar hebrew he hindi hi vietnamese vi "
        "ukrainian uk luxembourgish lb").split(' ');
    for (int i = 0; i + 1 < locales.size(); i += 2) {
        QCOMPARE(LocaleOf(locales[i]), locales[i + 1]);
        QCOMPARE(LocaleOf(locales[i].toUpper()), locales[i + 1]);
    }
    for (const char* none : {"Klingon", "", "Span"}) QCOMPARE(LocaleOf(none), QString());
}

void TeacherImportTest::boxesRefuseAndCancel() {
    TeacherFixture f;
    const QByteArray before = f.lists();
    Manager m;
    // A file that cannot be opened.
    f.dialogs.fileAnswers.push_back(f.path("gone.csv"));
    m.command("Import List...");
    QCOMPARE(f.dialogs.shown.back().text, "The file " + f.path("gone.csv") + " could not be opened.");
    QCOMPARE(f.dialogs.shown.back().title, "Import List");
    // No file chosen: nothing at all.
    const auto shown = f.dialogs.shown.size();
    m.command("Import List...");
    QCOMPARE(f.dialogs.shown.size(), shown + 1);  // only the file box
    QCOMPARE(f.dialogs.shown.back().kind, "openFile");
    QCOMPARE(f.dialogs.shown.back().title, "Import List");
    // A name the list file cannot store, then Cancel.
    f.dialogs.fileAnswers.push_back(Corpus("cards.tsv"));
    f.then<ImportPreview>([&](ImportPreview& p) {
        QCOMPARE(p.table()->editTriggers(), QAbstractItemView::NoEditTriggers);
        p.name()->setText("Animales \u6C34");
        p.confirm();
        QCOMPARE(f.dialogs.last(),
                 "The list name has characters this program cannot store. Please choose another "
                 "name.");
        QSignalSpy cancelled(&p, &QDialog::rejected);
        p.findChild<QPushButton*>("Command1")->click();
        QCOMPARE(cancelled.count(), 1);
    });
    m.command("Import List...");
    QCOMPARE(f.opened.last(), "ImportPreview");
    QCOMPARE(f.lists(), before);

    // Export: a list must be chosen, then a place; CSV unless KVTML is picked; Cancel leaves.
    f.then<ExportForm>([&](ExportForm& e) {
        QVERIFY(e.findChild<QRadioButton*>("Csv")->isChecked());
        QVERIFY(!e.kvtml()->isChecked());
        e.target()->setText(f.path("out.csv"));
        e.confirm();
        QCOMPARE(f.dialogs.last(), "You need to choose a list!");
        e.lists()->setCurrentRow(0);
        e.target()->setText("  ");
        e.confirm();
        QCOMPARE(f.dialogs.shown.back().text, "Choose where to save the file first.");
        QCOMPARE(f.dialogs.shown.back().title, "Export List");
        e.target()->setText(f.path("out.csv"));
        QVERIFY(e.lists()->isSortingEnabled());
        QSignalSpy cancelled(&e, &QDialog::rejected);
        e.findChild<QPushButton*>("Command1")->click();
        QCOMPARE(cancelled.count(), 1);
    });
    m.command("Export List...");
    QCOMPARE(f.opened.last(), "ExportForm");
    QVERIFY(!f.exists("out.csv"));
    // Browse offers a file named after the list, of the kind chosen.
    f.then<ExportForm>([&](ExportForm& e) {
        e.lists()->setCurrentRow(0);
        e.kvtml()->setChecked(true);
        f.then<QFileDialog>([&](QFileDialog& box) {
            QCOMPARE(box.nameFilters(), QStringList{"KVTML files (*.kvtml)"});
            QCOMPARE(box.acceptMode(), QFileDialog::AcceptSave);
            QCOMPARE(box.windowTitle(), "Export List");
            QCOMPARE(QFileInfo(box.selectedFiles().value(0)).fileName(), "Animals.kvtml");
            box.selectFile(f.path("chosen.kvtml"));
            static_cast<QDialog&>(box).accept();  // the save box's own check of the name
        });
        e.findChild<QPushButton*>("Browse")->click();
        QCOMPARE(e.target()->text(), f.path("chosen.kvtml"));
        e.reject();
    });
    m.command("Export List...");
    // A place that cannot be written.
    f.then<ExportForm>([&](ExportForm& e) {
        e.lists()->setCurrentRow(0);
        e.target()->setText(f.path("no/such/folder/out.csv"));
        e.confirm();
    });
    m.command("Export List...");
    QCOMPARE(f.dialogs.shown.back().text,
             "The file " + f.path("no/such/folder/out.csv") + " could not be written.");
    QCOMPARE(f.dialogs.shown.back().title, "Export List");
}

void TeacherImportTest::badFilesChangeNothing_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << "empty.csv"
                           << "The file empty.csv is empty.";
    QTest::newRow("binary") << "picture.png"
                            << "The file picture.png is not a text file. Choose a CSV, tab "
                               "separated or KVTML file.";
    QTest::newRow("the older KVTML")
        << "old.kvtml"
        << "The file old.kvtml is in the older KVTML 1 format, which is not supported. Open it in "
           "a vocabulary trainer, save it as KVTML 2, and import that file.";
    QTest::newRow("outside the code page")
        << "outside.csv"
        << "The text \"水\" has characters this program cannot store (it keeps Western European "
           "letters only). Nothing was imported.";
    QTest::newRow("broken xml")
        << "broken.kvtml"
        << "The file broken.kvtml is not a KVTML file that can be read (Premature end of "
           "document).";
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
    // Each line as written, its indent aside (one space a level), then the line end.
    QStringList written = QString::fromUtf8(f.read("animals.kvtml")).split('\n');
    QCOMPARE(written.takeLast(), "");
    for (QString& l : written) l = l.trimmed();
    QCOMPARE(written.join('|'),
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>|<!DOCTYPE kvtml PUBLIC \"kvtml2.dtd\" "
             "\"http://edu.kde.org/kvtml/kvtml2.dtd\">|<kvtml version=\"2.0\">|<information>|"
             "<generator>Wordmere 1.01</generator>|<title>Animals</title>|</information>|"
             "<identifiers>|<identifier id=\"0\">|<name>Word</name>|<locale>en</locale>|"
             "</identifier>|<identifier id=\"1\">|<name>Definition</name>|<locale>en</locale>|"
             "</identifier>|</identifiers>|<entries>|<entry id=\"0\">|<translation id=\"0\">|"
             "<text>cat</text>|</translation>|<translation id=\"1\">|<text>a pet, furry</text>|"
             "</translation>|</entry>|<entry id=\"1\">|<translation id=\"0\">|<text>dog</text>|"
             "</translation>|<translation id=\"1\">|<text>a &quot;loyal&quot; pet</text>|"
             "</translation>|</entry>|</entries>|<lessons>|<container>|<name>Animals</name>|"
             "<inpractice>true</inpractice>|<entry id=\"0\"/>|<entry id=\"1\"/>|</container>|"
             "</lessons>|</kvtml>");
    QVERIFY(f.read("animals.kvtml").contains("\n  <entry id=\"0\">\n   <translation"));
    QCOMPARE(kv.suggestedName, "Animals");
    ImportedList words = exportAs("Spelling", true, f.path("spelling.kvtml"));
    QCOMPARE(words.pairs, Pairs({{"rhythm", ""}}));
    QVERIFY(f.read("spelling.kvtml").contains("<name>Word</name>"));
    QVERIFY(!f.read("spelling.kvtml").contains("<name>Definition</name>"));
    // A words-only list in CSV is one column, and comes back as a words-only list.
    ImportedList spelling = exportAs("Spelling", false, f.path("spelling.csv"));
    QCOMPARE(f.read("spelling.csv"), QByteArray("\xEF\xBB\xBFrhythm\r\n"));
    QCOMPARE(spelling.error, "");
    QCOMPARE(spelling.pairs, Pairs({{"rhythm", ""}}));
    QVERIFY(spelling.noDefinitions());
}

void TeacherImportTest::foreignListExportsItsLanguages() {
    TeacherFixture f({"[S]Animales", "dog", "el perro", "cat", "el gato", "<New List>",
                      "[Q]Quenya", "star", "elen", "<New List>", "Plain", "big", "large"});
    auto exportKvtml = [&](const QString& list, const QString& target) {
        const QString path = f.path(target);
        f.then<ExportForm>([=](ExportForm& e) {
            for (int i = 0; i < e.lists()->count(); ++i) {
                if (e.lists()->item(i)->text() == list) e.lists()->setCurrentRow(i);
            }
            e.kvtml()->setChecked(true);
            e.target()->setText(path);
            e.confirm();
        });
        Manager m;
        m.command("Export List...");
        return QString::fromUtf8(f.read(target)).remove(' ').remove('\n');
    };
    const QString spanish = exportKvtml("Animales", "animales.kvtml");
    QVERIFY2(spanish.contains("<identifiers><identifierid=\"0\"><name>English</name><locale>en"
                              "</locale></identifier><identifierid=\"1\"><name>Spanish</name>"
                              "<locale>es</locale></identifier></identifiers>"),
             qPrintable(spanish));
    QVERIFY(spanish.contains("<title>Animales</title>"));
    QFile back(f.path("animales.kvtml"));
    QVERIFY(back.open(QIODevice::ReadOnly));
    QCOMPARE(ParseVocabularyFile(back.readAll(), "animales.kvtml").pairs,
             Pairs({{"dog", "el perro"}, {"cat", "el gato"}}));
    // "[S]a" is the plain name of four characters; "[S]ab" is the list "ab" in Spanish.
    f.writeLines("thelists.dat", {"[S]a", "one", "uno", "<New List>", "[S]ab", "two", "dos"});
    QVERIFY(exportKvtml("[S]a", "short.kvtml").contains("<name>Definition</name>"));
    QVERIFY(exportKvtml("ab", "ab.kvtml").contains("<name>Spanish</name><locale>es</locale>"));
}

QTEST_MAIN(TeacherImportTest)
#include "teacher_import_test.moc"
