// The program's name and version.
#pragma once

#include <QDialog>

namespace wm {

class AboutForm : public QDialog {
public:
    explicit AboutForm(QWidget* parent = nullptr);
};

}  // namespace wm
