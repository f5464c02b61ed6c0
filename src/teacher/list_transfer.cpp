#include "teacher/list_transfer.h"

#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QStringDecoder>
#include <QStringEncoder>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include "platform/text.h"

namespace wm {

namespace {

const QString kSeparatorLine = "<New List>";
const QString kMarker = "-----";

// Decoded text (line ends as "\n") with more than 5% control characters, or any NUL, is not a
// word list.
bool LooksBinary(const QString& text) {
    const int n = std::min<int>(text.size(), 4096);
    int control = 0;
    for (int i = 0; i < n; ++i) {
        const char16_t c = text[i].unicode();
        if (c == 0) return true;
        if (c < 32 && c != '\t' && c != '\n') ++control;
    }
    return control * 20 > n;
}

QString Decode(const QByteArray& bytes) {
    // A byte-order mark names the encoding: spreadsheets save "Unicode text" as UTF-16.
    if (const auto marked = QStringConverter::encodingForData(bytes)) {
        QStringDecoder decode(*marked);
        return decode(bytes);
    }
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    if (!utf8.hasError()) return text;
    // Not UTF-8: the files this program writes itself are Windows-1252.
    QStringDecoder cp1252("windows-1252");
    return cp1252(bytes);
}

// Line breaks inside a quoted field cannot live in a line-based list.
QString OneLine(const QString& s) {
    return s.simplified();
}

// Languages by their English names, with their locale codes.
struct Language {
    const char* name;
    const char* locale;
};
constexpr Language kLanguages[] = {
    {"english", "en"},    {"spanish", "es"},    {"french", "fr"},     {"german", "de"},
    {"italian", "it"},    {"portuguese", "pt"}, {"dutch", "nl"},      {"latin", "la"},
    {"swedish", "sv"},    {"norwegian", "no"},  {"danish", "da"},     {"finnish", "fi"},
    {"icelandic", "is"},  {"irish", "ga"},      {"welsh", "cy"},      {"gaelic", "gd"},
    {"catalan", "ca"},    {"basque", "eu"},     {"galician", "gl"},   {"afrikaans", "af"},
    {"swahili", "sw"},    {"indonesian", "id"}, {"malay", "ms"},      {"albanian", "sq"},
    {"estonian", "et"},   {"faroese", "fo"},    {"tagalog", "tl"},    {"hawaiian", "haw"},
    {"maori", "mi"},      {"esperanto", "eo"},  {"romanian", "ro"},   {"polish", "pl"},
    {"czech", "cs"},      {"hungarian", "hu"},  {"turkish", "tr"},    {"greek", "el"},
    {"russian", "ru"},    {"chinese", "zh"},    {"mandarin", "zh"},   {"japanese", "ja"},
    {"korean", "ko"},     {"arabic", "ar"},     {"hebrew", "he"},     {"hindi", "hi"},
    {"vietnamese", "vi"}, {"ukrainian", "uk"},  {"luxembourgish", "lb"},
};

// The words of column headings, and language names as their speakers write them.
bool HeadingWord(const QString& token) {
    static const QSet<QString> words = {
        "word",        "term",        "front",     "back",       "question",    "answer",
        "vocabulary",  "vocab",       "definition", "meaning",   "translation", "description",
        "spelling",    "phrase",      "expression", "side",      "card",        "prompt",
        "response",    "clue",        "language",  "foreign",    "native",      "unit",
        "lesson",      "chapter",     "list",      "week",       "column",      "in",
        "the",         "of",          "palabra",   "significado", "definición", "traducción",
        "mot",         "sens",        "définition", "traduction", "wort",       "bedeutung",
        "übersetzung", "begriff",     "parola",    "significato", "español",    "inglés",
        "francés",     "alemán",      "italiano",  "français",   "anglais",     "allemand",
        "espagnol",    "italien",     "deutsch",   "englisch",   "französisch", "spanisch",
        "italienisch", "inglese",     "spagnolo",  "francese",   "tedesco"};
    if (words.contains(token) || !LocaleOf(token).isEmpty()) return true;
    // Plurals: "Words", "Definitions".
    return token.endsWith('s') && token.size() > 1 && HeadingWord(token.chopped(1));
}

// A cell such as "Word", "Spanish", "Side 2" or "English meaning": heading words and numbers
// only ("word1" is a word of a list).
bool HeadingCell(const QString& cell) {
    QString words;
    for (const QChar c : cell.toLower()) words += c.isLetterOrNumber() ? c : QChar(' ');
    bool any = false;
    for (const QString& t : words.split(' ', Qt::SkipEmptyParts)) {
        bool number = false;
        t.toInt(&number);
        if (!number && !HeadingWord(t)) return false;
        any = any || !number;
    }
    return any || cell.isEmpty();
}

// Headers of flash-card programs ("#separator:tab", "#columns:Front<tab>Back") and lines that
// start with "#" and hold no pair are comments; "#<tab>number sign" is a word.
bool IsComment(const QString& line, const QString& separators) {
    static const QRegularExpression header("^#[A-Za-z][A-Za-z ]*:");
    if (!line.startsWith('#')) return false;
    for (const QChar s : separators) {
        if (line.contains(s)) return header.match(line).hasMatch();
    }
    return true;
}

// Fields of one line, quoted separators left out: enough to tell the separator.
int FieldCount(const QString& line, QChar separator) {
    int n = 1;
    bool quoted = false;
    for (const QChar c : line) {
        if (c == '"') quoted = !quoted;
        if (c == separator && !quoted) ++n;
    }
    return n;
}

ImportedList FromRows(const QList<QStringList>& rows, const QString& format,
                      const QString& fileName) {
    ImportedList list;
    list.format = format;
    QList<TextPair> all;
    QList<int> fields;
    int pairsOverWords = 0;  // rows of two fields or more, less rows of one
    for (const QStringList& r : rows) {
        const QString word = OneLine(r.value(0));
        const QString def = OneLine(r.value(1));
        if (word.isEmpty() && def.isEmpty()) continue;
        if (word.isEmpty()) {
            list.error = "The definition \"" + def + "\" in " + fileName +
                         " has no word. Nothing was imported.";
            return list;
        }
        all.append({word, def});
        fields.append(r.size());
        pairsOverWords += r.size() > 1 ? 1 : -1;
    }
    // A title (one field where most rows have two) or a row of column headings leads many
    // files; up to three such rows are left out, and the teacher can take them back.
    const bool pairsFile = pairsOverWords > 0;
    int lead = 0;
    while (lead < std::min<int>(all.size(), 3) &&
           ((pairsFile && fields[lead] == 1) ||
            (HeadingCell(all[lead].first) && HeadingCell(all[lead].second)))) {
        ++lead;
    }
    list.headingRows = all.mid(0, std::max(lead, 1));
    list.headingSkipped = lead > 0;
    if (pairsFile && fields.value(0) == 1) list.suggestedName = all[0].first;
    list.pairs = all.mid(lead);
    return list;
}

}  // namespace

bool ImportedList::noDefinitions() const {
    for (const auto& p : pairs) {
        if (!p.second.isEmpty() && p.second != kMarker) return false;
    }
    return true;
}

QList<TextPair> ImportedList::choose(bool skipHeading) const {
    if (skipHeading == headingSkipped) return pairs;
    if (skipHeading) return pairs.mid(headingRows.size());
    return headingRows + pairs;
}

QString CheckImport(const QList<TextPair>& pairs, const QString& fileName) {
    if (pairs.isEmpty()) return "The file " + fileName + " holds no words to import.";
    if (pairs.size() > kImportLimit) {
        return QString("The file %1 holds %2 words. A list can hold at most %3 words; "
                       "split the file and import it in parts.")
            .arg(fileName)
            .arg(pairs.size())
            .arg(kImportLimit);
    }
    ImportedList list;
    list.pairs = pairs;
    const bool wordsOnly = list.noDefinitions();
    QSet<QString> seen;
    for (const auto& [w, d] : pairs) {
        for (const QString& text : {w, d}) {
            if (!FitsCodePage(text)) {
                return "The text \"" + text +
                       "\" has characters this program cannot store (it keeps Western European "
                       "letters only). Nothing was imported.";
            }
            if (text == kSeparatorLine) {
                return "The file " + fileName + " contains the text \"<New List>\", which " +
                       "cannot be used in a list. Nothing was imported.";
            }
        }
        if (!wordsOnly && d.isEmpty()) {
            return "The word \"" + w +
                   "\" has no definition. Give every word a definition, or none at all for a "
                   "words-only list. Nothing was imported.";
        }
        if (seen.contains(w.toLower())) {
            return "The word \"" + w + "\" appears twice in " + fileName +
                   ". Nothing was imported.";
        }
        seen.insert(w.toLower());
    }
    return {};
}

QList<QStringList> ParseCsv(const QString& text, QChar separator) {
    QList<QStringList> rows;
    QStringList row;
    QString field;
    bool quoted = false, any = false;
    const int n = text.size();
    for (int i = 0; i < n; ++i) {
        const QChar c = text[i];
        if (quoted) {
            if (c == '"') {
                if (i + 1 < n && text[i + 1] == '"') {
                    field += '"';
                    ++i;
                } else {
                    quoted = false;
                }
            } else {
                field += c;
            }
            continue;
        }
        if (c == '"' && field.trimmed().isEmpty()) {
            field.clear();
            quoted = true;
            any = true;
        } else if (c == separator) {
            row << field;
            field.clear();
            any = true;
        } else if (c == '\r' || c == '\n') {
            // The LF of a CR LF ends an empty row, which is dropped like a blank line.
            if (any || !field.isEmpty()) rows << (row << field);
            row.clear();
            field.clear();
            any = false;
        } else {
            field += c;
        }
    }
    if (any || !field.isEmpty()) rows << (row << field);
    for (auto& r : rows) {
        for (auto& f : r) f = f.trimmed();
    }
    return rows;
}

QChar DetectSeparator(const QString& text) {
    // The separator that splits most of the first lines into the same number of fields; a
    // title line or a comma in a definition does not sway it. Ties go to the rarer character.
    QStringList lines;
    for (const QString& line : text.split('\n')) {
        if (lines.size() < 20 && !line.trimmed().isEmpty() && !IsComment(line, "\t;,"))
            lines << line;
    }
    QChar best = ',';
    int bestScore = 0;
    for (const QChar separator : {QChar('\t'), QChar(';'), QChar(',')}) {
        QMap<int, int> linesWith;  // field count -> lines
        for (const QString& line : lines) ++linesWith[FieldCount(line, separator)];
        linesWith.remove(1);
        for (const int score : linesWith) {
            if (score > bestScore) {
                best = separator;
                bestScore = score;
            }
        }
    }
    return best;
}

namespace {

void ReadInformation(QXmlStreamReader& xml, ImportedList& list) {
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("title"))
            list.suggestedName = xml.readElementText(QXmlStreamReader::IncludeChildElements)
                                     .simplified();
        else
            xml.skipCurrentElement();
    }
}

// Only a translation's own <text>: conjugations, comparisons, examples and the like hold
// texts of their own.
QString TranslationText(QXmlStreamReader& xml) {
    QString text;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("text"))
            text = OneLine(xml.readElementText(QXmlStreamReader::IncludeChildElements));
        else
            xml.skipCurrentElement();
    }
    return text;
}

void ReadEntries(QXmlStreamReader& xml, ImportedList& list) {
    while (xml.readNextStartElement()) {
        if (xml.name() != QLatin1String("entry")) {
            xml.skipCurrentElement();
            continue;
        }
        QString word, def;
        while (xml.readNextStartElement()) {
            if (xml.name() != QLatin1String("translation")) {
                xml.skipCurrentElement();
                continue;
            }
            // The first two languages of the file: word, then definition.
            const QString id = xml.attributes().value("id").toString().trimmed();
            const QString text = TranslationText(xml);
            if (id == "0") word = text;
            if (id == "1") def = text;
        }
        if (!word.isEmpty() || !def.isEmpty()) list.pairs.append({word, def});
    }
}

}  // namespace

ImportedList ParseKvtml(const QByteArray& bytes, const QString& fileName) {
    ImportedList list;
    list.format = "KVTML";
    QXmlStreamReader xml(bytes);
    bool root = false, old = false;
    if (xml.readNextStartElement() && xml.name() == QLatin1String("kvtml")) {
        root = true;
        // The first format had no version, or 1.x, and its entries were <e> elements.
        old = xml.attributes().value("version").startsWith(u'1');
        while (xml.readNextStartElement()) {
            if (xml.name() == QLatin1String("information")) {
                ReadInformation(xml, list);
            } else if (xml.name() == QLatin1String("entries")) {
                ReadEntries(xml, list);
            } else {
                old = old || xml.name() == QLatin1String("e");
                xml.skipCurrentElement();
            }
        }
    }
    while (!xml.atEnd()) xml.readNext();  // what follows must be well formed too
    if (xml.hasError() || !root) {
        QString why = root ? xml.errorString() : QString("it has no kvtml element");
        if (why.endsWith('.')) why.chop(1);  // the reader's own sentence sits inside brackets
        list.error =
            "The file " + fileName + " is not a KVTML file that can be read (" + why + ").";
    } else if (old) {
        list.error = "The file " + fileName +
                     " is in the older KVTML 1 format, which is not supported. Open it in a "
                     "vocabulary trainer, save it as KVTML 2, and import that file.";
    }
    for (const auto& [w, d] : list.pairs) {
        if (list.error.isEmpty() && w.isEmpty()) {
            list.error = "The definition \"" + d + "\" in " + fileName +
                         " has no word. Nothing was imported.";
        }
    }
    if (!list.error.isEmpty()) list.pairs.clear();
    return list;
}

ImportedList ParseVocabularyFile(const QByteArray& bytes, const QString& fileName) {
    ImportedList list;
    // Every line end as "\n": the checks below go line by line.
    const QString text = Decode(bytes).replace("\r\n", "\n").replace('\r', '\n');
    if (LooksBinary(text)) {
        list.error = "The file " + fileName +
                     " is not a text file. Choose a CSV, tab separated or KVTML file.";
        return list;
    }
    if (text.trimmed().isEmpty()) {
        list.error = "The file " + fileName + " is empty.";
        return list;
    }
    const QString head = text.left(512).trimmed();
    if (head.startsWith("<?xml") || head.contains("<kvtml")) {
        list = ParseKvtml(bytes, fileName);
    } else {
        const QChar separator = DetectSeparator(text);
        QString body;
        for (const QString& line : text.split('\n')) {
            if (!IsComment(line, separator)) body += line + '\n';
        }
        list = FromRows(ParseCsv(body, separator),
                        separator == '\t' ? "tab separated text" : "CSV", fileName);
    }
    if (list.error.isEmpty()) list.error = CheckImport(list.pairs, fileName);
    if (!list.error.isEmpty()) list.pairs.clear();
    return list;
}

QByteArray ExportCsv(const QList<TextPair>& pairs, bool wordsOnly) {
    auto field = [](const QString& s) {
        if (s.contains(',') || s.contains('"') || s.contains('\n') || s.contains('\r'))
            return '"' + QString(s).replace("\"", "\"\"") + '"';
        return s;
    };
    QString out;
    for (const auto& [w, d] : pairs) {
        out += field(w);
        if (!wordsOnly) out += ',' + field(d);
        out += "\r\n";
    }
    return "\xEF\xBB\xBF" + out.toUtf8();
}

QString LanguageName(const QString& line) {
    return line.section(" - ", 0, 0).trimmed();
}

QString LocaleOf(const QString& language) {
    for (const Language& l : kLanguages) {
        if (language.compare(QLatin1String(l.name), Qt::CaseInsensitive) == 0) return l.locale;
    }
    return {};
}

QByteArray ExportKvtml(const QString& title, const QList<TextPair>& pairs, bool wordsOnly,
                       const QString& language) {
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(1);
    xml.writeStartDocument();
    xml.writeDTD("<!DOCTYPE kvtml PUBLIC \"kvtml2.dtd\" \"http://edu.kde.org/kvtml/kvtml2.dtd\">");
    xml.writeStartElement("kvtml");
    xml.writeAttribute("version", "2.0");
    xml.writeStartElement("information");
    xml.writeTextElement("generator", "Wordmere 1.01");
    xml.writeTextElement("title", title);
    xml.writeEndElement();
    xml.writeStartElement("identifiers");
    const int columns = wordsOnly ? 1 : 2;
    for (int i = 0; i < columns; ++i) {
        xml.writeStartElement("identifier");
        xml.writeAttribute("id", QString::number(i));
        if (language.isEmpty()) {
            xml.writeTextElement("name", i == 0 ? "Word" : "Definition");
            xml.writeTextElement("locale", "en");
        } else {
            // A foreign list holds English words and their translations.
            const QString name = i == 0 ? "English" : language;
            xml.writeTextElement("name", name);
            if (!LocaleOf(name).isEmpty()) xml.writeTextElement("locale", LocaleOf(name));
        }
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeStartElement("entries");
    for (int e = 0; e < pairs.size(); ++e) {
        xml.writeStartElement("entry");
        xml.writeAttribute("id", QString::number(e));
        for (int i = 0; i < columns; ++i) {
            xml.writeStartElement("translation");
            xml.writeAttribute("id", QString::number(i));
            xml.writeTextElement("text", i == 0 ? pairs[e].first : pairs[e].second);
            xml.writeEndElement();
        }
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeStartElement("lessons");
    xml.writeStartElement("container");
    xml.writeTextElement("name", title);
    xml.writeTextElement("inpractice", "true");
    for (int e = 0; e < pairs.size(); ++e) {
        xml.writeEmptyElement("entry");
        xml.writeAttribute("id", QString::number(e));
    }
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndDocument();
    return bytes;
}

}  // namespace wm
