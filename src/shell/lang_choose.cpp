#include "shell/lang_choose.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/language_codes.h"
#include "core/line_file.h"
#include "core/shared_state.h"
#include "platform/text.h"
#include "shell/game_frame.h"
#include "shell/style.h"

namespace wm {

LangChoose::LangChoose(const std::string& code, QWidget* parent) : QDialog(parent), code_(code) {
    setObjectName("LangChoose");
    setWindowTitle("Foreign Language List");
    setModal(true);
    const auto codes = ReadLanguageCodes(JoinPath(Shared().AppPath, kLanguageFileName));
    const LanguageCode* lang = FindLanguage(codes, code);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(36, 28, 36, 28);
    layout->setSpacing(14);
    auto* label = MakeHeading("How do you want to play this word list?", this, 16);
    label->setObjectName("Label1");
    layout->addWidget(label);
    Option1 = new QRadioButton(lang ? toQ(lang->first) : QString("English words, foreign meanings"),
                               this);
    Option2 = new QRadioButton(
        lang ? toQ(lang->second) : QString("Foreign words, English meanings"), this);
    Option1->setObjectName("Option1");
    Option2->setObjectName("Option2");
    for (auto* o : {Option1, Option2}) {
        o->setFont(ScreenFont(14));
        layout->addWidget(o);
    }
    Option1->setChecked(true);
    auto* ok = MakeButton("OK", this, true);
    ok->setObjectName("Command1");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    layout->addWidget(ok, 0, Qt::AlignCenter);
}

std::string LangChoose::choice() const {
    return Option1->isChecked() ? "E" : code_;
}

std::string LangChoose::Ask(const std::string& code, QWidget* parent) {
    LangChoose box(code, parent);
    RunModal(box);
    return box.choice();
}

}  // namespace wm
