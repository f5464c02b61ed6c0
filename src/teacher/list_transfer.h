// Lists to and from the files of other vocabulary programs: CSV (comma or semicolon), tab
// separated text and KVTML 2, in UTF-8, UTF-16 or Windows-1252.
// Reading checks everything the list file cannot hold, so a bad file never reaches it.
#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

namespace wm {

using TextPair = QPair<QString, QString>;

struct ImportedList {
    QList<TextPair> pairs;  // what comes in, as the file was read
    QString format;         // "CSV", "tab separated text" or "KVTML"
    QString suggestedName;  // the title a KVTML file or a title line carries, else empty
    QString error;          // a message for the teacher; pairs are empty then
    // Text files: the leading rows the teacher may take as headings (the first row at least),
    // and whether `pairs` leaves them out because they look like headings or a title.
    QList<TextPair> headingRows;
    bool headingSkipped = false;
    bool noDefinitions() const;
    // The words with the heading rows left out or taken in.
    QList<TextPair> choose(bool skipHeading) const;
};

inline constexpr int kImportLimit = 1000;

// Reads a whole file's bytes; `fileName` names it in messages.
ImportedList ParseVocabularyFile(const QByteArray& bytes, const QString& fileName);
// The checks on the words to import: "" when the list file can take them, else the message.
QString CheckImport(const QList<TextPair>& pairs, const QString& fileName);
// The pieces, exposed for checking on their own.
QList<QStringList> ParseCsv(const QString& text, QChar separator);
QChar DetectSeparator(const QString& text);  // tab, semicolon or comma
ImportedList ParseKvtml(const QByteArray& bytes, const QString& fileName);

// A list as UTF-8 CSV with a byte-order mark (spreadsheets then read accents right).
QByteArray ExportCsv(const QList<TextPair>& pairs, bool wordsOnly);
// A list as a KVTML 2 document: one identifier for words-only lists, else two. A foreign list
// names its `language` (English words, foreign definitions); other lists are "Word" and
// "Definition".
QByteArray ExportKvtml(const QString& title, const QList<TextPair>& pairs, bool wordsOnly,
                       const QString& language = {});
// The language of a line of the language file: "Spanish - English words, Spanish meanings"
// is "Spanish".
QString LanguageName(const QString& line);
// The locale code of a language named in English, "" when unknown: "Spanish" is "es".
QString LocaleOf(const QString& language);

}  // namespace wm
