// Joins two or more whole lists into a new one; the sources stay as they are.
#pragma once

#include <QDialog>
#include <string>
#include <vector>

class QLabel;
class QListWidget;

namespace wm {

extern const char* const kForeignMergeWarning;

// "Animals (12 words)": the stored name as it stands and its pairs.
QString MergeLine(const std::string& storedName, std::size_t lineCount);
// The stored name of a line: cut at its last "(".
std::string MergeLineName(const QString& line);
// The new record: the name, then every word and definition line of each list, blank lines out.
std::vector<std::string> MergedRecord(const std::vector<std::string>& data,
                                      const std::vector<std::string>& storedNames);

class MergeForm : public QDialog {
    Q_OBJECT
public:
    explicit MergeForm(QWidget* parent = nullptr);
    QListWidget* lists() const { return TheLists; }
    QString label() const;
    void confirm();  // OK

private:
    QListWidget* TheLists;
    QLabel* Label1;
    std::vector<std::string> data_;
};

}  // namespace wm
