#include "teacher/list_transfer.h"

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

bool LooksBinary(const QByteArray& bytes) {
    const int n = std::min<int>(bytes.size(), 4096);
    int control = 0;
    for (int i = 0; i < n; ++i) {
        const unsigned char c = bytes[i];
        if (c == 0) return true;
        if (c < 32 && c != '\t' && c != '\r' && c != '\n') ++control;
    }
    return control * 20 > n;  // more than 5% control bytes
}

QString Decode(const QByteArray& bytes) {
    if (bytes.startsWith("\xEF\xBB\xBF")) return QString::fromUtf8(bytes.mid(3));
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    if (!utf8.hasError()) return text;
    // Not UTF-8: the files this program writes itself are Windows-1252.
    QStringDecoder cp1252("windows-1252");
    return cp1252(bytes);
}

// Line breaks inside a quoted field cannot live in a line-based list.
QString OneLine(QString s) {
    s.replace("\r\n", " ").replace('\n', ' ').replace('\r', ' ');
    return s.simplified();
}

bool IsHeader(const QStringList& row) {
    static const QSet<QString> words = {"word",     "words",   "term",      "front",
                                        "question", "english", "vocabulary"};
    static const QSet<QString> defs = {"definition", "definitions", "meaning",    "back",
                                       "answer",     "translation", "description"};
    return row.size() >= 2 && words.contains(row[0].trimmed().toLower()) &&
           defs.contains(row[1].trimmed().toLower());
}

// The checks every format shares; fills `error` on the first problem.
void Check(ImportedList& list, const QString& fileName) {
    if (!list.error.isEmpty()) {
        list.pairs.clear();
        return;
    }
    auto fail = [&](const QString& why) {
        list.error = why;
        list.pairs.clear();
    };
    if (list.pairs.isEmpty()) {
        return fail("The file " + fileName + " holds no words to import.");
    }
    if (list.pairs.size() > kImportLimit) {
        return fail(QString("The file %1 holds %2 words. A list can hold at most %3 words; "
                            "split the file and import it in parts.")
                        .arg(fileName)
                        .arg(list.pairs.size())
                        .arg(kImportLimit));
    }
    const bool wordsOnly = list.noDefinitions();
    QSet<QString> seen;
    for (const auto& [w, d] : list.pairs) {
        for (const QString& text : {w, d}) {
            if (!FitsCodePage(text)) {
                return fail("The text \"" + text +
                            "\" has characters this program cannot store (it keeps Western "
                            "European letters only). Nothing was imported.");
            }
            if (text == kSeparatorLine) {
                return fail("The file " + fileName + " contains the text \"<New List>\", which " +
                            "cannot be used in a list. Nothing was imported.");
            }
        }
        if (!wordsOnly && d.isEmpty()) {
            return fail("The word \"" + w +
                        "\" has no definition. Give every word a definition, or none at all for "
                        "a words-only list. Nothing was imported.");
        }
        if (seen.contains(w.toLower())) {
            return fail("The word \"" + w + "\" appears twice in " + fileName +
                        ". Nothing was imported.");
        }
        seen.insert(w.toLower());
    }
}

ImportedList FromRows(const QList<QStringList>& rows, const QString& format,
                      const QString& fileName) {
    ImportedList list;
    list.format = format;
    int widest = 0;
    for (const auto& r : rows) widest = std::max<int>(widest, r.size());
    if (!rows.isEmpty() && widest < 2) {
        list.error = "The file " + fileName +
                     " has only one column. Put each word and its definition side by side, "
                     "separated by a comma or a tab.";
        return list;
    }
    for (int i = 0; i < rows.size(); ++i) {
        const QStringList& r = rows[i];
        if (i == 0 && IsHeader(r)) continue;
        const QString word = OneLine(r.value(0));
        const QString def = OneLine(r.value(1));
        if (word.isEmpty() && def.isEmpty()) continue;
        if (word.isEmpty()) {
            list.error = "The definition \"" + def + "\" in " + fileName +
                         " has no word. Nothing was imported.";
            return list;
        }
        list.pairs.append({word, def});
    }
    return list;
}

}  // namespace

bool ImportedList::noDefinitions() const {
    for (const auto& p : pairs) {
        if (!p.second.isEmpty() && p.second != kMarker) return false;
    }
    return true;
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
            if (c == '\r' && i + 1 < n && text[i + 1] == '\n') ++i;
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

ImportedList ParseKvtml(const QByteArray& bytes) {
    ImportedList list;
    list.format = "KVTML";
    QXmlStreamReader xml(bytes);
    QString title, word, def;
    bool inEntry = false, inInformation = false;
    int translation = -1;
    bool sawRoot = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            const auto name = xml.name();
            if (name == QLatin1String("kvtml")) {
                sawRoot = true;
            } else if (name == QLatin1String("information")) {
                inInformation = true;
            } else if (inInformation && name == QLatin1String("title")) {
                title = xml.readElementText().simplified();
            } else if (name == QLatin1String("entry") && !inEntry &&
                       xml.attributes().hasAttribute("id") && translation < 0) {
                inEntry = true;
                word.clear();
                def.clear();
            } else if (inEntry && name == QLatin1String("translation")) {
                translation = xml.attributes().value("id").toInt();
            } else if (inEntry && translation >= 0 && name == QLatin1String("text")) {
                const QString t = OneLine(xml.readElementText());
                // The first two languages of the file: word, then definition.
                if (translation == 0) word = t;
                if (translation == 1) def = t;
            }
        } else if (xml.isEndElement()) {
            const auto name = xml.name();
            if (name == QLatin1String("information")) inInformation = false;
            if (name == QLatin1String("translation")) translation = -1;
            if (name == QLatin1String("entry") && inEntry) {
                inEntry = false;
                if (!word.isEmpty() || !def.isEmpty()) list.pairs.append({word, def});
            }
        }
    }
    if (xml.hasError() || !sawRoot) {
        list.error = "This is not a KVTML file that can be read (" + xml.errorString() + ").";
        list.pairs.clear();
    }
    for (const auto& [w, d] : list.pairs) {
        if (w.isEmpty()) {
            list.error = "The definition \"" + d + "\" has no word. Nothing was imported.";
            list.pairs.clear();
            break;
        }
    }
    list.suggestedName = title;
    return list;
}

ImportedList ParseVocabularyFile(const QByteArray& bytes, const QString& fileName) {
    ImportedList list;
    if (bytes.trimmed().isEmpty() ||
        QByteArray(bytes).replace("\xEF\xBB\xBF", "").trimmed().isEmpty()) {
        list.error = "The file " + fileName + " is empty.";
        return list;
    }
    if (LooksBinary(bytes)) {
        list.error = "The file " + fileName +
                     " is not a text file. Choose a CSV, tab separated or KVTML file.";
        return list;
    }
    const QString text = Decode(bytes);
    const QString head = text.left(512).trimmed();
    if (head.startsWith("<?xml") || head.startsWith("<kvtml") || head.contains("<kvtml")) {
        list = ParseKvtml(bytes);
    } else {
        // Lines starting with "#" are the headers some flash-card programs put on tab exports.
        QString body;
        for (const QString& line : text.split('\n')) {
            if (!line.startsWith('#')) body += line + '\n';
        }
        const QString first = body.left(body.indexOf('\n'));
        const bool tabs = first.contains('\t');
        list = FromRows(ParseCsv(tabs ? body : text, tabs ? QChar('\t') : QChar(',')),
                        tabs ? "tab separated text" : "CSV", fileName);
    }
    Check(list, fileName);
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

QByteArray ExportKvtml(const QString& title, const QList<TextPair>& pairs, bool wordsOnly) {
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
        xml.writeTextElement("name", i == 0 ? "Word" : "Definition");
        xml.writeTextElement("locale", "en");
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
