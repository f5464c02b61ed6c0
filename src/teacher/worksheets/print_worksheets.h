// The manager's "Print Worksheets..." box: a list (by the chooser's categories and labels), a
// kind and its few options, the pages in a preview, then Save as PDF or Print.
#pragma once

#include <QDialog>
#include <QPrinter>
#include <memory>

#include "core/list_file.h"
#include "teacher/worksheets/worksheet.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPrintPreviewWidget;
class QRadioButton;
class QSpinBox;

namespace wm {

class PrintWorksheets : public QDialog {
    Q_OBJECT
public:
    explicit PrintWorksheets(QWidget* parent = nullptr);

    QComboBox* categories() const { return Combo1; }
    QListWidget* lists() const { return TheLists; }
    QComboBox* kind() const { return kind_; }
    QSpinBox* size() const { return size_; }
    QSpinBox* words() const { return words_; }
    QCheckBox* diagonals() const { return diagonals_; }
    QRadioButton* definitionClue() const { return Option2; }
    QLineEdit* title() const { return title_; }
    QComboBox* paper() const { return paper_; }
    QCheckBox* answerKey() const { return key_; }
    QString status() const;
    const sheets::SheetContent& content() const { return content_; }
    const std::vector<sheets::Page>& pages() const { return pages_; }

    void newPuzzle();  // draws the puzzle and shuffles again
    void savePdf();
    void print();

private:
    void fillLists();
    void chooseList();
    void showOptions();
    void remake();    // the content, after a change of list, kind or option
    void relayOut();  // the pages, after a change of title, paper or key
    sheets::Options options() const;
    bool refused();  // says why no sheet can be made, if so

    QComboBox* Combo1;
    QListWidget* TheLists;
    QComboBox* kind_;
    QFormLayout* form_;
    QSpinBox* size_;
    QSpinBox* words_;
    QCheckBox* diagonals_;
    QRadioButton* Option1;  // "Clue is Word (Easy)"
    QRadioButton* Option2;  // "Clue is Definition"
    QLineEdit* title_;
    QComboBox* paper_;
    QCheckBox* key_;
    QLabel* hint_;
    QLabel* status_;
    std::unique_ptr<QPrinter> printer_;
    QPrintPreviewWidget* preview_;

    std::vector<ForeignList> foreign_;
    sheets::WordList list_;
    sheets::SheetContent content_;
    std::vector<sheets::Page> pages_;
    bool titleTyped_ = false;
    bool building_ = true;
};

}  // namespace wm
