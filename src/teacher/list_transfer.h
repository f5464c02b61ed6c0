// Lists to and from the files of other vocabulary programs: CSV, tab separated text and KVTML 2.
// Reading checks everything the list file cannot hold, so a bad file never reaches it.
#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

namespace wm {

using TextPair = QPair<QString, QString>;

struct ImportedList {
    QList<TextPair> pairs;
    QString format;         // "CSV", "tab separated text" or "KVTML"
    QString suggestedName;  // the title a KVTML file carries, else empty
    QString error;          // a message for the teacher; pairs are empty then
    bool noDefinitions() const;
};

inline constexpr int kImportLimit = 1000;

// Reads a whole file's bytes; `fileName` names it in messages.
ImportedList ParseVocabularyFile(const QByteArray& bytes, const QString& fileName);
// The pieces, exposed for checking on their own.
QList<QStringList> ParseCsv(const QString& text, QChar separator);
ImportedList ParseKvtml(const QByteArray& bytes);

// A list as UTF-8 CSV with a byte-order mark (spreadsheets then read accents right).
QByteArray ExportCsv(const QList<TextPair>& pairs, bool wordsOnly);
// A list as a KVTML 2 document: one identifier for words-only lists, else two.
QByteArray ExportKvtml(const QString& title, const QList<TextPair>& pairs, bool wordsOnly);

}  // namespace wm
