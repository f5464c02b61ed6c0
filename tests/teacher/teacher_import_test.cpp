// Lists from other programs' files and back: the corpus of real-world shapes is read exactly,
// every bad file is refused with a message and leaves the list file byte-identical, and an
// exported list reads back as it was.
#include <QFileDialog>
#include <QLabel>
#include <QTableWidget>

#include "look.h"
#include "teacher/list_exchange.h"
#include "teacher_fixture.h"

using namespace wm;
using namespace wm::test;
using Pairs = QList<TextPair>;

namespace {

// Exports `list` through the manager's box as `file` in the fixture's folder; the file's bytes.
QByteArray Export(TeacherFixture& f, const QString& list, bool kvtml, const QString& file) {
    f.then<ExportForm>([&](ExportForm& e) {
        e.lists()->setCurrentRow(RowOf(e.lists(), list));
        e.kvtml()->setChecked(kvtml);
        e.target()->setText(f.path(file));
        e.confirm();
    });
    Manager().command("Export List...");
    return f.read(file);
}

}  // namespace

class TeacherImportTest : public QObject {
    Q_OBJECT
    static QString Corpus(const QString& name) { return WM_TEST_DATA_DIR "/import/" + name; }

private slots:
    // A corpus file (`bytes` empty) or a few bytes as "f.txt": the error, or the words read.
    void filesReadExactly_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("error");
        QTest::addColumn<Pairs>("pairs");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("title");
        const QString csv = "CSV", tab = "tab separated text", kvtml = "KVTML";
        auto file = [](const char* what, QString file, QString format, Pairs pairs,
                       QString title = {}) {
            QTest::newRow(what) << file << QByteArray() << "" << pairs << format << title;
        };
        auto bytes = [](const char* what, QByteArray bytes, QString error, Pairs pairs = {}) {
            QTest::newRow(what) << "f.txt" << bytes << error << pairs << "" << "";
        };
        file("csv with BOM, header and quotes", "quoted.csv", csv,
             {{"cat", "a small pet, often furry"}, {"say \"hi\"", "to greet"},
              {"naïve", "trusting, simple"}, {"café", "a small restaurant"}});
        file("tab separated with comment lines", "cards.tsv", tab,
             {{"perro", "dog"}, {"gato", "cat"}, {"el pájaro", "bird"}});
        file("kvtml, three languages, first two taken", "languages.kvtml", kvtml,
             {{"spoon", "cuillère"}, {"fork", "fourchette"}}, "Kitchen Words");
        file("words only", "wordsonly.csv", csv, {{"rhythm", ""}, {"necessary", ""}});
        file("kvtml: only a translation's own text", "conjugations.kvtml", kvtml,
             {{"être", "to be"}, {"grand", "big"}, {"faire", "to do"}},
             "French Verbs and Adjectives");
        file("semicolons, Windows-1252, a heading in German", "semicolons.csv", csv,
             {{"la casa", "house, home"}, {"el pájaro", "bird"}, {"uno; una", "one"},
              {"medio", "0,5 (one half)"}, {"el año", "year"}});
        const Pairs german = {{"der Löffel", "spoon"}, {"die Straße", "street"},
                              {"die Gabel, -n", "fork"}, {"grün", "green"}};
        file("UTF-16 little-endian", "unicode-le.txt", tab, german);
        file("UTF-16 big-endian", "unicode-be.txt", tab, german);
        file("a title above a blank line", "titled.txt", tab,
             {{"le chien", "dog, hound"}, {"le chat", "cat"}, {"l'oiseau", "bird"}},
             "French vocabulary, unit 3");
        file("words starting with # among headers and comments", "hashes.tsv", tab,
             {{"#", "number sign"}, {"%", "per cent"}, {"#1", "number one, the winner"},
              {"&", "and"}});

        const QString notText =
            "The file f.txt is not a text file. Choose a CSV, tab separated or KVTML file.";
        // One control character in twenty is still text; two are not.
        bytes("5% control characters", "cat,a pe\x01t\ndog,a pet", "",
              {{"cat", "a pe\x01t"}, {"dog", "a pet"}});
        bytes("10% control characters", "cat,a pe\x01t\ndog,a p\x02t", notText);
        bytes("a NUL", QByteArray("cat,a pet\0", 10), notText);
        bytes("a NUL first in a long file",
              QByteArray("\0cat,a pet\ndog,a loyal pet\nowl,a night bird\n", 44), notText);
        bytes("one NUL in a long file",
              QByteArray("cat,a pet\ndog,a loyal pet\nowl,a night bird\0\n", 44), notText);
        bytes("a definition without its word", "cat,a pet\n,a loyal pet\n",
              "The definition \"a loyal pet\" in f.txt has no word. Nothing was imported.");
        bytes("the separator line as a word", "cat,a pet\n<New List>,x\n",
              "The file f.txt contains the text \"<New List>\", which cannot be used in a list. "
              "Nothing was imported.");
        bytes("most rows are pairs: two titles",
              "Animals\nUnit 3\ncat,a pet\ndog,a loyal pet\nowl,a bird\n", "",
              {{"cat", "a pet"}, {"dog", "a loyal pet"}, {"owl", "a bird"}});
        bytes("as many words as pairs: no title", "Animals\ncat,a pet\n",
              "The word \"Animals\" has no definition. Give every word a definition, or none at "
              "all for a words-only list. Nothing was imported.");
        bytes("a heading alone", "Word,Definition\n", "The file f.txt holds no words to import.");
        bytes("xml that is not kvtml", "<?xml version=\"1.0\"?><words><w>cat</w></words>",
              "The file f.txt is not a KVTML file that can be read (it has no kvtml element).");
        bytes("kvtml: a definition without its word",
              "<kvtml version=\"2.0\"><entries><entry id=\"0\"><translation id=\"1\">"
              "<text>chat</text></translation></entry></entries></kvtml>",
              "The definition \"chat\" in f.txt has no word. Nothing was imported.");
        bytes("kvtml: ids padded, other languages and lessons left out",
              "<kvtml version=\"2.0\"><lessons><entry id=\"0\"/></lessons><entries>"
              "<entry id=\"0\"><translation id=\" 1 \"><text> le  chat </text>"
              "</translation><translation id=\"2\"><text>Katze</text></translation>"
              "<translation id=\"0\"><text>cat</text></translation><comment>x</comment>"
              "</entry><note/></entries></kvtml>",
              "", {{"cat", "le chat"}});
    }
    void filesReadExactly() {
        QFETCH(QString, file);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, format);
        QFile f(Corpus(file));
        if (bytes.isEmpty()) QVERIFY(f.open(QIODevice::ReadOnly));
        const ImportedList list =
            ParseVocabularyFile(bytes.isEmpty() ? f.readAll() : bytes, file);
        QTEST(list.error, "error");
        QTEST(list.pairs, "pairs");
        if (!format.isEmpty()) QCOMPARE(list.format, format);
        if (!format.isEmpty()) QTEST(list.suggestedName, "title");
    }

    // The parser's own tables: separators by count, heading words in the languages lists come
    // in, and the locales an export names.
    void separatorsHeadingsAndLanguages() {
        const std::pair<QString, QChar> separators[] = {
            {"a\tb, c\nd\te, f\n", '\t'},
            {"a;0,5\nb;1,5\nc;2\n", ';'},
            {"a,b;c\nd,e\nf,g\n", ','},
            {"\"x;y\",z\n\"p;q\",r\n", ','},
            {"Unit 3, animals\n\ncat\tchat\ndog\tchien\n", '\t'},
            {"#separator:tab\n#columns:a,b,c\n# one, two, three\nx;y\nz;w\n", ';'},
            {"cat\ndog\n", ','},
            // Words starting with # that hold the separator are words, not comments.
            {"#1;one\n#2;two\ncat,a pet, furry\n", ';'},
            // Only the first 20 lines count: ten and ten, a tie, which goes to the tab.
            {QString("a;b\n").repeated(10) + QString("a\tb\n").repeated(10) +
                 QString("a;b\n").repeated(5),
             '\t'}};
        for (const auto& [text, separator] : separators)
            QVERIFY2(DetectSeparator(text) == separator, qPrintable(text.left(20)));
        const auto rows = ParseCsv("a,\"b\r\nc\",\"\"\"\"\r\n\r\nlast,\"x,y\"", ',');
        QCOMPARE(rows, (QList<QStringList>{{"a", "b\r\nc", "\""}, {"last", "x,y"}}));

        // Every heading word, alone or as a plural, makes a first row a heading; words of a
        // list and numbered words do not.
        const QStringList words = QString(
            "Word Term Front Back Question Answer Vocabulary Vocab Definition Meaning Translation "
            "Description Spelling Phrase Expression Side Card Prompt Response Clue Language "
            "Foreign Native Unit Lesson Chapter List Week Column Palabra Significado Definición "
            "Traducción Mot Sens Définition Traduction Wort Bedeutung Übersetzung Begriff Parola "
            "Significato Español Inglés Francés Alemán Italiano Français Anglais Allemand "
            "Espagnol Italien Deutsch Englisch Französisch Spanisch Italienisch Inglese Spagnolo "
            "Francese Tedesco Welsh").split(' ');
        for (const QString& w : words) {
            for (const QString& first : {w + ",Side 2", "Term in the " + w + "s,"}) {
                const ImportedList l =
                    ParseVocabularyFile((first + "\ncat,a pet\n").toUtf8(), "h.csv");
                QVERIFY2(l.headingSkipped && l.pairs.value(0).first == "cat", qPrintable(first));
            }
        }
        for (const char* first :
             {"word1,meaning 1", "1,2", "s,a letter", "Word,a unit of language"}) {
            const ImportedList l =
                ParseVocabularyFile(QByteArray(first) + "\ncat,a pet\n", "x.csv");
            QVERIFY2(!l.headingSkipped && l.pairs.size() == 2, first);
        }
        // Up to three leading rows: a title, a subtitle, the headings; the first names the list.
        const ImportedList three = ParseVocabularyFile(
            "Unit 3\nAnimals\nWord,Meaning\nWord,Meaning\ncat,a pet\ndog,a loyal pet\n", "t.csv");
        QCOMPARE(std::tuple(three.headingRows.size(), three.pairs.value(0), three.suggestedName),
                 std::tuple(3, TextPair("Word", "Meaning"), "Unit 3"));

        QCOMPARE(LanguageName("Spanish - English words, Spanish meanings"), "Spanish");
        QCOMPARE(std::tuple(LanguageName("  Latin  "), LanguageName("Serbo-Croatian - words")),
                 std::tuple("Latin", "Serbo-Croatian"));
        const QStringList locales = QString(
            "english en spanish es french fr german de italian it portuguese pt dutch nl latin la "
            "swedish sv norwegian no danish da finnish fi icelandic is irish ga welsh cy gaelic "
            "gd catalan ca basque eu galician gl afrikaans af swahili sw indonesian id malay ms "
            "albanian sq estonian et faroese fo tagalog tl hawaiian haw maori mi esperanto eo "
            "romanian ro polish pl czech cs hungarian hu turkish tr greek el russian ru chinese "
            "zh mandarin zh japanese ja korean ko arabic ar hebrew he hindi hi vietnamese vi "
            "ukrainian uk luxembourgish lb").split(' ');
        for (int i = 0; i + 1 < locales.size(); i += 2)
            QCOMPARE(std::pair(LocaleOf(locales[i]), LocaleOf(locales[i].toUpper())),
                     std::pair(locales[i + 1], locales[i + 1]));
        for (const char* none : {"Klingon", "", "Span"}) QCOMPARE(LocaleOf(none), QString());

        // A thousand words at most.
        Pairs many;
        for (int i = 1; i <= 1001; ++i) many << TextPair("w" + QString::number(i), "d");
        QCOMPARE(CheckImport(many, "f.csv"),
                 "The file f.csv holds 1001 words. A list can hold at most 1000 words; split the "
                 "file and import it in parts.");
        many.removeLast();
        QCOMPARE(CheckImport(many, "f.csv"), "");
    }

    // Two imports through the manager: a first list (no separator, accents in the program's
    // code page), then one whose heading row the teacher takes back in.
    void importAppendsThroughTheManager() {
        TeacherFixture f({"No Lists"});
        Manager m;
        f.dialogs.fileAnswers.push_back(Corpus("languages.kvtml"));
        f.then<ImportPreview>([](ImportPreview& p) {
            QCOMPARE(p.summary(), "2 words found in languages.kvtml (KVTML).");
            QCOMPARE(std::tuple(p.table()->rowCount(), p.table()->item(1, 1)->text(),
                                p.name()->text(), p.objectName(), p.table()->objectName()),
                     std::tuple(2, "fourchette", "Kitchen Words", "ImportPreview", "Preview"));
            const auto* ask = p.findChild<QLabel*>("Label1");
            QVERIFY(ask && ask->text() == "Type in the name of your new list:");
            p.confirm();
        });
        m.command("Import List...");
        QCOMPARE(f.dialogs.last(), "The list \"Kitchen Words\" has been imported with 2 words.");
        QCOMPARE(f.lists(),
                 QByteArray("Kitchen Words\r\nspoon\r\ncuill\xE8re\r\nfork\r\nfourchette\r\n"));

        f.dialogs.fileAnswers.push_back(Corpus("heading.csv"));
        f.then<ImportPreview>([](ImportPreview& p) {
            auto head = [&](int column) { return p.table()->horizontalHeaderItem(column)->text(); };
            QCOMPARE(std::tuple(p.heading()->isChecked(), p.heading()->text(),
                                p.heading()->objectName()),
                     std::tuple(true, "First line is a heading", "Heading"));
            QCOMPARE(p.summary(), "2 words found in heading.csv (CSV).");
            QCOMPARE(std::tuple(head(0), head(1), p.table()->item(0, 0)->text()),
                     std::tuple("Spanish", "English", "el perro"));
            WM_CHECK_LOOK("Teacher_ImportPreview", &p);
            p.heading()->setChecked(false);
            QCOMPARE(p.summary(), "3 words found in heading.csv (CSV).");
            QCOMPARE(std::tuple(p.table()->rowCount(), head(0), p.table()->item(0, 1)->text()),
                     std::tuple(3, "Word", "English"));
            p.name()->setText("Animales");
            p.confirm();
        });
        m.command("Import List...");
        QCOMPARE(f.dialogs.last(), "The list \"Animales\" has been imported with 3 words.");
        QVERIFY(f.lists().endsWith("fourchette\r\n<New List>\r\nAnimales\r\nSpanish\r\nEnglish\r\n"
                                   "el perro\r\ndog\r\nel gato\r\ncat\r\n"));
        // A long file: ten pairs shown, the rest counted under them.
        QStringList twelve;
        for (int i = 1; i <= 12; ++i) twelve << QString("word%1,meaning %1").arg(i);
        f.writeLines("twelve.csv", twelve);
        f.dialogs.fileAnswers.push_back(f.path("twelve.csv"));
        f.then<ImportPreview>([](ImportPreview& p) {
            const auto* more = p.findChild<QLabel*>("More");
            QVERIFY(more && !more->isHidden() && p.table()->rowCount() == 10);
            QCOMPARE(more->text(), "...and 2 more.");
            WM_CHECK_LOOK("Teacher_ImportPreview_more", &p);  // the count in small type
            p.reject();
        });
        m.command("Import List...");
    }

    void importNameChecksAndWordsOnly() {
        TeacherFixture f;
        const QByteArray before = f.lists();
        Manager m;
        f.dialogs.fileAnswers.push_back(Corpus("wordsonly.csv"));
        m.command("Import List...");  // No to words-only: nothing happens
        QVERIFY(f.dialogs.last().contains("has words but no definitions") &&
                !f.opened.contains("ImportPreview"));
        QCOMPARE(f.lists(), before);
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

    void badFilesChangeNothing_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("message");
        auto row = [](const char* file, const char* message) {
            QTest::newRow(file) << QString(file) << QString(message);
        };
        row("empty.csv", "The file empty.csv is empty.");
        row("picture.png",
            "The file picture.png is not a text file. Choose a CSV, tab separated or KVTML file.");
        row("old.kvtml",
            "The file old.kvtml is in the older KVTML 1 format, which is not supported. Open it in "
            "a vocabulary trainer, save it as KVTML 2, and import that file.");
        row("outside.csv",
            "The text \"水\" has characters this program cannot store (it keeps Western European "
            "letters only). Nothing was imported.");
        row("broken.kvtml",
            "The file broken.kvtml is not a KVTML file that can be read (Premature end of "
            "document).");
        row("twice.csv", "The word \"CAT\" appears twice in twice.csv. Nothing was imported.");
        row("missingdef.csv",
            "The word \"dog\" has no definition. Give every word a definition, or none at all for "
            "a words-only list. Nothing was imported.");
        // The file is good; the name the teacher types is taken.
        row("quoted.csv",
            "The list name you typed already exists. Please choose another name for your new "
            "list.");
    }
    void badFilesChangeNothing() {
        QFETCH(QString, file);
        QFETCH(QString, message);
        TeacherFixture f;
        const QByteArray before = f.lists();
        f.dialogs.fileAnswers.push_back(Corpus(file));
        if (file == "quoted.csv") {
            f.then<ImportPreview>([](ImportPreview& p) {
                p.name()->setText(" ANIMALS ");
                p.confirm();
                p.reject();
            });
        }
        Manager().command("Import List...");
        const QString all = f.dialogs.texts().join("|");
        QVERIFY2(all.contains(message), qPrintable(all));
        QCOMPARE(f.lists(), before);
    }

    void boxesRefuseAndCancel() {
        TeacherFixture f;
        const QByteArray before = f.lists();
        Manager m;
        f.dialogs.fileAnswers.push_back(f.path("gone.csv"));
        m.command("Import List...");
        QCOMPARE(f.box(), "Import List: The file " + f.path("gone.csv") + " could not be opened.");
        // No file chosen: only the file box.
        const auto shown = f.dialogs.shown.size();
        m.command("Import List...");
        QCOMPARE(f.dialogs.shown.size(), shown + 1);
        QCOMPARE(f.dialogs.shown.back().kind + " " + f.dialogs.shown.back().title,
                 "openFile Import List");
        // A name the list file cannot store, then Cancel.
        f.dialogs.fileAnswers.push_back(Corpus("cards.tsv"));
        f.then<ImportPreview>([&](ImportPreview& p) {
            QCOMPARE(p.table()->editTriggers(), QAbstractItemView::NoEditTriggers);
            p.name()->setText("Animales \u6C34");
            p.confirm();
            QCOMPARE(f.dialogs.last(), "The list name has characters this program cannot store. "
                                       "Please choose another name.");
            QSignalSpy cancelled(&p, &QDialog::rejected);
            p.findChild<QPushButton*>("Command1")->click();
            QCOMPARE(cancelled.count(), 1);
        });
        m.command("Import List...");
        QCOMPARE(f.lists(), before);

        // Export: a list must be chosen, then a place; CSV unless KVTML is picked; Cancel leaves.
        f.then<ExportForm>([&](ExportForm& e) {
            QVERIFY(e.findChild<QRadioButton*>("Csv")->isChecked() &&
                    e.lists()->isSortingEnabled());
            e.target()->setText(f.path("out.csv"));
            e.confirm();
            QCOMPARE(f.dialogs.last(), "You need to choose a list!");
            e.lists()->setCurrentRow(0);
            e.target()->setText("  ");
            e.confirm();
            QCOMPARE(f.box(), "Export List: Choose where to save the file first.");
            e.target()->setText(f.path("out.csv"));
            QSignalSpy cancelled(&e, &QDialog::rejected);
            e.findChild<QPushButton*>("Command1")->click();
            QCOMPARE(cancelled.count(), 1);
        });
        m.command("Export List...");
        QVERIFY(!f.exists("out.csv"));
        // Browse offers a file named after the list, of the kind chosen.
        f.then<ExportForm>([&](ExportForm& e) {
            e.lists()->setCurrentRow(0);
            e.kvtml()->setChecked(true);
            f.then<QFileDialog>([&](QFileDialog& box) {
                QCOMPARE(std::tuple(box.nameFilters(), box.acceptMode(), box.windowTitle(),
                                    QFileInfo(box.selectedFiles().value(0)).fileName(),
                                    box.objectName()),
                         std::tuple(QStringList{"KVTML files (*.kvtml)"}, QFileDialog::AcceptSave,
                                    "Export List", "Animals.kvtml", "SaveAs"));
                box.selectFile(f.path("chosen.kvtml"));
                static_cast<QDialog&>(box).accept();  // the save box's own check of the name
            });
            e.findChild<QPushButton*>("Browse")->click();
            QCOMPARE(e.target()->text(), f.path("chosen.kvtml"));
            e.reject();
        });
        m.command("Export List...");
        Export(f, "Animals", false, "no/such/folder/out.csv");
        QCOMPARE(f.box(), "Export List: The file " + f.path("no/such/folder/out.csv") +
                              " could not be written.");
    }

    void exportRoundTrips() {
        TeacherFixture f({"Animals", "cat", "a pet, furry", "dog", "a \"loyal\" pet", "<New List>",
                          "Spelling", "rhythm", "-----", "<New List>", "[S]Animales", "dog",
                          "el perro", "cat", "el gato"});
        auto back = [&](const QString& file) { return ParseVocabularyFile(f.read(file), file); };
        const Pairs animals = {{"cat", "a pet, furry"}, {"dog", "a \"loyal\" pet"}};
        QVERIFY(Export(f, "Animals", false, "animals.csv")
                    .startsWith("\xEF\xBB\xBF" "cat,\"a pet, furry\"\r\n"));
        QCOMPARE(f.dialogs.last(), "The list \"Animals\" has been exported.");
        const QByteArray kvtml = Export(f, "Animals", true, "animals.kvtml");
        QCOMPARE(std::pair(back("animals.csv").pairs, back("animals.kvtml").pairs),
                 std::pair(animals, animals));
        // Each line as written, its indent aside (one space a level), then the line end.
        QStringList written = QString::fromUtf8(kvtml).split('\n');
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
        QVERIFY(kvtml.contains("\n  <entry id=\"0\">\n   <translation"));
        // A words-only list: one identifier in KVTML, one column in CSV; both read back so.
        const QByteArray words = Export(f, "Spelling", true, "spelling.kvtml");
        QVERIFY(words.contains("<name>Word</name>") && !words.contains("<name>Definition</name>"));
        QCOMPARE(Export(f, "Spelling", false, "spelling.csv"),
                 QByteArray("\xEF\xBB\xBFrhythm\r\n"));
        QVERIFY(back("spelling.kvtml").pairs == Pairs({{"rhythm", ""}}) &&
                back("spelling.csv").pairs == Pairs({{"rhythm", ""}}));

        // A foreign list names its languages: English words, foreign definitions.
        auto flat = [](const QByteArray& b) {
            return QString::fromUtf8(b).remove(' ').remove('\n');
        };
        const QString spanish = flat(Export(f, "Animales", true, "animales.kvtml"));
        QVERIFY2(spanish.contains("<identifiers><identifierid=\"0\"><name>English</name><locale>"
                                  "en</locale></identifier><identifierid=\"1\"><name>Spanish"
                                  "</name><locale>es</locale></identifier></identifiers>"),
                 qPrintable(spanish));
        QVERIFY(spanish.contains("<title>Animales</title>") &&
                back("animales.kvtml").pairs == Pairs({{"dog", "el perro"}, {"cat", "el gato"}}));
        // "[S]a" is the plain name of four characters; "[S]ab" is the list "ab" in Spanish.
        f.writeLines("thelists.dat", {"[S]a", "one", "uno", "<New List>", "[S]ab", "two", "dos"});
        QVERIFY(Export(f, "[S]a", true, "short.kvtml").contains("<name>Definition</name>"));
        QVERIFY(flat(Export(f, "ab", true, "ab.kvtml"))
                    .contains("<name>Spanish</name><locale>es</locale>"));
    }
};

QTEST_MAIN(TeacherImportTest)
#include "teacher_import_test.moc"
