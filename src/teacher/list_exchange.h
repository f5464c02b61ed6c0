// The manager's "Import List..." and "Export List..." commands and their two boxes.
#pragma once

#include <QDialog>

#include "teacher/list_transfer.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;
class QTableWidget;

namespace wm {

// Shows the first pairs and the count, and takes the new list's name.
class ImportPreview : public QDialog {
    Q_OBJECT
public:
    ImportPreview(const ImportedList& list, const QString& fileName, QWidget* parent = nullptr);
    QLineEdit* name() const { return name_; }
    QTableWidget* table() const { return table_; }
    QString summary() const;
    void confirm();  // the name checks of a new list

private:
    QLineEdit* name_;
    QTableWidget* table_;
    QLabel* summary_;
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
