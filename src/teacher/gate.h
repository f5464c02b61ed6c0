// The password prompt in front of the manager, and the box that changes the password.
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace wm {

inline constexpr const char* kFactoryPassword = "mapleton";

class PasswordForm : public QDialog {
    Q_OBJECT
public:
    explicit PasswordForm(QWidget* parent = nullptr);
    QLineEdit* box() const { return EnterPassword; }
    // Shows the alert when the factory password is still in use.
    void warnAboutFactoryPassword();
    void confirm();  // OK or Enter

private:
    QLineEdit* EnterPassword;
    std::string stored_;
    bool readable_ = false;
};

class ChangePassword : public QDialog {
    Q_OBJECT
public:
    explicit ChangePassword(QWidget* parent = nullptr);
    // 0: the old password, 1 and 2: the new one twice.
    QLineEdit* field(int i) const { return Text1[i]; }
    QLabel* success() const { return Success; }
    void confirm();

private:
    QLineEdit* Text1[3];
    QLabel* Success;
    QPushButton* Command1;
    QPushButton* Command2;
    QPushButton* Command3;
};

// The gate: the prompt, then the manager in place of `title` when the password is right.
void OpenTeacherGate(QWidget* title);

}  // namespace wm
