// Asks which way a foreign-language list is played.
#pragma once

#include <QDialog>
#include <QRadioButton>
#include <string>

namespace wm {

class LangChoose : public QDialog {
public:
    LangChoose(const std::string& code, QWidget* parent = nullptr);
    // "E" to play the English side as the word, else the code (the columns swap).
    std::string choice() const;
    QRadioButton* Option1;
    QRadioButton* Option2;

    static std::string Ask(const std::string& code, QWidget* parent);

private:
    std::string code_;
};

}  // namespace wm
