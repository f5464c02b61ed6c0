// The first step of a new list: its name and its kind (normal, words-only, foreign language).
#pragma once

#include <QDialog>
#include <vector>

#include "core/language_codes.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace wm {

class CreateList : public QDialog {
    Q_OBJECT
public:
    explicit CreateList(QWidget* parent = nullptr);
    QLineEdit* name() const { return NewName; }
    QCheckBox* wordsOnly() const { return Check1; }
    QCheckBox* foreign() const { return Check2; }
    QComboBox* languages() const { return Combo1; }
    void confirm();  // OK

private:
    void wordsOnlyToggled(bool on);
    void foreignToggled(bool on);

    QLineEdit* NewName;
    QCheckBox* Check1;
    QCheckBox* Check2;
    QComboBox* Combo1;
    std::vector<LanguageCode> codes_;
};

}  // namespace wm
