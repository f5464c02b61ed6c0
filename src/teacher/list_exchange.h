// The manager's "Import List..." and "Export List..." commands and their two boxes.
#pragma once

#include <QDialog>

#include "teacher/list_transfer.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;
class QTableWidget;

namespace wm {

// Shows the first pairs and the count, offers to leave out a text file's heading lines, and
// takes the new list's name.
class ImportPreview : public QDialog {
    Q_OBJECT
public:
    ImportPreview(const ImportedList& list, const QString& fileName, QWidget* parent = nullptr);
    QLineEdit* name() const { return name_; }
    QTableWidget* table() const { return table_; }
    QCheckBox* heading() const { return heading_; }  // null for KVTML
    QString summary() const;
    QList<TextPair> words() const;  // what the import takes, as the heading box says
    void confirm();                 // the words and the name checks of a new list

private:
    void fill();

    ImportedList list_;
    QString fileName_;
    QLineEdit* name_;
    QTableWidget* table_;
    QLabel* summary_;
    QLabel* more_;
    QCheckBox* heading_ = nullptr;
};

class ExportForm : public QDialog {
    Q_OBJECT
public:
    explicit ExportForm(QWidget* parent = nullptr);
    QListWidget* lists() const { return lists_; }
    QRadioButton* kvtml() const { return kvtml_; }
    QLineEdit* target() const { return target_; }
    void confirm();

private:
    void browse();

    QListWidget* lists_;
    QRadioButton* csv_;
    QRadioButton* kvtml_;
    QLineEdit* target_;
};

// Reads a file chosen by the teacher and appends it as a new list; a bad file changes nothing.
void ImportList(QWidget* parent);
void ExportList(QWidget* parent);

}  // namespace wm
