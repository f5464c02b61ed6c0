#include "teacher/gate.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/settings_file.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/game_frame.h"
#include "shell/screens.h"
#include "shell/style.h"
#include "teacher/teacher_kit.h"

namespace wm {

PasswordForm::PasswordForm(QWidget* parent) : QDialog(parent) {
    setObjectName("PasswordForm");
    QVBoxLayout* layout = DialogBody(this, "Teacher Management");
    layout->addWidget(NamedLabel("Label1", "Type the password for Teacher Management:", this));
    EnterPassword = new QLineEdit(this);
    EnterPassword->setObjectName("EnterPassword");
    EnterPassword->setEchoMode(QLineEdit::Password);
    EnterPassword->setFont(ScreenFont(14));
    layout->addWidget(EnterPassword);
    auto* row = new QHBoxLayout;
    auto* cancel = NamedButton("Command2", "Cancel", this);
    auto* ok = NamedButton("Command1", "OK", this, true);
    ok->setDefault(true);
    row->addWidget(cancel);
    row->addStretch();
    row->addWidget(ok);
    layout->addLayout(row);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ok, &QPushButton::clicked, this, &PasswordForm::confirm);
    readable_ = Guarded([&] { stored_ = ReadSettings(Shared().AppPath).password(); });
    WidenToScreen(this, 0.4);
}

void PasswordForm::warnAboutFactoryPassword() {
    if (LCase(stored_) == kFactoryPassword) {
        dialogs().message(
            "The default password for Teacher Management is MAPLETON. If you plan to use this on "
            "a computer available to students, you should change the password to keep the files "
            "secure.",
            "Password Alert");
    }
}

void PasswordForm::confirm() {
    // The gate ignores case; the change-password box does not (it compares exactly).
    // Without a readable settings file there is no password to match, so nothing opens.
    if (readable_ && LCase(fromQ(EnterPassword->text())) == LCase(stored_)) {
        accept();
    } else {
        dialogs().message("Incorrect Password.");
        reject();
    }
}

ChangePassword::ChangePassword(QWidget* parent) : QDialog(parent) {
    setObjectName("ChangePassword");
    QVBoxLayout* layout = DialogBody(this, "Change Password");
    auto* form = new QFormLayout;
    form->setSpacing(10);
    const char* captions[3] = {
        "Current password:", "New password:", "Type the new password again:"};
    for (int i = 0; i < 3; ++i) {
        Text1[i] = new QLineEdit(this);
        Text1[i]->setObjectName(QString("Text1_%1").arg(i));
        Text1[i]->setEchoMode(QLineEdit::Password);
        Text1[i]->setFont(ScreenFont(13));
        form->addRow(NamedLabel(QString("Label%1").arg(i + 1), captions[i], this), Text1[i]);
    }
    layout->addLayout(form);
    Success = NamedLabel("Success", "Your password has been changed.", this, 14, true);
    Success->setStyleSheet("color: #2e7d32;");
    Success->hide();
    layout->addWidget(Success);
    auto* row = new QHBoxLayout;
    Command2 = NamedButton("Command2", "Cancel", this);
    Command1 = NamedButton("Command1", "Change Password", this, true);
    Command3 = NamedButton("Command3", "Done", this, true);
    Command3->hide();
    Command1->setDefault(true);
    row->addWidget(Command2);
    row->addStretch();
    row->addWidget(Command1);
    row->addWidget(Command3);
    layout->addLayout(row);
    connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
    connect(Command3, &QPushButton::clicked, this, &QDialog::accept);
    connect(Command1, &QPushButton::clicked, this, &ChangePassword::confirm);
    EnterMovesOn({Text1[0], Text1[1], Text1[2]});
    Text1[0]->setFocus();
    WidenToScreen(this, 0.4);
}

void ChangePassword::confirm() {
    const std::string old = fromQ(Text1[0]->text());
    const std::string fresh = fromQ(Text1[1]->text());
    const std::string again = fromQ(Text1[2]->text());
    std::string stored;
    if (!Guarded([&] { stored = ReadSettings(Shared().AppPath).password(); })) return;
    // A character the file cannot hold never matches what it holds.
    const bool oldFits = FitsCodePage(Text1[0]->text());
    if (old.empty() || fresh.empty() || again.empty() || fresh != again || old != stored ||
        !oldFits) {
        dialogs().message("One or more fields contains incorrect information. Please try again.");
        return;
    }
    if (!StorablePassword(Text1[1]->text(), Text1[1])) return;
    if (!Guarded([&] { RewriteSettingsLine(Shared().AppPath, kPasswordLine, fresh); })) return;
    for (int i = 0; i < 3; ++i) {
        Text1[i]->hide();
        findChild<QLabel*>(QString("Label%1").arg(i + 1))->hide();
    }
    Command1->hide();
    Command2->hide();
    Command3->show();
    // Done takes the keyboard from the hidden boxes: Enter closes the box.
    Command3->setDefault(true);
    Command3->setFocus();
    Success->show();
    Beep();
}

void OpenTeacherGate(QWidget* title) {
    PasswordForm form(title);
    form.warnAboutFactoryPassword();
    if (RunModal(form) == QDialog::Accepted) OpenScreen("Manager", title);
}

}  // namespace wm
