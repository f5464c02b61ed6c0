// The program's name and version.
#pragma once

#include <QDialog>

namespace wm {

class AboutForm : public QDialog {
    Q_OBJECT
public:
    explicit AboutForm(QWidget* parent = nullptr);
};

}  // namespace wm
